// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/texttable.h"

#include "host/safety/plaintext.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype WidestColumn = 40;
constexpr qsizetype PieceSize = qsizetype(64) * 1024;

/** Characters that a terminal shows in two columns: those of East Asia, and pictures. */
bool isWide(char32_t character)
{
    static constexpr std::array<std::pair<char32_t, char32_t>, 8> Ranges{{{0x1100, 0x115f},
                                                                          {0x2e80, 0xa4cf},
                                                                          {0xac00, 0xd7a3},
                                                                          {0xf900, 0xfaff},
                                                                          {0xfe30, 0xfe6f},
                                                                          {0xff00, 0xff60},
                                                                          {0x1f300, 0x1faff},
                                                                          {0x20000, 0x3fffd}}};
    return std::any_of(Ranges.begin(), Ranges.end(), [&](const auto &range) {
        return character >= range.first && character <= range.second;
    });
}

} // namespace

qsizetype displayWidth(const QString &text)
{
    const auto isPlain = [](QChar character) { return character.unicode() < 0x300; };
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return text.size();
    qsizetype width = 0;
    const auto characters = text.toStdU32String();
    for (const char32_t character : characters)
        width += QChar::isMark(character) ? 0 : isWide(character) ? 2 : 1;
    return width;
}

TextTable::TextTable(const QList<TableColumn> &columns)
    : m_columns(columns)
    , m_widths(columns.size(), 0)
{
    QStringList titles;
    for (const TableColumn &column : columns)
        titles.append(column.title);
    addRow(titles);
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList row;
    row.reserve(cells.size());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        row.append(plainLine(cells.at(i)));
        m_widths[i] = qMax(m_widths.at(i), qMin(displayWidth(row.last()), WidestColumn));
    }
    m_rows.append(row);
}

QString TextTable::line(const QStringList &cells) const
{
    QString text;
    qsizetype due = 0; // blanks, which only a text behind them makes real
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QString &cell = cells.at(i);
        const qsizetype rest = qMax(qsizetype(0), m_widths.at(i) - displayWidth(cell));
        const bool isRight = m_columns.at(i).isNumber;
        if (!cell.isEmpty()) {
            text += QString(due + (isRight ? rest : 0), u' ') + cell;
            due = 0;
        }
        due += (isRight && !cell.isEmpty() ? 0 : rest) + 2;
    }
    return text + u'\n';
}

QByteArray TextTable::bytes() const
{
    QByteArray all;
    write([&](const QByteArray &piece) {
        all += piece;
        return true;
    });
    return all;
}

void TextTable::write(const std::function<bool(const QByteArray &)> &sink) const
{
    QByteArray piece;
    for (const QStringList &row : m_rows) {
        piece += line(row).toUtf8();
        if (piece.size() < PieceSize)
            continue;
        if (!sink(piece))
            return;
        piece.resize(0);
    }
    sink(piece);
}

} // namespace Host
