// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/logbookwriting.h"

#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/copyrestoring.h"
#include "host/safety/logbookfiles.h"
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

/** Keeps the logbook as it is now, and puts both files in their places, or neither. @return why that is not
 * done, in whole sentences. */
QString put(const StorageFolder &folder, const LogbookFiles::Contents &contents, const QByteArray &before,
            const MeasuredStore::Stored &stored, const QString &notDone)
{
    QString problem =
        CopyRestoring::keepPresent(folder, before, stored, contents.beside, QDateTime::currentDateTimeUtc());
    if (!problem.isEmpty())
        return sentence(notDone, folder.backups().path(), problem);
    if (contents.document == before) {
        problem = MeasuredStore::put(folder, contents.beside);
        return problem.isEmpty() ? QString() : sentence(notDone, folder.measuredFile(), problem);
    }
    QString moved;
    problem = LogbookFiles::put(folder, contents, stored.bytes, &moved);
    if (!problem.isEmpty())
        return sentence(notDone, folder.path(), problem);
    if (!moved.isEmpty())
        QFile::remove(moved); // its bytes are in the copy
    return QString();
}

} // namespace

QString LogbookWriting::write(const StorageFolder &folder, const State &present, const State &meant,
                              const QString &notDone)
{
    const WholeFile::Reading before = WholeFile::read(folder.dataFile());
    const bool isNew = before.isMissing && present.catalogue == Catalogue();
    if (!before.problem.isEmpty() && !isNew)
        return sentence(notDone, folder.dataFile(), before.problem);
    const MeasuredStore::Stored stored = MeasuredStore::load(folder);
    if ((!isNew && CatalogueFile::load(before.bytes).catalogue != present.catalogue) ||
        MeasuredFile::save(stored.measured) != MeasuredFile::save(present.measured))
        return Text::tr("%1: another program has changed the logbook file meanwhile. Try again.")
            .arg(notDone);
    LogbookFiles::Contents contents{before.bytes, stored.bytes};
    if (MeasuredFile::save(meant.measured) != MeasuredFile::save(present.measured)) {
        if (!stored.mayWrite)
            return sentence(notDone, folder.measuredFile(), stored.reason);
        contents.beside = MeasuredFile::save(meant.measured);
    }
    QString problem;
    if (meant.catalogue != present.catalogue)
        problem = documentOf(meant.catalogue, notDone, contents.document);
    if (problem.isEmpty())
        problem = put(folder, contents, before.bytes, stored, notDone);
    if (!problem.isEmpty() || contents.document.isEmpty()) // there is still no logbook
        return problem;
    problem = Backups::add(folder, contents.document, QDateTime::currentDateTimeUtc());
    if (!problem.isEmpty())
        Console::complain(Text::tr("No copy of the logbook can be kept in “%1”: %2.")
                              .arg(folder.backups().path(), problem));
    return QString();
}

} // namespace Host
