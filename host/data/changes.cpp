// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/changes.h"

#include <QCoreApplication>

#include <algorithm>

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Changes)
};

/** The records of one kind that only one of two states has, or that the two have differently. */
template <typename Record>
struct Difference
{
    QList<Record> removed;
    QList<Record> added;

    Difference(const QList<Record> &before, const QList<Record> &after)
    {
        // What stands at both ends alike is left out; in between everything counts as changed.
        const auto shorter = std::min(before.size(), after.size());
        qsizetype head = 0;
        while (head < shorter && before.at(head) == after.at(head))
            ++head;
        qsizetype tail = 0;
        while (tail < shorter - head &&
               before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
            ++tail;
        removed = before.mid(head, before.size() - tail - head);
        added = after.mid(head, after.size() - tail - head);
    }

    bool isEmpty() const { return removed.isEmpty() && added.isEmpty(); }
    bool isOneChanged() const { return removed.size() == 1 && added.size() == 1; }
};

QString batteryChange(const Battery &before, const Battery &after)
{
    if (before.name != after.name)
        return Text::tr("Battery %1 renamed").arg(before.name);
    if (before.charged != after.charged)
        return (after.charged ? Text::tr("Charged %1") : Text::tr("Discharged %1")).arg(after.name);
    return Text::tr("Battery %1 edited").arg(after.name);
}

QString modelChange(const Model &before, const Model &after)
{
    if (before.name != after.name)
        return Text::tr("Model %1 renamed").arg(before.name);
    if (before.batteries != after.batteries)
        return Text::tr("Batteries of %1 changed").arg(after.name);
    if (before.log.size() < after.log.size())
        return Text::tr("Flight of %1 recorded").arg(after.name);
    if (before.log != after.log)
        return before.log.size() > after.log.size() ? Text::tr("Flight of %1 deleted").arg(after.name)
                                                    : Text::tr("Flight of %1 edited").arg(after.name);
    return Text::tr("Model %1 edited").arg(after.name);
}

} // namespace

QString changeName(const Catalogue &before, const Catalogue &after)
{
    const Difference batteries(before.batteries, after.batteries);
    const Difference models(before.models, after.models);
    const Difference locations(before.locations, after.locations);
    if (batteries.isOneChanged())
        return batteryChange(batteries.removed.constFirst(), batteries.added.constFirst());
    if (models.isOneChanged() && batteries.isEmpty())
        return modelChange(models.removed.constFirst(), models.added.constFirst());
    if (batteries.removed.isEmpty() && batteries.added.size() == 1)
        return Text::tr("Battery %1 added").arg(batteries.added.constFirst().name);
    if (batteries.added.isEmpty() && batteries.removed.size() == 1)
        return Text::tr("Battery %1 deleted").arg(batteries.removed.constFirst().name);
    if (models.removed.isEmpty() && models.added.size() == 1)
        return Text::tr("Model %1 added").arg(models.added.constFirst().name);
    if (models.added.isEmpty() && models.removed.size() == 1)
        return Text::tr("Model %1 deleted").arg(models.removed.constFirst().name);
    if (locations.removed.isEmpty() && locations.added.size() == 1)
        return Text::tr("Location %1 added").arg(locations.added.constFirst());
    if (locations.added.isEmpty() && locations.removed.size() == 1)
        return Text::tr("Location %1 deleted").arg(locations.removed.constFirst());
    return Text::tr("Change of the logbook");
}

} // namespace Host
