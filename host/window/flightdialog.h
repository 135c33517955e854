// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/moments.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QDateTimeEdit;
class QDoubleSpinBox;
class QPlainTextEdit;
class QSpinBox;

namespace Host {

class OpenLogbook;
class Questions;

/** Adds a flight, with a discharge if there was one. Stays open when that is refused. */
class FlightDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightDialog)

public:
    /** @param logbook @param questions outlive the dialog. */
    FlightDialog(std::shared_ptr<const Catalogue> catalogue, OpenLogbook &logbook, Questions &questions,
                 QWidget *parent = nullptr);

    /** Where the flight stands that was added. */
    FlightPlace added() const { return m_added; }

    void accept() override;

private:
    void offerBattery();
    QString add(Catalogue &catalogue);

    const std::shared_ptr<const Catalogue> m_catalogue;
    OpenLogbook &m_logbook;
    Questions &m_questions;
    QComboBox *m_model;
    QDateTimeEdit *m_time;
    QDateTimeEdit *m_duration;
    QComboBox *m_battery; ///< the first is none
    QSpinBox *m_discharged;
    QDoubleSpinBox *m_current;
    QComboBox *m_location;
    QSpinBox *m_temperature;
    QPlainTextEdit *m_notes;
    FlightPlace m_added;
};

} // namespace Host
