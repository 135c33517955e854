// SPDX-License-Identifier: GPL-3.0-or-later
// Figures and advice, on worked examples and against what another program works out.
#include "host/data/cataloguefile.h"
#include "host/statistics/figuresjson.h"
#include "host/statistics/figures.h"
#include "host/data/sources.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>

#include <cmath>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

const QDate Today(2026, 11, 22);

QDateTime at(int month, int day, int hour = 12)
{
    return QDateTime(QDate(2026, month, day), QTime(hour, 0));
}

Battery pack()
{
    Battery battery;
    battery.name = u"3S 1000"_s;
    battery.capacity = 1000;
    battery.rating = 30;
    return battery;
}

Model plane()
{
    Model model;
    model.name = u"Skylark"_s;
    return model;
}

Flight flight(const QDateTime &time, int seconds, const QString &location = QString())
{
    return {time, QTime(0, 0).addSecs(seconds), location, 0, QString()};
}

/** Where two documents differ first, as a path and both values; empty when they say the same. */
QString difference(const QJsonValue &a, const QJsonValue &b, const QString &path = QString())
{
    if (a.isDouble() && b.isDouble()) {
        const double scale = std::max(1.0, std::abs(b.toDouble()));
        if (std::abs(a.toDouble() - b.toDouble()) <= 1e-9 * scale)
            return QString();
    } else if (a.isArray() && b.isArray() && a.toArray().size() == b.toArray().size()) {
        for (int i = 0; i < a.toArray().size(); ++i) {
            const QString found = difference(a.toArray().at(i), b.toArray().at(i), path + u"/%1"_s.arg(i));
            if (!found.isEmpty())
                return found;
        }
        return QString();
    } else if (a.isObject() && b.isObject() && a.toObject().keys() == b.toObject().keys()) {
        for (const QString &key : a.toObject().keys()) {
            const QString found =
                difference(a.toObject().value(key), b.toObject().value(key), path + u'/' + key);
            if (!found.isEmpty())
                return found;
        }
        return QString();
    } else if (a == b) {
        return QString();
    }
    const auto text = [](const QJsonValue &value) {
        return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)).left(300);
    };
    return path + u": "_s + text(a) + u" instead of "_s + text(b);
}

} // namespace

class StatisticsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMedianIsTheMiddle_data();
    void theMedianIsTheMiddle();
    void aSourceIsTold_data();
    void aSourceIsTold();
    void guessesEnterSumsAlone();
    void nothingToDivideByIsMissing();
    void zeroWasNotEntered();
    void timesToComeAreMissing();
    void flightsOfAllModelsCountOnce();
    void ofTwoFlightsTheFirstWithADurationCounts();
    void aRangeLimitsFlightsAndDischargesAndNotAges();
    void placesStandInTheOrderOfTheFileEachOnce();
    void whatHasNoTimeIsInTheTotalAndInNoMonth();
    void anotherProgramWorksOutTheSame_data();
    void anotherProgramWorksOutTheSame();
};

void StatisticsTest::theMedianIsTheMiddle_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<double>("middle");
    QTest::newRow("one") << QList<double>{4} << 4.0;
    QTest::newRow("odd") << QList<double>{9, 1, 4} << 4.0;
    QTest::newRow("even") << QList<double>{9, 1, 4, 5} << 4.5;
    QTest::newRow("equal") << QList<double>{2, 2, 2, 7} << 2.0;
}

void StatisticsTest::theMedianIsTheMiddle()
{
    QFETCH(QList<double>, values);
    QFETCH(double, middle);
    QCOMPARE(median(values), std::optional(middle));
    QVERIFY(!median({}));
}

