// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologcolumns.h"
#include "host/exchange/radiologheader.h"
#include "host/exchange/radiologrow.h"
#include "tests/host/support/readlog.h"

#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace Host;

class RadioLogColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstKnownColumnThatSaysSomethingIsRead_data();
    void theFirstKnownColumnThatSaysSomethingIsRead();
    void unitsAreConverted();
    void bothHalvesOfARedundantSupplyAreAdded();
    void aChosenMappingIsReadByName();
    void whatWasChosenCountsBeforeTheRule_data();
    void whatWasChosenCountsBeforeTheRule();
    void unitsOfChosenColumnsAreConverted();
    void aChoiceIsForItsHeaderOnly();
    void whatMustBeChosenComesWithSamples();
    void aColumnMayBeWhatItsUnitSays();
    void aMappingIsNeededForUnknownColumnsOnly_data();
    void aMappingIsNeededForUnknownColumnsOnly();
    void theKeyIsThatOfTheHeader();
    void aHeaderIsSplitAtItsUnits_data();
    void aHeaderIsSplitAtItsUnits();
    void aHeaderBeginsWithDateAndTime_data();
    void aHeaderBeginsWithDateAndTime();
    void aUnitStandsInTheLastBrackets();
    void fieldsAreSplitAtCommasOutsideQuotes_data();
    void fieldsAreSplitAtCommasOutsideQuotes();
    void numbersHaveAPoint_data();
    void numbersHaveAPoint();

private:
    static RadioLog logOf(const QByteArray &sensors, const QList<QByteArray> &rows,
                          const ReadOptions &options = {});
    /** As it is read by the columns that the user chose for its header. */
    static RadioLog logBy(const ColumnMapping &chosen, const QByteArray &sensors,
                          const QList<QByteArray> &rows);
};

RadioLog RadioLogColumnsTest::logOf(const QByteArray &sensors, const QList<QByteArray> &rows,
                                    const ReadOptions &options)
{
    QByteArray bytes = "Date,Time," + sensors + ",Rud,TxBat(V)\n";
    int second = 0;
    for (const QByteArray &row : rows)
        bytes += "2026-05-01,14:00:" + QByteArray::number(second++).rightJustified(2, '0') + "," + row +
                 ",0,7.9\n";
    return MadeLogs::readLog(bytes, options);
}

RadioLog RadioLogColumnsTest::logBy(const ColumnMapping &chosen, const QByteArray &sensors,
                                    const QList<QByteArray> &rows)
{
    ReadOptions options;
    options.mappings = {{logOf(sensors, rows).headerKey, chosen}};
    return logOf(sensors, rows, options);
}

void RadioLogColumnsTest::theFirstKnownColumnThatSaysSomethingIsRead_data()
{
    QTest::addColumn<QByteArray>("sensors");
    QTest::addColumn<QList<QByteArray>>("rows");
    QTest::addColumn<QString>("columns");
    using Rows = QList<QByteArray>;
    const auto add = [](const char *name, const char *sensors, const Rows &rows, const char *columns) {
        QTest::newRow(name) << QByteArray(sensors) << rows << QString::fromLatin1(columns);
    };
    add("order of the names, not of the file", "EscC(mAh),mAh(mAh),Capa(mAh)", {"0,0,0", "3,2,1"},
        "Capa(mAh)||");
    add("zero at first", "Capa(mAh),mAh(mAh)", {"0,5", "0,6", "0,7", "1,8"}, "Capa(mAh)||");
    add("all zero", "Capa(mAh),mAh(mAh)", {"0,5", "0,6"}, "mAh(mAh)||");
    add("no name says anything", "Capa(mAh),mAh(mAh)", {"0,0"}, "||");
    add("others", "Cnsp(mAh),EscA(A),EscV(V)", {"1,1,11"}, "Cnsp(mAh)|EscA(A)|EscV(V)");
    add("old ones", "Current,Consumption,Vfas", {"1,1,11"}, "Consumption|Current|Vfas");
    add("capitals", "CURR(A),capa(MAH),vbat(V)", {"1,1,11"}, "capa(MAH)|CURR(A)|vbat(V)");
    add("cells", "Cels(V),ECUR(A)", {"11,1"}, "|ECUR(A)|Cels(V)");
    add("absurd values say nothing", "Curr(A),EscA(A)", {"162752521.4,1", "0,2"}, "|EscA(A)|");
    add("absurd volts say nothing", "VFAS(V),Vbat(V)", {"9999,0", "0,11"}, "||Vbat(V)");
    add("a blank before the unit", "Curr (A)", {"5"}, "|Curr (A)|");
    add("more than half of a pair's label", "RB1Amp(A),RB2Amp(A)", {"1,1"}, "||");
    add("any counter", "Used(mAh),Curr(A)", {"1,1", "5,1"}, "Used(mAh)|Curr(A)|");
    add("falls to 0", "Used(mAh)", {"1", "5", "0", "1", "2"}, "Used(mAh)||");
    add("falls", "Left(mAh),Used(mAh)", {"900,1", "800,2"}, "Used(mAh)||");
    add("falls at the end", "Left(mAh)", {"1", "2", "3", "1"}, "||");
    add("never this one", "BCur(mAh)", {"1", "5"}, "||");
    add("the receiver's own voltage", "RxBt(V)", {"5.5"}, "||");
    add("the battery at the receiver", "RxBt(V)", {"5.2", "5.6"}, "||RxBt(V)");
    add("the receiver anywhere", "RSSI(dB),RxBt(V)", {"90,7.4"}, "||RxBt(V)");
    add("another instead of the receiver's", "RxBt(V),VFAS(V)", {"7.4,11"}, "||VFAS(V)");
    add("the receiver's instead of nothing", "RxBt(V),VFAS(V)", {"7.4,0"}, "||RxBt(V)");
    add("equal names", "Curr(A),Curr(A)", {"0,1", "0,2"}, "|Curr(A)|");
}

