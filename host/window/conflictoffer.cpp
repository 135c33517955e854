// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/conflictoffer.h"

#include "host/data/cataloguefile.h"
#include "host/data/merge.h"
#include "host/data/mergemeasured.h"
#include "host/safety/conflictfiles.h"
#include "host/safety/mergesources.h"
#include "host/safety/wholefile.h"
#include "host/window/flightedits.h"
#include "host/window/mergedialog.h"
#include "host/window/messagebar.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QDateTime>
#include <QFileInfo>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr std::chrono::milliseconds Pause(500); // a synchroniser writes in several steps

} // namespace

ConflictOffer::ConflictOffer(const StorageFolder &folder, OpenLogbook &logbook, MessageBar &messages,
                             Questions &questions, QWidget *window)
    : m_folder(folder)
    , m_logbook(logbook)
    , m_messages(messages)
    , m_questions(questions)
    , m_window(window)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(Pause);
    connect(&m_soon, &QTimer::timeout, this, &ConflictOffer::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_soon, qOverload<>(&QTimer::start));
    m_watcher.addPath(m_folder.path());
    const QString target = QFileInfo(m_folder.dataFileTarget()).path();
    if (target != m_folder.path())
        m_watcher.addPath(target);
    look();
}

/** Whether it is a whole logbook that was not merged yet. */
bool ConflictOffer::isNew(const QString &path)
{
    const QFileInfo file(path);
    const QString state =
        QString::number(file.size()) + u' ' + file.lastModified().toUTC().toString(Qt::ISODateWithMs);
    if (m_settled.value(path) == state)
        return true;
    const QByteArray document = WholeFile::read(path).bytes;
    if (!WholeFile::isWhole(document) || MergeSources::wasMerged(m_folder, document))
        return false;
    m_settled.insert(path, state);
    return true;
}

QStringList ConflictOffer::offered()
{
    QStringList paths;
    const QStringList all = ConflictFiles::ofLogbook(m_folder);
    for (const QString &path : all) {
        if (isNew(path))
            paths.append(path);
    }
    return paths;
}

void ConflictOffer::look()
{
    const QStringList paths = offered();
    if (paths.isEmpty()) {
        m_messages.retract(u"conflict"_s);
        return;
    }
    const QString &first = paths.constFirst();
    QString text = tr("“%1” is another version of this logbook: two computers have changed it, and the "
                      "program that synchronises the folder has kept both. What it holds is not in this "
                      "logbook yet.")
                       .arg(QFileInfo(first).fileName());
    if (paths.size() > 1)
        text += u' ' + tr("There are %n such versions.", nullptr, static_cast<int>(paths.size()));
    m_messages.tell(u"conflict"_s, text, {{tr("Merge…"), [this, first] { merge(first); }}});
}

/** @return whether it was done; false when the user has cancelled it. */
bool ConflictOffer::searchAncestor(const Catalogue &ours, const Catalogue &theirs,
                                   std::optional<Catalogue> &ancestor)
{
    const std::unique_ptr<Progress> progress =
        m_questions.progress(tr("The versions are compared…"), MergeSources::versions(m_folder));
    bool goesOn = true;
    ancestor = MergeSources::ancestor(m_folder, ours, theirs, [&] { return goesOn = progress->step(); });
    return goesOn;
}

void ConflictOffer::merge(const QString &path)
{
    if (!m_logbook.mayChange()) {
        m_questions.tell(tr("The logbook cannot be changed now. Record the flight on the discharge page "
                            "first, or see the messages above the logbook."));
        return;
    }
    const QByteArray document = WholeFile::read(path).bytes;
    const CatalogueFile::Loaded theirs = CatalogueFile::load(document);
    const std::shared_ptr<const Catalogue> ours = m_logbook.catalogue();
    if (!WholeFile::isWhole(document) || !theirs.problem.isEmpty() || !ours) {
        m_questions.tell(tr("“%1” cannot be read now. Try again later.").arg(path));
        return;
    }
    std::optional<Catalogue> ancestor;
    if (!searchAncestor(*ours, theirs.catalogue, ancestor))
        return;
    const QString name = QFileInfo(path).fileName();
    const Merge plan = Host::merge(*ours, theirs.catalogue, ancestor);
    MergeDialog dialog(plan, ancestor.has_value(), name, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QDateTime when = QDateTime::currentDateTimeUtc();
    const Merge merged = Host::merge(*ours, theirs.catalogue, ancestor, dialog.chosen());
    const auto change = [&](Catalogue &catalogue, Measured &measured) {
        if (catalogue != *ours)
            return FlightEdits::changedMeanwhile();
        measured = mergeMeasured(measured, catalogue, MergeSources::measuredOf(m_folder, path),
                                 theirs.catalogue, merged.catalogue);
        catalogue = merged.catalogue;
        return QString();
    };
    if (const QString problem = m_logbook.changeWhole(tr("Merged with another version"), change);
        !problem.isEmpty()) {
        m_questions.tell(problem);
        return;
    }
    const QString problem = MergeSources::putAside(m_folder, path, document, when);
    const QString done = tr("Merged with “%1”.").arg(name) + u' ' + MergeDialog::summary(merged);
    m_messages.retract(u"merged"_s);
    m_messages.tell(u"merged"_s,
                    problem.isEmpty()
                        ? done.trimmed()
                        : done.trimmed() + u' ' + tr("The file cannot be put aside: %1.").arg(problem));
    look();
}

} // namespace Host
