// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/shownprogress.h"

namespace Host {
namespace {

constexpr int Steps = 1000;
constexpr int Moment = 300; // ms

} // namespace

ShownProgress::ShownProgress(const QString &what, const QString &cancel, QWidget *parent)
    : m_dialog(what, cancel, 0, Steps, parent)
{
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(Moment);
    m_dialog.setAutoReset(false); // which would forget that it was cancelled
}

std::function<bool(double)> ShownProgress::of(double begin, double part)
{
    return [this, begin, part](double share) {
        m_dialog.setValue(static_cast<int>(Steps * (begin + share * part)));
        return !m_dialog.wasCanceled();
    };
}

} // namespace Host
