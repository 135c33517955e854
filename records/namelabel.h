// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/**
 * A label for a name of any length. Where there is too little room for it, it ends in an ellipsis and a
 * tooltip tells the whole; its text stays what it was set to.
 */
class NameLabel : public QLabel // clazy:exclude=missing-qobject-macro
{
public:
    explicit NameLabel(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isCut() const;
};
