// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightfields.h"

#include "host/data/edits.h"

#include <QCompleter>
#include <QTimeEdit>

using namespace Qt::Literals::StringLiterals;

namespace Host {

QDateTimeEdit *FlightFields::time(QWidget *parent)
{
    auto *edit = new QDateTimeEdit(parent);
    edit->setLayoutDirection(Qt::LeftToRight); // else seconds come first where one reads from right to left
    edit->setTimeSpec(Qt::UTC); // else it shifts what this zone's clock leaves out, and nobody is told
    edit->setDisplayFormat(u"yyyy-MM-dd HH:mm:ss"_s);
    edit->setDateRange(QDate(Edits::FirstYear, 1, 1), QDate(Edits::LastYear, 12, 31));
    edit->setCalendarPopup(true);
    return edit;
}

void FlightFields::setMoment(QDateTimeEdit &edit, const QDateTime &moment)
{
    edit.setDate(moment.date());
    edit.setTime(QTime(moment.time().hour(), moment.time().minute(), moment.time().second()));
}

QDateTimeEdit *FlightFields::duration(QWidget *parent)
{
    auto *edit = new QTimeEdit(parent);
    edit->setLayoutDirection(Qt::LeftToRight);
    edit->setDisplayFormat(u"HH:mm:ss"_s);
    edit->setCurrentSection(QDateTimeEdit::MinuteSection);
    return edit;
}

QDateEdit *FlightFields::date(QWidget *parent)
{
    auto *edit = new QDateEdit(parent);
    edit->setLayoutDirection(Qt::LeftToRight);
    edit->setDisplayFormat(u"yyyy-MM-dd"_s);
    edit->setDateRange(QDate(Edits::FirstYear, 1, 1), QDate(Edits::LastYear, 12, 31));
    edit->setCalendarPopup(true);
    return edit;
}

bool FlightFields::isDuration(const QDateTimeEdit &edit)
{
    return qobject_cast<const QTimeEdit *>(&edit);
}

QComboBox *FlightFields::chooser(const QStringList &names, QWidget *parent)
{
    auto *chooser = new QComboBox(parent);
    chooser->addItems(names);
    // A long name must not make a dialog wider than the screen.
    chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser->setMinimumContentsLength(12);
    return chooser;
}

QComboBox *FlightFields::location(const Catalogue &catalogue, QWidget *parent)
{
    QComboBox *field = chooser(Edits::locationNames(catalogue), parent);
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->completer()->setCaseSensitivity(Qt::CaseSensitive); // else "hill" could not be entered
    return field;
}

QSpinBox *FlightFields::temperature(QWidget *parent)
{
    auto *spin = new QSpinBox(parent);
    spin->setRange(Edits::LowestTemperature, Edits::HighestTemperature);
    return spin;
}

QSpinBox *FlightFields::discharged(QWidget *parent)
{
    auto *spin = new QSpinBox(parent);
    spin->setRange(0, Edits::MostDischarge);
    spin->setSingleStep(10);
    return spin;
}

QDoubleSpinBox *FlightFields::current(QWidget *parent)
{
    auto *spin = new QDoubleSpinBox(parent);
    spin->setRange(0.0, Edits::MostCurrent / 100.0);
    spin->setSingleStep(0.5);
    return spin;
}

QPlainTextEdit *FlightFields::notes(QWidget *parent)
{
    auto *edit = new QPlainTextEdit(parent);
    edit->setTabChangesFocus(true);
    return edit;
}

} // namespace Host
