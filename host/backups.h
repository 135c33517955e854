// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>

/** Copies of the data file in the folder "backups" of the storage folder. */
namespace Backups {

/** Whether these bytes are one whole, well-formed document. */
bool isWhole(const QByteArray &document);

/** When the copy of this file name was made, in local time; invalid when the name is not one of a copy. */
QDateTime timeOf(const QString &fileName);

/**
 * The copies that may go: all of today stay, then the newest of each day for 31 days, then the newest of each
 * month for ever. Names that are not those of copies are left out.
 */
QStringList superfluous(const QStringList &fileNames, QDate today);

/**
 * Copies the data file, reads the copy back, and thins out the older ones. A file that is missing, that is
 * not whole, or that equals the newest copy is not copied.
 *
 * @return what went wrong, in one line; empty when nothing did.
 */
QString copy(const QString &storagePath, const QDateTime &now);

/** Path of the newest copy that is whole; empty when there is none. */
QString newestWhole(const QString &storagePath);

} // namespace Backups
