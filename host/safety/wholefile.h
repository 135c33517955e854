// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include <optional>

namespace Host {

/** What a document of the data file's format holds, as a person counts it. */
struct Contents
{
    QString problem; ///< why it cannot be opened as a logbook, a clause such as "it is empty"; else empty
    bool declaresEntities = false; ///< expanding them can take all memory there is
    int locations = 0;
    int batteries = 0;
    int discharges = 0;
    int models = 0;
    int flights = 0;
};

/** Files that are read and written as a whole, or not at all. Every function may be called in any thread. */
namespace WholeFile {

/** The largest file that is opened, in bytes: far more than a life full of flights. */
inline constexpr qint64 MaximumSize = qint64(256) * 1024 * 1024;

struct Reading
{
    QByteArray bytes;
    QString problem; ///< why there are none, a clause such as "permission denied"; empty when all were read
    bool isMissing = false; ///< there is nothing of that name
};

/**
 * Reads a regular file. Nothing else is ever opened: a pipe or a device would keep the program waiting for
 * ever.
 */
Reading read(const QString &path);

/**
 * Writes a file in one step: afterwards it holds these bytes, or what was there before is untouched. Its
 * folder must exist.
 *
 * @param permissions of the file; without them those of the file before, or the system's for a new one.
 * @return why it was not written, a clause such as "no space left on device"; empty when it was.
 */
QString write(const QString &path, const QByteArray &bytes,
              std::optional<QFileDevice::Permissions> permissions = std::nullopt);

/** Why a file cannot be written in place, a clause; empty when it can, or when it can be made. */
QString writeProblem(const QString &path);

/** Waits until a file is on the disk, so that a power cut leaves it whole. A clause that says why it is not.
 */
QString sync(const QString &path);

/** The system's own text for an error as a clause, to stand behind a colon. */
QString clause(const QString &systemText);

/** The read and write permissions of a file; none where there is no file. */
std::optional<QFileDevice::Permissions> permissionsOf(const QString &path);

/** Reads a document through to its end and counts what it holds. */
Contents inspect(const QByteArray &document);

/** Whether a file is a logbook or the beginning of one, which nothing else may take the place of. */
bool isLogbook(const QString &path);

/** Whether these bytes are one whole logbook. */
bool isWhole(const QByteArray &document);

} // namespace WholeFile
} // namespace Host
