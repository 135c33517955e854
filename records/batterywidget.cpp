// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"

#include "records/figures.h"
#include "records/shorttext.h"
#include "ui_batterywidget.h"

#include <QEvent>
#include <QMetaType>

#include <utility>

class BatteryWidgetPrivate
{
public:
    Ui_BatteryWidget ui;
    QString name;
    unsigned int capacity = 0;
    unsigned int rating = 0;
    unsigned int cycles = 0;
    unsigned int lastDischarged = 0;
    unsigned int lastMaxCurrent = 0;
    unsigned int chargeRate = 0;
    QDate dateOfPurchase;
    QDateTime lastUpdated;
    QList<QDateTime> dates;
    QList<unsigned int> discharges;
    QList<unsigned int> currents;
    BatteryWidget::ViewMode viewMode = BatteryWidget::Simple;
    bool charged = false;
    bool chargeStateShown = false; // until then the button keeps the placeholder of the form

    void showChargeState();
    /** Tells screen readers whose button it is, and what it does. */
    void nameButton();
    void showDetails(bool visible);
};

namespace {
// By name, as soon as the library is loaded: a host may create a record through the meta-type system alone.
[[maybe_unused]] const int MetaTypeId = qRegisterMetaType<BatteryWidget>();

// Intentional: light blue on bright green.
constexpr QLatin1StringView ChargedStyle("background-color: rgb(0, 255, 0);\ncolor: rgb(85, 170, 255);");
constexpr QLatin1StringView DischargedStyle("background-color: rgb(255, 50, 0);\ncolor: rgb(255, 255, 255);");
} // namespace

void BatteryWidgetPrivate::showChargeState()
{
    chargeStateShown = true;
    ui.pushButton->setText(charged ? BatteryWidget::tr("Charged") : BatteryWidget::tr("Discharged"));
    ui.pushButton->setStyleSheet(charged ? ChargedStyle : DischargedStyle);
    nameButton();
}

void BatteryWidgetPrivate::nameButton()
{
    if (!chargeStateShown)
        return;
    const QString named = charged ? BatteryWidget::tr("%1: charged; press when discharged")
                                  : BatteryWidget::tr("%1: discharged; press when charged");
    ui.pushButton->setAccessibleName(named.arg(shortText(name)));
}

void BatteryWidgetPrivate::showDetails(bool visible)
{
    ui.lbl_discharged_label->setVisible(visible);
    ui.lbl_discharged->setVisible(visible);
    ui.lbl_maxCurrent_label->setVisible(visible);
    ui.lbl_maxCurrent->setVisible(visible);
}

BatteryWidget::BatteryWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<BatteryWidgetPrivate>())
{
    d->ui.setupUi(this);
    setViewMode(Simple);
}

BatteryWidget::~BatteryWidget() = default;

void BatteryWidget::setBatteryName(QString &name)
{
    d->name = name;
    d->ui.lbl_name->setText(shortText(name));
    d->nameButton();
}

QString BatteryWidget::getBatteryName() const
{
    return d->name;
}

void BatteryWidget::setBatteryCapacity(unsigned int capacity)
{
    d->capacity = capacity;
    d->ui.lbl_capacity->setText(Figures::charge(capacity));
}

unsigned int BatteryWidget::getBatteryCapacity() const
{
    return d->capacity;
}

void BatteryWidget::setBatteryRating(unsigned int rating)
{
    d->rating = rating;
    d->ui.lbl_rate->setText(Figures::rates(rating, d->chargeRate));
}

unsigned int BatteryWidget::getBatteryRating() const
{
    return d->rating;
}

void BatteryWidget::setBatteryCycles(unsigned int cycles)
{
    d->cycles = cycles;
    d->ui.lbl_cycles->setText(QString::number(cycles));
}

unsigned int BatteryWidget::getBatteryCycles() const
{
    return d->cycles;
}