void RadioLogColumnsTest::theFirstKnownColumnThatSaysSomethingIsRead()
{
    QFETCH(QByteArray, sensors);
    QFETCH(QList<QByteArray>, rows);
    QFETCH(QString, columns);
    const ColumnMapping read = logOf(sensors, rows).mapping;
    QCOMPARE(QStringList({read.consumed, read.current, read.volts}).join(u'|'), columns);
}

void RadioLogColumnsTest::unitsAreConverted()
{
    const QList<QByteArray> rows{"5000,11", "5000,11", "5000,11"};
    QCOMPARE(logOf("Curr(mA),VFAS(V)", rows).sessions.first().maxCurrent, 5);
    QCOMPARE(logOf("Curr(mA),VFAS(V)", rows).mapping.current, u"Curr(mA)"_s);
}

void RadioLogColumnsTest::bothHalvesOfARedundantSupplyAreAdded()
{
    const QList<QByteArray> rows{"1,2,10,20", "1,2,10,21", "1,2,12,22"};
    const Session session = logOf("RB1A(A),RB2A(A),RB1C(mAh),RB2C(mAh)", rows).sessions.first();
    QCOMPARE(session.maxCurrent, 3);
    QCOMPARE(session.counterFirst, 30);
    QCOMPARE(session.counterLast, 34);
    QCOMPARE(logOf("RB1A(A)", {"4", "4", "4"}).sessions.first().maxCurrent, 4);
}

void RadioLogColumnsTest::aChosenMappingIsReadByName()
{
    const QList<QByteArray> rows{"1,20,12.1,4", "1,20,12.2,5", "1,20,12.3,7"};
    const ColumnMapping chosen{u"Drawn"_s, u"Amps(A)"_s, u"Pack(V)"_s};
    const RadioLog log = logBy(chosen, "Curr(A),Amps(A),Pack(V),Drawn", rows);
    QCOMPARE(log.mapping, chosen);
    QVERIFY(!log.needsMapping);
    QCOMPARE(log.sessions.first().maxCurrent, 20);
    QCOMPARE(log.sessions.first().counterLast, 7);
    QCOMPARE(log.sessions.first().maxVoltage, 12.3);
    QCOMPARE(log.columns, QStringList({u"Curr(A)"_s, u"Amps(A)"_s, u"Pack(V)"_s, u"Drawn"_s}));
}

