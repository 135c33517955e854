// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/cataloguefile.h"
#include "host/data/moments.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/program.h"
#include "tests/host/support/snapshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/** A home with a logbook and copies of it; for tests of the command that restores them. */
class CopyHome
{
public:
    CopyHome()
    {
        QDir(m_program.home()).mkpath(u"log/backups"_s);
        putLogbook(now());
    }

    static Host::Catalogue now() { return PlainLogbook::logbook(); }
    /** Before the last two flights and the third battery. */
    static Host::Catalogue before()
    {
        Host::Catalogue catalogue = now();
        catalogue.batteries.removeLast();
        catalogue.batteries[1].discharges.removeLast();
        catalogue.models[1].log.clear();
        return catalogue;
    }
    static QByteArray document(const Host::Catalogue &catalogue)
    {
        return Host::CatalogueFile::save(catalogue).document;
    }

    /** Makes a copy with these bytes. @return its stamp. */
    QString copy(const QByteArray &bytes, const QByteArray &beside = {})
    {
        Host::Copy copy;
        copy.number = ++m_copies;
        copy.time = QDateTime(QDate(2026, 5, 4), QTime(12, 0, static_cast<int>(m_copies)), Qt::UTC);
        const QString name = Host::Backups::fileName(copy);
        put(u"log/backups/"_s + name, bytes);
        if (!beside.isEmpty())
            put(u"log/backups/"_s + Host::Backups::measuredName(name), beside);
        return Host::Backups::parse(name)->stamp;
    }
    QString copy(const Host::Catalogue &catalogue) { return copy(document(catalogue)); }

    /** A file of measured values that knows one discharge of battery A. */
    static QByteArray measured(const QDateTime &time)
    {
        Host::Measured measured;
        Host::MeasuredDischarge entry;
        entry.battery = u"A"_s;
        entry.moment = Host::momentOf(time);
        entry.sha256 = u"log of %1"_s.arg(entry.moment);
        measured.discharges.append(entry);
        measured.logs.append({u"a.csv"_s, entry.sha256, 100, 10, 0, {}, {}, {}});
        return Host::MeasuredFile::save(measured);
    }

    QString path() const { return m_program.home(u"log"_s); }
    QString file(const QString &name) const { return m_program.home(name); }
    Host::StorageFolder folder() const { return Host::StorageFolder(path()); }
    void put(const QString &name, const QByteArray &bytes) const { QVERIFY(Test::write(file(name), bytes)); }
    void putLogbook(const Host::Catalogue &catalogue) const
    {
        put(u"log/voltbok.xml"_s, document(catalogue));
    }
    QByteArray bytes() const { return Test::contents(folder().dataFile()); }
    QByteArray beside() const { return Test::contents(folder().measuredFile()); }
    QStringList asides() const { return QDir(path()).entryList({u"voltbok-broken-*"_s}); }
    QMap<QString, QByteArray> snapshot() const { return Test::snapshot(m_program.home()); }
    /** Whether these bytes are one of the copies. */
    bool isCopied(const QByteArray &wanted) const
    {
        const QList<Host::Copy> copies = Host::Backups::list(folder());
        return std::any_of(copies.cbegin(), copies.cend(), [&](const Host::Copy &copy) {
            return Test::contents(folder().backups().filePath(copy.name)) == wanted;
        });
    }

    Program &program() { return m_program; }
    Program::Result run(const QStringList &arguments) const
    {
        return m_program.run(QStringList{u"--data"_s, path(), u"backups"_s} + arguments);
    }
    Program::Result restore(const QString &stamp) const { return run({u"restore"_s, stamp}); }
    QJsonArray json() const { return QJsonDocument::fromJson(run({u"--json"_s}).output.toUtf8()).array(); }

private:
    Program m_program;
    quint64 m_copies = 0;
};
