// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

class QDialog;
class QFormLayout;
class QWidget;

namespace Host {

/** What the dialogs show that add and edit a flight: its fields, one below the other, and the buttons. */
class FlightForm final
{
    Q_DECLARE_TR_FUNCTIONS(FlightForm)
    Q_DISABLE_COPY_MOVE(FlightForm)

public:
    /** @param command the caption of the button that accepts the dialog. */
    FlightForm(QDialog &dialog, const QString &command);

    /** Adds the field for a column of the flights' table, with its name and its unit. */
    void add(int column, QWidget &field);

private:
    QFormLayout *m_fields;
};

} // namespace Host
