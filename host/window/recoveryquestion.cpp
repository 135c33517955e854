// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/recoveryquestion.h"

#include "host/data/cataloguefile.h"
#include "host/window/questions.h"
#include "host/window/versionsmodel.h"

#include <QCoreApplication>

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryQuestion)
};

QString whatIsTheMatter(const StorageFolder &folder, const FileState &state)
{
    if (state.kind == FileState::Missing)
        return Text::tr("The logbook file “%1” is missing, but earlier versions of it are there.")
            .arg(folder.dataFile());
    return Text::tr("The logbook file “%1” is damaged: %2.").arg(folder.dataFile(), state.problem);
}

QString whatFollows(const FileState &state)
{
    if (state.kind == FileState::Missing)
        return Text::tr(
            "If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it "
            "back first.");
    return Text::tr("Quitting leaves the damaged file as it is. Otherwise it is kept in the same "
                    "folder, under a name that begins with “voltbok-broken-”.");
}

QString whatToChoose(const StorageFolder &folder, const VersionsModel &versions, int first)
{
    if (!versions.isComplete())
        return Text::tr("The copies in “%1” cannot be listed just now. Quit and start the program "
                        "again before you choose anything else.")
            .arg(folder.backups().path());
    if (first < 0)
        return Text::tr("No whole copy of it was found. Quit and look for one elsewhere before you "
                        "start with an empty logbook.");
    if (!versions.isCopy(first))
        return Text::tr("No whole copy of it was found. Choose what to go on with only after a "
                        "look at what it holds.");
    return Text::tr("Choose the version to go on with; the newest is on top.");
}

/** What the loaders find before the damage; nothing where loading is dangerous or finds no more than an empty
 * logbook. */
QByteArray salvage(const FileState &state)
{
    if (state.kind != FileState::Damaged || !state.mayBeLoaded)
        return QByteArray();
    const QByteArray document = CatalogueFile::loadAndSave(state.bytes).document;
    return document == CatalogueFile::emptyDocument() ? QByteArray() : document;
}

} // namespace

std::optional<QByteArray> askForReplacement(Questions &questions, const StorageFolder &folder,
                                            const FileState &state)
{
    VersionsModel versions(folder);
    versions.add(Text::tr("What can still be read of the damaged file"), salvage(state));
    const int first = versions.firstWhole();

    enum { Quit, StartEmpty, Restore };
    Question question;
    question.text = whatIsTheMatter(folder, state);
    question.details = whatFollows(state) + u' ' + whatToChoose(folder, versions, first);
    question.answers = QStringList{Text::tr("Quit"), Text::tr("Start with an Empty Logbook")};
    question.preferred = Quit;
    question.refusal = Quit;
    if (first >= 0) {
        question.answers.append(Text::tr("Restore"));
        question.preferred = versions.isComplete() && versions.isCopy(first) ? Restore : Quit;
        question.choices = &versions;
        question.chosen = first;
    }
    const Answer answer = questions.ask(question);
    if (answer.button == StartEmpty)
        return CatalogueFile::emptyDocument();
    if (answer.button == Restore && answer.row >= 0)
        return versions.document(answer.row);
    return std::nullopt;
}

} // namespace Host
