// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/backuprestoring.h"

#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/console.h"
#include "host/app/opening.h"
#include "host/data/cataloguefile.h"
#include "host/safety/copyrestoring.h"
#include "host/safety/logbookfiles.h"
#include "host/safety/wholefile.h"
#include "host/window/questions.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Backups)
};

int refuse(const QString &problem)
{
    Console::complain(problem);
    return EXIT_FAILURE;
}

QString notRestored(const QString &reason)
{
    return Text::tr("Nothing was restored: %1. All is as it was.").arg(reason);
}

QString madeOn(const Copy &copy)
{
    return copy.time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss");
}

struct Chosen
{
    Copy copy;
    Backups::Held held;
};

/** The copy of a stamp, if it is whole; where there is none, that was said. */
std::optional<Chosen> choose(const StorageFolder &folder, const QString &stamp)
{
    const QList<Copy> copies = Backups::list(folder);
    const auto copy = std::find_if(copies.cbegin(), copies.cend(),
                                   [&](const Copy &candidate) { return candidate.stamp == stamp; });
    if (copy == copies.cend()) {
        Console::complain(Text::tr("There is no copy “%1”. “backups” lists them.").arg(stamp));
        return std::nullopt;
    }
    const Backups::Held held = Backups::held(folder, *copy);
    if (held.problem.isEmpty())
        return Chosen{*copy, held};
    Console::complain(
        Text::tr("The copy “%1” is not whole: %2. Nothing was changed.").arg(stamp, held.problem));
    return std::nullopt;
}

/** The logbook as it is before something is restored, while its lock is held. */
struct Present
{
    FileState state;
    MeasuredStore::Stored stored;

    bool isWhole() const { return state.kind == FileState::Whole; }
};

/** Keeps the present logbook, and whatever else must not be lost. @return why it is not kept, a clause. */
QString keep(const StorageFolder &folder, const Present &present, const QByteArray &beside)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (!present.isWhole())
        Backups::keepNewestWhole(folder); // a copy made before a damage is never thinned out
    const QByteArray document = present.isWhole() ? present.state.bytes : QByteArray();
    const QString problem = CopyRestoring::keepPresent(folder, document, present.stored, beside, now);
    return problem.isEmpty() && present.isWhole()
               ? CopyRestoring::keepWhatIsNotUnderstood(folder, present.state.bytes, now)
               : problem;
}

/** Puts the copy in its place. @param aside where a file that is not whole is kept. */
QString put(const StorageFolder &folder, const Present &present, const LogbookFiles::Contents &contents,
            QString *aside)
{
    QString moved;
    QString problem = LogbookFiles::put(folder, contents, present.stored.bytes, &moved);
    if (!problem.isEmpty())
        return problem;
    if (present.isWhole())
        QFile::remove(moved); // its bytes are in the copy
    else
        *aside = moved;
    return QString();
}

bool print(const Chosen &chosen, const std::optional<Copy> &before, const QString &aside)
{
    QString text = Text::tr("The logbook is as in the copy of %1 again.").arg(madeOn(chosen.copy));
    if (before)
        text += u' ' + Text::tr("As it was before, it is the copy %1.").arg(before->stamp);
    if (!aside.isEmpty())
        text += u' ' + Text::tr("The damaged file is kept as “%1”.").arg(aside);
    return Console::print(text + u'\n');
}

/** The copy of a document, where it is the newest that is whole. */
std::optional<Copy> copyOf(const StorageFolder &folder, const Present &present)
{
    QByteArray bytes;
    const std::optional<Copy> whole = Backups::newestWhole(folder, &bytes);
    return present.isWhole() && bytes == present.state.bytes ? whole : std::nullopt;
}

int restore(const StorageFolder &folder, const Chosen &chosen, const Present &present)
{
    const QByteArray &document = chosen.held.document;
    const CatalogueFile::Loaded then = CatalogueFile::load(document);
    const CatalogueFile::Loaded now =
        present.isWhole() ? CatalogueFile::load(present.state.bytes) : then; // of a damage nothing is known
    if (const QString problem = then.problem + now.problem; !problem.isEmpty())
        return refuse(notRestored(problem));
    const bool isThere = present.isWhole() && present.state.bytes == document;
    const QByteArray beside =
        isThere && chosen.held.beside.isEmpty()
            ? present.stored.bytes
            : CopyRestoring::besideOf(chosen.held, present.stored, now.catalogue, then.catalogue);
    if (isThere && beside == present.stored.bytes)
        return Console::print(Text::tr("The logbook is as in the copy of %1 already. Nothing was changed.\n")
                                  .arg(madeOn(chosen.copy)))
                   ? EXIT_SUCCESS
                   : EXIT_FAILURE;
    QString problem = keep(folder, present, beside);
    if (!problem.isEmpty())
        return refuse(notRestored(problem));
    for (const QString &lost : {present.stored.problem, CopyRestoring::besideLost(chosen.held)}) {
        if (!lost.isEmpty())
            Console::complain(lost);
    }
    const std::optional<Copy> before = copyOf(folder, present);
    QString aside;
    problem = isThere ? MeasuredStore::put(folder, beside) : put(folder, present, {document, beside}, &aside);
    if (!problem.isEmpty())
        return refuse(notRestored(problem));
    problem = Backups::add(folder, document, QDateTime::currentDateTimeUtc());
    if (!problem.isEmpty())
        Console::complain(Text::tr("No copy of the logbook can be kept in “%1”: %2.")
                              .arg(folder.backups().path(), problem));
    return print(chosen, before, aside) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int restoreCopy(const Invocation &invocation, const QString &stamp)
{
    const StorageFolder &folder = invocation.folder;
    if (const QString problem = CommandData::folderProblem(invocation); !problem.isEmpty())
        return refuse(problem);
    if (!invocation.isDemo && !choose(folder, stamp))
        return EXIT_FAILURE; // before the lock is taken: it would make the folder
    UnattendedQuestions nobody;
    Opening opening(folder, nobody);
    if (const Opening::Status ended = opening.takeFolder(invocation.isDemo ? Demo::Make : Demo::None, false))
        return *ended;
    const std::optional<Chosen> chosen = choose(folder, stamp);
    if (!chosen)
        return EXIT_FAILURE;
    const Present present{Recovery::examine(folder), MeasuredStore::load(folder)};
    if (present.state.kind == FileState::Unreadable)
        return refuse(opening.describe(present.state));
    return restore(folder, *chosen, present);
}

} // namespace Host
