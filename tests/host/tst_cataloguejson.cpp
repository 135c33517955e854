// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/cataloguejson.h"
#include "host/exchange/jsonbytes.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

QDateTime at(int day, int second = 0)
{
    return QDateTime(QDate(2026, 3, day), QTime(14, 5, second));
}

Catalogue small()
{
    Battery first{u"A \"1\""_s, 450, 45, 20, 42, true, QDate(2025, 3, 14), at(9, 7), {}};
    first.discharges = {{at(1), 360, 2025}, {at(2), 376, 1317}, {at(1), 1, 0}, {QDateTime(), 0, 0}};
    first.discharges[1].isMeasured = true;
    const Battery second{u"B"_s, 0, 0, 15, 0, false, QDate(), QDateTime(), {{at(1), 100, 1320}}};
    Model model{u"Whirl"_s,         u"Heli"_s,           114,   700,      12,
                QDate(2024, 8, 20), u"two\nlines\t\\"_s, at(3), {u"B"_s}, {}};
    model.log = {{at(1), QTime(0, 5, 12), u"Club field"_s, -3, u"né"_s},
                 {at(2), QTime(0, 0), QString(), 0, QString()},
                 {QDateTime(), QTime(), QString(), 18, u"\u0001\u007f\u2028"_s}};
    return {{u"Club field"_s, QString()}, {first, second}, {model}};
}

QByteArray written(const Catalogue &whole, const Catalogue &shown,
                   bool (CatalogueJson::*write)(const Catalogue &))
{
    QByteArray all;
    CatalogueJson json(whole, [&](const QByteArray &piece) {
        all += piece;
        return true;
    });
    return (json.*write)(shown) ? all : QByteArray();
}

QJsonValue parsed(const QByteArray &bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    return error.error != QJsonParseError::NoError ? QJsonValue(error.errorString())
           : document.isArray()                    ? QJsonValue(document.array())
                                                   : QJsonValue(document.object());
}

} // namespace

class CatalogueJsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExportHoldsEverythingInTheOrderOfTheFile();
    void aListIsTheArrayAlone();
    void entriesOfListsNameTheirRecord();
    void aFlightNamesItsBatteriesWhateverIsShown();
    void anEmptyLogbookIsValid();
    void everyCharacterComesBack();
    void sharesAreInTheirShortestForm_data();
    void sharesAreInTheirShortestForm();
    void nothingMoreIsWrittenWhenNobodyWantsIt();
    void largeLogbooksAreWrittenPieceByPiece();
};

void CatalogueJsonTest::anExportHoldsEverythingInTheOrderOfTheFile()
{
    const QByteArray expected = R"({"format": "voltbok-export", "version": 1,
"locations": [
"Club field",
""
],
"batteries": [
{"name": "A \"1\"", "capacity_mAh": 450, "discharge_rating_C": 45, "charge_rating_C": 2, "purchased": "2025-03-14", "cycles": 42, "charged": true, "last_use": "2026-03-09T14:05:07",
"discharges": [
{"time": "2026-03-01T14:05:00", "discharged_mAh": 360, "max_current_A": 20.25, "source": "guessed"},
{"time": "2026-03-02T14:05:00", "discharged_mAh": 376, "max_current_A": 13.17, "source": "measured"},
{"time": "2026-03-01T14:05:00", "discharged_mAh": 1, "max_current_A": 0, "source": "entered"},
{"time": null, "discharged_mAh": 0, "max_current_A": 0, "source": "none"}
]},
{"name": "B", "capacity_mAh": 0, "discharge_rating_C": 0, "charge_rating_C": 1.5, "purchased": null, "cycles": 0, "charged": false, "last_use": null,
"discharges": [
{"time": "2026-03-01T14:05:00", "discharged_mAh": 100, "max_current_A": 13.2, "source": "entered"}
]}
],
"models": [
{"name": "Whirl", "type": "Heli", "weight": 114, "size": 700, "purchased": "2024-08-20", "flights": 12, "notes": "two\nlines\t\\", "last_update": "2026-03-03T14:05:00",
"batteries": [
"B"
],
"log": [
{"time": "2026-03-01T14:05:00", "duration_s": 312, "location": "Club field", "temperature_C": -3, "notes": "né", "batteries": ["A \"1\"", "B"]},
{"time": "2026-03-02T14:05:00", "duration_s": 0, "location": "", "temperature_C": 0, "notes": "", "batteries": ["A \"1\""]},
{"time": null, "duration_s": null, "location": "", "temperature_C": 18, "notes": ")"
                                "\\u0001\x7f\xe2\x80\xa8"
                                R"(", "batteries": []}
]}
]}
)";
    QCOMPARE(written(small(), small(), &CatalogueJson::writeExport), expected);
}

void CatalogueJsonTest::aListIsTheArrayAlone()
{
    const QJsonObject all = parsed(written(small(), small(), &CatalogueJson::writeExport)).toObject();
    QCOMPARE(parsed(written(small(), small(), &CatalogueJson::writeBatteries)), all.value(u"batteries"));
    QCOMPARE(parsed(written(small(), small(), &CatalogueJson::writeModels)), all.value(u"models"));
    QCOMPARE(parsed(written(small(), small(), &CatalogueJson::writeLocations)), all.value(u"locations"));
}

