// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/modelwidget.h"
#include "tests/support/warnings.h"

#include <QMetaType>
#include <QSignalSpy>
#include <QTest>

#include <climits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

class ModelWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewModelIsEmpty();
    void settersStoreWhatTheyAreGiven();
    void settersTakeAnyValueUnchanged();
    void nothingEmitsDataChanged();
    void theMetaTypeSystemCreatesAndDestroysAModel();
    void theOnlySignalIsDataChangedAndThereAreNoSlots();
    void aModelBelongsToItsParentAndShowsNothing();
    void aBatteryIsAssignedOnce();
    void batteriesAreComparedExactly_data();
    void batteriesAreComparedExactly();
    void removingABatteryRemovesEveryEqualName();
    void removingABatteryThatIsNotAssignedChangesNothing();
    void aNameOfTheListItselfCanBeRemoved();
};

void ModelWidgetTest::init()
{
    Test::failOnWarnings();
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
    LogData flight;
    model.addLogData(flight);
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
