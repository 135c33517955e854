// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QThread>

#include <functional>

namespace Host {

class CopyWorker;

/**
 * Copies the data file when it starts and after every change that it is told of, in a thread of its own, and
 * thins the copies out.
 */
class BackupKeeper final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BackupKeeper)

public:
    /** Asked in the other thread. */
    using Clock = std::function<QDateTime()>;

    explicit BackupKeeper(const StorageFolder &folder, Clock clock = &QDateTime::currentDateTimeUtc,
                          QObject *parent = nullptr);
    /** Copies what was changed last, and waits for it. */
    ~BackupKeeper() override;

    /** The data file may have changed: returns at once; the file is read, checked and copied elsewhere. */
    void look();
    /** The same for a version that the data file may hold no more by then. */
    void look(const QByteArray &document);
    /** Looks, and waits until the copy is made: before something overwrites the file. */
    void lookAndWait();
    /**
     * Waits until one of the copies is this whole logbook, which the data file may hold no more.
     *
     * @param forGood that copy is never thinned out.
     * @return whether there is such a copy; where not, failed() says why.
     */
    bool keep(const QByteArray &document, bool forGood = false);

Q_SIGNALS:
    /** No copy could be made; told once for each reason, until a copy is made again. A whole sentence. */
    void failed(const QString &problem);
    /** A copy was made, or was not needed, after failed(). */
    void recovered();
    /** The data file is not one whole logbook; a clause that says why. */
    void fileBroken(const QString &reason);
    /** The data file was read and is one whole logbook. */
    void fileWhole();

private:
    QThread m_thread;
    CopyWorker *m_worker; ///< lives in the thread, and ends with it
};

} // namespace Host
