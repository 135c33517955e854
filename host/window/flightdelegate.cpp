// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightdelegate.h"

#include "host/data/edits.h"
#include "host/window/flightfields.h"
#include "host/window/flightsmodel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace Host {
namespace {

constexpr char Initial[] = "initial"; ///< property of an editor: the value that it came with

/** The row of the flights that a row of a view shows. */
int rowOf(const QModelIndex &index)
{
    const auto *proxy = qobject_cast<const QSortFilterProxyModel *>(index.model());
    return proxy ? proxy->mapToSource(index).row() : index.row();
}

QVariant valueOf(const QWidget *editor)
{
    if (const auto *edit = qobject_cast<const QDateTimeEdit *>(editor))
        return FlightFields::isDuration(*edit) ? QVariant(edit->time())
                                               : QVariant(timeOf(edit->date(), edit->time()));
    if (const auto *chooser = qobject_cast<const QComboBox *>(editor))
        return chooser->isEditable() ? QVariant(chooser->currentText()) : QVariant(chooser->currentIndex());
    if (const auto *spin = qobject_cast<const QSpinBox *>(editor))
        return spin->value();
    if (const auto *spin = qobject_cast<const QDoubleSpinBox *>(editor))
        return spin->value();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(editor))
        return text->toPlainText();
    return static_cast<const QLineEdit *>(editor)->text();
}

} // namespace

FlightDelegate::FlightDelegate(const FlightsModel &flights, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_flights(flights)
{
}

QWidget *FlightDelegate::makeEditor(QWidget *parent, const QModelIndex &index) const
{
    const Catalogue &catalogue = *m_flights.catalogue();
    const bool isOneFigure = m_flights.dischargesOf(rowOf(index)).size() == 1;
    switch (index.column()) {
    case FlightsModel::Time:
        return FlightFields::time(parent);
    case FlightsModel::ModelName:
        return FlightFields::chooser(FlightFields::names(catalogue.models), parent);
    case FlightsModel::Batteries:
        return FlightFields::chooser(FlightFields::names(catalogue.batteries), parent);
    case FlightsModel::Duration:
        return FlightFields::duration(parent);
    case FlightsModel::Discharged:
        return isOneFigure ? FlightFields::discharged(parent) : static_cast<QWidget *>(new QLineEdit(parent));
    case FlightsModel::Current:
        return isOneFigure ? FlightFields::current(parent) : static_cast<QWidget *>(new QLineEdit(parent));
    case FlightsModel::Location:
        return FlightFields::location(catalogue, parent);
    case FlightsModel::Temperature:
        return FlightFields::temperature(parent);
    default:
        return FlightFields::notes(parent);
    }
}

QWidget *FlightDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const
{
    QWidget *editor = makeEditor(parent, index);
    editor->setAccessibleName(
        m_flights.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    editor->setAutoFillBackground(true);
    return editor;
}

void FlightDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (editor->property(Initial).isValid())
        return; // what was typed stays when the table is painted anew
    const Flight &flight = m_flights.flightAt(rowOf(index));
    const QVariant value = index.data(Qt::EditRole);
    if (auto *edit = qobject_cast<QDateTimeEdit *>(editor)) {
        if (FlightFields::isDuration(*edit))
            edit->setTime(flight.duration.isValid() ? flight.duration : QTime(0, 0));
        else
            FlightFields::setMoment(*edit,
                                    flight.time.isValid() ? flight.time : QDateTime::currentDateTime());
    } else if (auto *chooser = qobject_cast<QComboBox *>(editor)) {
        if (index.column() == FlightsModel::Location)
            chooser->setCurrentText(value.toString());
        else if (index.column() == FlightsModel::ModelName)
            chooser->setCurrentIndex(static_cast<int>(m_flights.placeOf(rowOf(index)).model));
        else
            chooser->setCurrentIndex(
                static_cast<int>(m_flights.dischargesOf(rowOf(index)).constFirst().battery));
    } else if (auto *whole = qobject_cast<QSpinBox *>(editor)) {
        whole->setValue(value.toInt());
    } else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(editor)) {
        decimal->setValue(value.toDouble());
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(editor)) {
        text->setPlainText(flight.notes);
        text->selectAll();
    } else {
        static_cast<QLineEdit *>(editor)->setText(value.toString());
    }
    editor->setProperty(Initial, valueOf(editor));
}

void FlightDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QVariant value = valueOf(editor);
    if (value != editor->property(Initial))
        model->setData(index, value, Qt::EditRole);
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