void RadioLogColumnsTest::whatWasChosenCountsBeforeTheRule_data()
{
    QTest::addColumn<ColumnMapping>("chosen");
    QTest::addColumn<QByteArray>("row"); // of "Drawn(mAh),Amps(A),VFAS(V),Capa(mAh),RxBt(V)"
    QTest::addColumn<ColumnMapping>("read");
    const QString known = u"Capa(mAh)"_s;
    const QString drawn = u"Drawn(mAh)"_s;
    const QString amps = u"Amps(A)"_s;
    const QString volts = u"VFAS(V)"_s;
    const QByteArray full("1,20,12.1,4,7.4");
    QTest::newRow("another") << ColumnMapping{drawn, amps, volts} << full
                             << ColumnMapping{drawn, amps, volts};
    QTest::newRow("none of each") << ColumnMapping{} << full << ColumnMapping{};
    QTest::newRow("no consumption") << ColumnMapping{{}, amps, {}} << full << ColumnMapping{{}, amps, {}};
    QTest::newRow("all zero") << ColumnMapping{drawn, amps, volts} << QByteArray("0,20,12.1,4,7.4")
                              << ColumnMapping{known, amps, volts};
    QTest::newRow("one that is not there")
        << ColumnMapping{u"Gone(mAh)"_s, amps, u"Gone(V)"_s} << full << ColumnMapping{known, amps, volts};
}

void RadioLogColumnsTest::whatWasChosenCountsBeforeTheRule()
{
    QFETCH(ColumnMapping, chosen);
    QFETCH(QByteArray, row);
    const RadioLog log = logBy(chosen, "Drawn(mAh),Amps(A),VFAS(V),Capa(mAh),RxBt(V)", {row, row, row});
    QTEST(log.mapping, "read");
    QVERIFY(!log.needsMapping);
}

void RadioLogColumnsTest::unitsOfChosenColumnsAreConverted()
{
    const QList<QByteArray> rows{"1.5,20000,12100", "1.5,20000,12100", "1.75,20000,12100"};
    const ColumnMapping chosen{u"Drawn(Ah)"_s, u"Motor(mA)"_s, u"Pack(mV)"_s};
    const Session session = logBy(chosen, "Drawn(Ah),Motor(mA),Pack(mV)", rows).sessions.first();
    QCOMPARE(session.counterFirst, 1500);
    QCOMPARE(session.counterLast, 1750);
    QCOMPARE(session.maxCurrent, 20);
    QCOMPARE(session.maxVoltage, 12.1);
}

void RadioLogColumnsTest::aChoiceIsForItsHeaderOnly()
{
    ReadOptions options;
    options.mappings = {{logOf("Amps(A)", {"1"}).headerKey, {{}, u"Amps(A)"_s, {}}}};
    QCOMPARE(logOf("Amps(A)", {"1"}, options).mapping.current, u"Amps(A)"_s);
    QCOMPARE(logOf("Amps(A),RSSI(dB)", {"1,80"}, options).mapping.current, QString());
    QVERIFY(logOf("Amps(A),RSSI(dB)", {"1,80"}, options).needsMapping);
}

/** From all over the file, of the columns that can be chosen. */
void RadioLogColumnsTest::whatMustBeChosenComesWithSamples()
{
    QList<QByteArray> rows;
    for (int i = 0; i < 50; ++i)
        rows.append("FM" + QByteArray::number(i) + "," + QByteArray::number(10 + i) + ".5");
    const RadioLog log = logOf("FM,Amps(A)", rows);
    QCOMPARE(log.columns, QStringList({u"FM"_s, u"Amps(A)"_s}));
    QCOMPARE(log.samples.size(), 5);
    QCOMPARE(log.samples.first(), QStringList({u"FM0"_s, u"10.5"_s}));
    QVERIFY(log.samples.last().last().toDouble() > 45);
    for (const QStringList &sample : log.samples)
        QCOMPARE(sample.size(), 2);
    QCOMPARE(logOf("FM,Amps(A)", {"FM0,1", "FM0,2"}).samples.size(), 2);
    QVERIFY(logOf("FM,Curr(A),Capa(mAh)", {"FM0,1,2"}).samples.isEmpty());
}

void RadioLogColumnsTest::aColumnMayBeWhatItsUnitSays()
{
    const auto kinds = [](const QString &column) {
        QString text;
        for (const LogColumns::Kind kind : {LogColumns::Consumed, LogColumns::Current, LogColumns::Volts})
            text += LogColumns::mayBe(kind, column) ? u'x' : u'-';
        return text;
    };
    QCOMPARE(kinds(u"a(mAh)"_s), u"x--"_s);
    QCOMPARE(kinds(u"a(Ah)"_s), u"x--"_s);
    QCOMPARE(kinds(u"a(MA)"_s), u"-x-"_s);
    QCOMPARE(kinds(u"a(A)"_s), u"-x-"_s);
    QCOMPARE(kinds(u"a(V)"_s), u"--x"_s);
    QCOMPARE(kinds(u"a(mV)"_s), u"--x"_s);
    QCOMPARE(kinds(u"a(%)"_s), u"---"_s);
    QCOMPARE(kinds(u"a"_s), u"xxx"_s);
}

