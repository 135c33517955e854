// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/qtoptions.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr std::array WithValue = {"display"_L1,       "geometry"_L1,     "icon"_L1,
                                  "name"_L1,          "platform"_L1,     "platformpluginpath"_L1,
                                  "platformtheme"_L1, "plugin"_L1,       "qwindowgeometry"_L1,
                                  "qwindowicon"_L1,   "qwindowtitle"_L1, "session"_L1,
                                  "style"_L1,         "stylesheet"_L1,   "title"_L1};
constexpr std::array WithoutValue = {"dograb"_L1, "nograb"_L1,  "qdebug"_L1,
                                     "qdevel"_L1, "reverse"_L1, "widgetcount"_L1};
constexpr std::array BeforeEquals = {"qmljsdebugger="_L1, "style="_L1, "stylesheet="_L1};

template <typename List>
bool contains(const List &list, const QString &name)
{
    return std::find(list.begin(), list.end(), name) != list.end();
}

} // namespace

bool QtOptions::hasValue(const QString &name)
{
    return contains(WithValue, name);
}

bool QtOptions::standsAlone(const QString &name)
{
    return contains(WithoutValue, name) ||
           std::any_of(BeforeEquals.begin(), BeforeEquals.end(),
                       [&](QLatin1StringView start) { return name.startsWith(start); });
}

QStringList QtOptions::names()
{
    QStringList names;
    for (const QLatin1StringView name : WithValue)
        names.append(u'-' + name);
    for (const QLatin1StringView name : WithoutValue)
        names.append(u'-' + name);
    return names;
}

} // namespace Host
