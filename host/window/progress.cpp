// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/progress.h"

#include <QApplication>
#include <QProgressBar>

#include <limits>

namespace Host {
namespace {

constexpr qint64 Moment = 300; // ms

} // namespace

ProgressBox::ProgressBox(const QString &text, int steps)
    : m_box(text, QApplication::translate("Questions", "Cancel"), 0, steps, QApplication::activeWindow())
    , m_bar(new QProgressBar) // of its own: that of the box handles events of every kind when it goes on
{
    m_bar->setRange(0, steps);
    m_bar->setValue(0);
    m_bar->setAccessibleName(text);
    m_box.setBar(m_bar);
    m_box.setWindowTitle(QApplication::applicationDisplayName());
    m_box.setAccessibleName(text);
    m_box.setWindowModality(Qt::ApplicationModal); // what is being worked on cannot be changed meanwhile
    m_box.setMinimumDuration(std::numeric_limits<int>::max()); // step() shows it
    m_time.start();
}

bool ProgressBox::step()
{
    m_bar->setValue(m_bar->value() + 1);
    if (takesLong() && !m_box.wasCanceled())
        m_box.show();
    if (m_box.isVisible()) // what somebody else writes waits until the work is done
        QCoreApplication::processEvents(m_isCommitted ? QEventLoop::ExcludeUserInputEvents |
                                                            QEventLoop::ExcludeSocketNotifiers
                                                      : QEventLoop::AllEvents);
    return m_isCommitted || !m_box.wasCanceled();
}

/** If the other steps take as long as those before. */
bool ProgressBox::takesLong() const
{
    return m_time.elapsed() * m_bar->maximum() > Moment * m_bar->value();
}

void ProgressBox::commit()
{
    m_isCommitted = true;
    m_box.setCancelButton(nullptr);
}

} // namespace Host
