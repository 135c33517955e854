// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/exportformats.h"

#include "host/exchange/xlsx.h"

#include <QCoreApplication>

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ExportFormats)
};

} // namespace

QList<ExportFormat> ExportFormats::all()
{
    QList<ExportFormat> formats{ExportFormat::CsvLocal, ExportFormat::Csv, ExportFormat::Json};
    if (Xlsx::isAvailable())
        formats.prepend(ExportFormat::Xlsx);
    return formats;
}

QString ExportFormats::name(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Xlsx:
        return Text::tr("Workbook for spreadsheets (XLSX)");
    case ExportFormat::CsvLocal:
        return Text::tr("Tables for your spreadsheet (CSV)");
    case ExportFormat::Csv:
        return Text::tr("Tables for other programs (CSV)");
    case ExportFormat::Json:
        return Text::tr("Everything for scripts (JSON)");
    }
    return QString();
}

QString ExportFormats::explanation(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Xlsx:
        return Text::tr("One file with five sheets, with real numbers and dates. The best choice for "
                        "LibreOffice, Excel and other spreadsheets.");
    case ExportFormat::CsvLocal:
        return Text::tr(
            "Five files in a folder, with the decimal sign of your country. A text that looks like "
            "a formula gets an apostrophe.");
    case ExportFormat::Csv:
        return Text::tr(
            "Five files in a folder, the same on every computer, for databases and other programs.");
    case ExportFormat::Json:
        return Text::tr("One file that holds everything with its relations, for programs of your own.");
    }
    return QString();
}

} // namespace Host
