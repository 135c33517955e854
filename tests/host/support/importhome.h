// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/cataloguefile.h"
#include "host/safety/storagefolder.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/flownsessions.h"
#include "tests/host/support/program.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/** A home with the logbook that flew, and a log of a radio beside it. */
class ImportHome
{
public:
    ImportHome()
    {
        QDir(m_program.home()).mkpath(u"log"_s);
        putLogbook(Flown::logbook());
        put(log(), header() + rows(PlainLogbook::at(14, 38), 300, 1500));
    }

    /** The log: the flight that was clicked at 14:47. */
    static QString log() { return u"Skylark-2026-05-03-143800.csv"_s; }
    static QByteArray header() { return "Date,Time,Curr(A),Capa(mAh),VFAS(V)\n"; }

    /** Rows of one flight, each second one, without a header. */
    static QByteArray rows(const QDateTime &start, int seconds, double used, double from = 0)
    {
        QByteArray bytes;
        for (int i = 0; i <= seconds; ++i) {
            const QDateTime time = start.addSecs(i);
            bytes += time.toString(u"yyyy-MM-dd,HH:mm:ss.000,").toLatin1() +
                     QByteArray::number(i < seconds ? used * 3.6 / seconds : 0.5, 'f', 2) + ',' +
                     QByteArray::number(from + used * i / seconds, 'f', 0) + ",11.9\n";
        }
        return bytes;
    }

    /** What becomes of each session, of one log after the other. */
    static QStringList actions(const Program::Result &result)
    {
        QStringList actions;
        const QJsonDocument document = QJsonDocument::fromJson(result.output.toUtf8());
        const QJsonArray files = document.object().value(u"files"_s).toArray();
        for (const QJsonValue &log : files) {
            const QJsonArray sessions = log[u"sessions"_s].toArray();
            for (const QJsonValue &session : sessions)
                actions.append(session[u"action"_s].toString());
        }
        return actions;
    }

    QString path() const { return m_program.home(u"log"_s); }
    QString file(const QString &name) const { return m_program.home(name); }
    Host::StorageFolder folder() const { return Host::StorageFolder(path()); }
    bool put(const QString &name, const QByteArray &bytes) const
    {
        return Host::WholeFile::write(file(name), bytes).isEmpty();
    }
    bool putLogbook(const Host::Catalogue &catalogue) const
    {
        return put(u"log/voltbok.xml"_s, Host::CatalogueFile::save(catalogue).document);
    }
    const Program &program() const { return m_program; }
    Program::Result import(const QStringList &arguments) const
    {
        return m_program.run(QStringList{u"--data"_s, path(), u"import"_s} + arguments);
    }
    Host::Catalogue catalogue() const
    {
        return Host::CatalogueFile::load(Host::WholeFile::read(folder().dataFile()).bytes).catalogue;
    }

private:
    Program m_program;
};
