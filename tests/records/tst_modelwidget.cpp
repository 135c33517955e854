// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/modelwidget.h"

#include <QMetaType>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <climits>
#include <memory>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

class ModelWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewModelIsEmpty();
    void aNewFlightIsEmpty();
    void theFlightIsCopiedByValueFieldByField();
    void settersStoreWhatTheyAreGiven();
    void settersTakeAnyValueUnchanged();
    void nothingEmitsDataChanged();
    void theMetaTypeSystemCreatesAndDestroysAModel();
    void theOnlySignalIsDataChangedAndThereAreNoSlots();
    void aModelBelongsToItsParentAndShowsNothing();
    void flightsKeepTheOrderOfRecording();
    void addingAFlightCopiesItAndChangesNothingElse();
    void aFlightOfTheLogItselfCanBeAddedAgain();
    void getLogCopiesTheEntryAtAnIndex_data();
    void getLogCopiesTheEntryAtAnIndex();
    void getLogDoesNotMoveTheWalk();
    void theWalkStopsAtBothEnds();
    void theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose_data();
    void theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose();
    void theWalkOverAnEmptyLogDeliversNothing();
    void aStepBeforeTheLatestLogWasAskedForIsSafe();
    void aFlightAddedDuringAWalkAdvancesIt();
    void aLogCutShortDuringAWalkIsSafe();
    void theListOfFlightsIsTheRecordsOwn();
    void aBatteryIsAssignedOnce();
    void batteriesAreComparedExactly_data();
    void batteriesAreComparedExactly();
    void removingABatteryRemovesEveryEqualName();
    void removingABatteryThatIsNotAssignedChangesNothing();
    void aNameOfTheListItselfCanBeRemoved();
};

namespace {

LogData flight(int number)
{
    LogData entry;
    entry.date = QDateTime(QDate(2026, 5, 1).addDays(number), QTime(14, 30, 15));
    entry.duration = QTime(0, 7, number);
    entry.location = u"Field %1"_s.arg(number);
    entry.temperature = -number;
    entry.notes = u"Note %1"_s.arg(number);
    return entry;
}

void addFlights(ModelWidget &model, int count)
{
    for (int i = 0; i < count; ++i) {
        LogData entry = flight(i);
        model.addLogData(entry);
    }
}

/** The number of the flight that flight() made; -1 for an untouched one. */
int numberOf(const LogData &entry)
{
    return entry.location.isEmpty() ? -1 : entry.location.mid(6).toInt();
}

bool same(const LogData &left, const LogData &right)
{
    return left.date == right.date && left.duration == right.duration && left.location == right.location &&
           left.temperature == right.temperature && left.notes == right.notes;
}

} // namespace

void ModelWidgetTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void ModelWidgetTest::aNewModelIsEmpty()
{
    ModelWidget model;
    QVERIFY(model.getModelName().isEmpty());
    QVERIFY(model.getModelType().isEmpty());
    QCOMPARE(model.getModelWeight(), 0U);
    QCOMPARE(model.getModelSize(), 0U);
    QCOMPARE(model.getModelFlights(), 0U);
    QVERIFY(model.getLastUpdated().isNull());
    QVERIFY(model.getDateOfPurchase().isNull());
    QVERIFY(!model.getDateOfPurchase().isValid());
    QVERIFY(model.getAdditionalNotes().isEmpty());
    QVERIFY(model.getLogData().isEmpty());
    QVERIFY(model.getBatteries().isEmpty());
}

void ModelWidgetTest::aNewFlightIsEmpty()
{
    const LogData entry;
    QVERIFY(entry.date.isNull());
    QVERIFY(entry.duration.isNull());
    QVERIFY(!entry.duration.isValid());
    QVERIFY(entry.location.isEmpty());
    QCOMPARE(entry.temperature, 0);
    QVERIFY(entry.notes.isEmpty());
}

void ModelWidgetTest::theFlightIsCopiedByValueFieldByField()
{
    const LogData original = flight(3);
    LogData copy(original);
    QVERIFY(same(copy, original));
    copy.notes = u"other"_s;
    QCOMPARE(original.notes, u"Note 3"_s);

    LogData assigned;
    assigned = original;
    QVERIFY(same(assigned, original));
    QVERIFY(std::is_copy_constructible_v<LogData> && std::is_copy_assignable_v<LogData>);
}