void StatisticsTest::aSourceIsTold_data()
{
    QTest::addColumn<uint>("capacity");
    QTest::addColumn<uint>("rating");
    QTest::addColumn<uint>("discharged");
    QTest::addColumn<uint>("current");
    QTest::addColumn<bool>("isMeasured");
    QTest::addColumn<QString>("source");
    const auto row = [](const char *name, uint capacity, uint rating, uint discharged, uint current,
                        bool isMeasured, const QString &source) {
        QTest::newRow(name) << capacity << rating << discharged << current << isMeasured << source;
    };
    row("nothing", 450, 45, 0, 0, false, u"none"_s);
    row("nothing, of a log", 450, 45, 0, 0, true, u"none"_s);
    row("the preset", 450, 45, 360, 2025, false, u"guessed"_s);
    row("the preset, measured", 450, 45, 360, 2025, true, u"measured"_s);
    row("another charge", 450, 45, 361, 2025, false, u"entered"_s);
    row("another current", 450, 45, 360, 2024, false, u"entered"_s);
    row("a charge alone", 450, 45, 360, 0, false, u"entered"_s);
    row("a current alone", 450, 45, 0, 2025, false, u"entered"_s);
    row("a fraction is dropped", 1099, 0, 879, 0, false, u"guessed"_s);
    row("more than the page takes", 30'000, 65, 20'000, 30'000, false, u"guessed"_s);
    row("rounded as the field does", 1111, 15, 888, 1667, false, u"entered"_s);
    row("rounded, and truncated", 1111, 15, 888, 1666, false, u"guessed"_s);
    row("the double of 0.29 is a little less", 29, 10, 23, 28, false, u"guessed"_s);
}

void StatisticsTest::aSourceIsTold()
{
    QFETCH(uint, capacity);
    QFETCH(uint, rating);
    QFETCH(uint, discharged);
    QFETCH(uint, current);
    QFETCH(bool, isMeasured);
    Battery battery;
    battery.capacity = capacity;
    battery.rating = rating;
    QTEST(sourceKey(sourceOf(battery, {at(5, 1), discharged, current, isMeasured})), "source");
}

void StatisticsTest::guessesEnterSumsAlone()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{at(5, 1), 800, 3000}, {at(5, 2), 600, 1500}, {at(5, 3), 700, 2000}};
    const BatteryFigures figures = figuresOf(catalogue, {}, Today).batteries.constFirst();
    QCOMPARE(figures.discharges, 3);
    QCOMPARE(figures.counted, 2);
    QCOMPARE(figures.dischargedTotal, 2100U);
    QCOMPARE(figures.dischargedGuessed, 800U);
    QCOMPARE(figures.equivalentFullCycles, std::optional(2.1));
    QCOMPARE(figures.medianDepth, std::optional(0.65));
    QCOMPARE(figures.maxDepth, std::optional(0.7));
    QCOMPARE(figures.maxLoad, std::optional(20.0));
}

void StatisticsTest::nothingToDivideByIsMissing()
{
    Catalogue catalogue;
    catalogue.batteries = {pack(), pack()};
    catalogue.batteries[1].capacity = 0;
    catalogue.batteries[1].discharges = {{at(5, 1), 600, 1500}};
    catalogue.models = {plane()};
    const Figures figures = figuresOf(catalogue, {}, Today);
    for (const BatteryFigures &battery : figures.batteries) {
        QVERIFY(!battery.medianDepth && !battery.maxDepth && !battery.maxLoad && !battery.chargePerMinute);
        QVERIFY(!battery.ageDays);
    }
    QCOMPARE(figures.batteries.at(0).equivalentFullCycles, std::optional(0.0));
    QVERIFY(!figures.batteries.at(1).equivalentFullCycles);
    QVERIFY(!figures.batteries.at(0).daysSinceUse);
    QVERIFY(!figures.models.at(0).meanMinutes && !figures.models.at(0).first.isValid());
}

void StatisticsTest::zeroWasNotEntered()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{at(5, 1), 0, 1500}, {at(5, 2), 500, 0}, {at(5, 3), 0, 0}};
    catalogue.models = {plane()};
    catalogue.models[0].log = {flight(at(5, 1), 600), flight(at(5, 2), 300), flight(at(5, 3), 0)};
    const Figures figures = figuresOf(catalogue, {}, Today);
    const BatteryFigures &battery = figures.batteries.constFirst();
    QCOMPARE(battery.counted, 2);
    QCOMPARE(battery.medianDepth, std::optional(0.5));
    QCOMPARE(battery.maxLoad, std::optional(15.0));
    QCOMPARE(battery.chargePerMinute, std::optional(100.0));
    QCOMPARE(figures.models.at(0).meanMinutes, std::optional(7.5));
}

