// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundtrip.h"

#include "plaindocument.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace {

/** One loading of the data file by all three loaders. */
class Catalogue
{
    Q_DISABLE_COPY_MOVE(Catalogue)

public:
    explicit Catalogue(DataProcessor &processor)
    {
        processor.getLocationsFromData(locations);
        processor.getBatteryWidgetsFromData(batteries);
        processor.getModelWidgetsFromData(models);
    }

    ~Catalogue()
    {
        qDeleteAll(batteries);
        qDeleteAll(models);
    }

    qsizetype entries() const
    {
        qsizetype count = locations.size() + batteries.size() + models.size();
        for (BatteryWidget *battery : batteries)
            count += battery->getDates().size();
        for (ModelWidget *model : models)
            count += model->getBatteries().size() + model->getLogData().size();
        return count;
    }

    /** As those of a plain document with the same content. */
    QStringList lines() const
    {
        QStringList lines;
        for (const QString &location : locations)
            lines += Line::location(location);
        for (BatteryWidget *battery : batteries) {
            lines += Line::battery(battery->getBatteryName());
            for (qsizetype i = 0; i < battery->getDates().size(); ++i)
                lines += Line::discharge(battery->getDischarges().at(i), battery->getCurrents().at(i));
        }
        for (ModelWidget *model : models) {
            lines += Line::model(model->getModelName());
            for (const QString &battery : std::as_const(model->getBatteries()))
                lines += Line::assigned(battery);
            for (const LogData &flight : std::as_const(model->getLogData()))
                lines += Line::flight(flight.location, flight.notes);
        }
        return lines;
    }

    bool historiesAreParallel() const
    {
        return std::all_of(batteries.cbegin(), batteries.cend(), [](BatteryWidget *battery) {
            return battery->getDischarges().size() == battery->getDates().size() &&
                   battery->getCurrents().size() == battery->getDates().size();
        });
    }

    QList<QString> locations;
    QList<BatteryWidget *> batteries;
    QList<ModelWidget *> models;
};

QString pathIn(const QString &folder)
{
    return QDir(folder).absoluteFilePath(QStringLiteral("voltbok.xml"));
}

QByteArray savedBytes(DataProcessor &processor, Catalogue &catalogue, const QString &folder)
{
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QFile file(pathIn(folder));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The first line in which the two, which are not equal, differ. */
QString difference(const QStringList &document, const QStringList &loaded)
{
    for (qsizetype i = 0; i < qMin(document.size(), loaded.size()) + 1; ++i) {
        if (document.value(i) != loaded.value(i))
            return QStringLiteral("\"%1\" stands there, \"%2\" was loaded")
                .arg(document.value(i), loaded.value(i));
    }
    return QStringLiteral("lines are missing");
}

/** The error of a document, empty when it is well-formed. */
QString xmlError(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd())
        reader.readNext();
    return reader.errorString();
}

} // namespace

QString roundTripFault(const QByteArray &bytes, const QString &folder)
{
    // An entity of the reader grows to 4096 characters at the most; this is the only thing that multiplies.
    constexpr qsizetype MostSavedForAByte = 3 * 4096;

    QFile file(pathIn(folder));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QStringLiteral("the data file cannot be written: ") + file.errorString();
    file.close();

    DataProcessor processor;
    processor.setBasePath(folder);
    Catalogue loaded(processor);
    if (!loaded.historiesAreParallel())
        return QStringLiteral("a history is not parallel");
    if (loaded.entries() > bytes.size())
        return QStringLiteral("there are more entries than bytes");

    const QStringList lines = loaded.lines();
    if (const auto plain = linesOfPlainDocument(bytes); plain && *plain != lines)
        return QStringLiteral("not all is loaded: ") + difference(*plain, lines);

    const QByteArray saved = savedBytes(processor, loaded, folder);
    if (saved.size() > MostSavedForAByte * (bytes.size() + 1))
        return QStringLiteral("the saved file is out of all proportion");
    if (const QString error = xmlError(saved); !error.isEmpty())
        return QStringLiteral("the saved file is not well-formed: ") + error;

    if (const auto plain = linesOfPlainDocument(saved); !plain || *plain != lines)
        return QStringLiteral("not all is saved: ") + difference(plain.value_or(QStringList()), lines);

    Catalogue reloaded(processor);
    if (reloaded.locations != loaded.locations || reloaded.batteries.size() != loaded.batteries.size() ||
        reloaded.models.size() != loaded.models.size() || reloaded.entries() != loaded.entries())
        return QStringLiteral("the saved file does not hold what was loaded");
    if (const QByteArray again = savedBytes(processor, reloaded, folder); again != saved)
        return QStringLiteral("the second save differs:\n%1\nfrom the first:\n%2")
            .arg(QString::fromUtf8(again), QString::fromUtf8(saved));
    return {};
}