void ModelWidgetTest::settersStoreWhatTheyAreGiven()
{
    ModelWidget model;
    const QDateTime updated(QDate(2026, 11, 15), QTime(12, 4, 22, 345));
    model.setModelName(u"MyHeli"_s);
    model.setModelType(u"Heli"_s);
    model.setModelWeight(3250);
    model.setModelSize(700);
    model.setModelFlights(41);
    model.setLastUpdated(updated);
    model.setDateOfPurchase(QDate(2024, 2, 29));
    model.setAdditionalNotes(u"two\nlines"_s);

    QCOMPARE(model.getModelName(), u"MyHeli"_s);
    QCOMPARE(model.getModelType(), u"Heli"_s);
    QCOMPARE(model.getModelWeight(), 3250U);
    QCOMPARE(model.getModelSize(), 700U);
    QCOMPARE(model.getModelFlights(), 41U);
    QCOMPARE(model.getLastUpdated(), updated);
    QCOMPARE(model.getDateOfPurchase(), QDate(2024, 2, 29));
    QCOMPARE(model.getAdditionalNotes(), u"two\nlines"_s);
}

void ModelWidgetTest::settersTakeAnyValueUnchanged()
{
    ModelWidget model;
    model.setModelName(u"  spaced\t"_s);
    model.setModelWeight(UINT_MAX);
    model.setModelSize(UINT_MAX);
    model.setModelFlights(UINT_MAX);
    model.setDateOfPurchase(QDate(2024, 2, 29));
    model.setDateOfPurchase(QDate());
    model.setLastUpdated(QDateTime::currentDateTime());
    model.setLastUpdated(QDateTime());

    QCOMPARE(model.getModelName(), u"  spaced\t"_s);
    QCOMPARE(model.getModelWeight(), UINT_MAX);
    QCOMPARE(model.getModelSize(), UINT_MAX);
    QCOMPARE(model.getModelFlights(), UINT_MAX);
    QVERIFY(!model.getDateOfPurchase().isValid());
    QVERIFY(model.getLastUpdated().isNull());
}

void ModelWidgetTest::nothingEmitsDataChanged()
{
    ModelWidget model;
    QSignalSpy changed(&model, &ModelWidget::dataChanged);
    model.setModelName(u"A"_s);
    model.setModelType(u"B"_s);
    model.setModelWeight(1);
    model.setModelSize(2);
    model.setModelFlights(3);
    model.setLastUpdated(QDateTime::currentDateTime());
    model.setDateOfPurchase(QDate::currentDate());
    model.setAdditionalNotes(u"C"_s);
    addFlights(model, 2);
    LogData out;
    model.getLatestLog(out);
    model.getPrevLog(out);
    model.getNextLog(out);
    model.addBattery(u"D"_s);
    model.removeBattery(u"D"_s);
    QCOMPARE(changed.count(), 0);
}

void ModelWidgetTest::theMetaTypeSystemCreatesAndDestroysAModel()
{
    const QMetaType type = QMetaType::fromName("ModelWidget");
    QVERIFY(type.isValid());
    QVERIFY(type.isRegistered());
    auto *model = static_cast<ModelWidget *>(type.create());
    QVERIFY(model != nullptr);
    QVERIFY(model->getModelName().isEmpty());
    bool destroyed = false;
    connect(model, &QObject::destroyed, this, [&destroyed] { destroyed = true; });
    type.destroy(model);
    QVERIFY(destroyed);
}

