// SPDX-License-Identifier: GPL-3.0-or-later
// A difference between two states of a logbook as a person says it.
#include "host/data/difference.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Difference)
};

constexpr RecordKind Kinds[] = {RecordKind::Flight, RecordKind::Discharge, RecordKind::Battery,
                                RecordKind::Model, RecordKind::Location};
constexpr double HundredthsOfAnAmpere = 100.0;
constexpr double TenthsOfC = 10.0;

QString shown(const QDateTime &time)
{
    return time.isValid() ? time.toString(u"yyyy-MM-dd HH:mm:ss") : Text::tr("without a time");
}

QString saying(const QString &text, const QString &value)
{
    return value.isEmpty() ? QString() : text.arg(value);
}

QString saying(const QString &text, double value, int decimals = 0)
{
    return text.arg(QLocale().toString(value, 'f', decimals));
}

/** What a record says, piece by piece; its name comes first. The same pieces for every record of a kind. */
QStringList piecesOf(const Flight &flight, const QString &model)
{
    return {model,
            shown(flight.time),
            flight.duration.isValid() ? flight.duration.toString(u"H:mm:ss") : QString(),
            flight.location,
            saying(Text::tr("%1 °C"), flight.temperature),
            saying(Text::tr("notes: %1"), flight.notes.simplified())};
}

QStringList piecesOf(const Discharge &discharge, const QString &battery)
{
    return {battery, shown(discharge.time), saying(Text::tr("%1 mAh"), discharge.discharged),
            saying(Text::tr("%1 A"), discharge.current / HundredthsOfAnAmpere, 2)};
}

QStringList piecesOf(const Battery &battery)
{
    return {battery.name,
            saying(Text::tr("%1 mAh"), battery.capacity),
            saying(Text::tr("discharge rate %1 C"), battery.rating),
            saying(Text::tr("charge rate %1 C"), battery.chargeRate / TenthsOfC, 1),
            saying(Text::tr("cycles: %1"), battery.cycles),
            battery.charged ? Text::tr("charged") : Text::tr("discharged"),
            saying(Text::tr("bought on %1"), battery.purchase.toString(u"yyyy-MM-dd")),
            battery.lastUse.isValid() ? Text::tr("last used %1").arg(shown(battery.lastUse)) : QString()};
}

QStringList piecesOf(const Model &model)
{
    return {model.name,
            saying(Text::tr("type: %1"), model.type),
            saying(Text::tr("weight: %1"), model.weight),
            saying(Text::tr("size: %1"), model.size),
            saying(Text::tr("flights already used: %1"), model.flights),
            saying(Text::tr("bought on %1"), model.purchase.toString(u"yyyy-MM-dd")),
            saying(Text::tr("batteries: %1"), model.batteries.join(u", "_s)),
            saying(Text::tr("notes: %1"), model.notes.simplified()),
            model.lastUpdate.isValid() ? Text::tr("last changed %1").arg(shown(model.lastUpdate))
                                       : QString()};
}

QStringList piecesOf(RecordKind kind, const Catalogue &catalogue, RecordPlace place)
{
    if (!place.isThere())
        return QStringList();
    switch (kind) {
    case RecordKind::Flight:
        return piecesOf(catalogue.models.at(place.record).log.at(place.entry),
                        catalogue.models.at(place.record).name);
    case RecordKind::Discharge:
        return piecesOf(catalogue.batteries.at(place.record).discharges.at(place.entry),
                        catalogue.batteries.at(place.record).name);
    case RecordKind::Battery:
        return piecesOf(catalogue.batteries.at(place.record));
    case RecordKind::Model:
        return piecesOf(catalogue.models.at(place.record));
    case RecordKind::Location:
        return {catalogue.locations.at(place.record)};
    }
    return QStringList();
}

/** What is told of a record beside its other side: its name, and what differs. */
QString told(RecordKind kind, QStringList pieces, const QStringList &others)
{
    const bool isEntry = kind == RecordKind::Flight || kind == RecordKind::Discharge;
    const qsizetype names = isEntry ? 2 : 1;
    for (qsizetype i = names; i < pieces.size(); ++i) {
        if (pieces.at(i) == others.value(i))
            pieces[i].clear();
        else if (!others.isEmpty() && pieces.at(i).isEmpty())
            pieces[i] = u"–"_s; // the other side says something here
    }
    pieces.removeAll(QString());
    return pieces.join(u", "_s);
}

