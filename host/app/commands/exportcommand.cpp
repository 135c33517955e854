// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"
#include "host/exchange/cataloguejson.h"
#include "host/exchange/exporting.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)
};

ExportFormat formatNamed(const QString &name)
{
    return name == "csv"_L1         ? ExportFormat::Csv
           : name == "csv-local"_L1 ? ExportFormat::CsvLocal
           : name == "xlsx"_L1      ? ExportFormat::Xlsx
                                    : ExportFormat::Json;
}

std::optional<QStringList> namesGiven(const Invocation &invocation, const QString &option)
{
    return invocation.has(option) ? std::optional(invocation.values(option)) : std::nullopt;
}

ExportOrder orderOf(const Invocation &invocation)
{
    ExportOrder order;
    order.format = formatNamed(invocation.value(u"format"_s));
    order.path = invocation.value(u"output"_s);
    order.filter = {invocation.range(), namesGiven(invocation, u"battery"_s),
                    namesGiven(invocation, u"model"_s)};
    order.replaces = invocation.has(u"force"_s);
    order.localStyle = CsvStyle::forLocale(QLocale::system());
    return order;
}

int refuse(const QString &problem)
{
    Console::complain(problem);
    return EXIT_FAILURE;
}

int print(const Catalogue &whole, const ExportFilter &filter)
{
    Console::Output output;
    CatalogueJson(whole, [&output](const QByteArray &bytes) {
        return output.write(bytes);
    }).writeExport(filtered(whole, filter));
    return output.finish();
}

} // namespace

int Run::exportTo(const Invocation &invocation)
{
    const std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    const ExportOrder order = orderOf(invocation);
    if (const std::optional<QString> name = unknownBattery(*catalogue, order.filter))
        return refuse(Text::tr("There is no battery “%1” in this logbook. Nothing was exported.").arg(*name));
    if (const std::optional<QString> name = unknownModel(*catalogue, order.filter))
        return refuse(Text::tr("There is no model “%1” in this logbook. Nothing was exported.").arg(*name));
    if (order.path.isEmpty())
        return print(*catalogue, order.filter);
    const QStringList existing = existingFiles(order.format, order.path);
    if (!existing.isEmpty() && !order.replaces)
        return refuse(Text::tr("“%1” exists already. Nothing was exported; “--force” replaces it.")
                          .arg(existing.first()));
    const Exported exported = exportLogbook(*catalogue, order);
    if (!exported.problem.isEmpty())
        return refuse(exported.problem);
    if (exported.cutTexts > 0)
        Console::complain(
            Text::tr("Texts of more than 32,767 characters do not fit into a cell and were cut: %1.")
                .arg(exported.cutTexts));
    return EXIT_SUCCESS;
}

} // namespace Host
