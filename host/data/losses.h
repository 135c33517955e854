// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/documenttree.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace Host {

/** Something of a document that is missing from another one, which is the same loaded and saved. */
struct Loss
{
    enum Kind {
        Unread, ///< a value of a known field that reads as nothing
        Dropped ///< an element, attribute, comment or text that no save writes, or a time that it erases
    };
    Kind kind;
    QString record; ///< the battery or model that it belongs to, such as "battery “3S”"; empty without one
    QString what;   ///< a clause such as "the element “Chemistry” in line 12"
};

struct Losses
{
    QList<Loss> losses;
    QHash<const Element *, qint64> lines; ///< of the saved elements: where in the document they stand
};

/**
 * What of a document is missing from another one, which is the same loaded and saved: elements, attributes,
 * comments, texts and values that were not read or are written no more. Mere spelling is nothing: the order
 * of attributes or of unlike records, white space, encodings, entities, "007" for 7, entries in two
 * containers, an empty value. Of an element that is missing as a whole nothing more is said.
 */
Losses compareDocuments(const Element &document, const Element &saved);

/** The same in clauses, one for each loss. */
QStringList losses(const QByteArray &document, const QByteArray &saved);

} // namespace Host
