// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** What the program remembers for its user, in a store of its own. */
class Settings final
{
public:
    /** The user's. */
    Settings();

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray &geometry);
    /** The sizes of logbook and side panel. */
    QByteArray panelSizes() const;
    void setPanelSizes(const QByteArray &sizes);
    /** Whether the side panel was open; unknown before the first start. */
    std::optional<bool> isPanelOpen() const;
    void setPanelOpen(bool open);

    /** How the user left the columns of a table, by its name; empty where he never changed them. */
    QByteArray tableColumns(const QString &name) const;
    void setTableColumns(const QString &name, const QByteArray &state);

    /** The folders opened last, the newest first. */
    QStringList recentFolders() const;
    /** Puts a folder at the beginning. */
    void addRecentFolder(const QString &path);

    /** The code of the language; empty where it is the system's. */
    QString language() const;
    void setLanguage(const QString &code);

    /** A limit that the user may change, by its name. */
    int limit(const QString &name, int otherwise) const;
    void setLimit(const QString &name, int value);

    /** Forgets everything. */
    void clear() { m_store.clear(); }
    /** Where all of this lies, and whether it can be written there. */
    QString fileName() const;
    bool isWritable();

private:
    QSettings m_store;
};

} // namespace Host