void CatalogueJsonTest::entriesOfListsNameTheirRecord()
{
    const QJsonArray discharges =
        parsed(written(small(), small(), &CatalogueJson::writeDischarges)).toArray();
    QCOMPARE(discharges.size(), 5);
    QCOMPARE(discharges.at(1).toObject(), (QJsonObject{{u"battery"_s, u"A \"1\""_s},
                                                       {u"time"_s, u"2026-03-02T14:05:00"_s},
                                                       {u"discharged_mAh"_s, 376},
                                                       {u"max_current_A"_s, 13.17},
                                                       {u"source"_s, u"measured"_s}}));
    QCOMPARE(discharges.at(4).toObject().value(u"battery"), u"B"_s);
    const QJsonArray flights = parsed(written(small(), small(), &CatalogueJson::writeFlights)).toArray();
    QCOMPARE(flights.size(), 3);
    QCOMPARE(flights.at(0).toObject(), (QJsonObject{{u"model"_s, u"Whirl"_s},
                                                    {u"time"_s, u"2026-03-01T14:05:00"_s},
                                                    {u"duration_s"_s, 312},
                                                    {u"location"_s, u"Club field"_s},
                                                    {u"temperature_C"_s, -3},
                                                    {u"notes"_s, u"né"_s},
                                                    {u"batteries"_s, QJsonArray{u"A \"1\""_s, u"B"_s}}}));
}

void CatalogueJsonTest::aFlightNamesItsBatteriesWhateverIsShown()
{
    Catalogue shown = small();
    shown.batteries.clear();
    const QJsonObject all = parsed(written(small(), shown, &CatalogueJson::writeExport)).toObject();
    QCOMPARE(all.value(u"batteries").toArray(), QJsonArray());
    const QJsonObject flight = all.value(u"models")[0][u"log"][0].toObject();
    QCOMPARE(flight.value(u"batteries"), (QJsonArray{u"A \"1\""_s, u"B"_s}));
}

void CatalogueJsonTest::anEmptyLogbookIsValid()
{
    QCOMPARE(parsed(written({}, {}, &CatalogueJson::writeExport)).toObject(),
             (QJsonObject{{u"format"_s, u"voltbok-export"_s},
                          {u"version"_s, 1},
                          {u"locations"_s, QJsonArray()},
                          {u"batteries"_s, QJsonArray()},
                          {u"models"_s, QJsonArray()}}));
    QCOMPARE(written({}, {}, &CatalogueJson::writeFlights), "[]\n"_ba);
}

void CatalogueJsonTest::everyCharacterComesBack()
{
    QString text;
    for (char32_t character = 1; character < 0x3000; ++character)
        text += QChar::fromUcs4(character);
    text += u"\U0001f681\U0010fffd";
    const QByteArray json = "["_ba + JsonBytes::quoted(text) + "]"_ba;
    QCOMPARE(parsed(json)[0].toString(), text);
    QVERIFY(std::none_of(json.cbegin(), json.cend(), [](char byte) { return byte >= 0 && byte < ' '; }));
}

void CatalogueJsonTest::sharesAreInTheirShortestForm_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::addColumn<unsigned int>("parts");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("two decimals") << 1317U << 100U << "13.17"_ba;
    QTest::newRow("one decimal") << 1320U << 100U << "13.2"_ba;
    QTest::newRow("none") << 1300U << 100U << "13"_ba;
    QTest::newRow("zero between") << 1301U << 100U << "13.01"_ba;
    QTest::newRow("under one") << 5U << 100U << "0.05"_ba;
    QTest::newRow("nothing") << 0U << 100U << "0"_ba;
    QTest::newRow("the most hundredths") << 4294967295U << 100U << "42949672.95"_ba;
    QTest::newRow("the most tenths") << 4294967295U << 10U << "429496729.5"_ba;
}

void CatalogueJsonTest::sharesAreInTheirShortestForm()
{
    QFETCH(unsigned int, value);
    QFETCH(unsigned int, parts);
    QByteArray bytes;
    JsonBytes::share(bytes, value, parts);
    QTEST(bytes, "expected");
}

void CatalogueJsonTest::nothingMoreIsWrittenWhenNobodyWantsIt()
{
    Catalogue catalogue = small();
    for (int i = 0; i < 20000; ++i)
        catalogue.models[0].log.append({at(1), QTime(0, 5), u"Club field"_s, 3, u"windy"_s});
    int pieces = 0;
    CatalogueJson json(catalogue, [&](const QByteArray &) {
        ++pieces;
        return false;
    });
    QVERIFY(!json.writeExport(catalogue));
    QCOMPARE(pieces, 1);
}

void CatalogueJsonTest::largeLogbooksAreWrittenPieceByPiece()
{
    Catalogue catalogue = small();
    const QDateTime first = at(1);
    for (int i = 0; i < 100'000; ++i)
        catalogue.models[0].log.append(
            {first.addDays(i % 5000), QTime(0, 5), u"Club field"_s, 3, u"windy"_s});
    qsizetype largest = 0;
    qsizetype total = 0;
    CatalogueJson json(catalogue, [&](const QByteArray &piece) {
        largest = qMax(largest, piece.size());
        total += piece.size();
        return true;
    });
    QElapsedTimer clock;
    clock.start();
    QVERIFY(json.writeFlights(catalogue));
    QVERIFY(total > 10'000'000);
    QVERIFY2(largest < 70'000, qPrintable(QString::number(largest)));
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
}

QTEST_GUILESS_MAIN(CatalogueJsonTest)
#include "tst_cataloguejson.moc"
