// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/recoveryquestion.h"

#include "host/data/cataloguefile.h"
#include "host/window/questions.h"
#include "host/window/versionsmodel.h"

#include <QCoreApplication>

namespace Host {
namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("RecoveryQuestion", text);
}

QString whatIsTheMatter(const StorageFolder &folder, const FileState &state)
{
    const QString text =
        state.kind == FileState::Missing
            ? tr(QT_TRANSLATE_NOOP("RecoveryQuestion",
                                   "The logbook file “%1” is missing, but copies of it are there."))
            : tr(QT_TRANSLATE_NOOP("RecoveryQuestion", "The logbook file “%1” is damaged: %2."));
    return state.kind == FileState::Missing ? text.arg(folder.dataFile())
                                            : text.arg(folder.dataFile(), state.problem);
}

QString whatFollows(const FileState &state)
{
    if (state.kind == FileState::Missing)
        return QString();
    return tr(QT_TRANSLATE_NOOP(
        "RecoveryQuestion",
        "Whatever you choose, the damaged file is kept in the same folder, under a name that "
        "begins with “voltbok-broken-”. "));
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
    versions.add(tr(QT_TRANSLATE_NOOP("RecoveryQuestion", "What can still be read of the damaged file")),
                 salvage(state));
    const int newest = versions.firstWhole();

    enum { Quit, StartEmpty, Restore };
    Question question;
    question.text = whatIsTheMatter(folder, state);
    question.details = whatFollows(state);
    question.answers = QStringList{tr(QT_TRANSLATE_NOOP("RecoveryQuestion", "Quit")),
                                   tr(QT_TRANSLATE_NOOP("RecoveryQuestion", "Start with an Empty Logbook"))};
    if (newest >= 0) {
        question.details += tr(
            QT_TRANSLATE_NOOP("RecoveryQuestion", "Choose the version to go on with; the newest is on top."));
        question.answers.append(tr(QT_TRANSLATE_NOOP("RecoveryQuestion", "Restore")));
        question.preferred = Restore;
        question.choices = &versions;
        question.chosen = newest;
    }
    const Answer answer = questions.ask(question);
    if (answer.button == StartEmpty)
        return CatalogueFile::emptyDocument();
    if (answer.button == Restore && answer.row >= 0)
        return versions.document(answer.row);
    return std::nullopt;
}

} // namespace Host
