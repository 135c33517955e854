// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

class QDateTime;

namespace Host {

/** The folder that a logbook is kept in, and the name of every file in it. */
class StorageFolder final
{
public:
    /** @param path is made absolute; nothing is looked at or made. */
    explicit StorageFolder(const QString &path);

    /** The folder of the user's own logbook: the platform's place for application data. */
    static StorageFolder ofUser();
    /** The folder of the sample logbook, beside the user's own. */
    static StorageFolder ofDemo();

    QString path() const;
    /** The logbook: "voltbok.xml". */
    QString dataFile() const;
    /**
     * The file that the data file's name stands for: itself, or what it links to. A file that takes its place
     * is put there, so that a link into another folder goes on leading there.
     */
    QString dataFileTarget() const;
    /** What the logs of radios tell of the discharges: "voltbok-measured.json". */
    QString measuredFile() const;
    /** The file that its name stands for, as above. */
    QString measuredFileTarget() const;
    /** A name, not taken yet, for a file of measured values that is put aside. */
    QString asideOfMeasured(const QDateTime &now) const;
    /** The folder of the copies. */
    QDir backups() const;
    QString lock() const;
    /** Where a file that is about to take the place of the data file is written. */
    QString replacement() const;
    /** The files that were put aside, the newest first; absolute paths. */
    QStringList asides() const;
    /** A name, not taken yet, for a data file that is put aside; it is never thinned out. */
    QString aside(const QDateTime &now) const;

    /** A name, not taken yet, among the copies for another version of the logbook that was merged into this
     * one. It is no copy of this logbook, and never thinned out. */
    QString mergedVersion(const QDateTime &now) const;
    /** Those that are there, the oldest first; absolute paths. */
    QStringList mergedVersions() const;
    /** When it was merged, by its name. */
    static QDateTime timeOfMerged(const QString &path);

    /** Why this folder cannot hold a logbook, in a whole sentence; empty when it can. A folder that does not
     * exist yet is fine if it can be created. */
    QString problem() const;

private:
    QDir m_folder;
};

} // namespace Host
