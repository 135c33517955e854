// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/backuprestoring.h"
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/commands/texttable.h"
#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/data/difference.h"
#include "host/safety/backups.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Backups)
};

/** A copy, and how it stands to the logbook now. */
struct Listed
{
    Copy copy;
    QString difference; ///< in words; empty where the copy is not whole
    QString problem;    ///< why it is not, a clause
};

/** Nothing where it cannot be compared, which was then said. */
std::optional<Listed> listed(const StorageFolder &folder, const Copy &copy, const Catalogue &now)
{
    const Backups::Held held = Backups::held(folder, copy);
    if (!held.problem.isEmpty())
        return Listed{copy, {}, held.problem};
    const CatalogueFile::Loaded loaded = CatalogueFile::load(held.document);
    if (loaded.problem.isEmpty())
        return Listed{copy, DifferenceTexts::inWords(differenceOf(loaded.catalogue, now)), {}};
    Console::complain(Text::tr("The copy %1 cannot be compared: %2.").arg(copy.stamp, loaded.problem));
    return std::nullopt;
}

QJsonObject jsonOf(const Listed &listed)
{
    const bool isWhole = listed.problem.isEmpty();
    return {{u"stamp"_s, listed.copy.stamp},
            {u"time"_s, listed.copy.time.toLocalTime().toString(u"yyyy-MM-ddTHH:mm:ss")},
            {u"size"_s, listed.copy.size},
            {u"whole"_s, isWhole},
            {u"difference"_s, isWhole ? QJsonValue(listed.difference) : QJsonValue()}};
}

QByteArray json(const QList<Listed> &all)
{
    QJsonArray array;
    for (const Listed &listed : all)
        array.append(jsonOf(listed));
    return QJsonDocument(array).toJson();
}

QByteArray forTheEye(const QList<Listed> &all)
{
    if (all.isEmpty())
        return Text::tr("There is no copy yet.").toUtf8() + '\n';
    TextTable table(
        {{Text::tr("Stamp")}, {Text::tr("Made")}, {Text::tr("Size"), true}, {Text::tr("Compared with now")}});
    for (const Listed &listed : all)
        table.addRow(
            {listed.copy.stamp, listed.copy.time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"),
             QLocale().formattedDataSize(listed.copy.size, 1, QLocale::DataSizeSIFormat),
             listed.problem.isEmpty() ? listed.difference : Text::tr("not whole: %1").arg(listed.problem)});
    return table.bytes();
}

/** What helps where the logbook itself cannot be read. */
QString advice(const StorageFolder &folder)
{
    const std::optional<Copy> whole = Backups::newestWhole(folder);
    return whole ? Text::tr("“backups restore %1” puts the newest whole copy back.").arg(whole->stamp)
                 : QString();
}

int listCopies(const Invocation &invocation)
{
    const std::optional<Catalogue> now =
        CommandData::read(invocation, [&] { return advice(invocation.folder); });
    if (!now)
        return EXIT_FAILURE;
    const std::optional<QList<Copy>> copies = Backups::listed(invocation.folder);
    if (!copies) {
        Console::complain(
            Text::tr("The copies in “%1” cannot be listed.").arg(invocation.folder.backups().path()));
        return EXIT_FAILURE;
    }
    QList<Listed> all;
    for (const Copy &copy : *copies) {
        const std::optional<Listed> entry = listed(invocation.folder, copy, *now);
        if (!entry)
            return EXIT_FAILURE;
        all.append(*entry);
    }
    Console::Output output;
    output.write(invocation.has(u"json"_s) ? json(all) : forTheEye(all));
    return output.finish();
}

} // namespace

int Run::backups(const Invocation &invocation)
{
    return invocation.arguments.isEmpty() ? listCopies(invocation)
                                          : restoreCopy(invocation, invocation.arguments.last());
}

} // namespace Host
