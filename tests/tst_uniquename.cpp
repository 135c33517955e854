// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/uniquename.h"

#include <QTest>

class UniqueNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameThatIsTakenGetsACounter_data();
    void aNameThatIsTakenGetsACounter();
    void theFirstNameIsNotComparedAgainAfterARenameOnPurpose();
};

void UniqueNameTest::aNameThatIsTakenGetsACounter_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no names") << "Pack" << QStringList{} << "Pack";
    QTest::newRow("other names") << "Pack" << QStringList{"A", "B"} << "Pack";
    QTest::newRow("taken, alone") << "Pack" << QStringList{"Pack"} << "Pack_1";
    QTest::newRow("taken twice over") << "Pack" << QStringList{"Pack", "Pack_1"} << "Pack_2";
    QTest::newRow("taken in the middle") << "Pack" << QStringList{"A", "Pack", "B"} << "Pack_1";
    QTest::newRow("renamed back over an earlier name")
        << "Pack" << QStringList{"A", "Pack_1", "Pack"} << "Pack_2";
    QTest::newRow("counter goes on") << "P" << QStringList{"P", "P_2", "P_1", "P_3"} << "P_4";
    QTest::newRow("the counter may pass nine")
        << "P" << QStringList{"P", "P_1", "P_2", "P_3", "P_4", "P_5", "P_6", "P_7", "P_8", "P_9"} << "P_10";
    QTest::newRow("the suffix is put behind the base as typed")
        << "P_1" << QStringList{"P", "P_1"} << "P_1_1";
    QTest::newRow("letter case matters") << "pack" << QStringList{"Pack", "PACK"} << "pack";
    QTest::newRow("blanks matter") << "Pack " << QStringList{"Pack"} << "Pack ";
    QTest::newRow("empty, unique") << "" << QStringList{"Pack"} << "";
    QTest::newRow("empty, taken") << "" << QStringList{""} << "_1";
}

void UniqueNameTest::aNameThatIsTakenGetsACounter()
{
    QFETCH(QString, base);
    QFETCH(QStringList, existing);
    QTEST(uniqueName(base, existing), "expected");
}

void UniqueNameTest::theFirstNameIsNotComparedAgainAfterARenameOnPurpose()
{
    QCOMPARE(
        uniqueName(QStringLiteral("MyBattery"), {QStringLiteral("MyBattery_1"), QStringLiteral("MyBattery")}),
        QStringLiteral("MyBattery_1"));
    QCOMPARE(
        uniqueName(QStringLiteral("P"), {QStringLiteral("P_2"), QStringLiteral("P"), QStringLiteral("P_1")}),
        QStringLiteral("P_2"));
}

QTEST_APPLESS_MAIN(UniqueNameTest)
#include "tst_uniquename.moc"
