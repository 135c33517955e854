// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/importdelegate.h"

#include "host/window/flightfields.h"
#include "host/window/importmodel.h"

namespace Host {

QWidget *ImportDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const
{
    const auto *model = qobject_cast<const ImportModel *>(index.model());
    QComboBox *chooser = FlightFields::chooser(model->choices(index), parent);
    chooser->setAccessibleName(model->headerData(index.column(), Qt::Horizontal).toString());
    chooser->setAutoFillBackground(true);
    return chooser;
}

void ImportDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *chooser = qobject_cast<QComboBox *>(editor);
    if (chooser->currentIndex() <= 0) // what was chosen stays when the table is painted anew
        chooser->setCurrentIndex(chooser->findText(index.data(Qt::EditRole).toString()));
}

/** A cell whose editor was left as it came is not edited. */
void ImportDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QString name = qobject_cast<QComboBox *>(editor)->currentText();
    if (!name.isEmpty() && name != index.data(Qt::EditRole).toString())
        model->setData(index, name);
}

/** A time is read from left to right everywhere. */
void ImportDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    constexpr QChar Isolate(0x2066);
    constexpr QChar EndOfIsolate(0x2069);
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == ImportModel::Start && option->direction == Qt::RightToLeft)
        option->text = Isolate + option->text + EndOfIsolate;
}

} // namespace Host
