// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

/**
 * Copies the data file when it starts and, while it lives, within half a second of every change.
 *
 * The window saves in this thread: whenever the event loop comes here, the file is whole.
 */
class BackupKeeper : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BackupKeeper)

public:
    explicit BackupKeeper(const QString &storagePath, QObject *parent = nullptr);
    /** Copies what was changed last. */
    ~BackupKeeper() override;

private:
    void copyIfChanged();

    const QString m_storagePath;
    QDateTime m_copiedVersion; // time of change of the data file that was looked at last
    qint64 m_copiedSize = -1;
    QString m_lastProblem;
    QTimer m_timer;
};
