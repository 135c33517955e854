// SPDX-License-Identifier: GPL-3.0-or-later
#include "backupkeeper.h"

#include "backups.h"
#include "host.h"
#include "storagefolder.h"

#include <QFileInfo>

#include <utility>

namespace {
constexpr int IntervalMs = 500;
}

BackupKeeper::BackupKeeper(const QString &storagePath, QObject *parent)
    : QObject(parent)
    , m_storagePath(storagePath)
{
    copyIfChanged();
    connect(&m_timer, &QTimer::timeout, this, &BackupKeeper::copyIfChanged);
    m_timer.start(IntervalMs);
}

BackupKeeper::~BackupKeeper()
{
    copyIfChanged();
}

void BackupKeeper::copyIfChanged()
{
    const QFileInfo file(dataFileName(m_storagePath));
    if (!file.exists() || (file.lastModified() == m_copiedVersion && file.size() == m_copiedSize))
        return;
    const QString problem = Backups::copy(m_storagePath, QDateTime::currentDateTime());
    if (!problem.isEmpty() && problem != m_lastProblem)
        fail(problem);
    m_lastProblem = problem;
    if (!problem.isEmpty())
        return; // tried again at the next tick
    m_copiedVersion = file.lastModified();
    m_copiedSize = file.size();
}
