// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/batterywidget.h"
#include "records/modelwidget.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <memory>

/** Search in the window's record lists by name, the identity of a record; compared exactly. */
namespace RecordLookup {

inline QString nameOf(const BatteryWidget &battery)
{
    return battery.getBatteryName();
}

inline QString nameOf(const ModelWidget &model)
{
    return model.getModelName();
}

template <typename Record>
QStringList names(const QList<Record *> &records)
{
    QStringList result;
    result.reserve(records.size());
    for (const Record *record : records)
        result.append(nameOf(*record));
    return result;
}

/** The last record of this name, or null: with equal names the later record wins, on purpose. */
template <typename Record>
Record *last(const QList<Record *> &records, const QString &name)
{
    const auto found = std::find_if(records.crbegin(), records.crend(),
                                    [&name](const Record *record) { return nameOf(*record) == name; });
    return found == records.crend() ? nullptr : *found;
}

/** Takes the first record of this name out of the list, which then is the caller's; null without one. */
template <typename Record>
std::unique_ptr<Record> takeFirst(QList<Record *> &records, const QString &name)
{
    const auto found = std::find_if(records.cbegin(), records.cend(),
                                    [&name](const Record *record) { return nameOf(*record) == name; });
    return std::unique_ptr<Record>(found == records.cend() ? nullptr
                                                           : records.takeAt(found - records.cbegin()));
}

} // namespace RecordLookup
