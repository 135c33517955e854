// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/wholefile.h"

#include <QByteArray>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace Host {

/**
 * Notices what other programs do to a file: by the events of its disk, where there are any, and by looking
 * at it every few seconds, for a shared folder sends none. Contents count: who only touches the file, or puts
 * the same bytes in its place, has changed nothing. No clock is asked.
 */
class FileWatch final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileWatch)

public:
    enum State {
        Known,     ///< it holds what is known
        Unsettled, ///< it is missing or not whole, perhaps because it is just being written
        Other,     ///< it holds something else, which is whole
        Broken     ///< it has been missing or not whole for longer than anybody writes
    };
    /** Why some contents are not whole, a clause; empty when they are. */
    using Check = QString (*)(const QByteArray &bytes);
    struct Pace
    {
        std::chrono::milliseconds settling{50};   ///< from an event to the look
        std::chrono::milliseconds polling{3000};  ///< from one look to the next without an event
        std::chrono::milliseconds patience{5000}; ///< with a file that is not whole, and does not grow
    };

    /** What the file holds now is known. */
    FileWatch(const QString &path, Check check, QObject *parent = nullptr);

    void setPace(const Pace &pace);

    /** What the file holds now is known: the program itself has written or read it. */
    void accept();
    /** What is known are these bytes, whatever the file holds. */
    void acceptAs(const QByteArray &bytes);
    /** The program itself is about to write: nobody else is suspected before accept(). */
    void expect() { m_isExpecting = true; }

    /** Looks at once. */
    void look();
    /** Looks at once, and has no more patience with a file that is not whole. */
    void lookFinally();

    State state() const { return m_state; }
    const QByteArray &known() const { return m_known.bytes; }
    /** What the file held when it was looked at last. */
    const QByteArray &present() const { return m_state == Known ? m_known.bytes : m_present.bytes; }
    /** Whether the file was written, by whomever, since it was looked at last. */
    bool isWritten() const;
    /** The time of the file when it was looked at last; invalid when there was none. */
    QDateTime time() const { return m_seen.written; }

Q_SIGNALS:
    /** Other: it holds these whole contents of somebody else's. */
    void changed(const QByteArray &bytes);
    /** Broken: a clause that says why. */
    void broken(const QString &reason, bool isMissing);
    /** Known: it holds again what is known. */
    void returned();

private:
    struct Stamp
    {
        QDateTime written;
        QDateTime changed; ///< its name or its rights, too
        qint64 size = -1;  ///< of no file
    };

    Stamp stamp() const;
    void read();
    void take(const WholeFile::Reading &reading);
    void giveUp();
    void give(const WholeFile::Reading &reading);
    void wait(const QString &reason);
    void renew();
    void remember(const Stamp &stamp);

    const QString m_path;
    const Check m_check;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
    QTimer m_polling;
    QTimer m_patience;
    WholeFile::Reading m_known;
    WholeFile::Reading m_present; ///< where it is not what is known
    QString m_reason;             ///< why it is not whole
    Stamp m_seen;
    QElapsedTimer m_sinceSeen; ///< how long the stamp has been the same
    bool m_isSure = false;     ///< looked at again when the disk's clock had gone on
    bool m_isExpecting = false;
    State m_state = Known;
};

} // namespace Host
