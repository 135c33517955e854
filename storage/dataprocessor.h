// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "voltbok_export.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

class BatteryWidget;
class ModelWidget;

/**
 * Moves the catalogue between the caller's lists and the data file "voltbok.xml" in the base directory.
 *
 * It keeps no copy of the catalogue. Saving rewrites the whole file in place; every loader parses the whole
 * file by itself, appends to the list it is given and leaves the new records to the caller. Failures are
 * silent: a missing or unreadable file loads nothing, a malformed one keeps what stands before the error, an
 * unwritable one is left as it was.
 */
class VOLTBOK_EXPORT DataProcessor : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DataProcessor)

public:
    /** Without a base path: nothing is read or written before setBasePath(). */
    explicit DataProcessor(QObject *parent = nullptr);
    ~DataProcessor() override;

    /** Stores the directory of the data file; reads and writes nothing. */
    void setBasePath(const QString &path);

    /** Writes the complete file, creating its directory if need be; without a base path it does nothing. */
    void addData(QList<BatteryWidget *> &batteries, QList<ModelWidget *> &models, QList<QString> &locations);

    /** Appends the file's locations; returns whether the list holds any afterwards. */
    bool getLocationsFromData(QList<QString> &locations);
    /** Appends one new, parentless record for each model; the caller owns them. */
    void getModelWidgetsFromData(QList<ModelWidget *> &models);
    /** Appends one new, parentless record for each battery; the caller owns them. */
    void getBatteryWidgetsFromData(QList<BatteryWidget *> &batteries);

private:
    // The steps of saving, in writing.cpp, and of loading, in reading.cpp: one for each kind of element.
    void writeLocations(QList<QString> &locations);
    void writeBattery(BatteryWidget *battery);
    void writeBatteryData(BatteryWidget *battery);
    void writeModel(ModelWidget *model);
    void writeFlightData(ModelWidget *model);

    void readLocations(QList<QString> &locations);
    void readBatteries(QList<BatteryWidget *> &batteries);
    void readBatteryData(BatteryWidget *battery);
    void readModels(QList<ModelWidget *> &models);
    void readFlightData(ModelWidget *model);

    // Only while a file is written, and a fresh one each time: a writer keeps its error even on a new device.
    std::optional<QXmlStreamWriter> writer;
    QXmlStreamReader reader;
    QString basePath = QStringLiteral(""); // intentional: empty and not null, as a path that was set
};
