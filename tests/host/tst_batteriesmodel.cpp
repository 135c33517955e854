// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batteriesmodel.h"

#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Host::BatteriesModel;
using Host::Battery;
using Host::BatteryFigures;

class BatteriesModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFigureHasItsCell_data();
    void everyFigureHasItsCell();
    void whatIsMissingIsEmptyAndSaysWhy_data();
    void whatIsMissingIsEmptyAndSaysWhy();
    void everyTitleIsExplained();
    void numbersAreSortedAsNumbers();
    void numbersAreWrittenAsTheLocaleDoes();
    void figuresAreReadOutWithTheirNames();

private:
    static BatteryFigures hardWorked();
    static QString shown(const BatteryFigures &figures, int column, const Battery &battery = {});
    static QString toolTip(const BatteryFigures &figures, int column, const Battery &battery);
};

void BatteriesModelTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

BatteryFigures BatteriesModelTest::hardWorked()
{
    BatteryFigures figures;
    figures.name = u"Pack A"_s;
    figures.discharges = 40;
    figures.counted = 12;
    figures.dischargedTotal = 12'400;
    figures.dischargedGuessed = 3600;
    figures.equivalentFullCycles = 6.249;
    figures.medianDepth = 0.704;
    figures.maxDepth = 0.875;
    figures.maxLoad = 29.26;
    figures.ageDays = 620;
    figures.daysSinceUse = 12;
    figures.flights = 39;
    figures.minutes = 1234.5;
    figures.chargePerMinute = 75.4;
    return figures;
}

QString BatteriesModelTest::shown(const BatteryFigures &figures, int column, const Battery &battery)
{
    BatteriesModel model;
    model.setFigures({figures}, {battery});
    return model.index(0, column).data().toString();
}

QString BatteriesModelTest::toolTip(const BatteryFigures &figures, int column, const Battery &battery)
{
    BatteriesModel model;
    model.setFigures({figures}, {battery});
    return model.index(0, column).data(Qt::ToolTipRole).toString();
}

void BatteriesModelTest::everyFigureHasItsCell_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const auto add = [](const QString &title, const QString &text) {
        QTest::newRow(qPrintable(title)) << title << text;
    };
    add(u"Battery"_s, u"Pack A"_s);
    add(u"Discharges"_s, u"40"_s);
    add(u"Measured or entered"_s, u"12 of 40"_s);
    add(u"Full cycles"_s, u"6.2"_s);
    add(u"Median depth (%)"_s, u"70"_s);
    add(u"Deepest (%)"_s, u"88"_s);
    add(u"Highest load (C)"_s, u"29.3"_s);
    add(u"Age (years)"_s, u"1.7"_s);
    add(u"Days since use"_s, u"12"_s);
    add(u"Flights"_s, u"39"_s);
    add(u"Minutes"_s, u"1,234.5"_s);
    add(u"mAh per minute"_s, u"75"_s);
    add(u"Total (mAh)"_s, u"12,400 (3,600 guessed)"_s);
}

void BatteriesModelTest::everyFigureHasItsCell()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    const BatteriesModel model;
    int column = 0;
    while (column < model.columnCount() && model.headerData(column, Qt::Horizontal).toString() != title)
        ++column;
    QCOMPARE(shown(hardWorked(), column), text);
    // Nothing of it guessed, everything counted: there is nothing to remark on.
    BatteryFigures clear = hardWorked();
    clear.counted = clear.discharges;
    clear.dischargedGuessed = 0;
    if (column == BatteriesModel::Counted)
        QCOMPARE(shown(clear, column), u"40"_s);
    if (column == BatteriesModel::Total)
        QCOMPARE(shown(clear, column), u"12,400"_s);
}

