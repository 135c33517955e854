// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStringList>

/** The input fields for a flight's values, with the limits that they have; in the table and in dialogs. */
namespace Host::FlightFields {

QDateTimeEdit *time(QWidget *parent = nullptr);
/** Sets date and time apart: set together, the field would convert between local time and its own UTC. */
void setMoment(QDateTimeEdit &edit, const QDateTime &moment);
QDateEdit *date(QWidget *parent = nullptr);
QDateTimeEdit *duration(QWidget *parent = nullptr);
bool isDuration(const QDateTimeEdit &edit);
QComboBox *chooser(const QStringList &names, QWidget *parent = nullptr);
/** Takes any text, and offers the locations that there are. */
QComboBox *location(const Catalogue &catalogue, QWidget *parent = nullptr);
QSpinBox *temperature(QWidget *parent = nullptr);
QSpinBox *discharged(QWidget *parent = nullptr);
QDoubleSpinBox *current(QWidget *parent = nullptr);
QPlainTextEdit *notes(QWidget *parent = nullptr);

/** The names of batteries or models, in their order. */
template <typename Record>
QStringList names(const QList<Record> &records)
{
    QStringList names;
    for (const Record &record : records)
        names.append(record.name);
    return names;
}

} // namespace Host::FlightFields
