// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/filewatch.h"

#include <QFileInfo>

#include <utility>

using namespace std::chrono_literals;

namespace Host {
namespace {

/** The longest step in which a disk counts time: two contents within one of them have the same stamp. */
constexpr std::chrono::milliseconds LongestTick = 2s;

bool isSame(const WholeFile::Reading &a, const WholeFile::Reading &b)
{
    return a.problem == b.problem && a.bytes == b.bytes;
}

} // namespace

FileWatch::FileWatch(const QString &path, Check check, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_check(check)
{
    m_settling.setSingleShot(true);
    m_patience.setSingleShot(true);
    m_polling.setTimerType(Qt::CoarseTimer);
    connect(&m_settling, &QTimer::timeout, this, &FileWatch::look);
    connect(&m_polling, &QTimer::timeout, this, &FileWatch::look);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        look();
        if (!m_patience.isActive()) // it would be, were the file still growing
            giveUp();
    });
    const auto noticed = [this] { m_settling.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, noticed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, noticed);
    setPace(Pace());
    accept();
}

void FileWatch::setPace(const Pace &pace)
{
    m_settling.setInterval(pace.settling);
    m_patience.setInterval(pace.patience);
    m_polling.start(pace.polling);
}

FileWatch::Stamp FileWatch::stamp() const
{
    const QFileInfo file(m_path);
    return file.exists() ? Stamp{file.lastModified(), file.metadataChangeTime(), file.size()} : Stamp();
}

bool FileWatch::isWritten() const
{
    const Stamp now = stamp();
    return now.written != m_seen.written || now.size != m_seen.size;
}

void FileWatch::accept()
{
    remember(stamp()); // before it is read: what is written meanwhile is seen at the next look
    m_known = WholeFile::read(m_path);
    take(m_known);
    renew();
}

void FileWatch::acceptAs(const QByteArray &bytes)
{
    remember(Stamp());
    m_known = {bytes, {}};
    take(m_known);
}

/** The file holds what is known. */
void FileWatch::take(const WholeFile::Reading &reading)
{
    m_present = reading;
    m_isExpecting = false;
    m_patience.stop();
    m_state = Known;
}

void FileWatch::look()
{
    renew();
    if (m_isExpecting)
        return;
    const Stamp now = stamp();
    const bool isNew =
        now.written != m_seen.written || now.changed != m_seen.changed || now.size != m_seen.size;
    if (isNew)
        remember(now);
    if (!isNew && m_isSure)
        return;
    m_isSure = std::chrono::milliseconds(m_sinceSeen.elapsed()) > LongestTick;
    give(WholeFile::read(m_path));
}

void FileWatch::lookFinally()
{
    look();
    giveUp();
}

void FileWatch::giveUp()
{
    if (m_state != Unsettled)
        return;
    m_patience.stop();
    m_state = Broken;
    Q_EMIT broken(m_reason, m_present.isMissing);
}

/** Judges what was read. */
void FileWatch::give(const WholeFile::Reading &reading)
{
    if (isSame(reading, m_known)) {
        if (m_state == Known)
            return;
        take(m_known);
        Q_EMIT returned();
        return;
    }
    if (m_state != Known && isSame(reading, m_present))
        return;
    m_present = reading;
    const QString problem = reading.problem.isEmpty() ? m_check(reading.bytes) : reading.problem;
    if (!problem.isEmpty())
        return wait(problem);
    m_patience.stop();
    m_state = Other;
    Q_EMIT changed(reading.bytes);
}

/** Patience begins anew as long as the file changes: somebody is writing it. */
void FileWatch::wait(const QString &reason)
{
    m_reason = reason;
    m_state = Unsettled;
    m_patience.start();
}

void FileWatch::remember(const Stamp &stamp)
{
    m_seen = stamp;
    m_sinceSeen.start();
    m_isSure = false;
}

void FileWatch::renew()
{
    // A file that was replaced is another one; a watcher forgets it.
    if (!m_watcher.files().contains(m_path) && QFileInfo::exists(m_path))
        m_watcher.addPath(m_path);
    const QString folder = QFileInfo(m_path).path();
    if (!m_watcher.directories().contains(folder) && QFileInfo::exists(folder))
        m_watcher.addPath(folder);
}

} // namespace Host
