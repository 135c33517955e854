// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/shorttext.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>

#include <algorithm>

/** The items of a chooser. They are whole, but while something lays them out. */
class NameItems : public QStandardItemModel // clazy:exclude=missing-qobject-macro
{
public:
    explicit NameItems(QWidget *chooser)
        : QStandardItemModel(0, 1, chooser)
        , m_chooser(chooser)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        if (m_widest == Whole || role != Qt::DisplayRole)
            return value;
        const QString text = shortText(value.toString());
        return m_widest == Short ? text : m_chooser->fontMetrics().elidedText(text, Qt::ElideRight, m_widest);
    }

    /** The items are short as long as the result lives. */
    [[nodiscard]] QScopedValueRollback<int> shortened() { return QScopedValueRollback<int>(m_widest, Short); }

    /** They are short and not wider than the list may be. */
    [[nodiscard]] QScopedValueRollback<int> fitted()
    {
        const int halfAScreen = m_chooser->screen()->availableGeometry().width() / 2;
        return QScopedValueRollback<int>(m_widest, std::max(m_chooser->width(), halfAScreen));
    }

private:
    static constexpr int Whole = -1;
    static constexpr int Short = 0;

    QWidget *m_chooser;
    int m_widest = Whole; // or Short, or a width in pixels
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
        const auto fitted = m_items->fitted();
        m_look->paint(painter, option, index);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto fitted = m_items->fitted();
        return m_look->sizeHint(option, index);
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        const QString whole = shortText(index.data().toString());
        if (event->type() != QEvent::ToolTip || whole == fittedText(index))
            return QAbstractItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), wholeNameTip(whole), view);
        return true;
    }

private:
    QString fittedText(const QModelIndex &index) const
    {
        const auto fitted = m_items->fitted();
        return index.data().toString();
    }

    NameItems *m_items;
    QAbstractItemDelegate *m_look;
};

/**
 * A combo box of names, which are records' identities: its items are whole, what it lays out and paints of
 * them is short (see shortText()), and ends in an ellipsis where there is no room; a tooltip then tells more.
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
        const auto fitted = m_items->fitted();
        QComboBox::showPopup();
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QComboBox::event(event);
        const QString whole = shortText(currentText());
        if (whole == fittedText())
            return QComboBox::event(event);
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wholeNameTip(whole), this);
        return true;
    }

    void initStyleOption(QStyleOptionComboBox *option) const override
    {
        QComboBox::initStyleOption(option);
        const QRect field =
            style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
        option->currentText = option->fontMetrics.elidedText(shortText(option->currentText), Qt::ElideRight,
                                                             field.width() - TextMargins);
    }

private:
    static constexpr int TextMargins = 10; // styles leave up to five pixels at either side

    QString fittedText() const
    {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        return option.currentText;
    }

    NameItems *m_items;
    ShortItemDelegate *m_delegate = nullptr;
};
