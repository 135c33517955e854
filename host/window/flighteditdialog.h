// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/flightedits.h"
#include "host/window/flightsmodel.h"

#include <QDialog>

#include <array>
#include <memory>

namespace Host {

class OpenLogbook;
class Questions;

/**
 * Edits all that the flights' table shows of a flight, as its cells do: those that cannot be edited are
 * disabled here, too. What was entered is one step; it stays open when that is refused.
 */
class FlightEditDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightEditDialog)

public:
    /** @param flights may show another version later. @param logbook @param questions outlive the dialog. */
    FlightEditDialog(const FlightsModel &flights, const FlightPlace &place, OpenLogbook &logbook,
                     Questions &questions, QWidget *parent = nullptr);

    /** Where the flight stands. */
    const FlightPlace &place() const { return m_place; }

    void accept() override;

private:
    void followBattery(const FlightsModel &flights, int row);
    void offerBattery(int battery);
    FlightEdits::Entered entered() const;

    const std::shared_ptr<const Catalogue> m_shown;
    OpenLogbook &m_logbook;
    Questions &m_questions;
    FlightPlace m_place;
    std::array<QWidget *, FlightsModel::ColumnCount> m_fields;
};

} // namespace Host