void ModelWidgetTest::theOnlySignalIsDataChangedAndThereAreNoSlots()
{
    const QMetaObject &meta = ModelWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("dataChanged()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void ModelWidgetTest::aModelBelongsToItsParentAndShowsNothing()
{
    auto parent = std::make_unique<QWidget>();
    auto *model = new ModelWidget(parent.get());
    QCOMPARE(model->parentWidget(), parent.get());
    QVERIFY(model->children().isEmpty());
    QVERIFY(model->isHidden() == false); // a child follows its parent
    QSignalSpy destroyed(model, &QObject::destroyed);
    parent.reset();
    QCOMPARE(destroyed.count(), 1);

    const ModelWidget alone;
    QCOMPARE(alone.windowFlags(), QWidget().windowFlags());
}

void ModelWidgetTest::flightsKeepTheOrderOfRecording()
{
    ModelWidget model;
    LogData late = flight(9);
    LogData early = flight(1);
    model.addLogData(late);
    model.addLogData(early);
    model.addLogData(late);
    QCOMPARE(model.getLogData().size(), 3);
    QCOMPARE(numberOf(model.getLogData().at(0)), 9);
    QCOMPARE(numberOf(model.getLogData().at(1)), 1);
    QVERIFY(same(model.getLogData().at(2), late));
}

void ModelWidgetTest::addingAFlightCopiesItAndChangesNothingElse()
{
    ModelWidget model;
    model.setModelFlights(7);
    LogData entry = flight(2);
    model.addLogData(entry);
    entry.notes = u"changed afterwards"_s;
    QVERIFY(same(model.getLogData().constFirst(), flight(2)));
    QCOMPARE(model.getModelFlights(), 7U);
    QVERIFY(model.getLastUpdated().isNull());
    QVERIFY(model.getBatteries().isEmpty());
}

void ModelWidgetTest::aFlightOfTheLogItselfCanBeAddedAgain()
{
    ModelWidget model;
    addFlights(model, 1);
    for (int i = 0; i < 100; ++i)
        model.addLogData(model.getLogData().first());
    QCOMPARE(model.getLogData().size(), 101);
    QVERIFY(same(model.getLogData().constLast(), flight(0)));
}

void ModelWidgetTest::getLogCopiesTheEntryAtAnIndex_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("delivered"); // -1: none, and the output is unchanged

    QTest::newRow("first of three") << 3 << 0 << 0;
    QTest::newRow("last of three") << 3 << 2 << 2;
    QTest::newRow("one past the end") << 3 << 3 << -1;
    QTest::newRow("far past the end") << 3 << INT_MAX << -1;
    QTest::newRow("empty log") << 0 << 0 << -1;
    QTest::newRow("before the beginning") << 3 << -1 << -1;
    QTest::newRow("far before the beginning") << 3 << INT_MIN << -1;
}

void ModelWidgetTest::getLogCopiesTheEntryAtAnIndex()
{
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(int, delivered);
    ModelWidget model;
    addFlights(model, count);

    LogData out;
    QCOMPARE(model.getLog(out, index), delivered >= 0);
    QVERIFY(same(out, delivered >= 0 ? flight(delivered) : LogData()));
}

void ModelWidgetTest::getLogDoesNotMoveTheWalk()
{
    ModelWidget model;
    addFlights(model, 5);
    LogData out;
    QCOMPARE(model.getLatestLog(out), 5);
    QVERIFY(model.getLog(out, 0));
    QVERIFY(!model.getLog(out, 5));
    QVERIFY(model.getPrevLog(out));
    QCOMPARE(numberOf(out), 3);
}

void ModelWidgetTest::theWalkStopsAtBothEnds()
{
    ModelWidget model;
    addFlights(model, 3);
    LogData out;
    QCOMPARE(model.getLatestLog(out), 3);
    QVERIFY(same(out, flight(2)));
    QVERIFY(model.getPrevLog(out));
    QVERIFY(same(out, flight(1)));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!model.getPrevLog(out));
        QVERIFY(same(out, flight(0)));
    }
    QVERIFY(model.getNextLog(out));
    QVERIFY(same(out, flight(1)));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!model.getNextLog(out));
        QVERIFY(same(out, flight(2)));
    }
    QVERIFY(model.getPrevLog(out));
    QCOMPARE(numberOf(out), 1);
}

void ModelWidgetTest::theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 3, 4, 50})
        QTest::addRow("%d flights", count) << count;
}

void ModelWidgetTest::theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose()
{
    QFETCH(int, count);
    ModelWidget model;
    addFlights(model, count);
    LogData out;
    QCOMPARE(model.getLatestLog(out), count);
    QCOMPARE(numberOf(out), count - 1);
    for (int step = 0; step < count + 1; ++step) {
        const int expected = qMax(count - 2 - step, 0);
        QCOMPARE(model.getPrevLog(out), expected > 0);
        QCOMPARE(numberOf(out), expected);
    }
    for (int step = 0; step < count + 1; ++step) {
        const int expected = qMin(step + 1, count - 1);
        QCOMPARE(model.getNextLog(out), expected < count - 1);
        QCOMPARE(numberOf(out), expected);
    }
    QCOMPARE(model.getLatestLog(out), count);
    QCOMPARE(numberOf(out), count - 1);
}

void ModelWidgetTest::theWalkOverAnEmptyLogDeliversNothing()
{
    ModelWidget model;
    LogData out = flight(4);
    QCOMPARE(model.getLatestLog(out), 0);
    QVERIFY(!model.getNextLog(out));
    QVERIFY(!model.getPrevLog(out));
    QVERIFY(same(out, flight(4)));
    addFlights(model, 2);
    QCOMPARE(model.getLatestLog(out), 2);
    QCOMPARE(numberOf(out), 1);
}

