// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"

#include "host/app/commands/invocation.h"
#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/demo/demo.h"
#include "host/safety/measuredstore.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int LongestSave = 2000; // ms that a file is waited for
constexpr unsigned long Pause = 100;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandData)
};

bool mayBecomeWhole(const FileState &state)
{
    return state.kind == FileState::Damaged || state.kind == FileState::Missing;
}

std::optional<Catalogue> complain(const Invocation &invocation, const QString &problem,
                                  const std::function<QString()> &advice)
{
    const QString text =
        Text::tr("The logbook file “%1” cannot be read: %2.").arg(invocation.folder.dataFile(), problem);
    const QString more = advice ? advice() : QString();
    Console::complain(more.isEmpty() ? text : text + u' ' + more);
    return std::nullopt;
}

Catalogue withMeasured(const StorageFolder &folder, Catalogue catalogue)
{
    const MeasuredStore::Stored stored = MeasuredStore::load(folder);
    if (!stored.problem.isEmpty())
        Console::complain(stored.problem);
    MeasuredFile::mark(catalogue, stored.measured);
    return catalogue;
}

} // namespace

QString CommandData::folderProblem(const Invocation &invocation)
{
    const QFileInfo folder(invocation.folder.path());
    if (folder.exists() && !folder.isDir())
        return Text::tr("“%1” is not a folder.").arg(folder.filePath());
    if (!folder.exists() && (invocation.isDataGiven || folder.isSymLink()))
        return Text::tr("There is no folder “%1”.").arg(folder.filePath());
    return QString();
}

FileState CommandData::settled(const std::function<FileState()> &look)
{
    QElapsedTimer clock;
    clock.start();
    FileState state = look();
    while (mayBecomeWhole(state) && clock.elapsed() < LongestSave) {
        QThread::msleep(Pause);
        state = look();
    }
    return state;
}

FileState CommandData::stateOf(const QString &path)
{
    return settled([&path]() -> FileState {
        const WholeFile::Reading reading = WholeFile::read(path);
        if (!reading.problem.isEmpty())
            return {FileState::Unreadable, reading.problem, {}};
        const Contents contents = WholeFile::inspect(reading.bytes);
        return {contents.problem.isEmpty() ? FileState::Whole : FileState::Damaged, contents.problem,
                reading.bytes, !contents.declaresEntities};
    });
}

std::optional<Catalogue> CommandData::read(const Invocation &invocation,
                                           const std::function<QString()> &advice)
{
    const QString problem = folderProblem(invocation);
    if (!problem.isEmpty()) {
        Console::complain(problem);
        return std::nullopt;
    }
    FileState state = settled([&invocation] { return Recovery::examine(invocation.folder); });
    if (state.kind == FileState::New && !invocation.isDemo)
        return Catalogue();
    if (state.kind == FileState::New)
        state = {FileState::Whole, {}, sampleLogbook()};
    if (state.kind != FileState::Whole)
        return complain(invocation, state.problem, advice);
    const CatalogueFile::Loaded loaded = CatalogueFile::load(state.bytes);
    return loaded.problem.isEmpty() ? std::optional(withMeasured(invocation.folder, loaded.catalogue))
                                    : complain(invocation, loaded.problem, {});
}

} // namespace Host
