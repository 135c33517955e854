// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QByteArray>
#include <QString>

class QObject;

namespace Host::CatalogueFile {

/** What the library makes of a document: loaded into records and saved again, in a scratch folder. */
struct Saved
{
    QByteArray document; ///< what the next save would write
    QString problem;     ///< why that could not be found out, a clause; empty when it could
};

Saved loadAndSave(const QByteArray &document);

/** What the library reads from a document, as plain values. */
struct Loaded
{
    Catalogue catalogue;
    QString problem; ///< why nothing could be read, a clause; empty when it could
};

Loaded load(const QByteArray &document);

/** The document that the library writes for these values. */
Saved save(const Catalogue &catalogue);

/** The document of a logbook without any record. */
QByteArray emptyDocument();

/**
 * The document that the window would save now, without touching its file.
 *
 * @param logbook a window of the library.
 * @param folder where its data file lies, to which it is led back afterwards.
 */
Saved heldBy(QObject &logbook, const QString &folder);

} // namespace Host::CatalogueFile