void ModelWidgetTest::aStepBeforeTheLatestLogWasAskedForIsSafe()
{
    LogData out;
    ModelWidget forward;
    addFlights(forward, 3);
    QVERIFY(!forward.getNextLog(out));
    QCOMPARE(numberOf(out), 2);

    ModelWidget backward;
    addFlights(backward, 3);
    backward.getPrevLog(out);
    QVERIFY(numberOf(out) >= 0);
}

void ModelWidgetTest::aFlightAddedDuringAWalkAdvancesIt()
{
    ModelWidget model;
    addFlights(model, 3);
    LogData out;
    model.getLatestLog(out);
    model.getPrevLog(out); // at 1
    LogData added = flight(3);
    model.addLogData(added); // at 2
    QVERIFY(!model.getNextLog(out));
    QCOMPARE(numberOf(out), 3);
}

void ModelWidgetTest::aLogCutShortDuringAWalkIsSafe()
{
    ModelWidget model;
    addFlights(model, 5);
    LogData out;
    model.getLatestLog(out);
    model.getLogData().resize(2);
    model.getPrevLog(out);
    QCOMPARE(numberOf(out), 1);
    model.getLogData().clear();
    QVERIFY(!model.getPrevLog(out));
    QVERIFY(!model.getNextLog(out));
    QCOMPARE(numberOf(out), 1);
}

void ModelWidgetTest::theListOfFlightsIsTheRecordsOwn()
{
    ModelWidget model;
    QList<LogData> &log = model.getLogData();
    addFlights(model, 2);
    QCOMPARE(log.size(), 2);
    QCOMPARE(&log, &model.getLogData());
}

void ModelWidgetTest::aBatteryIsAssignedOnce()
{
    ModelWidget model;
    model.addBattery(u"Pack B"_s);
    model.addBattery(u"Pack A"_s);
    model.addBattery(u"Pack B"_s);
    QCOMPARE(model.getBatteries(), (QList<QString>{u"Pack B"_s, u"Pack A"_s}));
}

void ModelWidgetTest::batteriesAreComparedExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("contained");

    QTest::newRow("the same") << "Pack A" << true;
    QTest::newRow("other case") << "pack a" << false;
    QTest::newRow("space behind") << "Pack A " << false;
    QTest::newRow("space before") << " Pack A" << false;
    QTest::newRow("a part") << "Pack" << false;
    QTest::newRow("longer") << "Pack AB" << false;
    QTest::newRow("empty") << "" << false;
}

void ModelWidgetTest::batteriesAreComparedExactly()
{
    QFETCH(QString, name);
    QFETCH(bool, contained);
    ModelWidget model;
    model.addBattery(u"Pack A"_s);
    QCOMPARE(model.containsBattery(name), contained);
    model.addBattery(name);
    QCOMPARE(model.getBatteries().size(), contained ? 1 : 2);
    QVERIFY(model.containsBattery(name));
}

void ModelWidgetTest::removingABatteryRemovesEveryEqualName()
{
    ModelWidget model;
    model.getBatteries() = {u"A"_s, u"B"_s, u"A"_s, u"a"_s};
    model.removeBattery(u"A"_s);
    QCOMPARE(model.getBatteries(), (QList<QString>{u"B"_s, u"a"_s}));
    QVERIFY(!model.containsBattery(u"A"_s));
}

void ModelWidgetTest::removingABatteryThatIsNotAssignedChangesNothing()
{
    ModelWidget model;
    model.removeBattery(u"A"_s);
    QVERIFY(model.getBatteries().isEmpty());
    model.addBattery(u"A"_s);
    model.removeBattery(u"A"_s);
    model.removeBattery(u"A"_s);
    QVERIFY(model.getBatteries().isEmpty());
}

void ModelWidgetTest::aNameOfTheListItselfCanBeRemoved()
{
    ModelWidget model;
    model.getBatteries() = {u"A"_s, u"A"_s, u"B"_s, u"A"_s};
    model.removeBattery(model.getBatteries().first());
    QCOMPARE(model.getBatteries(), QList<QString>{u"B"_s});
    model.addBattery(model.getBatteries().first());
    QCOMPARE(model.getBatteries().size(), 1);
}

QTEST_MAIN(ModelWidgetTest)
#include "tst_modelwidget.moc"
