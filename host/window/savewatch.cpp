// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/savewatch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** The buttons of the window that save when they have something to do. */
constexpr const char *SavingButtons[] = {
    "pb_addNewBattery",     "pb_update_battery",      "pb_deleteConfirm", "pb_addNewModel",
    "pb_update_model",      "pb_deleteConfirm_model", "pb_add_location",  "pb_del_location",
    "pb_add_batt_to_model", "pb_rem_batt_from_model"};

/** Events that may lead to a save. */
bool isInput(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress ||
           event->type() == QEvent::KeyRelease;
}

} // namespace

SaveWatch::SaveWatch(QWidget *logbook, const StorageFolder &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_overview(logbook->findChild<QScrollArea *>(u"scrollArea"_s))
    , m_known(present())
{
    watchButtons(logbook);
    watchCards(m_overview->widget());
    m_overview->viewport()->installEventFilter(this);
    qApp->installEventFilter(this);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &SaveWatch::fileNoticed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SaveWatch::fileNoticed);
    renewWatcher();
}

SaveWatch::Stamp SaveWatch::present() const
{
    const QFileInfo file(m_folder.dataFile());
    return file.exists() ? Stamp{file.lastModified(), file.size()} : Stamp{};
}

void SaveWatch::accept()
{
    m_known = present();
    renewWatcher();
}

bool SaveWatch::isChangedByOthers() const
{
    return present() != m_known;
}

void SaveWatch::watchButtons(QWidget *logbook)
{
    for (const char *name : SavingButtons) {
        const auto *button = logbook->findChild<QAbstractButton *>(QLatin1StringView(name));
        // A button says "released" before "clicked", and its clicks reach the window before they come here.
        connect(button, &QAbstractButton::released, this,
                [this] { m_contentBeforeClick = m_overview->widget(); });
        connect(button, &QAbstractButton::clicked, this, &SaveWatch::editClicked);
    }
}

void SaveWatch::watchCards(QObject *content)
{
    const auto widgets = content->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        // By their names: the class of the cards belongs to the library's records, which no window includes.
        if (widget->inherits("BatteryWidget"))
            connect(widget, SIGNAL(dataChanged()), this, SLOT(cardChanged()), Qt::UniqueConnection);
    }
}

bool SaveWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_overview->viewport() && event->type() == QEvent::ChildAdded)
        watchCards(static_cast<QChildEvent *>(event)->child());
    else if (isInput(event) && isChangedByOthers()) // before the window overwrites it
        fileNoticed();
    return false;
}

void SaveWatch::cardChanged()
{
    // A card that was placed again is saved once more for every placing: looked at when all of that is done.
    if (!std::exchange(m_savePending, true))
        QMetaObject::invokeMethod(
            this, [this] { saveAttempted(false); }, Qt::QueuedConnection);
}

void SaveWatch::editClicked()
{
    if (m_overview->widget() != m_contentBeforeClick)
        saveAttempted(true);
}

void SaveWatch::saveAttempted(bool reloaded)
{
    m_savePending = false;
    const bool changed = isChangedByOthers();
    accept();
    if (changed)
        Q_EMIT saved(reloaded);
    else
        Q_EMIT notSaved(reloaded);
}

void SaveWatch::fileNoticed()
{
    renewWatcher();
    if (m_savePending || !isChangedByOthers())
        return;
    m_known = present();
    Q_EMIT changedByOthers();
}

void SaveWatch::renewWatcher()
{
    // A file that was replaced is another one; a watcher forgets it.
    const QString path = m_folder.dataFile();
    if (!m_watcher.files().contains(path) && QFileInfo::exists(path))
        m_watcher.addPath(path);
    if (!m_watcher.directories().contains(m_folder.path()) && QFileInfo::exists(m_folder.path()))
        m_watcher.addPath(m_folder.path());
}

} // namespace Host
