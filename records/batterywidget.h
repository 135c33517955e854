// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "voltbok_export.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class BatteryWidgetPrivate;

/**
 * One battery: the record of its figures and discharge history, and at the same time its card on the
 * overview.
 *
 * Every setter stores its value and refreshes the label of the card that shows it; none checks a range or
 * emits a signal. The name is the battery's identity.
 */
class VOLTBOK_EXPORT BatteryWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatteryWidget)

public:
    /**
     * How much the card shows, and which capture mode a click on it follows. With an underlying type, as any
     * other value can be stored, too.
     */
    enum ViewMode : int {
        Simple = 0, ///< without the figures of the last discharge; a discharge is recorded at once
        Complex = 1 ///< with them; a discharge is recorded on the discharge page
    };
    Q_ENUM(ViewMode)

    /** An empty battery: without a name, all figures 0, discharged, never used. */
    explicit BatteryWidget(QWidget *parent = nullptr);
    ~BatteryWidget() override;

    /** Any text; the name is compared exactly. It is only read, and not changed. */
    void setBatteryName(QString &name);
    /** The name, whole; the card shows its first 1,000 characters. */
    QString getBatteryName() const;
    /** Nominal capacity in mAh. */
    void setBatteryCapacity(unsigned int capacity);
    /** Nominal capacity in mAh; 0 when it was never set. */
    unsigned int getBatteryCapacity() const;
    /** Permitted discharge rate in whole C. */
    void setBatteryRating(unsigned int rating);
    /** Permitted discharge rate in whole C; 0 when it was never set. */
    unsigned int getBatteryRating() const;
    /** Number of discharge cycles. */
    void setBatteryCycles(unsigned int cycles);
    /** Number of discharge cycles. */
    unsigned int getBatteryCycles() const;
    /** Capacity taken out in the last discharge, in mAh. */
    void setBatteryLastDischarged(unsigned int discharged);
    /** Capacity taken out in the last discharge, in mAh. */
    unsigned int getBatteryLastDischarged() const;
    /** Highest current of the last discharge, in hundredths of an ampere. */
    void setBatteryLastMaxCurrent(unsigned int maxCurrent);
    /** Highest current of the last discharge, in hundredths of an ampere. */
    unsigned int getBatteryLastMaxCurrent() const;
    /** Permitted charge rate in tenths of C; 0 is ignored, so a rate once set cannot be cleared. */
    void setBatteryChargeRate(unsigned int rate);
    /** Permitted charge rate in tenths of C; 0 for none. */
    unsigned int getBatteryChargeRate() const;
    /** Any date; an invalid one is shown as none. */
    void setDateOfPurchase(QDate &date);
    /** Date of purchase; invalid when it is not known. */
    QDate getdateOfPurchase() const;
    /** When the battery was charged or discharged last, in local time; an invalid time is shown as none. */
    void setLastUpdated(QDateTime when);
    /** When the battery was charged or discharged last; invalid when it never was. */
    QDateTime getBatteryLastUpdated() const;

    /**
     * Sets the charge state and the look of the card's button.
     *
     * @param charged the new state.
     * @param byUser also stamps the time and emits dataChanged(); a discharge then counts a cycle and leaves
     * a history entry without measurements.
     */
    void setBatteryCharged(bool charged, bool byUser);
    /** Whether the battery is charged. */
    bool getBatteryCharged() const;

    /** Stores any value; only Simple and Complex change what the card shows. */
    void setViewMode(ViewMode mode);
    /** What setViewMode() was given last. */
    ViewMode getViewMode() const;

    /** The history: three lists of equal length in the order of recording, one entry for each discharge. */
    QList<QDateTime> &getDates();
    /** Discharged capacities in mAh, parallel to getDates(). */
    QList<unsigned int> &getDischarges();
    /** Maximum currents in hundredths of an ampere, parallel to getDates(). */
    QList<unsigned int> &getCurrents();

    /** Records a discharge without measurements; @p notify emits dataChanged(). */
    void addSimpleEntry(QDateTime &when, bool notify);
    /** Records a discharge of @p discharged mAh at @p maxCurrent hundredths of an ampere. */
    void addFullEntry(QDateTime &when, unsigned int discharged, unsigned int maxCurrent, bool notify);
    /**
     * Looks a discharge up by its exact time; with equal times the earlier entry wins.
     *
     * @return false, with both numbers unchanged, when there is none.
     */
    bool getEvent(QDateTime &when, unsigned int &discharged, unsigned int &maxCurrent);

Q_SIGNALS:
    /** The record has changed in a way that must be saved. */
    void dataChanged();
    /** The button of a charged battery was clicked. */
    void chargeBatteryClicked();

protected:
    /** Translates the card anew after a change of language. */
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_pushButton_clicked();

private:
    std::unique_ptr<BatteryWidgetPrivate> d;
};
