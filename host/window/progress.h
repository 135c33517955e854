// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/questions.h"

#include <QElapsedTimer>
#include <QProgressDialog>

class QProgressBar;

namespace Host {

/** A box that comes up where the work takes more than a moment. Until then no event is handled, as if there
 * were no steps. */
class ProgressBox final : public Progress
{
public:
    ProgressBox(const QString &text, int steps);

    bool step() override;
    void commit() override;

private:
    bool takesLong() const;

    QProgressDialog m_box;
    QProgressBar *m_bar;
    QElapsedTimer m_time;
    bool m_isCommitted = false;
};

} // namespace Host
