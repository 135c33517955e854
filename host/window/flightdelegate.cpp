// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightdelegate.h"

#include "host/window/flighteditors.h"

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace Host {
namespace {

/** The row of the flights that a row of a view shows. */
int rowOf(const QModelIndex &index)
{
    const auto *proxy = qobject_cast<const QSortFilterProxyModel *>(index.model());
    return proxy ? proxy->mapToSource(index).row() : index.row();
}

} // namespace

FlightDelegate::FlightDelegate(const FlightsModel &flights, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_flights(flights)
{
}

QWidget *FlightDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const
{
    QWidget *editor = FlightEditors::make(m_flights, rowOf(index), index.column(), parent);
    editor->setAccessibleName(
        m_flights.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    editor->setAutoFillBackground(true);
    if (auto *notes = qobject_cast<QPlainTextEdit *>(editor))
        notes->selectAll();
    return editor;
}

/** It came with its value, and what was typed stays when the table is painted anew. */
void FlightDelegate::setEditorData(QWidget *, const QModelIndex &) const {}

void FlightDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QVariant entered = FlightEditors::entered(*editor);
    if (entered.isValid())
        model->setData(index, entered, Qt::EditRole);
}

/** As large as the cell at least; what needs more room covers its neighbours. */
void FlightDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                          const QModelIndex &) const
{
    QSize size = editor->sizeHint();
    if (qobject_cast<QPlainTextEdit *>(editor))
        size = QSize(editor->fontMetrics().averageCharWidth() * 40, editor->fontMetrics().lineSpacing() * 4);
    const QRect room = editor->parentWidget()->rect();
    QRect place(option.rect.topLeft(), option.rect.size().expandedTo(size));
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
    editor->setGeometry(place);
}

/** A time is read from left to right everywhere. */
void FlightDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    constexpr QChar Isolate(0x2066);
    constexpr QChar EndOfIsolate(0x2069);
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == FlightsModel::Time && option->direction == Qt::RightToLeft)
        option->text = Isolate + option->text + EndOfIsolate;
}

/** Return ends the notes, too; with Shift it begins another line. */
bool FlightDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *notes = qobject_cast<QPlainTextEdit *>(object);
    if (!notes || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(object, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!isReturn || key->modifiers().testFlag(Qt::ShiftModifier))
        return QStyledItemDelegate::eventFilter(object, event);
    Q_EMIT commitData(notes);
    Q_EMIT closeEditor(notes);
    return true;
}

} // namespace Host