void RadioLogColumnsTest::aMappingIsNeededForUnknownColumnsOnly_data()
{
    QTest::addColumn<QByteArray>("sensors");
    QTest::addColumn<bool>("needed");
    QTest::newRow("known") << QByteArray("RSSI(dB),VFAS(V),Curr(A),Capa(mAh)") << false;
    QTest::newRow("no current at all") << QByteArray("Alt(m),VSpd(m/s),RSSI(dB),RxBt(V),TQly") << false;
    QTest::newRow("an unknown current") << QByteArray("RSSI(dB),Capa(mAh),Amps(A)") << true;
    QTest::newRow("an unknown current in mA") << QByteArray("RSSI(dB),Amps(mA)") << true;
    QTest::newRow("an unknown counter") << QByteArray("RSSI(dB),Used(mAh),Curr(A)") << true;
    QTest::newRow("the receiver's own battery") << QByteArray("RSSI(dB),BCur(mAh),Curr(A)") << false;
    QTest::newRow("something without a unit") << QByteArray("RSSI(dB),Motor") << false;
    QTest::newRow("no units anywhere") << QByteArray("Pack,Motor") << true;
    QTest::newRow("old names without units") << QByteArray("A1,Current,Consumption") << false;
}

void RadioLogColumnsTest::aMappingIsNeededForUnknownColumnsOnly()
{
    QFETCH(QByteArray, sensors);
    QFETCH(bool, needed);
    const QByteArray row = QByteArray("1,").repeated(sensors.count(',')) + "1";
    QCOMPARE(logOf(sensors, {row, row}).needsMapping, needed);
}

void RadioLogColumnsTest::theKeyIsThatOfTheHeader()
{
    const QString key = logOf("Curr(A)", {"1"}).headerKey;
    QCOMPARE(logOf("Curr(A)", {"2", "3"}).headerKey, key);
    QVERIFY(logOf("Curr(A),VFAS(V)", {"1,11"}).headerKey != key);
    QVERIFY(!key.isEmpty());
    QCOMPARE(LogHeader("\xEF\xBB\xBF"
                       "Date,Time,Curr(A)")
                 .key(),
             LogHeader("Date,Time,Curr(A)").key());
}

void RadioLogColumnsTest::aHeaderIsSplitAtItsUnits_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("names"); // empty where it cannot be
    QTest::newRow("one comma") << QByteArray("Date,Time,RSSI(dB),My, Curr(A),LSW,CH1(us)") << 6
                               << u"Date|Time|RSSI(dB)|My,Curr(A)|LSW|CH1(us)"_s;
    QTest::newRow("two commas") << QByteArray("Date,Time,A,B,C(V),Rud,SA,TxBat(V)") << 6
                                << u"Date|Time|A,B,C(V)|Rud|SA|TxBat(V)"_s;
    QTest::newRow("before one of the radio")
        << QByteArray("Date,Time,Drawn,TQly,My,Curr(A)") << 5 << u"Date|Time|Drawn|TQly|My,Curr(A)"_s;
    QTest::newRow("the last without a unit")
        << QByteArray("Date,Time,My,Curr(A),Drawn") << 4 << u"Date|Time|My,Curr(A)|Drawn"_s;
    QTest::newRow("one without a unit")
        << QByteArray("Date,Time,TQly,Left,Curr(A),Rud") << 5 << u"Date|Time|TQly|Left,Curr(A)|Rud"_s;
    QTest::newRow("no comma in a label") << QByteArray("Date,Time,RSSI(dB),Curr(A),Rud") << 4 << QString();
}

void RadioLogColumnsTest::aHeaderIsSplitAtItsUnits()
{
    QFETCH(QByteArray, header);
    QFETCH(int, count);
    QFETCH(QString, names);
    LogHeader split(header);
    QCOMPARE(split.joinTo(count), !names.isEmpty());
    QStringList found;
    for (qsizetype i = 0; i < split.count(); ++i)
        found.append(split.name(i));
    QCOMPARE(found.join(u'|'), names.isEmpty() ? QString::fromLatin1(header).replace(u',', u'|') : names);
}

