// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProgressDialog>

#include <functional>

namespace Host {

/** Shows how far some work is where it takes longer than a moment, and lets the user cancel it. */
class ShownProgress
{
    Q_DISABLE_COPY_MOVE(ShownProgress)

public:
    /** @param what is done, as a caption. @param cancel the caption of the button. */
    ShownProgress(const QString &what, const QString &cancel, QWidget *parent);

    /**
     * What a part of the work tells its share to, up to 1; it is false when the work is to end.
     *
     * @param begin where in the whole this part begins. @param part its share of the whole.
     */
    std::function<bool(double)> of(double begin, double part);

    bool isCancelled() const { return m_dialog.wasCanceled(); }

private:
    QProgressDialog m_dialog;
};

} // namespace Host
