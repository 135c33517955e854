// SPDX-License-Identifier: GPL-3.0-or-later
// Which files an import reads, by which columns, and how its work is ended.
#include "host/exchange/logreading.h"
#include "tests/host/support/flownsessions.h"
#include "tests/host/support/makeradiolog.h"
#include "tests/support/files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class LogReadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFolderStandsForTheLogsBelowIt();
    void lookingThroughFoldersEndsWhenItIsStopped();
    void askingForTheClockEndsWhenItIsStopped();
    void columnsThatWereChosenEarlierAreRead();
    void whatIsChosenNowCountsBeforeWhatWasChosenEarlier();
    void whatIsRememberedKeepsWhatAnotherVersionWrote();

private:
    QString put(const QString &name, const QByteArray &bytes = "Date,Time,Curr(A)\n") const
    {
        const QString path = m_place->filePath(name);
        if (!QDir().mkpath(QFileInfo(path).path()) || !Test::write(path, bytes))
            qFatal("A log cannot be written.");
        return path;
    }
    /** One that is read only by the columns that somebody chose. */
    QString unknown() const
    {
        return put(u"Skylark-2026-05-01-140000.csv"_s,
                   MadeLogs::Text("Used,Motor,mAh(mAh)")
                       .withHeader("Date,Time,Drawn(mAh),Motor(A),Pack(V)")
                       .addLine("2026-05-01,14:00:00.000,1,20,12")
                       .addLine("2026-05-01,14:00:01.000,7,21,11")
                       .addLine("2026-05-01,14:00:02.000,9,21,11")
                       .bytes());
    }
    static QString keyOf(const QString &path) { return LogReading::read({path}, {}).first().log.headerKey; }

    std::unique_ptr<QTemporaryDir> m_place;
};

void LogReadingTest::init()
{
    m_place = std::make_unique<QTemporaryDir>();
}

void LogReadingTest::aFolderStandsForTheLogsBelowIt()
{
    const QString second = put(u"card/LOGS/b.CSV"_s);
    const QString first = put(u"card/LOGS/a.csv"_s);
    const QString below = put(u"card/LOGS/c/a.csv"_s);
    put(u"card/LOGS/picture.bmp"_s);
    const QString other = put(u"other.txt"_s);
    QCOMPARE(LogReading::paths({other, m_place->filePath(u"card"_s)}),
             (QStringList{other, first, second, below}));
}

void LogReadingTest::lookingThroughFoldersEndsWhenItIsStopped()
{
    for (int i = 0; i < 20; ++i)
        put(u"card/%1.csv"_s.arg(i));
    int asked = 0;
    LogReading::Options options;
    options.goOn = [&asked] { return ++asked <= 3; };
    QCOMPARE(LogReading::paths({m_place->path()}, options).size(), 3);
    QVERIFY(asked < 6);
    options.goOn = [] { return true; };
    QCOMPARE(LogReading::paths({m_place->path()}, options).size(), 20);
}

void LogReadingTest::askingForTheClockEndsWhenItIsStopped()
{
    const QList<ImportedLog> logs{Flown::log(
        u"Skylark"_s, {Flown::session(Flown::clock(9, 38)), Flown::session(Flown::clock(10, 52))})};
    int asked = 0;
    MatchOptions options;
    options.goOn = [&asked] { return ++asked <= 3; };
    QCOMPARE(clockOffset(logs, Flown::logbook(), {}, options), std::nullopt);
    QCOMPARE(asked, 4);
    options.goOn = [] { return true; };
    QCOMPARE(clockOffset(logs, Flown::logbook(), {}, options), qint64(5) * 60 * 60 * 1000);
}

void LogReadingTest::columnsThatWereChosenEarlierAreRead()
{
    const QString path = unknown();
    const RadioLog byRule = LogReading::read({path}, {}).first().log;
    QVERIFY(byRule.needsMapping);
    QCOMPARE(byRule.mapping.current, QString());
    Measured measured;
    const ColumnMapping chosen{u"Drawn(mAh)"_s, u"Motor(A)"_s, u"Pack(V)"_s};
    LogReading::remember(measured, {{keyOf(path), chosen}});
    const Measured stored = MeasuredFile::load(MeasuredFile::save(measured)).measured;
    const RadioLog log = LogReading::read({path}, stored).first().log;
    QCOMPARE(log.mapping, chosen);
    QVERIFY(!log.needsMapping);
    QCOMPARE(log.sessions.first().maxCurrent, 21);
    QCOMPARE(log.sessions.first().counterLast, 9);
}

void LogReadingTest::whatIsChosenNowCountsBeforeWhatWasChosenEarlier()
{
    const QString path = unknown();
    Measured measured;
    LogReading::remember(measured, {{keyOf(path), {u"Drawn(mAh)"_s, u"Motor(A)"_s, u"Pack(V)"_s}}});
    LogReading::Options options;
    options.mappings = {{keyOf(path), {{}, u"Motor(A)"_s, {}}}};
    QCOMPARE(LogReading::read({path}, measured, options).first().log.mapping,
             (ColumnMapping{{}, u"Motor(A)"_s, {}}));
}

void LogReadingTest::whatIsRememberedKeepsWhatAnotherVersionWrote()
{
    Measured measured;
    measured.columns.insert(u"key"_s, {u"a"_s, u"b"_s, u"c"_s, {{u"later"_s, 1}}});
    measured.columns.insert(u"other"_s, {u"a"_s, u"b"_s, u"c"_s, {}});
    LogReading::remember(measured, {{u"key"_s, {u"d"_s, {}, u"f"_s}}});
    QCOMPARE(measured.columns.size(), 2);
    const MeasuredColumns columns = measured.columns.value(u"key"_s);
    QCOMPARE(QStringList({columns.consumed, columns.current, columns.volts}),
             QStringList({u"d"_s, QString(), u"f"_s}));
    QVERIFY(columns.others.contains(u"later"_s));
    QCOMPARE(measured.columns.value(u"other"_s).consumed, u"a"_s);
}

QTEST_GUILESS_MAIN(LogReadingTest)
#include "tst_logreading.moc"
