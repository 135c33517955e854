// SPDX-License-Identifier: GPL-3.0-or-later
// Other names for batteries, models and locations, everywhere at once.
#include "host/data/edits.h"
#include "tests/host/support/plainlogbook.h"

#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class RenamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBatteryIsRenamedInItsModelsToo();
    void ofTwoBatteriesTheChosenOneIsRenamedAlone();
    void aModelIsRenamed();
    void aLocationIsRenamedInAllFlights();
    void ofTwoLocationsTheChosenOneIsRenamedAlone();
    void aLocationThatOnlyFlightsKnowIsRenamed();
    void aNameThatCannotBeIsRefused_data();
    void aNameThatCannotBeIsRefused();
    void theSameNameChangesNothing();
};

void RenamesTest::aBatteryIsRenamedInItsModelsToo()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::renameBattery(catalogue, 1, u"Big one"_s), QString());
    Catalogue meant = logbook();
    meant.batteries[1].name = u"Big one"_s;
    meant.models[0].batteries = QStringList{u"A"_s, u"Big one"_s};
    meant.models[1].batteries = QStringList{u"A"_s, u"Big one"_s};
    QVERIFY(catalogue == meant);
}

void RenamesTest::ofTwoBatteriesTheChosenOneIsRenamedAlone()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].name = u"A"_s;
    Catalogue meant = catalogue;
    QCOMPARE(Edits::renameBattery(catalogue, 2, u"Third"_s), QString());
    meant.batteries[2].name = u"Third"_s;
    QVERIFY(catalogue == meant); // the models keep the first
}

void RenamesTest::aModelIsRenamed()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::renameModel(catalogue, 1, u"Hornet"_s), QString());
    Catalogue meant = logbook();
    meant.models[1].name = u"Hornet"_s;
    QVERIFY(catalogue == meant);
}

void RenamesTest::aLocationIsRenamedInAllFlights()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::renameLocation(catalogue, 0, u"Club field"_s), QString());
    Catalogue meant = logbook();
    meant.locations[0] = u"Club field"_s;
    meant.models[0].log[0].location = u"Club field"_s;
    meant.models[0].log[2].location = u"Club field"_s;
    meant.models[1].log[0].location = u"Club field"_s;
    QVERIFY(catalogue == meant);
}

void RenamesTest::ofTwoLocationsTheChosenOneIsRenamedAlone()
{
    Catalogue catalogue = logbook();
    catalogue.locations.append(u"Meadow"_s);
    QCOMPARE(Edits::renameLocation(catalogue, 2, u"Second meadow"_s), QString());
    Catalogue meant = logbook();
    meant.locations.append(u"Second meadow"_s);
    QVERIFY(catalogue == meant);
}

void RenamesTest::aLocationThatOnlyFlightsKnowIsRenamed()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::locationNames(catalogue), (QStringList{u"Meadow"_s, u"Hill"_s, u"Beach"_s}));
    QCOMPARE(Edits::renameLocation(catalogue, 2, u"Long beach"_s), QString());
    Catalogue meant = logbook();
    meant.models[1].log[1].location = u"Long beach"_s;
    QVERIFY(catalogue == meant);
}

void RenamesTest::aNameThatCannotBeIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << u" \t"_s;
    QTest::newRow("a control character") << u"A\u0001"_s;
    QTest::newRow("taken") << u"taken"_s;
}

void RenamesTest::aNameThatCannotBeIsRefused()
{
    QFETCH(QString, name);
    Catalogue catalogue = logbook();
    catalogue.batteries[2].name = u"taken"_s;
    catalogue.models[1].name = u"taken"_s;
    catalogue.models[1].log[1].location = u"taken"_s;
    const Catalogue before = catalogue;
    QVERIFY(Edits::renameBattery(catalogue, 0, name).endsWith(u'.'));
    QVERIFY(Edits::renameModel(catalogue, 0, name).endsWith(u'.'));
    QVERIFY(Edits::renameLocation(catalogue, 0, name).endsWith(u'.'));
    QVERIFY(catalogue == before);
}

void RenamesTest::theSameNameChangesNothing()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[1].name = u"A"_s; // even where another has it
    const Catalogue before = catalogue;
    QCOMPARE(Edits::renameBattery(catalogue, 0, u"A"_s), QString());
    QCOMPARE(Edits::renameModel(catalogue, 0, u"Skylark"_s), QString());
    QCOMPARE(Edits::renameLocation(catalogue, 0, u"Meadow"_s), QString());
    QVERIFY(catalogue == before);
}

QTEST_MAIN(RenamesTest)
#include "tst_renames.moc"
