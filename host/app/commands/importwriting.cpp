// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/importwriting.h"

#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ImportWriting)
};

QString sentence(const QString &path, const QString &reason)
{
    return Text::tr("Nothing was imported: “%1” cannot be written: %2. See that it can be "
                    "written, and try again.")
        .arg(path, reason);
}

/** The bytes of a logbook that reads as what is meant. @return why there are none; empty when there are. */
QString documentOf(const Catalogue &meant, QByteArray &document)
{
    const CatalogueFile::Saved saved = CatalogueFile::save(meant);
    const CatalogueFile::Loaded loaded = CatalogueFile::load(saved.document);
    document = saved.document;
    if (!saved.problem.isEmpty() || !loaded.problem.isEmpty())
        return sentence(QDir::tempPath(), saved.problem.isEmpty() ? loaded.problem : saved.problem);
    if (loaded.catalogue != meant)
        return Text::tr("Nothing was imported: the logbook file cannot hold what the logs say.");
    return QString();
}

} // namespace

QString ImportWriting::write(const StorageFolder &folder, const Catalogue &present, const Catalogue &meant,
                             const Measured &measured)
{
    const WholeFile::Reading before = WholeFile::read(folder.dataFile());
    if (!before.problem.isEmpty())
        return sentence(folder.dataFile(), before.problem);
    if (CatalogueFile::load(before.bytes).catalogue != present)
        return Text::tr("Nothing was imported: another program has changed the logbook file "
                        "meanwhile. Try again.");
    QByteArray document = before.bytes;
    if (meant != present) {
        QString problem = documentOf(meant, document);
        if (!problem.isEmpty())
            return problem;
        problem = Backups::add(folder, before.bytes, QDateTime::currentDateTimeUtc());
        if (!problem.isEmpty())
            return sentence(folder.backups().path(), problem);
        problem = WholeFile::write(folder.dataFileTarget(), document);
        if (!problem.isEmpty())
            return sentence(folder.dataFile(), problem);
    }
    if (const QString problem = MeasuredStore::save(folder, measured); !problem.isEmpty()) {
        const QString lasting =
            document == before.bytes ? QString() : WholeFile::write(folder.dataFileTarget(), before.bytes);
        if (!lasting.isEmpty())
            Console::complain(sentence(folder.dataFile(), lasting));
        return sentence(folder.measuredFile(), problem);
    }
    const QString problem = Backups::add(folder, document, QDateTime::currentDateTimeUtc());
    if (!problem.isEmpty())
        Console::complain(Text::tr("No copy of the logbook can be kept in “%1”: %2.")
                              .arg(folder.backups().path(), problem));
    return QString();
}

} // namespace Host
