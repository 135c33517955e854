// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/mainwindow.h"

#include "gui/voltbokgui.h"
#include "host/data/cataloguefile.h"
#include "host/safety/backupkeeper.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/messagebar.h"
#include "host/window/questions.h"
#include "host/window/savewatch.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QPixmap>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {
// What messages are about.
const QString Saving = u"saving"_s;
const QString Copies = u"copies"_s;
const QString Others = u"others"_s;
const QString Restored = u"restored"_s;

QByteArray newestWholeCopy(const StorageFolder &folder)
{
    QByteArray document;
    Backups::newestWhole(folder, &document);
    return document;
}
} // namespace

MainWindow::MainWindow(Questions &questions, QWidget *parent)
    : QMainWindow(parent)
    , m_questions(questions)
    , m_logbook(new VoltbokGui)
    , m_messages(new MessageBar)
{
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addWidget(m_logbook, 1);
    const QSize size = m_logbook->size();
    setCentralWidget(content);
    resize(size);
    connect(m_logbook, &VoltbokGui::closeVoltbokGui, this, &QWidget::close);
    connect(m_messages, &MessageBar::told, this, &MainWindow::told);
}

MainWindow::~MainWindow()
{
    closeFolder();
}

QPixmap MainWindow::picture(const StorageFolder &folder)
{
    VoltbokGui logbook;
    logbook.changeStoragePath(folder.path());
    return logbook.grab();
}

void MainWindow::tell(const QString &matter, const QString &text)
{
    m_messages->tell(matter, text);
}

void MainWindow::open(const StorageFolder &folder, std::unique_ptr<FolderLock> lock)
{
    closeFolder();
    m_folder = folder;
    m_lock = std::move(lock);
    setWindowTitle(u"Voltbok - %1"_s.arg(QFileInfo(folder.path()).fileName()));
    m_logbook->changeStoragePath(folder.path());
    m_openedAs = heldByWindow();
    m_watch = std::make_unique<SaveWatch>(m_logbook, folder);
    connect(m_watch.get(), &SaveWatch::saved, this, &MainWindow::lookAfterSave);
    connect(m_watch.get(), &SaveWatch::notSaved, this, &MainWindow::saveRefused);
    connect(m_watch.get(), &SaveWatch::changedByOthers, this, &MainWindow::changedByOthers);
    m_keeper = std::make_unique<BackupKeeper>(folder);
    connect(m_keeper.get(), &BackupKeeper::fileWhole, this, &MainWindow::fileWhole);
    connect(m_keeper.get(), &BackupKeeper::fileBroken, this, &MainWindow::fileBroken);
    connect(m_keeper.get(), &BackupKeeper::failed, this,
            [this](const QString &problem) { m_messages->tell(Copies, problem); });
    connect(m_keeper.get(), &BackupKeeper::recovered, this, [this] { m_messages->retract(Copies); });
    checkWritable();
}

