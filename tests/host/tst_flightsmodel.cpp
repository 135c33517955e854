// SPDX-License-Identifier: GPL-3.0-or-later
// The flights as a table shows them.
#include "host/window/flightsmodel.h"
#include "tests/host/support/plainlogbook.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Host::FlightPlace)

class FlightsModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAProperModel();
    void eachFlightIsARowInTheOrderOfTheFile();
    void severalBatteriesStandInOneCell();
    void whatIsNotKnownIsEmpty();
    void valuesAreSortedAsWhatTheyAre();
    void namesAreSortedAsPeopleDo();
    void guessedFiguresAreSlantedAndSaySo();
    void measuredFiguresAreBoldAndSaySo();
    void placesAndRowsBelongTogether();
    void onlyWhatCanBeEditedCan();
    void anEditIsAskedForAndChangesNothing();
    void hundredThousandsOfFlightsAreThere();

private:
    static std::shared_ptr<const Catalogue> shared(const Catalogue &catalogue)
    {
        return std::make_shared<const Catalogue>(catalogue);
    }
    static QString text(const FlightsModel &model, int row, int column, int role = Qt::DisplayRole)
    {
        return model.index(row, column).data(role).toString();
    }
};

void FlightsModelTest::itIsAProperModel()
{
    FlightsModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    model.setCatalogue(shared(logbook()));
    QCOMPARE(model.rowCount(), 5);
    model.setCatalogue(shared({}));
    QCOMPARE(model.rowCount(), 0);
    model.setCatalogue(nullptr);
    QCOMPARE(model.columnCount(), 9);
}

void FlightsModelTest::eachFlightIsARowInTheOrderOfTheFile()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    const QStringList first{u"2026-05-03 09:00:00"_s,
                            u"Skylark"_s,
                            u"A"_s,
                            u"00:06:30"_s,
                            u"1,500"_s,
                            u"30.00"_s,
                            u"Meadow"_s,
                            u"18"_s,
                            u"calm"_s};
    for (int column = 0; column < FlightsModel::ColumnCount; ++column) {
        QCOMPARE(text(model, 0, column), first.at(column));
        QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
    }
    QCOMPARE(text(model, 3, FlightsModel::ModelName), u"Firebrand"_s);
}

void FlightsModelTest::severalBatteriesStandInOneCell()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    QCOMPARE(text(model, 1, FlightsModel::Batteries), u"A; B"_s);
    QCOMPARE(text(model, 1, FlightsModel::Discharged), u"1,600; 1,650"_s);
    QCOMPARE(text(model, 1, FlightsModel::Current), u"31.00; 31.50"_s);
    QCOMPARE(model.sortKey(1, FlightsModel::Discharged), 3250);
    QCOMPARE(model.sortKey(1, FlightsModel::Current), 3150);
}

void FlightsModelTest::whatIsNotKnownIsEmpty()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log[2].duration = QTime();
    FlightsModel model;
    model.setCatalogue(shared(catalogue));
    QCOMPARE(text(model, 2, FlightsModel::Duration), QString());
    QCOMPARE(text(model, 2, FlightsModel::Batteries), QString());
    QCOMPARE(text(model, 2, FlightsModel::Discharged), QString());
    QVERIFY(text(model, 2, FlightsModel::Discharged, Qt::AccessibleTextRole).contains(u"no discharge"_s));
    QCOMPARE(text(model, 4, FlightsModel::Time), QString());
}

void FlightsModelTest::valuesAreSortedAsWhatTheyAre()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    const auto value = [&](int column) { return model.index(0, column).data(FlightsModel::SortRole); };
    QCOMPARE(value(FlightsModel::Time), QVariant(at(9, 0)));
    QCOMPARE(value(FlightsModel::Duration), QVariant(QTime(0, 6, 30)));
    QCOMPARE(value(FlightsModel::Discharged), QVariant(1500LL));
    QCOMPARE(value(FlightsModel::Current), QVariant(3000LL));
    QCOMPARE(value(FlightsModel::Temperature), QVariant(18));
    QVERIFY(model.sortKey(0, FlightsModel::Time) < model.sortKey(1, FlightsModel::Time));
    QVERIFY(model.sortKey(4, FlightsModel::Time) < model.sortKey(0, FlightsModel::Time)); // without a time
    QVERIFY(model.sortKey(2, FlightsModel::Discharged) < 0);
}

