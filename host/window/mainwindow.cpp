// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/mainwindow.h"

#include "gui/voltbokgui.h"
#include "host/safety/folderlock.h"
#include "host/window/cardwatch.h"
#include "host/window/conflictoffer.h"
#include "host/window/logbookpages.h"
#include "host/window/messagebar.h"
#include "host/window/openlogbook.h"
#include "host/window/pendinginput.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"
#include "host/window/sidepanel.h"
#include "plugin/rotavexplugin.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int RoomForThePanel = 1000; // pixels of the screen, from which on the side panel is shown at first

/** Drawn here: an icon that Qt makes of the file needs a plugin, which not every system installs with Qt. */
QIcon ownIcon()
{
    QSvgRenderer drawing(u":/icons/voltbok.svg"_s);
    QIcon icon;
    for (const int size : {16, 32, 48, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

MainWindow::MainWindow(Questions &questions, Languages *languages, QWidget *parent)
    : QMainWindow(parent)
    , m_questions(questions)
    , m_languages(languages)
    , m_gui(new VoltbokGui)
    , m_pages(m_gui->findChild<QStackedWidget *>(u"stackedWidget"_s))
    , m_models(m_gui->findChild<QComboBox *>(u"cb_select_model"_s))
    , m_pending(new PendingInput(*m_pages, this))
    , m_messages(new MessageBar)
    , m_splitter(new QSplitter)
    , m_folder(QString())
{
    const QSize size = m_gui->size();
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addWidget(m_splitter, 1);
    m_splitter->addWidget(m_gui);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    setCentralWidget(content);
    resize(size);
    // The desktop's, where it has one; dialogs take that of the application.
    QGuiApplication::setWindowIcon(QIcon::fromTheme(u"org.voltbok.Voltbok"_s, ownIcon()));
    setAcceptDrops(true);
    buildMenus();
    buildKeys();
    connectLogbook();
    connect(m_messages, &MessageBar::told, this, &MainWindow::told);
}

MainWindow::~MainWindow()
{
    closeLogbook(); // it uses the widgets
}

void MainWindow::connectLogbook()
{
    connect(m_gui, &VoltbokGui::closeVoltbokGui, this, &MainWindow::leadHome);
    connect(m_pages, &QStackedWidget::currentChanged, this, &MainWindow::pageShown);
    connect(m_models, &QComboBox::textActivated, this, &MainWindow::keepChosenModel);
    // The one page that changes a setting; after the logbook, whose slots are connected already.
    connect(m_gui->findChild<QButtonGroup *>(u"btnGrp_mode"_s), &QButtonGroup::buttonClicked, this,
            &MainWindow::tellAboutSettings);
}

QPixmap MainWindow::picture(const StorageFolder &folder, const QString &page)
{
    UnattendedQuestions questions;
    MainWindow window(questions);
    window.lookInto(folder);
    window.buildPanel();
    window.showPanel(true);
    window.showPage(page);
    window.resize(window.sizeHint());
    window.ensurePolished();
    window.m_panel->refreshNow();
    return window.grab();
}

QStringList MainWindow::pageNames()
{
    return LogbookPages::names() + SidePanel::tabNames();
}

void MainWindow::showPage(const QString &name)
{
    const auto tab = SidePanel::tabNames().indexOf(name);
    if (tab < 0)
        return LogbookPages::show(*m_gui, name);
    m_panel->setCurrentIndex(static_cast<int>(tab));
    showPanel(true);
}

void MainWindow::lookInto(const StorageFolder &folder)
{
    m_folder = folder;
    showTitle();
    m_gui->changeStoragePath(folder.path());
}

void MainWindow::buildPanel()
{
    m_logbook = std::make_unique<OpenLogbook>(m_folder, m_care.get(), m_questions);
    connect(m_logbook.get(), &OpenLogbook::possibilitiesChanged, this, &MainWindow::updateActions);
    connect(m_logbook.get(), &OpenLogbook::changed, this, &MainWindow::greet);
    if (!m_logbook->measuredProblem().isEmpty())
        tell(u"measured"_s, m_logbook->measuredProblem());
    connect(m_logbook.get(), &OpenLogbook::measuredByOthers, this,
            [this](const QString &text) { tell(u"measured"_s, text); });
    m_panel = new SidePanel(*m_logbook, m_questions);
    connect(m_panel, &SidePanel::renameRequested, this, &MainWindow::rename);
    m_splitter->addWidget(m_panel);
}

void MainWindow::open(const StorageFolder &folder, std::shared_ptr<FolderLock> lock)
{
    constexpr int Steps = 3; // none takes longer than the logbook's own reading
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The logbook is opened…"), Steps);
    progress->commit();
    keepLayout();
    closeLogbook(); // it is saved and copied while its lock is held
    m_lock = std::move(lock);
    m_messages->clear(); // they speak of the folder before
    progress->step();
    lookInto(folder);
    progress->step();
    m_care = std::make_unique<SaveCare>(
        folder,
        LogbookAccess{m_gui, [this] { m_gui->writeDataWithDataprocessor(); }, [this] { reload(); },
                      [this] { return m_pending->isInUse(); }, [this] { leadHome(); }},
        *m_messages, m_questions);
    // Queued: the care ends with the folder that it speaks of.
    connect(m_care.get(), &SaveCare::keptElsewhere, this, &MainWindow::goOnIn, Qt::QueuedConnection);
    progress->step();
    buildPanel();
    m_conflicts = std::make_unique<ConflictOffer>(folder, *m_logbook, *m_messages, m_questions, this);
    restoreLayout();
    updateActions();
    watchCards();
    m_settings.addRecentFolder(folder.path());
    tellAboutSettings();
    greet();
    Q_EMIT folderTaken(folder);
}

/** Has the window show what the file holds. By itself it goes on offering the locations before where there
 * are none. */
void MainWindow::reload()
{
    for (const QString &name : {u"cb_log_location"_s, u"cb_location_delete"_s})
        m_gui->findChild<QComboBox *>(name)->clear();
    m_gui->updateBatteryGui();
}

void MainWindow::closeLogbook()
{
    m_cards.reset(); // each of them uses the next
    delete std::exchange(m_panel, nullptr);
    m_conflicts.reset();
    m_logbook.reset();
    m_care.reset();
}

/** The settings fail silently by themselves, those that the logbook shares with others and the program's own.
 */
void MainWindow::tellAboutSettings()
{
    RotavexPlugin::rotavexSettings->sync();
    const bool isSharedWritable = RotavexPlugin::rotavexSettings->isWritable();
    if (isSharedWritable && m_settings.isWritable()) {
        m_messages->retract(u"settings"_s);
        return;
    }
    tell(u"settings"_s,
         tr("The settings cannot be saved: there is no permission to write “%1”. What you choose "
            "will be forgotten. Change the permissions of this file and its folder.")
             .arg(isSharedWritable ? m_settings.fileName() : RotavexPlugin::rotavexSettings->fileName()));
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
    if (!mayLoseInput() || (m_care && !m_care->mayClose())) {
        event->ignore();
        return;
    }
    keepLayout();
    QMainWindow::closeEvent(event);
}

void MainWindow::pageShown()
{
    if (m_logbook)
        m_logbook->setCapturing(m_pending->isFlight());
}

/** One page back, as the logbook's menu button leads. */
void MainWindow::back()
{
    if (m_pages->currentWidget()->objectName() != u"scrollLayout")
        m_gui->on_pb_options_clicked();
}

void MainWindow::leadHome()
{
    if (!mayLoseInput())
        return;
    back();
    back(); // from most pages the way leads through the menu
}

/** The logbook opens with the model that was chosen last, and comes back to it after every change. */
void MainWindow::keepChosenModel(const QString &name)
{
    RotavexPlugin::rotavexSettings->setValue(u"SETTINGS/logmodel"_s, name);
    tellAboutSettings();
}

void MainWindow::restoreLayout()
{
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    showPanel(m_settings.isPanelOpen().value_or(screen.width() >= RoomForThePanel));
    if (m_settings.windowGeometry().isEmpty())
        resize(sizeHint().boundedTo(screen));
    else
        restoreGeometry(m_settings.windowGeometry());
    m_splitter->restoreState(m_settings.panelSizes());
}

void MainWindow::keepLayout()
{
    if (!isVisible())
        return;
    m_settings.setWindowGeometry(saveGeometry());
    m_settings.setPanelSizes(m_splitter->saveState());
}

} // namespace Host
