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
    explicit ModelWidget(QWidget *parent = nullptr);
    ~ModelWidget() override;

    void setModelName(const QString &name);
    const QString &getModelName() const;
    void setModelType(const QString &type);
    const QString &getModelType() const;
    /** The weight as the user counts it; no unit is attached. */
    void setModelWeight(const unsigned int &weight);
    unsigned int getModelWeight() const;
    /** The size as the user counts it; no unit is attached. */
    void setModelSize(const unsigned int &size);
    unsigned int getModelSize() const;
    /** The number of flights entered by the user; recording a flight does not change it. */
    void setModelFlights(const unsigned int &flights);
    unsigned int getModelFlights() const;
    void setLastUpdated(const QDateTime &when);
    const QDateTime &getLastUpdated() const;
    void setDateOfPurchase(const QDate &date);
    QDate getDateOfPurchase() const;
    void setAdditionalNotes(const QString &notes);
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
