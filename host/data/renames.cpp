// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the edits that gives records other names.
#include "host/data/edits.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace Host {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Edits)
};

/** Why a record cannot get this name, where these are those of the others. */
QString nameProblem(const QString &name, const QStringList &others)
{
    if (name.trimmed().isEmpty())
        return Texts::tr("The name must not be empty.");
    if (others.contains(name))
        return Texts::tr("There is “%1” already. Choose another name.").arg(name);
    return Edits::textProblem(name);
}

template <typename Record>
QStringList namesBeside(const QList<Record> &records, qsizetype chosen)
{
    QStringList names;
    for (qsizetype i = 0; i < records.size(); ++i) {
        if (i != chosen)
            names.append(records.at(i).name);
    }
    return names;
}

} // namespace

QString Edits::renameBattery(Catalogue &catalogue, qsizetype battery, const QString &name)
{
    const QString old = catalogue.batteries.at(battery).name;
    if (name == old)
        return QString();
    const QStringList others = namesBeside(catalogue.batteries, battery);
    if (const QString problem = nameProblem(name, others); !problem.isEmpty())
        return problem;
    catalogue.batteries[battery].name = name;
    if (others.contains(old))
        return QString();
    for (Model &model : catalogue.models)
        std::replace(model.batteries.begin(), model.batteries.end(), old, name);
    return QString();
}

QString Edits::renameModel(Catalogue &catalogue, qsizetype model, const QString &name)
{
    if (name == catalogue.models.at(model).name)
        return QString();
    if (const QString problem = nameProblem(name, namesBeside(catalogue.models, model)); !problem.isEmpty())
        return problem;
    catalogue.models[model].name = name;
    return QString();
}

QStringList Edits::locationNames(const Catalogue &catalogue)
{
    QStringList names = catalogue.locations;
    QSet<QString> known(names.cbegin(), names.cend());
    known.insert(QString());
    for (const Model &model : catalogue.models) {
        for (const Flight &flight : model.log) {
            if (known.contains(flight.location))
                continue;
            known.insert(flight.location);
            names.append(flight.location);
        }
    }
    return names;
}

QString Edits::renameLocation(Catalogue &catalogue, qsizetype location, const QString &name)
{
    QStringList others = locationNames(catalogue);
    const QString old = others.takeAt(location);
    if (name == old)
        return QString();
    if (const QString problem = nameProblem(name, others); !problem.isEmpty())
        return problem;
    if (location < catalogue.locations.size())
        catalogue.locations[location] = name;
    if (others.contains(old))
        return QString();
    for (Model &model : catalogue.models) {
        for (Flight &flight : model.log) {
            if (flight.location == old)
                flight.location = name;
        }
    }
    return QString();
}

} // namespace Host
