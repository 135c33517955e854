// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/copyreader.h"

#include <QMutexLocker>

using namespace Qt::Literals::StringLiterals;

namespace Host {

CopyReader::CopyReader(const StorageFolder &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_thread(QThread::create([this] { work(); }))
{
    m_thread->setParent(this);
    m_thread->setObjectName(u"reading copies"_s);
    m_thread->start();
}

CopyReader::~CopyReader()
{
    {
        const QMutexLocker lock(&m_mutex);
        m_isOver = true;
        m_changed.wakeAll();
    }
    m_thread->wait();
}

void CopyReader::read(const QList<Copy> &copies)
{
    const QMutexLocker lock(&m_mutex);
    m_due = copies;
    m_changed.wakeAll();
}

void CopyReader::readNext(const Copy &copy)
{
    const QMutexLocker lock(&m_mutex);
    m_due.removeIf([&](const Copy &other) { return other.name == copy.name; });
    m_due.prepend(copy);
    m_changed.wakeAll();
}

void CopyReader::goOn()
{
    const QMutexLocker lock(&m_mutex);
    m_isTaken = true;
    m_changed.wakeAll();
}

/** The copy to read now; waits for one. Nothing when it is over. */
std::optional<Copy> CopyReader::next()
{
    const QMutexLocker lock(&m_mutex);
    while (!m_isOver && (m_due.isEmpty() || !m_isTaken))
        m_changed.wait(&m_mutex);
    if (m_isOver)
        return std::nullopt;
    m_isTaken = false;
    return m_due.takeFirst();
}

/** In the thread. */
void CopyReader::work()
{
    while (const std::optional<Copy> copy = next()) {
        const Backups::Held held = Backups::held(m_folder, *copy);
        QMetaObject::invokeMethod(this, [this, copy, held] { Q_EMIT wasRead(*copy, held); });
    }
}

} // namespace Host
