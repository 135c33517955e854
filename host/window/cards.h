// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/measured.h"

#include <QList>
#include <QSet>
#include <QString>

#include <functional>

namespace Host {

/** What is mounted: a card, a stick, a disk. */
struct Volume
{
    QString root; ///< where
    QString name; ///< as its owner calls it
    QString id;   ///< another one where another volume is mounted there
};

/** A volume with a folder of logs. */
struct Card
{
    Volume volume;
    QString folder;           ///< of the logs
    bool isLookedInto = true; ///< whether somebody looked for its logs
    QSet<QString> unknown;    ///< names and lengths of the logs that no import took yet
};

/** Looks for cards of radios. Nothing is written to them; a slow one takes as long as it takes. */
namespace Cards {

/** Finds what is mounted. */
using Volumes = std::function<QList<Volume>()>;

/** What is mounted here, but for the system itself. */
QList<Volume> mounted();

/** The folder of logs on a volume, which radios name LOGS; empty where there is none with a log. */
QString logsFolder(const Volume &volume);

/**
 * The logs below a folder that no import took: where name and length are those of a known one, or its length
 * and its bytes, a log is known.
 *
 * @param goOn asked now and then; false ends it.
 */
QSet<QString> unknownLogs(const QString &folder, const Measured &measured, const std::function<bool()> &goOn);

} // namespace Cards
} // namespace Host
