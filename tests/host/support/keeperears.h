// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backupkeeper.h"
#include "host/safety/copyworker.h"

#include <QCoreApplication>
#include <QSignalSpy>

using Host::BackupKeeper;

/** What a keeper says. */
struct Ears
{
    explicit Ears(BackupKeeper &keeper)
        : failed(&keeper, &BackupKeeper::failed)
        , recovered(&keeper, &BackupKeeper::recovered)
        , broken(&keeper, &BackupKeeper::fileBroken)
        , whole(&keeper, &BackupKeeper::fileWhole)
    {
    }
    QString problem() const { return failed.isEmpty() ? QString() : failed.last().first().toString(); }

    QSignalSpy failed;
    QSignalSpy recovered;
    QSignalSpy broken;
    QSignalSpy whole;
};

/** Runs a function in the keeper's thread, and waits for it. */
template <typename Function>
void inThread(BackupKeeper &keeper, Function function)
{
    QMetaObject::invokeMethod(keeper.m_worker, function, Qt::BlockingQueuedConnection);
}

inline void lookAndHear(BackupKeeper &keeper)
{
    keeper.lookAndWait();
    QCoreApplication::processEvents();
}
