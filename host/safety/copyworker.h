// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <functional>

namespace Host {

/** The part of the BackupKeeper that lives in a thread of its own: reads, checks, copies and thins out. */
class CopyWorker final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CopyWorker)

public:
    CopyWorker(const StorageFolder &folder, std::function<QDateTime()> clock);

    /** Asks for one more round; may be called in any thread. */
    void ask();
    /** One round: the data file as it is now is checked, and copied if it is whole. */
    void work();
    /** Makes sure of a copy of this document. @return whether there is one. */
    bool keep(const QByteArray &document, bool forGood);
    /** Removes what earlier rounds that were cut off have left. */
    void cleanUp();

Q_SIGNALS:
    void failed(const QString &problem);
    void recovered();
    void fileBroken(const QString &reason);
    void fileWhole();

private:
    void copy(const QByteArray &document);
    void fail(const QString &reason);
    void succeed();
    void retry();

    const StorageFolder m_folder;
    const std::function<QDateTime()> m_clock;
    std::atomic<bool> m_asked = false; ///< a round is due that has not begun
    QTimer m_retry;
    QString m_told;          ///< why the last round made no copy; empty when it did
    bool m_wasThere = false; ///< the data file was seen
    bool m_mayThin = true;
};

} // namespace Host