void FlightsModelTest::namesAreSortedAsPeopleDo()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    Catalogue catalogue;
    for (const QString &name : {u"heli 10"_s, u"Heli 2"_s, u"Ähre"_s, u"Zorn"_s, u"Heli 2"_s})
        catalogue.models.append(model(name, {}, {flight(at(9, 0))}));
    FlightsModel model;
    model.setCatalogue(shared(catalogue));
    const auto key = [&](int row) { return model.sortKey(row, FlightsModel::ModelName); };
    QVERIFY(key(2) < key(1));
    QVERIFY(key(1) < key(0));
    QVERIFY(key(0) < key(3));
    QCOMPARE(key(1), key(4));
    QLocale::setDefault(QLocale::c());
}

void FlightsModelTest::guessedFiguresAreSlantedAndSaySo()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    const int guessed = 3; // 80 % of 2,200 mAh, and 25 C
    for (const auto column : {FlightsModel::Discharged, FlightsModel::Current}) {
        QVERIFY(model.index(guessed, column).data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(text(model, guessed, column, Qt::ToolTipRole).startsWith(u"guessed"_s));
        QVERIFY(text(model, guessed, column, Qt::AccessibleTextRole).contains(u", guessed"_s));
        QVERIFY(!model.index(0, column).data(Qt::FontRole).isValid());
        QCOMPARE(text(model, 0, column, Qt::ToolTipRole), u"entered"_s);
    }
    QVERIFY(!model.index(guessed, FlightsModel::Notes).data(Qt::FontRole).isValid());
}

void FlightsModelTest::measuredFiguresAreBoldAndSaySo()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges[0].isMeasured = true;
    FlightsModel model;
    model.setCatalogue(shared(catalogue));
    const QFont font = model.index(0, FlightsModel::Current).data(Qt::FontRole).value<QFont>();
    QVERIFY(font.bold() && !font.italic());
    QVERIFY(text(model, 0, FlightsModel::Current, Qt::AccessibleTextRole).contains(u"measured"_s));
}

void FlightsModelTest::placesAndRowsBelongTogether()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    for (int row = 0; row < model.rowCount(); ++row)
        QCOMPARE(model.rowOf(model.placeOf(row)), row);
    QCOMPARE(model.placeOf(4), (FlightPlace{1, 1}));
    QCOMPARE(model.rowOf({0, 3}), -1);
    QCOMPARE(model.rowOf({2, 0}), -1);
    QCOMPARE(model.rowOf({-1, 0}), -1);
    QCOMPARE(model.dischargesOf(1), (QList<DischargePlace>{{0, 1}, {1, 0}}));
}

void FlightsModelTest::onlyWhatCanBeEditedCan()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    const auto isEditable = [&](int row, int column) {
        return model.flags(model.index(row, column)).testFlag(Qt::ItemIsEditable);
    };
    for (int column = 0; column < FlightsModel::ColumnCount; ++column)
        QVERIFY(isEditable(0, column));
    QVERIFY(!isEditable(1, FlightsModel::Batteries)); // which of the two is not said
    QVERIFY(isEditable(1, FlightsModel::Discharged));
    QVERIFY(!isEditable(2, FlightsModel::Discharged));
    model.setEditable(false);
    QVERIFY(!isEditable(0, FlightsModel::Notes));
}

void FlightsModelTest::anEditIsAskedForAndChangesNothing()
{
    FlightsModel model;
    model.setCatalogue(shared(logbook()));
    QSignalSpy asked(&model, &FlightsModel::editRequested);
    QVERIFY(!model.setData(model.index(3, FlightsModel::Notes), u"windy"_s, Qt::EditRole));
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.at(0).at(0).value<FlightPlace>(), (FlightPlace{1, 0}));
    QCOMPARE(asked.at(0).at(1).toInt(), int(FlightsModel::Notes));
    QCOMPARE(asked.at(0).at(2).toString(), u"windy"_s);
    QCOMPARE(text(model, 3, FlightsModel::Notes), u"calm"_s);
}

void FlightsModelTest::hundredThousandsOfFlightsAreThere()
{
    constexpr int Many = 300'000;
    // In a zone without summer time a newer Qt looks long for one: that is no matter of this test.
    const QDateTime first(at(9, 0).date(), at(9, 0).time(), Qt::UTC);
    Catalogue catalogue = logbook();
    for (int i = 0; i < Many; ++i) {
        catalogue.models[0].log.append(flight(first.addSecs(i + 100'000LL)));
        catalogue.batteries[i % 3].discharges.append({first.addSecs(i + 100'000LL), 1, 1});
    }
    FlightsModel model;
    model.setCatalogue(shared(catalogue));
    QCOMPARE(model.rowCount(), Many + 5);
    QCOMPARE(text(model, Many + 2, FlightsModel::Batteries), u"C"_s);
    QCOMPARE(text(model, Many + 3, FlightsModel::Batteries), u"B"_s);
}

QTEST_MAIN(FlightsModelTest)
#include "tst_flightsmodel.moc"
