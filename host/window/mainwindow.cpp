// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/mainwindow.h"

#include "gui/voltbokgui.h"
#include "host/safety/folderlock.h"
#include "host/safety/storagefolder.h"
#include "host/window/messagebar.h"
#include "host/window/savecare.h"
#include "plugin/rotavexplugin.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QFileInfo>
#include <QPixmap>
#include <QSettings>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString titleOf(const StorageFolder &folder)
{
    if (folder.path() == StorageFolder::ofDemo().path())
        return MainWindow::tr("Voltbok - sample logbook");
    return u"Voltbok - %1"_s.arg(QFileInfo(folder.path()).fileName());
}

} // namespace

MainWindow::MainWindow(Questions &questions, QWidget *parent)
    : QMainWindow(parent)
    , m_questions(questions)
    , m_logbook(new VoltbokGui)
    , m_messages(new MessageBar)
{
    const QSize size = m_logbook->size();
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addWidget(m_logbook, 1);
    setCentralWidget(content);
    resize(size);
    // The one page that changes a setting; after the logbook, whose slots are connected already.
    connect(m_logbook->findChild<QButtonGroup *>(u"btnGrp_mode"_s), &QButtonGroup::buttonClicked, this,
            &MainWindow::tellAboutSettings);
    connect(m_logbook, &VoltbokGui::closeVoltbokGui, this, &QWidget::close);
    connect(m_messages, &MessageBar::told, this, &MainWindow::told);
}

MainWindow::~MainWindow()
{
    m_care.reset(); // it uses the widgets
}

QPixmap MainWindow::picture(const StorageFolder &folder)
{
    VoltbokGui logbook;
    logbook.changeStoragePath(folder.path());
    return logbook.grab();
}

void MainWindow::open(const StorageFolder &folder, std::shared_ptr<FolderLock> lock)
{
    m_care.reset(); // the folder before is saved and copied while its lock is held
    m_lock = std::move(lock);
    m_messages->clear(); // they speak of the folder before
    setWindowTitle(titleOf(folder));
    m_logbook->changeStoragePath(folder.path());
    m_care = std::make_unique<SaveCare>(folder,
                                        LogbookAccess{m_logbook,
                                                      [this] { m_logbook->writeDataWithDataprocessor(); },
                                                      [this] { m_logbook->updateBatteryGui(); }},
                                        *m_messages, m_questions);
    tellAboutSettings();
    // Queued: the care ends with the folder that it speaks of.
    connect(m_care.get(), &SaveCare::keptElsewhere, this, &MainWindow::goOnIn, Qt::QueuedConnection);
}

/** The settings that the logbook shares with others fail silently. */
void MainWindow::tellAboutSettings()
{
    RotavexPlugin::rotavexSettings->sync();
    if (RotavexPlugin::rotavexSettings->isWritable()) {
        m_messages->retract(u"settings"_s);
        return;
    }
    tell(u"settings"_s,
         tr("The settings cannot be saved: there is no permission to write “%1”. The capture mode "
            "that you choose will be forgotten. Change the permissions of this file and its "
            "folder.")
             .arg(RotavexPlugin::rotavexSettings->fileName()));
}

void MainWindow::goOnIn(const StorageFolder &folder, std::shared_ptr<FolderLock> lock)
{
    open(folder, std::move(lock));
    tell(u"moved"_s,
         tr("The logbook is now kept in “%1”. Open this folder the next time, too.").arg(folder.path()));
}

void MainWindow::tell(const QString &matter, const QString &text)
{
    m_messages->tell(matter, text);
}

void MainWindow::raiseAndActivate()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_care && !m_care->mayClose())
        event->ignore();
    else
        QMainWindow::closeEvent(event);
}

} // namespace Host
