// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"
#include "host/exchange/exportfilter.h"
#include "host/exchange/flightbookpages.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

int refuse(const QString &problem)
{
    Console::complain(problem);
    return EXIT_FAILURE;
}

QPageSize::PageSizeId paperOf(const Invocation &invocation)
{
    return invocation.value(u"paper"_s) == "Letter"_L1 ? QPageSize::Letter : QPageSize::A4;
}

} // namespace

int Run::report(const Invocation &invocation)
{
    const std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    const QString path = invocation.value(u"output"_s);
    const QFileInfo file(path);
    if ((file.exists() || file.isSymLink()) && !invocation.has(u"force"_s))
        return refuse(Text::tr("“%1” exists already. Nothing was written; “--force” replaces it.").arg(path));
    std::optional<QStringList> models;
    if (invocation.has(u"model"_s))
        models = invocation.values(u"model"_s);
    if (const std::optional<QString> name = unknownModel(*catalogue, {{}, {}, models}))
        return refuse(Text::tr("There is no model “%1” in this logbook. Nothing was written.").arg(*name));
    const QByteArray pdf =
        flightBookPdf(flightBookOf(*catalogue, invocation.range(), models), paperOf(invocation), QLocale());
    const QString problem = WholeFile::write(path, pdf);
    return problem.isEmpty() ? EXIT_SUCCESS
                             : refuse(Text::tr("“%1” was not written: %2.").arg(path, problem));
}

} // namespace Host
