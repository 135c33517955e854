// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backupkeeper.h"

#include "host/safety/copyworker.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {

BackupKeeper::BackupKeeper(const StorageFolder &folder, Clock clock, QObject *parent)
    : QObject(parent)
    , m_worker(new CopyWorker(folder, std::move(clock)))
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, m_worker, &CopyWorker::cleanUp);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &CopyWorker::failed, this, &BackupKeeper::failed);
    connect(m_worker, &CopyWorker::recovered, this, &BackupKeeper::recovered);
    connect(m_worker, &CopyWorker::fileBroken, this, &BackupKeeper::fileBroken);
    connect(m_worker, &CopyWorker::fileWhole, this, &BackupKeeper::fileWhole);
    m_thread.setObjectName(u"copies"_s);
    m_thread.start();
    look();
}

BackupKeeper::~BackupKeeper()
{
    lookAndWait();
    m_thread.quit();
    m_thread.wait();
}

void BackupKeeper::look()
{
    m_worker->ask();
}

void BackupKeeper::look(const QByteArray &document)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, document] { worker->keep(document, false); }, Qt::QueuedConnection);
}

void BackupKeeper::lookAndWait()
{
    QMetaObject::invokeMethod(m_worker, &CopyWorker::work, Qt::BlockingQueuedConnection);
}

bool BackupKeeper::keep(const QByteArray &document, bool forGood)
{
    bool isKept = false;
    QMetaObject::invokeMethod(
        m_worker, [&] { isKept = m_worker->keep(document, forGood); }, Qt::BlockingQueuedConnection);
    return isKept;
}

} // namespace Host
