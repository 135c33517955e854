// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QThread>
#include <QWaitCondition>

#include <optional>

namespace Host {

/**
 * Reads copies in a thread of its own, and looks whether they are whole; one after the other: the next is
 * begun when the one before was taken.
 */
class CopyReader final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CopyReader)

public:
    explicit CopyReader(const StorageFolder &folder, QObject *parent = nullptr);
    ~CopyReader() override;

    /** Reads these, in this order, and nothing of what it was to read before. */
    void read(const QList<Copy> &copies);
    /** Reads this one next, also once more. */
    void readNext(const Copy &copy);
    /** What was read has been taken. */
    void goOn();

Q_SIGNALS:
    void wasRead(const Host::Copy &copy, const Host::Backups::Held &held);

private:
    void work();
    std::optional<Copy> next();

    const StorageFolder m_folder;
    QMutex m_mutex; ///< of what follows
    QWaitCondition m_changed;
    QList<Copy> m_due;
    bool m_isTaken = true;
    bool m_isOver = false;
    QThread *m_thread;
};

} // namespace Host