QString sentenceOf(DifferentRecord::Change change, const QString &what)
{
    switch (change) {
    case DifferentRecord::Fewer:
        return Text::tr("%1 fewer").arg(what);
    case DifferentRecord::More:
        return Text::tr("%1 more").arg(what);
    case DifferentRecord::Changed:
        return Text::tr("%1 changed").arg(what);
    case DifferentRecord::Charged:
        return Text::tr("%1 charged").arg(what);
    case DifferentRecord::Discharged:
        return Text::tr("%1 discharged").arg(what);
    }
    return QString();
}

} // namespace

QString DifferenceTexts::kindName(RecordKind kind)
{
    switch (kind) {
    case RecordKind::Flight:
        return Text::tr("Flight");
    case RecordKind::Discharge:
        return Text::tr("Discharge");
    case RecordKind::Battery:
        return Text::tr("Battery");
    case RecordKind::Model:
        return Text::tr("Model");
    case RecordKind::Location:
        return Text::tr("Location");
    }
    return QString();
}

QString DifferenceTexts::counted(RecordKind kind, qsizetype count)
{
    const int n = static_cast<int>(count);
    switch (kind) {
    case RecordKind::Flight:
        return n == 1 ? Text::tr("1 flight") : Text::tr("%n flights", nullptr, n);
    case RecordKind::Discharge:
        return n == 1 ? Text::tr("1 discharge") : Text::tr("%n discharges", nullptr, n);
    case RecordKind::Battery:
        return n == 1 ? Text::tr("1 battery") : Text::tr("%n batteries", nullptr, n);
    case RecordKind::Model:
        return n == 1 ? Text::tr("1 model") : Text::tr("%n models", nullptr, n);
    case RecordKind::Location:
        return n == 1 ? Text::tr("1 location") : Text::tr("%n locations", nullptr, n);
    }
    return QString();
}

QString DifferenceTexts::enumerated(const QStringList &parts)
{
    if (parts.size() < 2)
        return parts.value(0);
    return Text::tr("%1 and %2").arg(parts.first(parts.size() - 1).join(u", "_s), parts.last());
}

QString DifferenceTexts::contents(const Catalogue &catalogue)
{
    qsizetype discharges = 0;
    for (const Battery &battery : catalogue.batteries)
        discharges += battery.discharges.size();
    qsizetype flights = 0;
    for (const Model &model : catalogue.models)
        flights += model.log.size();
    return enumerated({counted(RecordKind::Battery, catalogue.batteries.size()),
                       counted(RecordKind::Model, catalogue.models.size()),
                       counted(RecordKind::Location, catalogue.locations.size()),
                       counted(RecordKind::Discharge, discharges), counted(RecordKind::Flight, flights)});
}

QString DifferenceTexts::inWords(const Difference &difference)
{
    if (difference.isNone())
        return Text::tr("the same as now");
    if (difference.isReordered)
        return Text::tr("the same as now, in another order");
    QMap<DifferentRecord::Change, QMap<RecordKind, qsizetype>> counts;
    for (const DifferentRecord &record : difference.records) {
        if (!record.isImplied)
            ++counts[record.change][record.kind];
    }
    QStringList sentences;
    for (auto change = counts.cbegin(); change != counts.cend(); ++change) {
        QStringList parts;
        for (const RecordKind kind : Kinds) {
            if (const qsizetype count = change->value(kind); count > 0)
                parts.append(counted(kind, count));
        }
        sentences.append(sentenceOf(change.key(), enumerated(parts)));
    }
    return sentences.join(u", "_s);
}

std::pair<QString, QString> DifferenceTexts::sides(const DifferentRecord &record, const Catalogue &copy,
                                                   const Catalogue &now)
{
    const QStringList old = piecesOf(record.kind, copy, record.copy);
    const QStringList present = piecesOf(record.kind, now, record.now);
    return {told(record.kind, old, present), told(record.kind, present, old)};
}

} // namespace Host
