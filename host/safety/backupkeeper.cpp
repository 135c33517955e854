// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backupkeeper.h"

namespace Host {

BackupKeeper::BackupKeeper(const StorageFolder &, Clock, QObject *parent)
    : QObject(parent)
{
}

BackupKeeper::~BackupKeeper() = default;

void BackupKeeper::look() {}

void BackupKeeper::lookAndWait() {}

} // namespace Host
