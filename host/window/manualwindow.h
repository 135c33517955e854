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
    /**
     * Shows the manual in a window that goes with its parent; one that is there already comes to the front.
     *
     * @param language its code; English where there is no manual in it.
     */
    static void showBeside(QWidget *parent, const QString &language = {});
    /** Has the window, if there is one, show the manual in another language. */
    static void switchBeside(QWidget *parent, const QString &language);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void read(const QString &language);
    explicit ManualWindow(QWidget *parent);
};

} // namespace Host
