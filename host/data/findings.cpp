// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/findings.h"

#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/data/moments.h"

#include <QCoreApplication>
#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Findings)
};

/** The lines of a document in which the records and entries of a catalogue stand; 0 for one that was read
 * from something that is saved under another name. */
class Lines
{
public:
    Lines(const Element &saved, const QHash<const Element *, qint64> &lines)
        : m_lines(lines)
    {
        const Element *root = saved.child(u"Voltbok");
        if (!root)
            return;
        m_batteries = root->all(u"Battery");
        m_models = root->all(u"Model");
        m_locations = entries(root->child(u"Locations"), u"Location");
        for (const Element *battery : std::as_const(m_batteries))
            m_discharges.append(entries(battery->child(u"Data"), u"Cycle"));
        for (const Element *model : std::as_const(m_models))
            m_flights.append(entries(model->child(u"FlightLog"), u"LogData"));
    }

    qint64 ofBattery(qsizetype battery) const { return of(m_batteries, battery); }
    qint64 ofModel(qsizetype model) const { return of(m_models, model); }
    qint64 ofLocation(qsizetype location) const { return of(m_locations, location); }
    qint64 of(const FlightPlace &place) const { return of(m_flights.value(place.model), place.flight); }
    qint64 of(const DischargePlace &place) const
    {
        return of(m_discharges.value(place.battery), place.discharge);
    }

private:
    using Elements = QList<const Element *>;

    static Elements entries(const Element *container, QStringView name)
    {
        return container ? container->all(name) : Elements();
    }
    qint64 of(const Elements &elements, qsizetype index) const
    {
        return m_lines.value(elements.value(index));
    }

    const QHash<const Element *, qint64> &m_lines;
    Elements m_batteries;
    Elements m_models;
    Elements m_locations;
    QList<Elements> m_discharges; // of each battery
    QList<Elements> m_flights;    // of each model
};

QString withLine(const QString &what, qint64 line)
{
    return line > 0 ? Text::tr("%1 (line %2)").arg(what, QString::number(line)) : what;
}

QString clockOf(const QDateTime &time)
{
    return time.toString(u"yyyy-MM-dd HH:mm:ss");
}

void addLosses(QList<Finding> &list, const QList<Loss> &losses)
{
    for (const Loss &loss : losses)
        list.append({loss.kind == Loss::Unread ? Finding::Unread : Finding::Dropped,
                     loss.record.isEmpty() ? loss.what : Text::tr("%1: %2").arg(loss.record, loss.what)});
}

void addLonelyFlights(QList<Finding> &list, const Catalogue &catalogue, const Moments &moments,
                      const Lines &lines)
{
    for (qsizetype model = 0; model < catalogue.models.size(); ++model) {
        const QString &name = catalogue.models.at(model).name;
        const QList<Flight> &log = catalogue.models.at(model).log;
        for (qsizetype flight = 0; flight < log.size(); ++flight) {
            const QDateTime &time = log.at(flight).time;
            if (!moments.dischargesAt(momentOf(time)).isEmpty())
                continue;
            const QString what =
                time.isValid()
                    ? Text::tr("model “%1”: no battery has a discharge at the time of the flight of %2")
                          .arg(name, clockOf(time))
                    : Text::tr("model “%1”: a flight has no time, so that no discharge belongs to it")
                          .arg(name);
            list.append(
                {Finding::FlightWithoutDischarge, withLine(what, lines.of(FlightPlace{model, flight}))});
        }
    }
}

void addLonelyDischarges(QList<Finding> &list, const Catalogue &catalogue, const Moments &moments,
                         const Lines &lines)
{
    for (qsizetype battery = 0; battery < catalogue.batteries.size(); ++battery) {
        const QString &name = catalogue.batteries.at(battery).name;
        const QList<Discharge> &history = catalogue.batteries.at(battery).discharges;
        for (qsizetype i = 0; i < history.size(); ++i) {
            const QDateTime &time = history.at(i).time;
            if (moments.flightsAt(momentOf(time)) > 0)
                continue;
            const QString what =
                time.isValid()
                    ? Text::tr("battery “%1”: no model has a flight at the time of the discharge of %2")
                          .arg(name, clockOf(time))
                    : Text::tr("battery “%1”: a discharge has no time, so that no flight belongs to it")
                          .arg(name);
            list.append(
                {Finding::DischargeWithoutFlight, withLine(what, lines.of(DischargePlace{battery, i}))});
        }
    }
}

/** Adds a finding for each name that stands twice or more among records of one kind.
 * @param what says so of such a name. @param lineOf a record. */
template <typename LineOf>
void addEqualNames(QList<Finding> &list, const QStringList &names, const QString &what, LineOf lineOf)
{
    QHash<QString, QStringList> lines;
    for (qsizetype i = 0; i < names.size(); ++i)
        lines[names.at(i)].append(QString::number(lineOf(i)));
    for (const QString &name : names) {
        const QStringList here = lines.take(name); // each name once
        if (here.size() > 1)
            list.append({Finding::EqualNames, what.arg(name, here.join(u", "_s))});
    }
}

template <typename Record>
QStringList namesOf(const QList<Record> &records)
{
    QStringList names;
    for (const Record &record : records)
        names.append(record.name);
    return names;
}

} // namespace

QString findingKey(Finding::Kind kind)
{
    switch (kind) {
    case Finding::Broken:
        return u"broken"_s;
    case Finding::Unread:
        return u"unread"_s;
    case Finding::Dropped:
        return u"dropped"_s;
    case Finding::FlightWithoutDischarge:
        return u"flight without discharge"_s;
    case Finding::DischargeWithoutFlight:
        return u"discharge without flight"_s;
    case Finding::EqualNames:
        return u"equal names"_s;
    }
    return QString();
}

Findings findingsOf(const QByteArray &document)
{
    const CatalogueFile::Loaded loaded = CatalogueFile::load(document);
    const CatalogueFile::Saved saved = loaded.problem.isEmpty() ? CatalogueFile::loadAndSave(document)
                                                                : CatalogueFile::Saved{{}, loaded.problem};
    if (!saved.problem.isEmpty())
        return {{}, saved.problem};
    const std::unique_ptr<Element> read = documentTree(document);
    const std::unique_ptr<Element> kept = documentTree(saved.document);
    const Losses compared = compareDocuments(*read, *kept);
    const Lines lines(*kept, compared.lines);
    const Catalogue &catalogue = loaded.catalogue;
    const Moments moments(catalogue);

    Findings findings;
    addLosses(findings.list, compared.losses);
    addLonelyFlights(findings.list, catalogue, moments, lines);
    addLonelyDischarges(findings.list, catalogue, moments, lines);
    addEqualNames(findings.list, namesOf(catalogue.batteries),
                  Text::tr("several batteries are called “%1” (lines %2)"),
                  [&](qsizetype i) { return lines.ofBattery(i); });
    addEqualNames(findings.list, namesOf(catalogue.models),
                  Text::tr("several models are called “%1” (lines %2)"),
                  [&](qsizetype i) { return lines.ofModel(i); });
    addEqualNames(findings.list, catalogue.locations,
                  Text::tr("several locations are called “%1” (lines %2)"),
                  [&](qsizetype i) { return lines.ofLocation(i); });
    return findings;
}

} // namespace Host
