// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/modelwidget.h"

#include <QMetaType>

#include <algorithm>

class ModelWidgetPrivate
{
public:
    int lastLogPosition() const { return static_cast<int>(logEntries.size()) - 1; }

    QString name;
    QString type;
    unsigned int weight = 0;
    unsigned int size = 0;
    unsigned int flights = 0;
    QDateTime lastUpdated;
    QDate dateOfPurchase;
    QString additionalNotes;
    int logPosition = 0; // the log entry delivered last; meaningful from the first getLatestLog() on
    QList<LogData> logEntries;
    QList<QString> batteryNames;
};

namespace {
// By name, as soon as the library is loaded: a host may create a record through the meta-type system alone.
[[maybe_unused]] const int MetaTypeId = qRegisterMetaType<ModelWidget>();
} // namespace

ModelWidget::ModelWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ModelWidgetPrivate>())
{
}

ModelWidget::~ModelWidget() = default;

void ModelWidget::setModelName(const QString &name)
{
    d->name = name;
}

const QString &ModelWidget::getModelName() const
{
    return d->name;
}

void ModelWidget::setModelType(const QString &type)
{
    d->type = type;
}

const QString &ModelWidget::getModelType() const
{
    return d->type;
}

void ModelWidget::setModelWeight(const unsigned int &weight)
{
    d->weight = weight;
}

unsigned int ModelWidget::getModelWeight() const
{
    return d->weight;
}

void ModelWidget::setModelSize(const unsigned int &size)
{
    d->size = size;
}

unsigned int ModelWidget::getModelSize() const
{
    return d->size;
}

void ModelWidget::setModelFlights(const unsigned int &flights)
{
    d->flights = flights;
}

unsigned int ModelWidget::getModelFlights() const
{
    return d->flights;
}

void ModelWidget::setLastUpdated(const QDateTime &when)
{
    d->lastUpdated = when;
}

const QDateTime &ModelWidget::getLastUpdated() const
{
    return d->lastUpdated;
}

void ModelWidget::setDateOfPurchase(const QDate &date)
{
    d->dateOfPurchase = date;
}

QDate ModelWidget::getDateOfPurchase() const
{
    return d->dateOfPurchase;
}

void ModelWidget::setAdditionalNotes(const QString &notes)
{
    d->additionalNotes = notes;
}

const QString &ModelWidget::getAdditionalNotes() const
{
    return d->additionalNotes;
}

void ModelWidget::addLogData(LogData &entry)
{
    d->logEntries.append(entry);
    ++d->logPosition;
}

QList<LogData> &ModelWidget::getLogData()
{
    return d->logEntries;
}

bool ModelWidget::getLog(LogData &out, int index)
{
    if (index < 0 || index > d->lastLogPosition())
        return false;
    out = d->logEntries.at(index);
    return true;
}

int ModelWidget::getLatestLog(LogData &out)
{
    if (d->logEntries.isEmpty())
        return 0;
    d->logPosition = d->lastLogPosition();
    out = d->logEntries.constLast();
    return static_cast<int>(d->logEntries.size());
}

// Both steps tell whether another one in the same direction would deliver a different entry: the step onto
// the newest or the oldest entry delivers it and already answers false. Intentional: the log book greys its
// buttons by it.

bool ModelWidget::getNextLog(LogData &out)
{
    if (d->logEntries.isEmpty())
        return false;
    const int next = d->logPosition + 1;
    const int newest = d->lastLogPosition();
    d->logPosition = std::min(next, newest);
    out = d->logEntries.at(d->logPosition);
    return next < newest;
}

bool ModelWidget::getPrevLog(LogData &out)
{
    if (d->logEntries.isEmpty())
        return false;
    const int previous = d->logPosition - 1;
    d->logPosition = std::clamp(previous, 0, d->lastLogPosition());
    out = d->logEntries.at(d->logPosition);
    return previous >= 1;
}

void ModelWidget::addBattery(const QString &name)
{
    if (!containsBattery(name))
        d->batteryNames.append(name);
}

bool ModelWidget::containsBattery(const QString &name) const
{
    return d->batteryNames.contains(name);
}

void ModelWidget::removeBattery(const QString &name)
{
    d->batteryNames.removeAll(name);
}

QList<QString> &ModelWidget::getBatteries()
{
    return d->batteryNames;
}