void BatteryWidget::setBatteryLastDischarged(unsigned int discharged)
{
    d->lastDischarged = discharged;
    d->ui.lbl_discharged->setText(Figures::charge(discharged));
}

unsigned int BatteryWidget::getBatteryLastDischarged() const
{
    return d->lastDischarged;
}

void BatteryWidget::setBatteryLastMaxCurrent(unsigned int maxCurrent)
{
    d->lastMaxCurrent = maxCurrent;
    d->ui.lbl_maxCurrent->setText(Figures::cardCurrent(maxCurrent));
}

unsigned int BatteryWidget::getBatteryLastMaxCurrent() const
{
    return d->lastMaxCurrent;
}

void BatteryWidget::setBatteryChargeRate(unsigned int rate)
{
    if (rate == 0) // Intentional: the rate cannot be cleared.
        return;
    d->chargeRate = rate;
    d->ui.lbl_rate->setText(Figures::rates(d->rating, rate));
}

unsigned int BatteryWidget::getBatteryChargeRate() const
{
    return d->chargeRate;
}

void BatteryWidget::setDateOfPurchase(QDate &date)
{
    d->dateOfPurchase = date;
}

QDate BatteryWidget::getdateOfPurchase() const
{
    return d->dateOfPurchase;
}

void BatteryWidget::setLastUpdated(QDateTime when)
{
    d->lastUpdated = std::move(when);
    d->ui.lbl_dateTime->setText(d->lastUpdated.toString(Qt::TextDate));
}

QDateTime BatteryWidget::getBatteryLastUpdated() const
{
    return d->lastUpdated;
}

void BatteryWidget::setBatteryCharged(bool charged, bool byUser)
{
    d->charged = charged;
    if (byUser)
        setLastUpdated(QDateTime::currentDateTime());
    d->showChargeState();
    if (!byUser)
        return;

    if (charged) {
        Q_EMIT dataChanged();
        return;
    }
    setBatteryCycles(d->cycles + 1);
    QDateTime now = QDateTime::currentDateTime();
    addSimpleEntry(now, true);
}

bool BatteryWidget::getBatteryCharged() const
{
    return d->charged;
}

void BatteryWidget::setViewMode(ViewMode mode)
{
    d->viewMode = mode;
    if (mode == Simple || mode == Complex)
        d->showDetails(mode == Complex);
}

BatteryWidget::ViewMode BatteryWidget::getViewMode() const
{
    return d->viewMode;
}

QList<QDateTime> &BatteryWidget::getDates()
{
    return d->dates;
}

QList<unsigned int> &BatteryWidget::getDischarges()
{
    return d->discharges;
}

QList<unsigned int> &BatteryWidget::getCurrents()
{
    return d->currents;
}

void BatteryWidget::addSimpleEntry(QDateTime &when, bool notify)
{
    addFullEntry(when, 0, 0, notify);
}

void BatteryWidget::addFullEntry(QDateTime &when, unsigned int discharged, unsigned int maxCurrent,
                                 bool notify)
{
    d->dates.append(when);
    d->discharges.append(discharged);
    d->currents.append(maxCurrent);
    setBatteryLastDischarged(discharged);
    setBatteryLastMaxCurrent(maxCurrent);
    if (notify)
        Q_EMIT dataChanged();
}

bool BatteryWidget::getEvent(QDateTime &when, unsigned int &discharged, unsigned int &maxCurrent)
{
    const auto index = d->dates.indexOf(when);
    if (index < 0)
        return false;
    discharged = d->discharges.at(index);
    maxCurrent = d->currents.at(index);
    return true;
}

void BatteryWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->ui.retranslateUi(this);
        if (d->chargeStateShown)
            d->showChargeState();
    }
    QWidget::changeEvent(event);
}

void BatteryWidget::on_pushButton_clicked()
{
    if (d->charged)
        Q_EMIT chargeBatteryClicked();
    else
        setBatteryCharged(true, true);
}
