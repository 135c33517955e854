// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologlines.h"

#include <QIODevice>

#include <cstring>

namespace Host {
namespace {

constexpr qsizetype BufferSize =
    qsizetype(64) * 1024; // a line of a log has 200 to 600 bytes; more does not stay in the cache

} // namespace

LogLines::LogLines(QIODevice &device, qint64 from)
    : m_device(device)
    , m_buffer(BufferSize, Qt::Uninitialized)
    , m_end(from)
    , m_hasFailed(!device.seek(from))
{
}

bool LogLines::next()
{
    m_begin = m_end;
    qsizetype searched = 0;
    while (!m_hasFailed) {
        const char *const rest = m_buffer.constData() + m_position;
        const qsizetype available = m_filled - m_position;
        const void *const found =
            std::memchr(rest + searched, '\n', static_cast<size_t>(available - searched));
        if (found)
            return take(static_cast<const char *>(found) - rest, 1);
        if (available == m_buffer.size())
            return skipOverlong();
        searched = available;
        if (!fill())
            return !m_hasFailed && available > 0 && take(available, 0);
    }
    return false;
}

/** Reads on behind what is there; false when there is no more. */
bool LogLines::fill()
{
    m_filled -= m_position;
    std::memmove(m_buffer.data(), m_buffer.constData() + m_position, static_cast<size_t>(m_filled));
    m_position = 0;
    const qint64 count = m_device.read(m_buffer.data() + m_filled, m_buffer.size() - m_filled);
    m_hasFailed = count < 0;
    m_filled += static_cast<qsizetype>(qMax(count, qint64(0)));
    return count > 0;
}

bool LogLines::take(qsizetype length, qsizetype lineEnd)
{
    m_line = QByteArrayView(m_buffer.constData() + m_position, length);
    if (lineEnd > 0 && m_line.endsWith('\r'))
        m_line.chop(1);
    m_isWhole = lineEnd > 0;
    m_position += length + lineEnd;
    m_end = m_begin + length + lineEnd;
    return true;
}

/** A line that fills the buffer is no row of a log: it counts as one that is not whole, and is not kept. */
bool LogLines::skipOverlong()
{
    m_line = QByteArrayView();
    m_isWhole = false;
    for (;;) {
        const char *const rest = m_buffer.constData() + m_position;
        const qsizetype available = m_filled - m_position;
        const void *const found = std::memchr(rest, '\n', static_cast<size_t>(available));
        const qsizetype length = found ? static_cast<const char *>(found) - rest + 1 : available;
        m_end += length;
        m_position += length;
        if (found || !fill())
            return !m_hasFailed;
    }
}

} // namespace Host
