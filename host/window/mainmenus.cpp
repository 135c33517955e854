// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of the main window, and what their actions do.
#include "host/window/mainwindow.h"

#include "host/window/backupsdialog.h"
#include "host/window/exportdialog.h"
#include "host/window/flightbookdialog.h"
#include "host/window/importdialog.h"
#include "host/window/manualwindow.h"
#include "host/window/messagebar.h"
#include "host/window/openlogbook.h"
#include "host/window/pendinginput.h"
#include "host/window/preferencesdialog.h"
#include "host/window/questions.h"
#include "host/window/renamedialog.h"
#include "host/window/sidepanel.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QMenuBar>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace Host {

void MainWindow::buildMenus()
{
    buildLogbookMenu();
    buildEditMenu();
    buildViewMenu();
    buildHelpMenu();
}

void MainWindow::buildKeys()
{
    for (const QKeySequence &key : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::ALT | Qt::Key_Left)}) {
        auto *shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, &MainWindow::back);
    }
}

void MainWindow::buildLogbookMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Logbook"));
    QAction *open = menu->addAction(tr("&Open Folder…"), this, &MainWindow::chooseFolder);
    open->setShortcut(QKeySequence::Open);
    m_recent = menu->addMenu(tr("Open &Recent"));
    connect(m_recent, &QMenu::aboutToShow, this, &MainWindow::listRecentFolders);
    menu->addSeparator();
    m_import = menu->addAction(tr("&Import Radio Logs…"), this, [this] { importLogs({}); });
    menu->addAction(tr("&Export…"), this, &MainWindow::exportLogbook);
    menu->addAction(tr("&Flight Book (print, PDF)…"), this,
                    [this] { showFlightBook(*m_logbook, m_questions, this); });
    m_backups = menu->addAction(tr("&Backups…"), this, &MainWindow::restoreCopy);
    menu->addSeparator();
    QAction *quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q)); // QKeySequence::Quit is empty on some desktops
    quit->setMenuRole(QAction::QuitRole);
}

void MainWindow::buildEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    m_undo = menu->addAction(tr("&Undo"), this, &MainWindow::undo);
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = menu->addAction(tr("&Redo"), this, &MainWindow::redo);
    m_redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    connect(menu, &QMenu::aboutToShow, this, &MainWindow::nameSteps);
    menu->addSeparator();
    m_rename = menu->addAction(tr("Re&name…"), this, &MainWindow::rename);
    menu->addSeparator();
    QAction *preferences = menu->addAction(tr("&Preferences…"), this, &MainWindow::showPreferences);
    preferences->setShortcut(QKeySequence::Preferences);
    preferences->setMenuRole(QAction::PreferencesRole);
}

void MainWindow::buildViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    m_panelShown = menu->addAction(tr("&Side Panel"));
    m_panelShown->setShortcut(Qt::Key_F9);
    m_panelShown->setCheckable(true);
    connect(m_panelShown, &QAction::triggered, this, &MainWindow::showPanel);
    connect(m_panelShown, &QAction::triggered, this, [this](bool shown) { m_settings.setPanelOpen(shown); });
    buildLanguageMenu(menu);
}

void MainWindow::buildHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *manual = menu->addAction(tr("&Manual"), this, &MainWindow::showManual);
    manual->setShortcut(QKeySequence(Qt::Key_F1));
    QAction *about = menu->addAction(tr("&About Voltbok"), this, &MainWindow::showAbout);
    about->setMenuRole(QAction::AboutRole);
}

void MainWindow::updateActions()
{
    m_undo->setEnabled(m_logbook && m_logbook->canUndo());
    m_redo->setEnabled(m_logbook && m_logbook->canRedo());
    m_rename->setEnabled(m_logbook && m_logbook->mayChange());
    m_import->setEnabled(m_logbook && m_logbook->mayChange());
    m_backups->setEnabled(m_logbook && m_logbook->mayChange());
}

/** What would be undone and done again; both versions are read for that, so only where somebody looks. */
void MainWindow::nameSteps()
{
    m_undo->setText(m_logbook->canUndo() ? tr("&Undo: %1").arg(m_logbook->undoName()) : tr("&Undo"));
    m_redo->setText(m_logbook->canRedo() ? tr("&Redo: %1").arg(m_logbook->redoName()) : tr("&Redo"));
}

