// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/paneltab.h"

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace Host {

class OpenLogbook;
struct Advice;

/** What to do today, with the reason, and one click to the battery that it is about. */
class TodayTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TodayTab)

public:
    explicit TodayTab(OpenLogbook &logbook, QWidget *parent = nullptr);

    void refresh() override;

Q_SIGNALS:
    /** The user wants to see what an advice is about. */
    void batteryRequested(const QString &name);

protected:
    void retranslate() override;

private:
    void add(const Advice &advice);
    void choose(const QListWidgetItem *item);

    OpenLogbook &m_logbook;
    QLabel *m_heading;
    QListWidget *m_list;
};

} // namespace Host
