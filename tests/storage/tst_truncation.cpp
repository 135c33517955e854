// SPDX-License-Identifier: GPL-3.0-or-later
// A file that breaks off: whatever stands before the cut is read by all three loaders, and they come to an
// end.
//
// The sample logbook is large and cut at every 101st byte; VOLTBOK_TRUNCATION_STEP=1 cuts it at every one.
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TruncationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileCutAnywhereKeepsWhatStandsBeforeTheCut_data();
    void aFileCutAnywhereKeepsWhatStandsBeforeTheCut();
};

namespace {

/** A season of a diligent pilot in few records, more than the block that is read at once. */
QByteArray season(const QString &directory)
{
    RecordLists catalogue;
    catalogue.locations = {u"Long Meadow"_s, u"Hütte & <Hang>"_s, u"Field"_s};
    for (const char *name : {"Pack A", "Pack \"B\""}) {
        BatteryWidget *battery = catalogue.addBattery(QLatin1String(name));
        battery->setBatteryCapacity(2200);
        battery->setBatteryCharged(true, false);
        for (unsigned int i = 0; i < 17; ++i) {
            QDateTime when(QDate(2026, 4, 1).addDays(i), QTime(14, 0));
            battery->addFullEntry(when, 1000 + i, 4550, false);
        }
    }
    for (const char *name : {"MyHeli", "Other"}) {
        ModelWidget *model = catalogue.addModel(QLatin1String(name));
        model->addBattery(u"Pack A"_s);
        for (int i = 0; i < 17; ++i) {
            LogData flight{QDateTime(QDate(2026, 4, 1).addDays(i), QTime(14, 0)), QTime(0, 7, i), u"Field"_s,
                           10 - i, u"flight%1"_s.arg(i)};
            model->addLogData(flight);
        }
    }
    catalogue.save(directory);
    return Test::contents(Test::dataFile(directory));
}

/** The number of whole tags that begin with @p start; a cut can only spoil the last one. */
qsizetype wholeTags(const QByteArray &bytes, const QByteArray &start)
{
    const qsizetype last = bytes.lastIndexOf(start);
    const bool spoiled = last >= 0 && bytes.indexOf("/>", last) < 0;
    return bytes.count(start) - (spoiled ? 1 : 0);
}

QList<unsigned int> allDischarges(const RecordLists &catalogue)
{
    QList<unsigned int> all;
    for (BatteryWidget *battery : catalogue.batteries)
        all.append(battery->getDischarges());
    return all;
}

QStringList allFlights(const RecordLists &catalogue)
{
    QStringList all;
    for (ModelWidget *model : catalogue.models) {
        for (const LogData &flight : std::as_const(model->getLogData()))
            all.append(flight.notes);
    }
    return all;
}

} // namespace

void TruncationTest::aFileCutAnywhereKeepsWhatStandsBeforeTheCut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("step");
    QTemporaryDir directory;
    const int step = qEnvironmentVariableIsSet("VOLTBOK_TRUNCATION_STEP")
                         ? qEnvironmentVariableIntValue("VOLTBOK_TRUNCATION_STEP")
                         : 101;
    QTest::newRow("a season") << season(directory.path()) << 1;
    QTest::newRow("the sample logbook") << Test::contents(QStringLiteral(SAMPLE)) << step;
}

void TruncationTest::aFileCutAnywhereKeepsWhatStandsBeforeTheCut()
{
    Test::failOnWarnings();
    QFETCH(QByteArray, bytes);
    QFETCH(int, step);
    QTemporaryDir directory;
    const QString path = Test::dataFile(directory.path());
    QVERIFY(Test::write(path, bytes));
    RecordLists whole;
    whole.load(directory.path());
    const QStringList batteries = whole.batterySummary();
    const QStringList models = whole.modelSummary();
    QVERIFY(!batteries.isEmpty() && !models.isEmpty());

    RecordLists cut;
    for (qsizetype size = bytes.size(); size >= 0; size -= step) {
        const QByteArray rest = bytes.left(size);
        QVERIFY(Test::write(path, rest));
        cut.load(directory.path());

        QCOMPARE(cut.locations, whole.locations.first(wholeTags(rest, "<Location ")));
        QCOMPARE(cut.batteries.size(), rest.count("\n    <Battery>"));
        QCOMPARE(cut.models.size(), rest.count("\n    <Model>"));
        const qsizetype wholeBatteries = rest.count("\n    </Battery>");
        const qsizetype wholeModels = rest.count("\n    </Model>");
        QCOMPARE(cut.batterySummary().first(wholeBatteries), batteries.first(wholeBatteries));
        QCOMPARE(cut.modelSummary().first(wholeModels), models.first(wholeModels));
        QCOMPARE(allDischarges(cut), allDischarges(whole).first(wholeTags(rest, "<Cycle ")));
        QCOMPARE(allFlights(cut), allFlights(whole).first(wholeTags(rest, "<LogData ")));
        QVERIFY(cut.historiesAreParallel());
    }
}

QTEST_MAIN(TruncationTest)
#include "tst_truncation.moc"
