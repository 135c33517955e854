// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"

#include <QDateTime>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

/** A folder of a logbook with what a test puts into it. */
class LogbookFolder
{
public:
    LogbookFolder() { QDir(m_root.path()).mkdir(u"log"_s); }

    QString root() const { return m_root.path(); }
    QString path() const { return m_root.filePath(u"log"_s); }
    QString file(const QString &name) const { return QDir(path()).filePath(name); }
    Host::StorageFolder folder() const { return Host::StorageFolder(path()); }
    QString dataFile() const { return file(u"voltbok.xml"_s); }

    void save(const QByteArray &document) const { QVERIFY(Test::write(dataFile(), document)); }

    /** A copy of any bytes, one second younger than the one before. @return its path. */
    QString copy(const QByteArray &document)
    {
        QDir(path()).mkdir(u"backups"_s);
        Host::Copy copy;
        copy.number = ++m_copies;
        copy.time = noon().addSecs(static_cast<qint64>(m_copies));
        const QString name = folder().backups().filePath(Host::Backups::fileName(copy));
        if (!Test::write(name, document))
            qFatal("a test cannot write a copy");
        return name;
    }

    static QDateTime noon() { return QDateTime(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC); }
    /** A logbook that says nothing but its name. */
    static QByteArray document(const QString &name) { return Test::document({{}, {}, {name}}); }
    QMap<QString, QByteArray> snapshot() const { return Test::snapshot(m_root.path()); }

private:
    QTemporaryDir m_root;
    quint64 m_copies = 0;
};