void StatisticsTest::timesToComeAreMissing()
{
    Battery battery = pack();
    battery.purchase = Today.addDays(1);
    battery.lastUse = QDateTime(Today.addDays(1), QTime(0, 0));
    battery.discharges = {{at(5, 1), 500, 0}};
    QVERIFY(!ageInDays(battery, Today));
    QVERIFY(!daysSinceUse(battery, Today));
    QCOMPARE(ageInDays(battery, Today.addDays(1)), std::optional<qint64>(0));
    QCOMPARE(daysSinceUse(battery, Today.addDays(3)), std::optional<qint64>(2));
    battery.lastUse = at(4, 1); // a quick capture leaves it alone
    QCOMPARE(daysSinceUse(battery, QDate(2026, 5, 4)), std::optional<qint64>(3));
}

void StatisticsTest::flightsOfAllModelsCountOnce()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{at(5, 1), 500, 0}, {at(5, 1), 510, 0}, {at(6, 2), 520, 0}};
    catalogue.models = {plane(), plane()};
    catalogue.models[0].log = {flight(at(5, 1), 300), flight(at(7, 3), 60)};
    catalogue.models[1].log = {flight(at(5, 1), 120), flight(at(6, 2), 60)};
    const BatteryFigures figures = figuresOf(catalogue, {}, Today).batteries.constFirst();
    QCOMPARE(figures.flights, 3);
    QCOMPARE(figures.minutes, 8.0);
    QCOMPARE(figures.flightsPerMonth, (QMap<QString, int>{{u"2026-05"_s, 2}, {u"2026-06"_s, 1}}));
}

void StatisticsTest::ofTwoFlightsTheFirstWithADurationCounts()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{at(5, 1), 500, 0}};
    catalogue.models = {plane(), plane()};
    catalogue.models[0].log = {flight(at(5, 1), 0)};
    catalogue.models[1].log = {flight(at(5, 1), 300), flight(at(5, 1), 60)};
    const BatteryFigures figures = figuresOf(catalogue, {}, Today).batteries.constFirst();
    QCOMPARE(figures.chargePerMinute, std::optional(100.0));
}

void StatisticsTest::aRangeLimitsFlightsAndDischargesAndNotAges()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].purchase = Today.addDays(-100);
    catalogue.batteries[0].discharges = {
        {at(5, 1), 500, 0}, {at(5, 2), 600, 0}, {at(5, 3), 700, 0}, {{}, 300, 0}};
    catalogue.models = {plane()};
    catalogue.models[0].log = {flight(at(5, 1), 60), flight(at(5, 2), 60), flight(at(5, 3), 60),
                               flight({}, 60)};
    const Figures figures = figuresOf(catalogue, {QDate(2026, 5, 2), QDate(2026, 5, 2)}, Today);
    QCOMPARE(figures.batteries.at(0).discharges, 1);
    QCOMPARE(figures.batteries.at(0).dischargedTotal, 600U);
    QCOMPARE(figures.batteries.at(0).ageDays, std::optional<qint64>(100));
    QCOMPARE(figures.batteries.at(0).daysSinceUse, std::optional<qint64>(203));
    QCOMPARE(figures.models.at(0).flights, 1);
    QCOMPARE(figures.total.flights, 1);
    QCOMPARE(figures.months.size(), 1);
    QCOMPARE(figuresOf(catalogue, {QDate(2026, 5, 2), std::nullopt}, Today).total.flights, 2);
    QCOMPARE(figuresOf(catalogue, {std::nullopt, QDate(2026, 5, 1)}, Today).total.flights, 1);
    QCOMPARE(figuresOf(catalogue, {}, Today).total.flights, 4);
}

