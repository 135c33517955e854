// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
