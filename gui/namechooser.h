// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/shorttext.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QComboBox>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>

/** The items of a chooser. They are whole, but while something lays them out. */
class NameItems : public QStandardItemModel // clazy:exclude=missing-qobject-macro
{
public:
    explicit NameItems(QObject *parent)
        : QStandardItemModel(0, 1, parent)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        return m_short && role == Qt::DisplayRole ? shortText(value.toString()) : value;
    }

    /** The items are short as long as the result lives. */
    [[nodiscard]] QScopedValueRollback<bool> shortened() { return QScopedValueRollback<bool>(m_short, true); }

private:
    bool m_short = false;
};

/** Lays the items of the open list out as @p look does, but short. */
class ShortItemDelegate : public QAbstractItemDelegate // clazy:exclude=missing-qobject-macro
{
public:
    ShortItemDelegate(NameItems *items, QAbstractItemDelegate *look, QObject *parent)
        : QAbstractItemDelegate(parent)
        , m_items(items)
        , m_look(look)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto shortened = m_items->shortened();
        m_look->paint(painter, option, index);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto shortened = m_items->shortened();
        return m_look->sizeHint(option, index);
    }

private:
    NameItems *m_items;
    QAbstractItemDelegate *m_look;
};

/**
 * A combo box of names, which are records' identities: its items are whole, what it lays out and paints of
 * them is short (see shortText()).
 *
 * Inline as the generated form that makes it, which is compiled outside the library, too.
 */
class NameChooser : public QComboBox // clazy:exclude=missing-qobject-macro
{
public:
    explicit NameChooser(QWidget *parent = nullptr)
        : QComboBox(parent)
        , m_items(new NameItems(this))
    {
        setModel(m_items);
    }

    QSize sizeHint() const override
    {
        const auto shortened = m_items->shortened();
        return QComboBox::sizeHint();
    }

    QSize minimumSizeHint() const override
    {
        const auto shortened = m_items->shortened();
        return QComboBox::minimumSizeHint();
    }

    void showPopup() override
    {
        if (!m_delegate) { // not before: a combo box builds its list when it is first opened
            m_delegate = new ShortItemDelegate(m_items, view()->itemDelegate(), this);
            view()->setItemDelegate(m_delegate);
        }
        const auto shortened = m_items->shortened();
        QComboBox::showPopup();
    }

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override
    {
        QComboBox::initStyleOption(option);
        option->currentText = shortText(option->currentText);
    }

private:
    NameItems *m_items;
    ShortItemDelegate *m_delegate = nullptr;
};
