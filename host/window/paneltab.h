// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QWidget>

namespace Host {

/** A tab of the side panel. It is refreshed when it is on show and the logbook has changed. */
class PanelTab : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PanelTab)

public:
    using QWidget::QWidget;

    /** Shows what the logbook holds now. */
    virtual void refresh() = 0;

protected:
    /** Sets the texts that do not depend on the logbook. */
    virtual void retranslate() = 0;
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        QWidget::changeEvent(event);
    }
};

} // namespace Host
