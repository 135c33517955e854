// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <QList>

namespace Host {

/** Lays widgets out in rows, as words in a text: what does not fit into a row begins the next one. */
class FlowLayout final : public QLayout
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlowLayout)

public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect &rect) override;

private:
    /** Where the items go in @p rect, from left to right. */
    QList<QRect> places(const QRect &rect) const;

    QList<QLayoutItem *> m_items;
};

} // namespace Host
