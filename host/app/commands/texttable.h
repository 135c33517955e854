// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace Host {

struct TableColumn
{
    QString title;
    bool isNumber = false; ///< stands at the right
};

/**
 * A table for the eye: a line for each row, columns below each other. What a terminal would obey is left out
 * of the texts. Very long texts are not cut, and push the rest of their own line only.
 */
class TextTable final
{
public:
    explicit TextTable(const QList<TableColumn> &columns);

    void addRow(const QStringList &cells);
    /** @param sink gets it in UTF-8, piece by piece, and returns false when it wants no more. */
    void write(const std::function<bool(const QByteArray &)> &sink) const;
    /** All of it, in UTF-8. */
    QByteArray bytes() const;

private:
    QString line(const QStringList &cells) const;

    QList<TableColumn> m_columns;
    QList<qsizetype> m_widths;
    QList<QStringList> m_rows; ///< the titles first
};

/** How many columns of a terminal a plain text takes. */
qsizetype displayWidth(const QString &text);

} // namespace Host
