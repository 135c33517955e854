// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/flightsfilter.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLineEdit;

namespace Host {

/** The fields by which flights are looked for. */
class FilterBar final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FilterBar)

public:
    explicit FilterBar(QWidget *parent = nullptr);

    /** Offers what this logbook has; a name that is gone is not chosen any more. */
    void offer(const Catalogue &catalogue);
    FlightFilter filter() const;
    /** Shows all flights. */
    void clear();

Q_SIGNALS:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private:
    QComboBox *makeChooser();
    void addDate(QCheckBox *&box, QDateEdit *&edit);
    void retranslate();
    void setOffer(QComboBox *chooser, QStringList names);

    QLineEdit *m_text;
    QComboBox *m_model;
    QComboBox *m_battery;
    QComboBox *m_location;
    QCheckBox *m_isFrom = nullptr;
    QDateEdit *m_from = nullptr;
    QCheckBox *m_isTo = nullptr;
    QDateEdit *m_to = nullptr;
    bool m_offering = false;
};

} // namespace Host
