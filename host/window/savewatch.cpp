// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/savewatch.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QComboBox>
#include <QFileInfo>

#include <chrono>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Host {
namespace {

/** The buttons of the window that save and read back when they have something to do. */
constexpr const char *EditingButtons[] = {
    "pb_addNewBattery",     "pb_update_battery",      "pb_deleteConfirm", "pb_addNewModel",
    "pb_update_model",      "pb_deleteConfirm_model", "pb_add_location",  "pb_del_location",
    "pb_add_batt_to_model", "pb_rem_batt_from_model"};
/** The button of the discharge page, whose save the card tells of. */
constexpr const char *RecordingButton = "pb_save_discharged";

/** The steps in which the clock of a disk counts, from one of its times: whole seconds come from a coarse
 * one. */
std::chrono::milliseconds tickOf(const QDateTime &modified)
{
    return modified.time().msec() == 0 ? 2000ms : 20ms;
}

} // namespace

SaveWatch::SaveWatch(QWidget *logbook, const StorageFolder &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_overview(logbook->findChild<QScrollArea *>(u"scrollArea"_s))
    , m_chartButton(logbook->findChild<QAbstractButton *>(u"pb_chart"_s))
    , m_batteries(logbook->findChild<QComboBox *>(u"cb_batteryData"_s))
    , m_models(logbook->findChild<QComboBox *>(u"cb_select_model"_s))
    , m_known(present())
{
    watchButtons(logbook);
    watchCards(m_overview->widget());
    m_overview->viewport()->installEventFilter(this);
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
    m_savePending = false;
    m_known = present();
    renewWatcher();
}

void SaveWatch::catchUp()
{
    if (m_savePending)
        attempted(false);
    fileNoticed();
}

bool SaveWatch::isChanged() const
{
    return present() != m_known;
}

bool SaveWatch::isInOneTickWithKnown() const
{
    return m_known.modified.isValid() &&
           std::chrono::milliseconds(m_known.modified.msecsTo(QDateTime::currentDateTimeUtc())) <
               tickOf(m_known.modified);
}

bool SaveWatch::shows(const QByteArray &document) const
{
    // The choosers go on offering what is gone; these two tell whether they do.
    const bool hasBatteries = m_chartButton->isEnabledTo(m_chartButton->parentWidget());
    const bool hasModels = m_overview->widget()->isAncestorOf(m_models);
    const auto batteries = hasBatteries ? m_batteries->count() : 0;
    const auto models = hasModels ? m_models->count() : 0;
    return document.count("\n    <Battery>\n") == batteries &&
           (!hasBatteries || document.count("\n    <Model>\n") == models);
}

void SaveWatch::watchButtons(const QWidget *logbook)
{
    watchButton(logbook->findChild<QAbstractButton *>(QLatin1StringView(RecordingButton)));
    for (const char *name : EditingButtons) {
        const auto *button = logbook->findChild<QAbstractButton *>(QLatin1StringView(name));
        watchButton(button);
        connect(button, &QAbstractButton::clicked, this, &SaveWatch::editClicked);
    }
}

void SaveWatch::watchCards(const QObject *content)
{
    const auto widgets = content->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        // By their names: the class of the cards belongs to the library's records, which no window includes.
        if (!widget->inherits("BatteryWidget"))
            continue;
        watchButton(widget->findChild<QAbstractButton *>());
        connect(widget, SIGNAL(dataChanged()), this, SLOT(cardChanged()), Qt::UniqueConnection);
    }
}

/** However a button is pressed, it says "released" before "clicked", which is when the window saves. */
void SaveWatch::watchButton(const QAbstractButton *button)
{
    connect(button, &QAbstractButton::released, this, &SaveWatch::beforeClick, Qt::UniqueConnection);
}

bool SaveWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_overview->viewport() && event->type() == QEvent::ChildAdded)
        watchCards(static_cast<QChildEvent *>(event)->child());
    return false;
}

void SaveWatch::beforeClick()
{
    catchUp();
    m_contentBeforeClick = m_overview->widget();
    m_tooFast = isInOneTickWithKnown();
}

void SaveWatch::cardChanged()
{
    // A card that was placed again is saved once more for every placing: looked at when all of that is done.
    if (!std::exchange(m_savePending, true))
        QMetaObject::invokeMethod(this, &SaveWatch::catchUp, Qt::QueuedConnection);
}

void SaveWatch::editClicked()
{
    if (m_overview->widget() != m_contentBeforeClick)
        attempted(true);
}

void SaveWatch::attempted(bool reloaded)
{
    const bool changed = isChanged();
    accept();
    if (changed)
        Q_EMIT saved(reloaded);
    else
        Q_EMIT unchanged(reloaded);
}

void SaveWatch::fileNoticed()
{
    renewWatcher();
    if (m_savePending || !isChanged())
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
