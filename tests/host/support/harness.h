// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

/** A place of its own for the program: whatever it writes goes here, and with it. */
class Home
{
public:
    Home();

    QString path() const { return m_root.path(); }
    /** The storage folder; it is made with @p document as its data file, unless that is null. */
    QString makeLogbook(const QByteArray &document) const;
    QString logbook() const { return m_root.filePath(u"log"_s); }
    QString dataFile() const { return m_root.filePath(u"log/voltbok.xml"_s); }
    /** What is left in the run-time and temporary folders; an empty folder of the program's own may stay. */
    QStringList leftovers() const;
    QString faultLog() const { return m_root.filePath(u"faults.log"_s); }

    /** Far from the developer's own files and displays. */
    QProcessEnvironment environment() const;

private:
    QTemporaryDir m_root;
};

namespace Harness {

/** Loads the driver into the program, which takes its commands from standard input. */
void drive(QProcessEnvironment *environment);
/** Puts the faults and the clock under the program. */
void preload(QProcessEnvironment *environment);
/** One line for the driver. */
QByteArray command(const QStringList &words);

/** What the program has said in lines of its own on standard error. */
QStringList complaints(const QByteArray &standardError);

/** What is in the places that all programs share and was not there @p before; other tests may be at work. */
QStringList sharedLeftovers(const QStringList &before = {});

} // namespace Harness
