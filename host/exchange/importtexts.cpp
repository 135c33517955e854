// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/importtexts.h"

#include "host/data/edits.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Import)
};

QString whole(double number)
{
    return QLocale().toString(number, 'f', 0);
}

/** Counter and current of the sessions that contradict themselves. */
QString doubtText(const ImportedDischarge &discharge)
{
    double counter = 0;
    double integral = 0;
    for (const Session &part : discharge.parts) {
        if (!part.doubtful.value_or(false))
            continue;
        counter += part.counter.value_or(0);
        integral += part.integral.value_or(0);
    }
    return Text::tr("doubtful: counter %1, current says %2").arg(whole(counter), whole(integral));
}

QString reasonText(ImportReason reason, const ImportedDischarge &discharge)
{
    switch (reason) {
    case ImportReason::GoesOn:
        return Text::tr("goes on with an earlier import");
    case ImportReason::PartOfAnother:
        return Text::tr("a part of the discharge before");
    case ImportReason::ClockNeverSet:
        return Text::tr("the radio's clock was never set");
    case ImportReason::NothingMeasured:
        return Text::tr("neither consumption nor current was measured");
    case ImportReason::TooShort:
        return Text::tr("shorter than 20 s");
    case ImportReason::TooLittle:
        return Text::tr("less than 2 % of the capacity");
    case ImportReason::Entered:
        return Text::tr("you entered the values of the flight");
    case ImportReason::WithoutDischarge:
        return Text::tr("the flight has no discharge");
    case ImportReason::SeveralBatteries:
        return Text::tr("the flight has several batteries");
    case ImportReason::Twice:
        return Text::tr("another log tells the same");
    case ImportReason::TwoFlights:
        return Text::tr("parts of it are two flights of the logbook already");
    case ImportReason::Doubtful:
        return doubtText(discharge);
    case ImportReason::DischargeClamped:
        return Text::tr("the logbook takes %1 mAh").arg(QLocale().toString(Edits::MostDischarge));
    case ImportReason::CurrentClamped:
        return Text::tr("the logbook takes %1 A").arg(Edits::MostCurrent / 100);
    case ImportReason::NoSuchModel:
        return Text::tr("the logbook does not have this model");
    case ImportReason::NoBattery:
        return Text::tr("no battery is known for it");
    }
    return QString();
}

QString actionText(const ImportedSession &session, const ImportedDischarge &discharge)
{
    switch (session.action) {
    case ImportAction::Fill:
        return Text::tr("fills the flight of %1 with %2")
            .arg(discharge.time.toString(u"HH:mm"), discharge.battery);
    case ImportAction::New:
        return discharge.battery.isEmpty() ? Text::tr("new")
                                           : Text::tr("new, with %1").arg(discharge.battery);
    case ImportAction::Known:
        return Text::tr("known");
    case ImportAction::Bench:
        return Text::tr("bench test");
    case ImportAction::None:
        break;
    }
    return QString();
}

} // namespace

QString importText(const ImportedSession &session, const ImportPlan &plan)
{
    const ImportedDischarge discharge =
        session.discharge < 0 ? ImportedDischarge() : plan.discharges.at(session.discharge);
    QStringList texts{actionText(session, discharge)};
    for (const ImportReason reason : session.reasons)
        texts.append(reasonText(reason, discharge));
    texts.removeAll(QString());
    return texts.join(u"; "_s);
}

} // namespace Host
