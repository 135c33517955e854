// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

class QIODevice;

namespace Host {

/**
 * The lines of a file, one after the other, in a buffer that does not grow.
 *
 * Made of memchr() over large blocks: reading line by line from the device takes twice as long.
 */
class LogLines
{
public:
    LogLines(QIODevice &device, qint64 from);
    Q_DISABLE_COPY_MOVE(LogLines)

    /** Goes to the next line; false behind the last one, or where the device cannot be read. */
    bool next();

    QByteArrayView line() const { return m_line; } ///< without its end; until next()
    qint64 begin() const { return m_begin; }       ///< of the line in the file
    qint64 end() const { return m_end; }           ///< behind the line and its end
    bool isWhole() const { return m_isWhole; }     ///< ends in a line end, and is no longer than the buffer
    bool hasFailed() const { return m_hasFailed; }

private:
    bool fill();
    bool take(qsizetype length, qsizetype lineEnd);
    bool skipOverlong();

    QIODevice &m_device;
    QByteArray m_buffer;
    qsizetype m_position = 0; ///< in the buffer, of what comes next
    qsizetype m_filled = 0;
    QByteArrayView m_line;
    qint64 m_begin = 0;
    qint64 m_end = 0;
    bool m_isWhole = false;
    bool m_hasFailed = false;
};

} // namespace Host
