// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/exportfilter.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace Host {
namespace {

template <typename Record>
QList<Record> named(const QList<Record> &records, const std::optional<QStringList> &names)
{
    if (!names)
        return records;
    const QSet<QString> wanted(names->cbegin(), names->cend());
    QList<Record> found;
    std::copy_if(records.cbegin(), records.cend(), std::back_inserter(found),
                 [&wanted](const Record &record) { return wanted.contains(record.name); });
    return found;
}

template <typename Entry>
void limit(QList<Entry> &entries, const DateRange &range)
{
    entries.removeIf([&range](const Entry &entry) { return !range.contains(entry.time); });
}

template <typename Record>
std::optional<QString> unknown(const QList<Record> &records, const std::optional<QStringList> &names)
{
    for (const QString &name : names.value_or(QStringList())) {
        if (std::none_of(records.cbegin(), records.cend(),
                         [&name](const Record &record) { return record.name == name; }))
            return name;
    }
    return std::nullopt;
}

} // namespace

Catalogue filtered(const Catalogue &whole, const ExportFilter &filter)
{
    Catalogue part{whole.locations, named(whole.batteries, filter.batteries),
                   named(whole.models, filter.models)};
    if (!filter.range.isLimited())
        return part; // which shares everything with the whole
    for (Battery &battery : part.batteries)
        limit(battery.discharges, filter.range);
    for (Model &model : part.models)
        limit(model.log, filter.range);
    return part;
}

std::optional<QString> unknownBattery(const Catalogue &whole, const ExportFilter &filter)
{
    return unknown(whole.batteries, filter.batteries);
}

std::optional<QString> unknownModel(const Catalogue &whole, const ExportFilter &filter)
{
    return unknown(whole.models, filter.models);
}

} // namespace Host