void RadioLogColumnsTest::aHeaderBeginsWithDateAndTime_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<bool>("isLog");
    QTest::newRow("one sensor") << QByteArray("Date,Time,Curr(A)") << true;
    QTest::newRow("with a mark of UTF-8") << QByteArray("\xEF\xBB\xBF"
                                                        "Date,Time,Curr(A)")
                                          << true;
    QTest::newRow("no sensor") << QByteArray("Date,Time") << false;
    QTest::newRow("another second") << QByteArray("Date,Place,Curr(A)") << false;
    QTest::newRow("another first") << QByteArray("Day,Time,Curr(A)") << false;
}

void RadioLogColumnsTest::aHeaderBeginsWithDateAndTime()
{
    QFETCH(QByteArray, header);
    QTEST(LogHeader(header).isRadioLog(), "isLog");
}

void RadioLogColumnsTest::aUnitStandsInTheLastBrackets()
{
    QCOMPARE(unitOf(u"Curr (main)(A)"_s), u"A"_s);
    QCOMPARE(labelOf(u"Curr (main)(A)"_s), u"Curr (main)"_s);
    QCOMPARE(unitOf(u"Cell(1)x"_s), QString());
    QCOMPARE(labelOf(u"Cell(1)x"_s), u"Cell(1)x"_s);
    QCOMPARE(labelOf(u"Curr (A)"_s), u"Curr"_s);
}

void RadioLogColumnsTest::fieldsAreSplitAtCommasOutsideQuotes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("fields");
    QTest::newRow("plain") << QByteArray("a, b ,c") << QByteArray("a|b|c");
    QTest::newRow("empty ones") << QByteArray(",,") << QByteArray("||");
    QTest::newRow("nothing") << QByteArray("") << QByteArray("");
    QTest::newRow("quoted") << QByteArray("\"a,b\",c") << QByteArray("a,b|c");
    QTest::newRow("quoted last") << QByteArray("a,\"b,\"") << QByteArray("a|b,");
    QTest::newRow("doubled quotes") << QByteArray("\"a \"\",\"\" b\",c") << QByteArray("a \"\",\"\" b|c");
    QTest::newRow("quotes within") << QByteArray("5\" prop,c") << QByteArray("5\" prop|c");
    QTest::newRow("never closed") << QByteArray("\"a,b,c") << QByteArray("\"a|b|c");
    QTest::newRow("an empty text") << QByteArray("\"\",b") << QByteArray("|b");
}

void RadioLogColumnsTest::fieldsAreSplitAtCommasOutsideQuotes()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, fields);
    LogFields split;
    split.split(line, 10);
    QByteArrayList found;
    for (qsizetype i = 0; i < split.count(); ++i)
        found.append(split.at(i).toByteArray());
    QCOMPARE(found.join('|'), fields);
    split.split(line, 1); // counts those that nobody asks for
    QCOMPARE(split.count(), found.size());
    QCOMPARE(split.at(0).toByteArray(), found.first());
    const QByteArray many = QByteArray(1000, ',');
    split.split(many, 2);
    QCOMPARE(split.count(), 1001);
}

void RadioLogColumnsTest::numbersHaveAPoint_data()
{
    QTest::addColumn<double>("number"); // not a number for none
    for (const auto &[text, number] :
         std::initializer_list<std::pair<const char *, double>>{{"0", 0.0},
                                                                {"-0.5", -0.5},
                                                                {"12.34", 12.34},
                                                                {"162752521.4", 162752521.4},
                                                                {".5", 0.5},
                                                                {"5.", 5.0},
                                                                {"+5", 5.0},
                                                                {"1e3", 1000.0},
                                                                {"0.1", 0.1},
                                                                {"007", 7.0},
                                                                {"123456789012345678", 123456789012345678.0},
                                                                {"", qQNaN()},
                                                                {"-", qQNaN()},
                                                                {".", qQNaN()},
                                                                {"1,5", qQNaN()},
                                                                {"abc", qQNaN()},
                                                                {"nan", qQNaN()},
                                                                {"inf", qQNaN()},
                                                                {"1.2.3", qQNaN()},
                                                                {"0x10", qQNaN()},
                                                                {"5 A", qQNaN()},
                                                                {"1e999", qQNaN()}})
        QTest::newRow(text) << number;
}

void RadioLogColumnsTest::numbersHaveAPoint()
{
    QFETCH(double, number);
    const double read = logNumber(QByteArrayView(QTest::currentDataTag()));
    QVERIFY2(std::isnan(number) ? std::isnan(read) : read == number, qPrintable(QString::number(read)));
}

QTEST_GUILESS_MAIN(RadioLogColumnsTest)

#include "tst_radiologcolumns.moc"
