// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/copyworker.h"

#include "host/safety/backups.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <chrono>

using namespace std::chrono_literals;

namespace Host {
namespace {

constexpr unsigned long PatienceMs = 100; // for a save by another program that is under way
constexpr std::chrono::milliseconds FirstRetry = 30s;
constexpr std::chrono::milliseconds LastRetry = 10min;

/** The data file's bytes, or why they are no whole logbook. */
WholeFile::Reading readLogbook(const StorageFolder &folder)
{
    WholeFile::Reading reading = WholeFile::read(folder.dataFile());
    if (reading.problem.isEmpty())
        reading.problem = WholeFile::inspect(reading.bytes).problem;
    return reading;
}

QString sentence(const QString &backups, const QString &reason)
{
    const auto complete = [&](const char *text) {
        return QCoreApplication::translate("BackupKeeper", text).arg(backups, reason);
    };
    const QFileInfo folder(backups);
    if ((folder.exists() || folder.isSymLink()) && !folder.isDir())
        return complete(QT_TRANSLATE_NOOP("BackupKeeper",
                                          "No copy of the logbook can be kept in “%1”: %2. Rename or remove "
                                          "it; the program tries again by itself."));
    if (reason == WholeFile::clause(qt_error_string(ENOSPC)))
        return complete(QT_TRANSLATE_NOOP("BackupKeeper",
                                          "No copy of the logbook can be kept in “%1”: %2. Free some space; "
                                          "the program tries again by itself."));
    return complete(QT_TRANSLATE_NOOP("BackupKeeper",
                                      "No copy of the logbook can be kept in “%1”: %2. See that the program "
                                      "can write there; it tries again by itself."));
}

} // namespace

CopyWorker::CopyWorker(const StorageFolder &folder, std::function<QDateTime()> clock)
    : m_folder(folder)
    , m_clock(std::move(clock))
    , m_retry(this) // a child moves with this object into its thread
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(FirstRetry);
    connect(&m_retry, &QTimer::timeout, this, &CopyWorker::retry);
}

void CopyWorker::ask()
{
    if (!m_asked.exchange(true))
        QMetaObject::invokeMethod(this, &CopyWorker::work, Qt::QueuedConnection);
}

void CopyWorker::cleanUp()
{
    Backups::removeLeftovers(m_folder);
}

void CopyWorker::work()
{
    m_asked = false;
    WholeFile::Reading reading = readLogbook(m_folder);
    if (reading.isMissing && !m_wasThere)
        return;
    if (!reading.problem.isEmpty()) {
        QThread::msleep(PatienceMs);
        if (m_asked)
            return; // the next round is waiting already, and sees a newer file
        reading = readLogbook(m_folder);
    }
    m_wasThere = true;
    if (!reading.problem.isEmpty()) {
        m_retry.stop(); // there is nothing to copy
        // Where the mark cannot be set, nothing can be thinned out either.
        Backups::keepNewestWhole(m_folder);
        Q_EMIT fileBroken(reading.isMissing ? QCoreApplication::translate("BackupKeeper", "it is missing")
                                            : reading.problem);
        return;
    }
    const QString lost = WholeFile::sync(m_folder.dataFile());
    if (lost.isEmpty())
        Q_EMIT fileWhole();
    else
        Q_EMIT fileBroken(lost);
    copy(reading.bytes);
}

bool CopyWorker::keep(const QByteArray &document, bool forGood)
{
    const QString problem = Backups::ensure(m_folder, document, m_clock(), forGood);
    if (!problem.isEmpty())
        fail(problem);
    return problem.isEmpty();
}

void CopyWorker::copy(const QByteArray &document)
{
    const QDateTime now = m_clock();
    m_mayThin = m_mayThin && Backups::agreesWithClock(Backups::list(m_folder), now);
    const QString problem = Backups::add(m_folder, document, now);
    if (!problem.isEmpty())
        return fail(problem);
    if (m_mayThin)
        Backups::thin(m_folder, now);
    succeed();
}

void CopyWorker::fail(const QString &reason)
{
    m_retry.start();
    if (m_told == reason)
        return;
    m_told = reason;
    Q_EMIT failed(sentence(m_folder.backups().path(), reason));
}

void CopyWorker::succeed()
{
    m_retry.stop();
    m_retry.setInterval(FirstRetry);
    if (m_told.isEmpty())
        return;
    m_told.clear();
    Q_EMIT recovered();
}

void CopyWorker::retry()
{
    m_retry.setInterval(qMin(2 * m_retry.intervalAsDuration(), LastRetry));
    work();
}

} // namespace Host