void BatteriesModelTest::whatIsMissingIsEmptyAndSaysWhy_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Battery>("battery");
    QTest::addColumn<int>("discharges");
    QTest::addColumn<int>("counted");
    QTest::addColumn<QString>("reason");
    Battery known;
    known.capacity = 2200;
    known.purchase = QDate(2999, 1, 1);
    known.lastUse = QDateTime(QDate(2999, 1, 1), QTime(12, 0));
    const QString never = u"was not discharged yet"_s;
    const QString guessed = u"what was guessed does not count"_s;
    const auto add = [](const char *name, int column, const Battery &battery, int discharges, int counted,
                        const QString &reason) {
        QTest::newRow(name) << column << battery << discharges << counted << reason;
    };
    add("age without a purchase", BatteriesModel::Age, {}, 1, 1, u"No date of purchase was entered"_s);
    add("bought tomorrow", BatteriesModel::Age, known, 1, 1, u"still to come"_s);
    add("never used", BatteriesModel::SinceUse, {}, 0, 0, u"was not used yet"_s);
    add("used tomorrow", BatteriesModel::SinceUse, known, 0, 0, u"No use before today"_s);
    add("cycles without a capacity", BatteriesModel::FullCycles, {}, 1, 1, u"capacity of the battery"_s);
    add("depth without a capacity", BatteriesModel::MedianDepth, {}, 1, 1, u"capacity of the battery"_s);
    add("depth of a new one", BatteriesModel::MaxDepth, known, 0, 0, never);
    add("depth of guesses", BatteriesModel::MaxDepth, known, 3, 0, guessed);
    add("depth without a value", BatteriesModel::MedianDepth, known, 3, 2, u"No used capacity"_s);
    add("load of guesses", BatteriesModel::MaxLoad, known, 3, 0, guessed);
    add("load without a current", BatteriesModel::MaxLoad, known, 3, 1, u"No current was"_s);
    add("mAh per minute of a new one", BatteriesModel::ChargePerMinute, known, 0, 0, never);
    add("mAh per minute of guesses", BatteriesModel::ChargePerMinute, {}, 3, 0, guessed);
    add("mAh per minute without flights", BatteriesModel::ChargePerMinute, {}, 3, 1,
        u"flight with a duration"_s);
}

void BatteriesModelTest::whatIsMissingIsEmptyAndSaysWhy()
{
    QFETCH(int, column);
    QFETCH(Battery, battery);
    QFETCH(int, discharges);
    QFETCH(int, counted);
    QFETCH(QString, reason);
    BatteryFigures figures;
    figures.discharges = discharges;
    figures.counted = counted;
    QCOMPARE(shown(figures, column, battery), QString());
    QVERIFY2(toolTip(figures, column, battery).contains(reason),
             qPrintable(toolTip(figures, column, battery)));
}

void BatteriesModelTest::everyTitleIsExplained()
{
    const BatteriesModel model;
    QStringList explanations;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString text = model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
        QVERIFY2(text.endsWith(u'.') && text.contains(u' '), qPrintable(text));
        explanations.append(text);
    }
    QCOMPARE(explanations.removeDuplicates(), 0);
}

void BatteriesModelTest::numbersAreSortedAsNumbers()
{
    BatteriesModel model;
    model.setFigures({hardWorked()}, {Battery()});
    for (int column = 1; column < model.columnCount(); ++column)
        QVERIFY(model.index(0, column).data(BatteriesModel::SortRole).typeId() != QMetaType::QString);
}

void BatteriesModelTest::numbersAreWrittenAsTheLocaleDoes()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QString minutes = shown(hardWorked(), BatteriesModel::Minutes);
    QLocale::setDefault(QLocale(QLocale::English));
    QCOMPARE(minutes, u"1.234,5"_s);
}

void BatteriesModelTest::figuresAreReadOutWithTheirNames()
{
    BatteriesModel model;
    model.setFigures({hardWorked()}, {Battery()});
    const auto spoken = [&model](int column) {
        return model.index(0, column).data(Qt::AccessibleTextRole).toString();
    };
    QCOMPARE(spoken(BatteriesModel::Counted), u"12 of 40 measured or entered"_s);
    QCOMPARE(spoken(BatteriesModel::FullCycles), u"Full cycles: 6.2"_s);
    QCOMPARE(spoken(BatteriesModel::Age), u"620 days old"_s);
}

QTEST_GUILESS_MAIN(BatteriesModelTest)
#include "tst_batteriesmodel.moc"