void StatisticsTest::placesStandInTheOrderOfTheFileEachOnce()
{
    Catalogue catalogue;
    catalogue.locations = QStringList{u"Meadow"_s, u"Slope"_s, u"Meadow"_s};
    catalogue.models = {plane()};
    catalogue.models[0].log = {flight(at(5, 1), 60, u"Hall"_s), flight(at(5, 2), 60, u"Slope"_s),
                               flight(at(5, 3), 60), flight(at(5, 4), 60, u"Hall"_s)};
    const Figures figures = figuresOf(catalogue, {}, Today);
    QStringList names;
    for (const LocationFigures &location : figures.locations)
        names.append(u"%1 %2"_s.arg(location.name).arg(location.flights));
    QCOMPARE(names, (QStringList{u"Meadow 0"_s, u"Slope 1"_s, u"Hall 2"_s}));
    QCOMPARE(figures.models.at(0).locations, (Counts{{u"Hall"_s, 2}, {u"Slope"_s, 1}}));
}

void StatisticsTest::whatHasNoTimeIsInTheTotalAndInNoMonth()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{at(5, 1), 500, 0}, {{}, 600, 0}};
    catalogue.models = {plane()};
    catalogue.models[0].log = {flight({}, 60), flight(at(3, 1), 120)};
    const Figures figures = figuresOf(catalogue, {}, Today);
    QCOMPARE(figures.total.flights, 2);
    QCOMPARE(figures.total.discharged, 1100U);
    QCOMPARE(figures.months.size(), 2);
    QCOMPARE(figures.months.at(0).month, u"2026-03"_s);
    QCOMPARE(figures.months.at(0).minutes, 2.0);
    QCOMPARE(figures.months.at(1).discharged, 500U);
}

void StatisticsTest::anotherProgramWorksOutTheSame_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QStringList>("range");
    const QString sample = QStringLiteral(SAMPLE);
    QTest::newRow("the sample") << sample << Today << QStringList();
    QTest::newRow("some days earlier") << sample << QDate(2026, 11, 16) << QStringList();
    QTest::newRow("in the middle") << sample << QDate(2025, 9, 9) << QStringList();
    QTest::newRow("before everything") << sample << QDate(2017, 1, 1) << QStringList();
    QTest::newRow("a summer") << sample << Today << QStringList{u"2026-06-01"_s, u"2026-08-31"_s};
    QTest::newRow("from a day on") << sample << Today << QStringList{u"2026-10-01"_s};
    QTest::newRow("up to a day") << sample << Today << QStringList{u"-"_s, u"2024-12-31"_s};
    QTest::newRow("odd values") << QStringLiteral(GOLDEN) << Today << QStringList();
}

void StatisticsTest::anotherProgramWorksOutTheSame()
{
    QFETCH(QString, file);
    QFETCH(QDate, today);
    QFETCH(QStringList, range);
    QProcess other;
    other.start(u"python3"_s,
                QStringList{QStringLiteral(OTHER_PROGRAM), file, today.toString(Qt::ISODate)} + range);
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.readAllStandardError(), "");
    QJsonObject expected = QJsonDocument::fromJson(other.readAllStandardOutput()).object();
    QVERIFY(!expected.isEmpty());
    const QJsonArray due = expected.take(u"due"_s).toArray();

    QFile data(file);
    QVERIFY(data.open(QFile::ReadOnly));
    const Catalogue catalogue = CatalogueFile::load(data.readAll()).catalogue;
    const auto day = [&](qsizetype i) {
        const QDate date = QDate::fromString(range.value(i), Qt::ISODate);
        return date.isValid() ? std::optional(date) : std::nullopt;
    };
    QCOMPARE(difference(FiguresJson::figures(figuresOf(catalogue, {day(0), day(1)}, today)), expected),
             QString());

    QJsonArray advice = FiguresJson::advice(adviceFor(catalogue, today));
    for (QJsonValueRef entry : advice) {
        QJsonObject object = entry.toObject();
        QVERIFY(!object.take(u"text"_s).toString().isEmpty());
        entry = object;
    }
    QCOMPARE(difference(advice, due), QString());
}

QTEST_MAIN(StatisticsTest)
#include "tst_statistics.moc"
