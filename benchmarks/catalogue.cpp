// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QDateTime>

#include <array>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

const std::array<QString, 5> Locations = {u"Meadow behind the church"_s, u"Flugplatz Süd"_s, u"Gym"_s,
                                          u"Old quarry, upper ledge"_s, u"Sailing slope \"Windy Edge\""_s};

const std::array<QString, 5> Notes = {
    QString(), u"Calm, sunny."_s,
    u"New blades tracked; tail gain down to 42 %, no more wagging in fast forward flight."_s,
    u"Gusts > 5 m/s from the west & cold fingers: landed early"_s,
    u"First loops with the new pack. Motor temperature 61 °C after the flight."_s};

/** One of @p count moments, evenly over twenty years of summer and winter time; no two are equal. */
QDateTime moment(int index, int count)
{
    constexpr qint64 Period = 20LL * 365 * 24 * 3600;
    return QDateTime(QDate(2004, 3, 1), QTime(9, 17, 3)).addSecs(Period / (count + 1) * index);
}

QString batteryName(int index)
{
    return u"LiPo 6S 3300 No. %1"_s.arg(index + 1);
}

std::unique_ptr<BatteryWidget> makeBattery(int index, int history)
{
    auto battery = std::make_unique<BatteryWidget>();
    QString name = batteryName(index);
    QDate purchase = QDate(2004, 2, 1).addDays(index);
    battery->setBatteryName(name);
    battery->setBatteryCapacity(3300);
    battery->setBatteryRating(45);
    battery->setBatteryChargeRate(20);
    battery->setDateOfPurchase(purchase);
    battery->setBatteryCycles(static_cast<unsigned int>(history));
    battery->setBatteryCharged(index % 2 == 0, false);
    battery->setLastUpdated(moment(history, history));
    for (int i = 0; i < history; ++i) {
        battery->getDates().append(moment(i, history));
        battery->getDischarges().append(2000U + static_cast<unsigned int>(i * 37 % 900));
        battery->getCurrents().append(4000U + static_cast<unsigned int>(i * 911 % 6000));
    }
    return battery;
}

std::unique_ptr<ModelWidget> makeModel(int index, const Catalogue &catalogue)
{
    auto model = std::make_unique<ModelWidget>();
    model->setModelName(u"Heli %1"_s.arg(index + 1));
    model->setModelType(u"Heli"_s);
    model->setModelWeight(320000);
    model->setModelSize(700);
    model->setModelFlights(static_cast<unsigned int>(catalogue.flights));
    model->setDateOfPurchase(QDate(2004, 1, 1).addDays(index));
    model->setAdditionalNotes(u"Belt-driven tail, 12-tooth pinion"_s);
    model->setLastUpdated(moment(catalogue.flights, catalogue.flights));
    for (int i = 0; i < catalogue.batteriesOfAModel; ++i)
        model->addBattery(batteryName((index * catalogue.batteriesOfAModel + i) % catalogue.batteries));
    for (int i = 0; i < catalogue.flights; ++i) {
        const auto variety = static_cast<size_t>(i);
        LogData flight;
        flight.date = moment(i, catalogue.flights);
        flight.duration = QTime(0, 4 + i % 9, i % 60);
        flight.temperature = i % 40 - 8;
        if (catalogue.texts) {
            flight.location = Locations.at(variety % Locations.size());
            flight.notes = Notes.at(variety / 3 % Notes.size());
        }
        model->addLogData(flight);
    }
    return model;
}

} // namespace

Catalogue Catalogue::withEntries(int entries)
{
    Catalogue catalogue;
    catalogue.history = entries / 2 / catalogue.batteries;
    catalogue.flights = entries / 2 / catalogue.models;
    return catalogue;
}

void Catalogue::writeTo(const QString &folder) const
{
    std::vector<std::unique_ptr<BatteryWidget>> ownedBatteries;
    std::vector<std::unique_ptr<ModelWidget>> ownedModels;
    QList<BatteryWidget *> batteryList;
    QList<ModelWidget *> modelList;
    for (int i = 0; i < batteries; ++i)
        batteryList.append(ownedBatteries.emplace_back(makeBattery(i, history)).get());
    for (int i = 0; i < models; ++i)
        modelList.append(ownedModels.emplace_back(makeModel(i, *this)).get());
    QStringList locations(Locations.cbegin(), Locations.cend());

    DataProcessor processor;
    processor.setBasePath(folder);
    processor.addData(batteryList, modelList, locations);
}
