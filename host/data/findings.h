// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace Host {

/** Something that a second pair of eyes sees in a data file. */
struct Finding
{
    enum Kind {
        Broken, ///< the file is not whole; nothing else is known of it then
        Unread,
        Dropped,
        FlightWithoutDischarge,
        DischargeWithoutFlight,
        EqualNames
    };
    Kind kind;
    QString what; ///< a clause that names the record and the line

    bool operator==(const Finding &other) const { return kind == other.kind && what == other.what; }
};

/** "unread", "flight without discharge" and so on, the same in every language. */
QString findingKey(Finding::Kind kind);

struct Findings
{
    QList<Finding> list;
    QString problem; ///< why the document could not be looked at, a clause; empty when it could
};

/**
 * What the loaders of a document do not read and what the next save drops, which flights and discharges stand
 * alone, and which names stand twice.
 *
 * @param document one whole logbook.
 */
Findings findingsOf(const QByteArray &document);

} // namespace Host
