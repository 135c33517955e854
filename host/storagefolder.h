// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** The folder of the user's own logbook: the platform's place for application data. */
QString defaultStoragePath();

/** The folder of the sample logbook, beside the user's own. */
QString demoStoragePath();

/** Why this folder cannot hold a logbook, in one line; empty when it can. A missing folder can when it can be
 * made. */
QString storageProblem(const QString &path);

/** The data file in this folder. */
QString dataFileName(const QString &path);
