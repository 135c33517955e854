// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/preferences/settings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

const QString Geometry = u"window/geometry"_s;
const QString PanelSizes = u"panel/sizes"_s;
const QString PanelOpen = u"panel/open"_s;
const QString Tables = u"tables/"_s;
const QString RecentFolders = u"folders/recent"_s;
const QString Language = u"language"_s;
const QString Limits = u"limits/"_s;
constexpr qsizetype MostRecentFolders = 8;

} // namespace

Settings::Settings()
    : m_store(u"Voltbok"_s, u"voltbok"_s)
{
}

QByteArray Settings::windowGeometry() const
{
    return m_store.value(Geometry).toByteArray();
}

void Settings::setWindowGeometry(const QByteArray &geometry)
{
    m_store.setValue(Geometry, geometry);
}

QByteArray Settings::panelSizes() const
{
    return m_store.value(PanelSizes).toByteArray();
}

void Settings::setPanelSizes(const QByteArray &sizes)
{
    m_store.setValue(PanelSizes, sizes);
}

std::optional<bool> Settings::isPanelOpen() const
{
    return m_store.contains(PanelOpen) ? std::optional(m_store.value(PanelOpen).toBool()) : std::nullopt;
}

void Settings::setPanelOpen(bool open)
{
    m_store.setValue(PanelOpen, open);
}

QByteArray Settings::tableColumns(const QString &name) const
{
    return m_store.value(Tables + name).toByteArray();
}

void Settings::setTableColumns(const QString &name, const QByteArray &state)
{
    m_store.setValue(Tables + name, state);
}

QStringList Settings::recentFolders() const
{
    return m_store.value(RecentFolders).toStringList();
}

void Settings::addRecentFolder(const QString &path)
{
    QStringList folders = recentFolders();
    folders.removeAll(path);
    folders.prepend(path);
    m_store.setValue(RecentFolders, folders.first(std::min(folders.size(), MostRecentFolders)));
}

QString Settings::language() const
{
    return m_store.value(Language).toString();
}

void Settings::setLanguage(const QString &code)
{
    m_store.setValue(Language, code);
}

int Settings::limit(const QString &name, int otherwise) const
{
    bool isNumber = false;
    const int value = m_store.value(Limits + name).toInt(&isNumber);
    return isNumber ? value : otherwise;
}

void Settings::setLimit(const QString &name, int value)
{
    m_store.setValue(Limits + name, value);
}

QString Settings::fileName() const
{
    return m_store.fileName();
}

bool Settings::isWritable()
{
    m_store.sync();
    return m_store.isWritable();
}

} // namespace Host
