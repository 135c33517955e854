// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/flightswindow.h"

#include "host/window/flighteditdialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <functional>

/** What a pilot does in the dialog that corrects a flight. */
namespace FlightEditing {

using namespace Host;
using namespace Qt::Literals::StringLiterals;

using Use = std::function<void(FlightEditDialog &)>;
using Change = std::function<void(Catalogue &)>;

template <typename Field>
Field &field(const FlightEditDialog &dialog, FlightsModel::Column column)
{
    auto *found = qobject_cast<Field *>(dialog.m_fields.at(column));
    if (!found)
        qFatal("The field of column %d is another one.", column);
    return *found;
}

inline void setFigures(const FlightEditDialog &dialog, int discharged, double current)
{
    field<QSpinBox>(dialog, FlightsModel::Discharged).setValue(discharged);
    field<QDoubleSpinBox>(dialog, FlightsModel::Current).setValue(current);
}

inline void setNotes(const FlightEditDialog &dialog, const QString &notes)
{
    field<QPlainTextEdit>(dialog, FlightsModel::Notes).setPlainText(notes);
}

inline void chooseBattery(const FlightEditDialog &dialog, const QString &name)
{
    LogbookWindow::choose(&field<QComboBox>(dialog, FlightsModel::Batteries), name);
}

/** Corrects the flight at this time. */
inline void edit(FlightsWindow &window, const QString &clock, const Use &use)
{
    window.select({clock});
    window.give<FlightEditDialog>(u"Edit…"_s, [&use](FlightEditDialog &dialog) {
        use(dialog);
        QCoreApplication::processEvents(); // the panel is refreshed before the dialog is gone
    });
}

/** Corrects the flight at this time, and it is done. */
inline void correct(FlightsWindow &window, const QString &clock, const Use &use)
{
    edit(window, clock, [&use](FlightEditDialog &dialog) {
        use(dialog);
        FlightsWindow::confirm(dialog);
        QVERIFY(!dialog.isVisible());
    });
}

} // namespace FlightEditing

Q_DECLARE_METATYPE(FlightEditing::Use)
Q_DECLARE_METATYPE(FlightEditing::Change)
