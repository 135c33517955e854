// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/mergekeys.h"

#include "host/data/moments.h"

#include <QHash>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** The name, and how many before it have the same. */
template <typename Record>
QList<QString> ofRecords(const QList<Record> &records)
{
    QHash<QString, int> counts;
    QList<QString> keys;
    keys.reserve(records.size());
    for (const Record &record : records)
        keys.append(QString::number(counts[record.name]++) + u' ' + record.name);
    return keys;
}

} // namespace

QList<QString> MergeKeys::ofTexts(const QList<QString> &texts)
{
    return texts;
}

QList<QString> MergeKeys::ofBatteries(const QList<Battery> &batteries)
{
    return ofRecords(batteries);
}

QList<QString> MergeKeys::ofModels(const QList<Model> &models)
{
    return ofRecords(models);
}

QList<QString> MergeKeys::ofDischarges(const QList<Discharge> &discharges)
{
    QList<QString> keys;
    keys.reserve(discharges.size());
    for (const Discharge &discharge : discharges) {
        keys.append(discharge.time.isValid()
                        ? QString::number(momentOf(discharge.time))
                        : u"none %1 %2"_s.arg(discharge.discharged).arg(discharge.current));
    }
    return keys;
}

QList<QString> MergeKeys::ofFlights(const QList<Flight> &flights)
{
    QList<QString> keys;
    keys.reserve(flights.size());
    for (const Flight &flight : flights) {
        keys.append(flight.time.isValid()
                        ? QString::number(momentOf(flight.time))
                        : QStringList{u"none"_s, flight.duration.toString(u"HHmmss"_s),
                                      QString::number(flight.temperature),
                                      QString::number(flight.location.size()), flight.location, flight.notes}
                              .join(u' '));
    }
    return keys;
}

} // namespace Host
