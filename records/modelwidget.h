// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/logdata.h"
#include "voltbok_export.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class ModelWidgetPrivate;

/**
 * One radio-controlled model: its attributes, the names of its assigned batteries and its flight log.
 *
 * A pure record that shows nothing. The setters store without checks and stay silent. The name is the model's
 * identity; batteries are assigned by name, compared exactly and case-sensitively.
 */
class VOLTBOK_EXPORT ModelWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModelWidget)

public:
    /** An empty model: without a name, without batteries, without flights. */
    explicit ModelWidget(QWidget *parent = nullptr);
    ~ModelWidget() override;

    /** Any text. */
    void setModelName(const QString &name);
    /** The name; the reference is valid as long as the record. */
    const QString &getModelName() const;
    /** What kind of model it is, as free text. */
    void setModelType(const QString &type);
    /** What kind of model it is. */
    const QString &getModelType() const;
    /** The weight as the user counts it; no unit is attached. */
    void setModelWeight(const unsigned int &weight);
    /** The weight as the user counts it; 0 when it was never set. */
    unsigned int getModelWeight() const;
    /** The size as the user counts it; no unit is attached. */
    void setModelSize(const unsigned int &size);
    /** The size as the user counts it; 0 when it was never set. */
    unsigned int getModelSize() const;
    /** The number of flights entered by the user; recording a flight does not change it. */
    void setModelFlights(const unsigned int &flights);
    /** The number of flights entered by the user, not that of the log. */
    unsigned int getModelFlights() const;
    /** When the record was edited last, in local time. */
    void setLastUpdated(const QDateTime &when);
    /** When the record was edited last; invalid when it never was. */
    const QDateTime &getLastUpdated() const;
    /** Any date; an invalid one stands for none. */
    void setDateOfPurchase(const QDate &date);
    /** Date of purchase; invalid when it is not known. */
    QDate getDateOfPurchase() const;
    /** Free text of any length, with line breaks. */
    void setAdditionalNotes(const QString &notes);
    /** The notes, as they were set. */
    const QString &getAdditionalNotes() const;

    /** Appends a copy of @p entry: the log keeps the order of recording and is never sorted. */
    void addLogData(LogData &entry);
    /** The flight log, in the order of recording. */
    QList<LogData> &getLogData();
    /**
     * Copies the entry at @p index, which must not be negative; does not move the log position.
     *
     * @return false, with @p out unchanged, when there is no such entry.
     */
    bool getLog(LogData &out, int index);
    /**
     * Moves the log position to the newest entry and copies it.
     *
     * @return the number of entries; 0, with @p out unchanged, when the log is empty.
     */
    int getLatestLog(LogData &out);
    /** Steps to the next newer entry, copies it, and tells whether a still newer one follows. */
    bool getNextLog(LogData &out);
    /** Steps to the next older entry, copies it, and tells whether a still older one remains. */
    bool getPrevLog(LogData &out);

    /** Assigns a battery by name; a name already assigned is refused. */
    void addBattery(const QString &name);
    /** Whether a battery of exactly this name is assigned. */
    bool containsBattery(const QString &name) const;
    /** Removes every assigned name that equals @p name. */
    void removeBattery(const QString &name);
    /** The names of the assigned batteries, in the order of assignment. */
    QList<QString> &getBatteries();

Q_SIGNALS:
    /** For listeners; the record itself never emits it. */
    void dataChanged();

private:
    std::unique_ptr<ModelWidgetPrivate> d;
};
