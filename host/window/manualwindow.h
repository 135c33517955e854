// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

namespace Host {

/** The manual, which needs no network. */
class ManualWindow final : public QTextBrowser
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ManualWindow)

public:
    /** Shows the manual in a window that goes with its parent; one that is there already comes to the front.
     */
    static void showBeside(QWidget *parent);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    explicit ManualWindow(QWidget *parent);
};

} // namespace Host