void MainWindow::listRecentFolders()
{
    m_recent->clear();
    const QStringList folders = m_settings.recentFolders();
    for (const QString &path : folders) {
        if (path == m_folder.path())
            continue;
        QAction *action = m_recent->addAction(QDir::toNativeSeparators(path).replace(u'&', u"&&"_s));
        connect(action, &QAction::triggered, this, [this, path] { requestFolder(path); });
    }
    m_recent->setEnabled(true);
    if (m_recent->isEmpty())
        m_recent->addAction(tr("No other folder yet"))->setEnabled(false);
}

void MainWindow::chooseFolder()
{
    const QString path = m_questions.chooseFolder(tr("Open the Logbook in a Folder"));
    if (!path.isEmpty())
        requestFolder(path);
}

void MainWindow::requestFolder(const QString &path)
{
    const StorageFolder folder(path);
    if (folder.path() != m_folder.path() && mayLoseInput())
        Q_EMIT folderRequested(folder);
}

void MainWindow::undo()
{
    if (const QString problem = m_logbook->undo(); !problem.isEmpty())
        m_questions.tell(problem);
}

void MainWindow::redo()
{
    if (const QString problem = m_logbook->redo(); !problem.isEmpty())
        m_questions.tell(problem);
}

/** Where it is the chosen model that gets another name, it stays the chosen one. */
void MainWindow::rename()
{
    const int chosen = m_models->currentIndex();
    const QString name = m_models->currentText();
    renameRecord(*m_logbook, m_questions, this);
    const std::shared_ptr<const Catalogue> catalogue = m_logbook->catalogue();
    if (!catalogue || chosen < 0 || chosen >= catalogue->models.size() || m_models->findText(name) >= 0)
        return;
    keepChosenModel(catalogue->models.at(chosen).name);
    reload();
}

void MainWindow::exportLogbook()
{
    const QString report = exportByDialog(*m_logbook, m_questions, this);
    if (report.isEmpty())
        return;
    m_messages->retract(u"export"_s); // the same once more is told once more
    tell(u"export"_s, report);
}

void MainWindow::restoreCopy()
{
    const QString report = restoreByDialog(*m_logbook, m_folder, this);
    if (report.isEmpty())
        return;
    m_messages->retract(u"backups"_s);
    tell(u"backups"_s, report);
}

void MainWindow::importLogs(const QStringList &paths)
{
    const QString report = importByDialog(*m_logbook, m_questions, paths, this);
    if (report.isEmpty())
        return;
    m_messages->retract(u"import"_s);
    tell(u"import"_s, report);
}

void MainWindow::showPanel(bool visible)
{
    m_panelShown->setChecked(visible);
    m_panel->setVisible(visible);
}

void MainWindow::showPreferences()
{
    PreferencesDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        m_panel->refreshAll();
    tellAboutSettings();
}

void MainWindow::showManual()
{
    ManualWindow::showBeside(this, language());
}

void MainWindow::showAbout()
{
    Question about;
    about.text = tr("Voltbok %1, a battery and flight logbook for radio-controlled models.")
                     .arg(QCoreApplication::applicationVersion());
    about.details =
        tr("Voltbok is free software under the GNU General Public License, version 3 or later. Linked with "
           "Qt Charts, which is under version 3, the whole is under version 3.\n\nThis logbook is kept in "
           "“%1”.")
            .arg(QDir::toNativeSeparators(m_folder.path()));
    about.answers = QStringList(tr("Close"));
    about.picture = windowIcon();
    m_questions.ask(about);
}

/** Asks where a flight or a form would be lost. @return whether to go on. */
bool MainWindow::mayLoseInput()
{
    if (!m_pending->isAny())
        return true;
    enum { Leave, GoBack };
    Question question;
    question.text = m_pending->isFlight() ? tr("The flight on this page is not recorded.")
                                          : tr("What you entered on this page is not saved.");
    question.details = tr("Go back to record it, or leave the page without it.");
    question.answers = QStringList{tr("Leave"), tr("Go Back")};
    question.preferred = GoBack;
    question.refusal = GoBack;
    return m_questions.ask(question).button == Leave;
}

} // namespace Host
