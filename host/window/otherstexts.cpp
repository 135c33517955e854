// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/otherstexts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Words
{
    int Contents::*count;
    const char *one;
    const char *several;
};

constexpr Words More[] = {{&Contents::flights, QT_TRANSLATE_NOOP("Others", "1 flight more"),
                           QT_TRANSLATE_N_NOOP("Others", "%n flights more")},
                          {&Contents::discharges, QT_TRANSLATE_NOOP("Others", "1 discharge more"),
                           QT_TRANSLATE_N_NOOP("Others", "%n discharges more")},
                          {&Contents::batteries, QT_TRANSLATE_NOOP("Others", "1 battery more"),
                           QT_TRANSLATE_N_NOOP("Others", "%n batteries more")},
                          {&Contents::models, QT_TRANSLATE_NOOP("Others", "1 model more"),
                           QT_TRANSLATE_N_NOOP("Others", "%n models more")},
                          {&Contents::locations, QT_TRANSLATE_NOOP("Others", "1 location more"),
                           QT_TRANSLATE_N_NOOP("Others", "%n locations more")}};

constexpr Words Fewer[] = {{&Contents::flights, QT_TRANSLATE_NOOP("Others", "1 flight fewer"),
                            QT_TRANSLATE_N_NOOP("Others", "%n flights fewer")},
                           {&Contents::discharges, QT_TRANSLATE_NOOP("Others", "1 discharge fewer"),
                            QT_TRANSLATE_N_NOOP("Others", "%n discharges fewer")},
                           {&Contents::batteries, QT_TRANSLATE_NOOP("Others", "1 battery fewer"),
                            QT_TRANSLATE_N_NOOP("Others", "%n batteries fewer")},
                           {&Contents::models, QT_TRANSLATE_NOOP("Others", "1 model fewer"),
                            QT_TRANSLATE_N_NOOP("Others", "%n models fewer")},
                           {&Contents::locations, QT_TRANSLATE_NOOP("Others", "1 location fewer"),
                            QT_TRANSLATE_N_NOOP("Others", "%n locations fewer")}};

template <std::size_t N>
void append(QStringList &parts, const Words (&kinds)[N], const Contents &from, const Contents &to)
{
    for (const Words &words : kinds) {
        const int count = to.*words.count - from.*words.count;
        if (count > 0)
            parts.append(QCoreApplication::translate("Others", count == 1 ? words.one : words.several,
                                                     nullptr, count));
    }
}

} // namespace

QString changeInWords(const Contents &before, const Contents &now)
{
    QStringList parts;
    append(parts, More, before, now);
    append(parts, Fewer, now, before);
    return parts.isEmpty()
               ? QCoreApplication::translate("Others", "as many entries as before, with other contents")
               : parts.join(QCoreApplication::translate("Others", ", ", "between the parts of a list"));
}

bool holdsFewer(const Contents &before, const Contents &now)
{
    return std::any_of(std::begin(Fewer), std::end(Fewer),
                       [&](const Words &words) { return now.*words.count < before.*words.count; });
}

} // namespace Host
