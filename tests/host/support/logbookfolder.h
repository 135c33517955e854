// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/files.h"

#include <QDateTime>
#include <QTemporaryDir>

/** A folder of a logbook with what a test puts into it. */
class LogbookFolder
{
public:
    LogbookFolder() { QDir(m_root.path()).mkdir(QStringLiteral("log")); }

    QString root() const { return m_root.path(); }
    QString path() const { return m_root.filePath(QStringLiteral("log")); }
    QString file(const QString &name) const { return QDir(path()).filePath(name); }
    Host::StorageFolder folder() const { return Host::StorageFolder(path()); }
    QString dataFile() const { return file(QStringLiteral("voltbok.xml")); }

    void save(const QByteArray &document) const { Files::write(dataFile(), document); }

    /** A copy of any bytes, one second younger than the one before. @return its path. */
    QString copy(const QByteArray &document)
    {
        QDir(path()).mkdir(QStringLiteral("backups"));
        Host::Copy copy;
        copy.number = ++m_copies;
        copy.time = noon().addSecs(static_cast<qint64>(m_copies));
        const QString name = folder().backups().filePath(Host::Backups::fileName(copy));
        Files::write(name, document);
        return name;
    }

    static QDateTime noon() { return QDateTime(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC); }
    /** A logbook that says nothing but its name. */
    static QByteArray document(const QByteArray &name)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok>\n    <Locations>\n"
               "        <Location Name=\"" +
               name + "\"/>\n    </Locations>\n</Voltbok>\n";
    }
    QMap<QString, QByteArray> snapshot() const { return Files::snapshot(m_root.path()); }

private:
    QTemporaryDir m_root;
    quint64 m_copies = 0;
};
