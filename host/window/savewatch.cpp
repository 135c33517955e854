// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/savewatch.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>

#include <chrono>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

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

/** Why a document is not one whole logbook. */
QString logbookProblem(const QByteArray &document)
{
    return WholeFile::inspect(document).problem;
}

/** Whether a path leads to another file than the one that is open. */
bool isReplaced(const QString &path, const QFile &file)
{
#ifdef Q_OS_UNIX
    struct stat open = {};
    struct stat there = {};
    return fstat(file.handle(), &open) == 0 && (stat(QFile::encodeName(path).constData(), &there) != 0 ||
                                                open.st_ino != there.st_ino || open.st_dev != there.st_dev);
#else
    Q_UNUSED(path)
    Q_UNUSED(file)
    return false; // a file that is open cannot be replaced there
#endif
}

} // namespace

SaveWatch::SaveWatch(QWidget *logbook, const StorageFolder &folder, QObject *parent)
    : QObject(parent)
    , m_path(folder.dataFile())
    , m_overview(logbook->findChild<QScrollArea *>(u"scrollArea"_s))
    , m_chartButton(logbook->findChild<QAbstractButton *>(u"pb_chart"_s))
    , m_batteries(logbook->findChild<QComboBox *>(u"cb_batteryData"_s))
    , m_models(logbook->findChild<QComboBox *>(u"cb_select_model"_s))
    , m_file(folder.dataFile(), &logbookProblem)
{
    watchButtons(logbook);
    watchCards(m_overview->widget());
    m_overview->viewport()->installEventFilter(this);
}

void SaveWatch::accept()
{
    m_savePending = false;
    m_before.close();
    m_file.accept();
}

void SaveWatch::catchUp()
{
    if (m_savePending)
        attempted(false);
    m_file.look();
}

bool SaveWatch::isInOneTickWithKnown() const
{
    const QDateTime time = m_file.time();
    return time.isValid() &&
           std::chrono::milliseconds(time.msecsTo(QDateTime::currentDateTimeUtc())) < tickOf(time);
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
    m_clicked = qobject_cast<QAbstractButton *>(sender());
    catchUp();
    if (m_file.state() != FileWatch::Known)
        Q_EMIT aboutToOverwrite();
    m_contentBeforeClick = m_overview->widget();
    m_tooFast = isInOneTickWithKnown();
    m_before.close();
    m_before.setFileName(m_path);
    if (QFileInfo(m_path).isFile())
        m_before.open(QFile::ReadOnly);
}

void SaveWatch::hold()
{
    m_held = cardOf(m_clicked);
    m_clicked->blockSignals(true);
    const auto unblock = [button = m_clicked] {
        if (button)
            button->blockSignals(false);
    };
    QMetaObject::invokeMethod(this, unblock, Qt::QueuedConnection);
}

SaveWatch::Card SaveWatch::cardOf(const QAbstractButton *button)
{
    const QWidget *card = button->parentWidget();
    while (card && !card->inherits("BatteryWidget"))
        card = card->parentWidget();
    if (!card)
        return {};
    return {card->findChild<QLabel *>(u"lbl_name"_s)->text(), button->text()};
}

bool SaveWatch::repeatHeld()
{
    const Card held = std::exchange(m_held, Card());
    if (held == Card())
        return false;
    QList<QAbstractButton *> found;
    const auto buttons = m_overview->widget()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (cardOf(button) == held)
            found.append(button);
    }
    if (found.size() != 1)
        return false;
    found.first()->click();
    return true;
}

void SaveWatch::cardChanged()
{
    // A card that was placed again is saved once more for every placing: looked at when all of that is done.
    if (!std::exchange(m_savePending, true))
        QMetaObject::invokeMethod(this, &SaveWatch::catchUp, Qt::QueuedConnection);
    m_file.expect();
}

void SaveWatch::editClicked()
{
    if (m_overview->widget() != m_contentBeforeClick)
        attempted(true);
}

void SaveWatch::attempted(bool reloaded)
{
    const bool changed = m_file.isWritten();
    const QByteArray replaced = replacedSave();
    m_wasReplaced = !replaced.isEmpty();
    accept();
    if (m_wasReplaced)
        m_file.acceptAs(replaced); // what is there now is somebody else's
    if (changed)
        Q_EMIT saved(reloaded);
    else
        Q_EMIT unchanged(reloaded);
}

/** What the window has saved in the file that another one has taken the place of since. */
QByteArray SaveWatch::replacedSave()
{
    if (!m_before.isOpen() || !isReplaced(m_path, m_before))
        return QByteArray();
    const QByteArray held = m_before.readAll();
    return held == m_file.known() ? QByteArray() : held;
}

} // namespace Host
