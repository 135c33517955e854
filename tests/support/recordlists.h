// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"
#include "tests/support/files.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

/** The three lists that the data processor fills and writes, with the records in them. */
class RecordLists
{
public:
    RecordLists() = default;
    ~RecordLists() { clear(); }
    Q_DISABLE_COPY_MOVE(RecordLists)

    void clear()
    {
        qDeleteAll(batteries);
        qDeleteAll(models);
        batteries.clear();
        models.clear();
        locations.clear();
    }

    void save(const QString &directory)
    {
        DataProcessor processor;
        processor.setBasePath(directory);
        processor.addData(batteries, models, locations);
    }

    void load(const QString &directory)
    {
        DataProcessor processor;
        processor.setBasePath(directory);
        clear();
        processor.getLocationsFromData(locations);
        processor.getModelWidgetsFromData(models);
        processor.getBatteryWidgetsFromData(batteries);
    }

    BatteryWidget *addBattery(QString name)
    {
        batteries.append(new BatteryWidget);
        batteries.last()->setBatteryName(name);
        return batteries.last();
    }

    ModelWidget *addModel(const QString &name)
    {
        models.append(new ModelWidget);
        models.last()->setModelName(name);
        return models.last();
    }

    /** A line for each battery: its name, capacity, cycles, "charged" and the discharges of its history. */
    QStringList batterySummary() const
    {
        QStringList lines;
        for (BatteryWidget *battery : batteries) {
            QStringList words{battery->getBatteryName(), QString::number(battery->getBatteryCapacity()),
                              QString::number(battery->getBatteryCycles())};
            if (battery->getBatteryCharged())
                words.append(u"charged"_s);
            for (unsigned int discharged : battery->getDischarges())
                words.append(QLatin1Char('-') + QString::number(discharged));
            lines.append(words.join(QLatin1Char(' ')));
        }
        return lines;
    }

    /** A line for each model: its name, weight, the batteries in brackets and the notes of its flights. */
    QStringList modelSummary() const
    {
        QStringList lines;
        for (ModelWidget *model : models) {
            QStringList words{model->getModelName(), QString::number(model->getModelWeight())};
            for (const QString &battery : model->getBatteries())
                words.append(QLatin1Char('[') + battery + QLatin1Char(']'));
            for (const LogData &flight : model->getLogData())
                words.append(flight.notes);
            lines.append(words.join(QLatin1Char(' ')));
        }
        return lines;
    }

    bool historiesAreParallel() const
    {
        for (BatteryWidget *battery : batteries) {
            if (battery->getDates().size() != battery->getDischarges().size() ||
                battery->getDates().size() != battery->getCurrents().size())
                return false;
        }
        return true;
    }

    QList<BatteryWidget *> batteries;
    QList<ModelWidget *> models;
    QList<QString> locations;
};

/** @p body as the content of the root element. */
inline QByteArray document(const QByteArray &body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok>\n" + body +
           "\n</Voltbok>\n";
}
