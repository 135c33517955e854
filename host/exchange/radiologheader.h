// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

namespace Host {

/** The names of a log's columns. */
class LogHeader
{
public:
    /** @param line the first line of a file, with or without a mark of UTF-8 */
    explicit LogHeader(QByteArrayView line);

    /** Whether it is that of a log: a date, a time and something else. */
    bool isRadioLog() const;
    qsizetype count() const { return m_names.size(); }
    const QString &name(qsizetype column) const { return m_names.at(column); }
    QString key() const; ///< the same for the same line

    /**
     * Takes commas for parts of labels, so that there are @p count columns: a column ends behind its unit.
     * Labels are the user's, and nothing in the file keeps their commas apart.
     *
     * @return whether that can be
     */
    bool joinTo(qsizetype count);

    /** The columns behind date and time that a sensor fills; sticks, switches and channels are none. */
    QList<qsizetype> sensors() const;

private:
    QByteArray m_line;
    QList<QString> m_names;
};

/** What stands in the brackets at the end of a column's name; empty without them. */
QString unitOf(const QString &column);
/** The name without its unit. */
QString labelOf(const QString &column);

} // namespace Host