void MainWindow::closeFolder()
{
    if (!m_lock)
        return;
    flush();
    m_watch.reset();
    m_keeper.reset(); // copies what was saved last
    m_lock.reset();
    m_unsaved.clear();
    settle();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    flush();
    const bool unsaved = m_loss == Loss::File || m_loss == Loss::Everything;
    if (unsaved) {
        Question question;
        question.text = tr("The logbook is not saved.");
        question.details =
            m_loss == Loss::File
                ? tr("What you recorded last would be lost. Go back, and try again or keep the "
                     "logbook elsewhere.")
                : tr("Its file is damaged. Go back, and put the last whole state back; the next "
                     "start offers this, too.");
        question.answers = QStringList{tr("Quit Anyway"), tr("Go Back")};
        question.preferred = 1;
        question.refusal = 1;
        if (m_questions.ask(question).button == 1) {
            event->ignore();
            return;
        }
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::checkWritable()
{
    const QString problem = WholeFile::writeProblem(m_folder.dataFile());
    if (!problem.isEmpty())
        tellLoss(Loss::Change, problem);
}

void MainWindow::lookAfterSave(bool reloaded)
{
    m_reloaded = reloaded;
    m_retried = true;
    m_messages->retract(Others);
    m_keeper->look();
}

void MainWindow::saveRefused(bool reloaded)
{
    // Two saves within one tick of the file's clock look like none.
    if (!reloaded && heldByWindow() == WholeFile::read(m_folder.dataFile()).bytes)
        return;
    QString reason = WholeFile::writeProblem(m_folder.dataFile());
    if (reason.isEmpty())
        reason = tr("the disk reported an error");
    tellLoss(reloaded ? Loss::Change : Loss::File, reason);
}

void MainWindow::fileBroken(const QString &reason)
{
    const QString cause = WholeFile::writeProblem(m_folder.dataFile());
    tellLoss(m_reloaded ? Loss::Everything : Loss::File,
             cause.isEmpty() ? reason : u"%1; %2"_s.arg(reason, cause));
}

void MainWindow::fileWhole()
{
    if (m_retried && m_loss != Loss::Everything)
        settle();
}

void MainWindow::changedByOthers()
{
    m_reloaded = false;
    m_keeper->lookAndWait(); // before the window overwrites it
    if (QFileInfo::exists(m_folder.dataFile()))
        m_messages->tell(
            Others, tr("Another program has changed the logbook file. The window still shows what it held "
                       "before, and the next change overwrites the file. A copy of the other version is kept "
                       "in “%1”; start Voltbok again to see it.")
                        .arg(m_folder.backups().path()));
}

void MainWindow::settle()
{
    m_loss = Loss::None;
    m_unsaved.clear();
    m_logbook->setEnabled(true);
    m_messages->retract(Saving);
}

void MainWindow::tellLoss(Loss loss, const QString &reason)
{
    m_loss = loss;
    m_retried = false;
    if (loss == Loss::File)
        m_unsaved = heldByWindow();
    // What the window has read back is not what was recorded: no change may be written on top of it.
    m_logbook->setEnabled(loss != Loss::Everything);

    QList<MessageBar::Action> actions;
    if (loss != Loss::Everything)
        actions.append({tr("Try Again"), [this] { tryAgain(); }});
    if (loss != Loss::Change)
        actions.append({tr("Put Back the Last Whole State"), [this] { putBack(); }});
    actions.append({tr("Keep Elsewhere…"), [this] { keepElsewhere(); }});
    m_messages->tell(Saving, lossText(loss).arg(m_folder.dataFile(), reason), actions);
}

QString MainWindow::lossText(Loss loss)
{
    switch (loss) {
    case Loss::File:
        return tr(
            "The logbook is not saved in “%1”: %2. This window still shows everything. Free some space or "
            "give back the right to write, then try again; or keep the logbook in another folder.");
    case Loss::Change:
        return tr(
            "Nothing can be saved in “%1”: %2. The file is as it was before; a change is lost. Give back the "
            "right to write, or keep the logbook in another folder, then enter your last change again.");
    case Loss::Everything:
        return tr(
            "The logbook file “%1” was damaged while saving: %2. Nothing can be entered until you have put "
            "the last whole state back, or have kept it in another folder. Then enter your last change "
            "again.");
    case Loss::None:
        break;
    }
    return QString();
}

void MainWindow::tryAgain()
{
    const Loss before = m_loss;
    m_logbook->writeDataWithDataprocessor();
    m_watch->accept();
    const QByteArray held = heldByWindow();
    if (!held.isEmpty() && WholeFile::read(m_folder.dataFile()).bytes == held) {
        settle();
        m_keeper->look();
        return;
    }
    QString reason = WholeFile::writeProblem(m_folder.dataFile());
    if (reason.isEmpty())
        reason = WholeFile::inspect(WholeFile::read(m_folder.dataFile()).bytes).problem;
    tellLoss(before, reason);
    m_questions.tell(tr("The logbook still cannot be saved: %1.").arg(reason));
}

void MainWindow::putBack()
{
    const QByteArray state = lastWholeState();
    QString aside;
    const QString problem = state.isEmpty()
                                ? tr("there is no whole copy")
                                : Recovery::replace(m_folder, state, QDateTime::currentDateTimeUtc(), &aside);
    if (!problem.isEmpty()) {
        m_questions.tell(
            tr("The last whole state cannot be put back: %1. Nothing was changed. Free some space, or "
               "keep the logbook elsewhere.")
                .arg(problem));
        return;
    }
    m_logbook->updateBatteryGui();
    m_watch->accept();
    m_keeper->look();
    m_reloaded = false;
    settle();
    m_messages->tell(Restored,
                     tr("The last whole state is back. The file that was there is kept as “%1”.").arg(aside));
}

void MainWindow::keepElsewhere()
{
    const QString path = m_questions.chooseFolder(tr("Keep the Logbook in Another Folder"));
    if (path.isEmpty())
        return;
    const StorageFolder folder(path);
    auto lock = std::make_unique<FolderLock>();
    QString problem = folder.problem();
    if (problem.isEmpty() && QFileInfo::exists(folder.dataFile()))
        problem = tr("There is a logbook in “%1” already. Choose an empty folder.").arg(path);
    if (problem.isEmpty())
        problem = lock->take(folder).problem;
    if (problem.isEmpty()) {
        const QByteArray state = m_loss == Loss::Everything ? lastWholeState() : heldByWindow();
        const QString reason = state.isEmpty() ? tr("there is no whole state to keep")
                                               : WholeFile::write(folder.dataFile(), state);
        if (!reason.isEmpty())
            problem = tr("The logbook cannot be kept in “%1”: %2. Choose another folder.").arg(path, reason);
    }
    if (!problem.isEmpty()) {
        m_questions.tell(problem);
        return;
    }
    open(folder, std::move(lock));
}

void MainWindow::flush()
{
    if (m_loss == Loss::Everything || m_loss == Loss::Change || m_watch->isChangedByOthers())
        return;
    const QByteArray held = heldByWindow();
    if (held.isEmpty() || held == m_openedAs || held == WholeFile::read(m_folder.dataFile()).bytes)
        return;
    m_logbook->writeDataWithDataprocessor();
    m_watch->accept();
    if (WholeFile::read(m_folder.dataFile()).bytes == held)
        settle();
}

QByteArray MainWindow::openedAs() const
{
    return m_openedAs;
}

QByteArray MainWindow::lastWholeState() const
{
    return m_loss == Loss::Everything && !m_unsaved.isEmpty() ? m_unsaved : newestWholeCopy(m_folder);
}

QByteArray MainWindow::heldByWindow()
{
    const QByteArray document = CatalogueFile::heldBy(*m_logbook, m_folder.path()).document;
    return WholeFile::isWhole(document) ? document : QByteArray();
}

} // namespace Host
