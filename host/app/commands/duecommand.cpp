// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/commands/texttable.h"
#include "host/app/console.h"
#include "host/statistics/figuresjson.h"
#include "host/window/advicelimits.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Due)
};

QByteArray forTheEye(const QList<Advice> &advice)
{
    if (advice.isEmpty())
        return Text::tr("There is nothing to do.").toUtf8() + '\n';
    TextTable table({{Text::tr("Severity")}, {Text::tr("What to do")}});
    for (const Advice &entry : advice)
        table.addRow(
            {entry.severity == Severity::Warning ? Text::tr("warning") : Text::tr("notice"), entry.text});
    return table.bytes();
}

} // namespace

int Run::due(const Invocation &invocation)
{
    const std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    const QList<Advice> advice = adviceFor(*catalogue, invocation.on(), chosenLimits());
    Console::Output output;
    output.write(invocation.has(u"json"_s) ? QJsonDocument(FiguresJson::advice(advice)).toJson()
                                           : forTheEye(advice));
    return output.finish();
}

} // namespace Host
