// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/csv.h"
#include "host/exchange/exportfilter.h"

#include <QString>
#include <QStringList>

namespace Host {

enum class ExportFormat {
    Csv,      ///< for other programs
    CsvLocal, ///< for the spreadsheets of a locale
    Xlsx,
    Json,
};

/** An export as somebody asked for it. */
struct ExportOrder
{
    ExportFormat format = ExportFormat::Xlsx;
    QString path; ///< a folder for CSV, else a file
    ExportFilter filter;
    bool replaces = false; ///< files that exist
    CsvStyle localStyle;   ///< for CsvLocal
};

struct Exported
{
    QString problem;        ///< why nothing was written, in a whole sentence; empty when all was
    qsizetype cutTexts = 0; ///< how many were too long for a cell of a workbook
    bool isStopped = false; ///< as was wished; nothing was written
};

/** The files that an export writes. */
QStringList exportFiles(ExportFormat format, const QString &path);
/** Those of them that exist. */
QStringList existingFiles(ExportFormat format, const QString &path);

/**
 * Writes all files of an export or none of them, as far as it is in our hands: each is whole before any takes
 * its place.
 */
Exported exportLogbook(const Catalogue &whole, const ExportOrder &order, const Proceed &proceed = {});

} // namespace Host
