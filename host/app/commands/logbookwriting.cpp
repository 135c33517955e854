// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/logbookwriting.h"

#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LogbookWriting)
};

QString sentence(const QString &notDone, const QString &path, const QString &reason)
{
    return Text::tr("%1: “%2” cannot be written: %3. See that it can be "
                    "written, and try again.")
        .arg(notDone, path, reason);
}

/** The bytes of a logbook that reads as what is meant. @return why there are none; empty when there are. */
QString documentOf(const Catalogue &meant, const QString &notDone, QByteArray &document)
{
    const CatalogueFile::Saved saved = CatalogueFile::save(meant);
    const CatalogueFile::Loaded loaded = CatalogueFile::load(saved.document);
    document = saved.document;
    if (!saved.problem.isEmpty() || !loaded.problem.isEmpty())
        return sentence(notDone, QDir::tempPath(), saved.problem.isEmpty() ? loaded.problem : saved.problem);
    if (loaded.catalogue != meant)
        return Text::tr("%1: the logbook file cannot hold what would be in it.").arg(notDone);
    return QString();
}

/** @return why the logbook is not as it was before, a clause; empty when it is. */
QString putBack(const StorageFolder &folder, const WholeFile::Reading &before)
{
    if (!before.isMissing)
        return WholeFile::write(folder.dataFileTarget(), before.bytes);
    QFile file(folder.dataFileTarget());
    return file.remove() ? QString() : WholeFile::clause(file.errorString());
}

} // namespace

QString LogbookWriting::write(const StorageFolder &folder, const Catalogue &present, const Catalogue &meant,
                              const Measured &measured, const QString &notDone)
{
    const WholeFile::Reading before = WholeFile::read(folder.dataFile());
    const bool isNew = before.isMissing && present == Catalogue();
    if (!before.problem.isEmpty() && !isNew)
        return sentence(notDone, folder.dataFile(), before.problem);
    if (!isNew && CatalogueFile::load(before.bytes).catalogue != present)
        return Text::tr("%1: another program has changed the logbook file meanwhile. Try again.")
            .arg(notDone);
    QByteArray document = before.bytes;
    if (meant != present) {
        QString problem = documentOf(meant, notDone, document);
        if (!problem.isEmpty())
            return problem;
        if (!isNew)
            problem = Backups::add(folder, before.bytes, QDateTime::currentDateTimeUtc());
        if (!problem.isEmpty())
            return sentence(notDone, folder.backups().path(), problem);
        problem = WholeFile::write(folder.dataFileTarget(), document);
        if (!problem.isEmpty())
            return sentence(notDone, folder.dataFile(), problem);
    }
    if (const QString problem = MeasuredStore::save(folder, measured); !problem.isEmpty()) {
        const QString lasting = document == before.bytes ? QString() : putBack(folder, before);
        if (!lasting.isEmpty())
            Console::complain(sentence(notDone, folder.dataFile(), lasting));
        return sentence(notDone, folder.measuredFile(), problem);
    }
    const QString problem = document.isEmpty()
                                ? QString() // there is still no logbook
                                : Backups::add(folder, document, QDateTime::currentDateTimeUtc());
    if (!problem.isEmpty())
        Console::complain(Text::tr("No copy of the logbook can be kept in “%1”: %2.")
                              .arg(folder.backups().path(), problem));
    return QString();
}

} // namespace Host
