// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/readlog.h"

#include <QDir>
#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace Host;

class RadioLogFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFilesAreThoseThatTheMakerWrites();
    void everyOddityIsRead_data();
    void everyOddityIsRead();
    void aReasonIsASentence_data();
    void aReasonIsASentence();
    void rowsWithoutATimeAreSkipped();
    void aCutRowIsNotWhatMostRowsAre();
    void theLastNumberOfACutFileIsNotTrusted();
    void aFileWithoutALineEndIsReadToItsLastRow();
    void blankLinesAreNothing();
    void theNameTellsTheModel_data();
    void theNameTellsTheModel();
    void aKnownFileThatHasGrownGoesOnBehindItsLastRow();
    void aFingerprintIsThatOfTheFirstBytes();
    void aReadingCanBeCancelled();
    void aFileWhoseClockRunsWildIsRefused();
    void linesOfAnyLengthAreNoRows();

private:
    static QByteArray bytesOf(const QString &name);
    static RadioLog logOf(const QString &name) { return MadeLogs::readLog(bytesOf(name), {}, name); }
};

QByteArray RadioLogFilesTest::bytesOf(const QString &name)
{
    QFile file(QDir(QStringLiteral(LOGS)).filePath(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void RadioLogFilesTest::theFilesAreThoseThatTheMakerWrites()
{
    QStringList names;
    for (const MadeLogs::File &file : MadeLogs::oddFiles()) {
        QCOMPARE(bytesOf(file.name), file.bytes);
        names.append(file.name);
    }
    names.sort();
    QCOMPARE(QDir(QStringLiteral(LOGS)).entryList(QDir::Files, QDir::Name), names);
}

void RadioLogFilesTest::everyOddityIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("status");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("skipped");
    QTest::addColumn<int>("sessions");
    QTest::addColumn<int>("discharged"); // mAh, of the first session; -1 for none
    const auto add = [](const char *name, const char *status, int rows, int skipped, int sessions,
                        int discharged) {
        QTest::newRow(name) << QString::fromLatin1(name) + u".csv"_s << QString::fromLatin1(status) << rows
                            << skipped << sessions << discharged;
    };
    constexpr int Used = 318;
    add("Usual-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("Empty-2026-05-01-140000", "empty", 0, 0, 0, -1);
    add("HeaderOnly-2026-05-01-140000", "empty", 0, 0, 0, -1);
    add("CutRow-2026-05-01-140000", "read", 79, 1, 1, Used);
    add("OtherRows-2026-05-01-140000", "read", 73, 7, 1, Used);
    add("MostlyOtherRows-2026-05-01-140000", "refused", 30, 50, 0, -1);
    add("AbsurdValues-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("PoisonedCounter-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("RunsOn-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("RunsOn-2026-05-01-141000", "read", 80, 0, 1, 2 * Used);
    add("StartsLate-2026-05-01-140000", "read", 80, 0, 1, Used + 77);
    add("OffByTen-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("AllZero-2026-05-01-140000", "read", 80, 0, 1, -1);
    add("TelemetryLost-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("EqualColumns-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("ClockNeverSet-2000-01-01-000000", "read", 80, 0, 1, Used);
    add("Midnight-2026-05-01-235930", "read", 80, 0, 1, Used);
    add("TimeBack-2026-05-01-140000", "read", 160, 0, 2, Used);
    add("OtherCsv-2026-05-01-140000", "not a radio log", 0, 0, 0, -1);
    add("NotUtf8-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("Day-with-hyphens-2026-05-01", "read", 160, 0, 2, Used);
    add("OldHeader-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("CommaInLabel-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("QuotedTexts-2026-05-01-140000", "read", 80, 0, 1, Used);
    add("UnknownColumns-2026-05-01-140000", "read", 80, 0, 1, -1);
}

void RadioLogFilesTest::everyOddityIsRead()
{
    QFETCH(QString, name);
    QFETCH(QString, status);
    QFETCH(int, rows);
    QFETCH(int, skipped);
    QFETCH(int, sessions);
    QFETCH(int, discharged);
    const RadioLog log = logOf(name);
    QCOMPARE(statusKey(log.status), status);
    QCOMPARE(log.rows, rows);
    QCOMPARE(log.skippedRows, skipped);
    QCOMPARE(log.sessions.size(), sessions);
    QCOMPARE(log.needsMapping, name.startsWith("Unknown"_L1));
    if (sessions == 0)
        return;
    const Session &session = log.sessions.first();
    QCOMPARE(session.isClockSet(), !name.startsWith("ClockNeverSet"_L1));
    QCOMPARE(session.discharged.has_value(), discharged >= 0);
    if (discharged >= 0)
        QVERIFY2(std::abs(*session.discharged - discharged) < 3,
                 qPrintable(QString::number(*session.discharged)));
}

void RadioLogFilesTest::aReasonIsASentence_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("reason");
    const QByteArray header = "Date,Time,Curr(A)\n";
    QTest::newRow("nothing") << QByteArray() << u"empty"_s << u"It is empty."_s;
    QTest::newRow("header") << header << u"empty"_s << u"It has a header, but no rows."_s;
    QTest::newRow("no header") << QByteArray("Curr(A)\n1\n") << u"not a radio log"_s
                               << u"It does not begin with the columns Date and Time."_s;
    QTest::newRow("no times") << header + "Monday,noon,1\nTuesday,noon,2\n"
                              << u"not a radio log"_s << u"Its rows do not begin with a date and a time."_s;
    QTest::newRow("few times") << header + "2026-05-01,14:00:00,1\nx,y,2\nx,z,3\n"
                               << u"refused"_s << u"Most of its rows do not begin with a date and a time."_s;
    QTest::newRow("other rows") << header + "2026-05-01,14:00:00,1\n1\n2\n"
                                << u"refused"_s
                                << u"Most of its rows have more or fewer fields than its header."_s;
}

void RadioLogFilesTest::aReasonIsASentence()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, status);
    QFETCH(QString, reason);
    const RadioLog log = MadeLogs::readLog(bytes);
    QCOMPARE(statusKey(log.status), status);
    QCOMPARE(log.reason, reason);
    QVERIFY(log.sessions.isEmpty());
}

void RadioLogFilesTest::rowsWithoutATimeAreSkipped()
{
    QByteArray bytes = "Date,Time,Curr(A)\n";
    for (const char *time :
         {"2026-05-01,14:00:00.5", "2026-13-01,14:00:01", "2026-05-01,24:00:02", "2026-05-01,14:60:03",
          "2026-05-01,14:00:60", "2026-05-01,14:00:05.x", "2026-5-1,14:00:06", "2026-05-01,14:00:07",
          "2026-05-01,14:00:08.123", "2026-05-01,14:00:09", "2026-05-01,14:00:10"})
        bytes += QByteArray(time) + ",1\n";
    bytes += "2026-05-01,14:00:11.25,1\n2026-05-01,14:00:12,1\n";
    const RadioLog log = MadeLogs::readLog(bytes);
    QCOMPARE(log.rows, 7);
    QCOMPARE(log.skippedRows, 6);
    QCOMPARE(clockText(log.sessions.first().start), u"2026-05-01T14:00:00"_s);
    QCOMPARE(log.sessions.first().start % 1000, 500);
}

void RadioLogFilesTest::aCutRowIsNotWhatMostRowsAre()
{
    const RadioLog log = MadeLogs::readLog("Date,Time,Curr(A),VFAS(V)\n2026-05-01,14:00:00");
    QCOMPARE(log.status, LogStatus::Empty);
    QCOMPARE(log.skippedRows, 1);
}

void RadioLogFilesTest::theLastNumberOfACutFileIsNotTrusted()
{
    const QByteArray bytes =
        "Date,Time,Curr(A),mAh(mAh)\n2026-05-01,14:00:00,1,1000\n2026-05-01,14:00:01,1,1001\n"
        "2026-05-01,14:00:02,1,10";
    const RadioLog log = MadeLogs::readLog(bytes);
    QCOMPARE(log.rows, 3);
    QCOMPARE(log.sessions.first().counterLast, 1001);
}

void RadioLogFilesTest::aFileWithoutALineEndIsReadToItsLastRow()
{
    const QByteArray bytes = MadeLogs::Text().add(MadeLogs::steady(10, 5)).cut(1).bytes();
    const RadioLog log = MadeLogs::readLog(bytes);
    QCOMPARE(log.rows, 10);
    QCOMPARE(log.sessions.first().endByte, bytes.size());
}

void RadioLogFilesTest::blankLinesAreNothing()
{
    const QByteArray bytes =
        MadeLogs::Text().add(MadeLogs::steady(10, 5)).bytes().replace("\n", "\r\n\r\n\n");
    const RadioLog log = MadeLogs::readLog("\xEF\xBB\xBF" + bytes);
    QCOMPARE(log.rows, 10);
    QCOMPARE(log.skippedRows, 0);
}

void RadioLogFilesTest::theNameTellsTheModel_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    const QDate day(2025, 1, 2);
    QTest::newRow("flight") << u"Swift-2025-01-02-122221.csv"_s << u"Swift"_s << day << QTime(12, 22, 21);
    QTest::newRow("day") << u"Swift-2025-01-02.csv"_s << u"Swift"_s << day << QTime();
    QTest::newRow("hyphens") << u"/LOGS/My-Swift-2-2025-01-02-122221.CSV"_s << u"My-Swift-2"_s << day
                             << QTime(12, 22, 21);
    QTest::newRow("date in the name")
        << u"S-2024-12-31-2025-01-02.csv"_s << u"S-2024-12-31"_s << day << QTime();
    QTest::newRow("blanks") << u"E:\\LOGS\\My Swift-2025-01-02.csv"_s << u"My Swift"_s << day << QTime();
    QTest::newRow("other") << u"Swift.csv"_s << QString() << QDate() << QTime();
    QTest::newRow("no model") << u"/LOGS/-2025-01-02.csv"_s << QString() << QDate() << QTime();
}

void RadioLogFilesTest::theNameTellsTheModel()
{
    QFETCH(QString, file);
    QFETCH(QString, model);
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    const std::optional<LogName> name = logName(file);
    QCOMPARE(name.has_value(), !model.isEmpty());
    QCOMPARE(name.value_or(LogName()).model, model);
    QCOMPARE(name.value_or(LogName()).date, date);
    QCOMPARE(name.value_or(LogName()).time, time);
    const RadioLog log = MadeLogs::readLog(MadeLogs::Text().add(MadeLogs::steady(3, 5)).bytes(), {}, file);
    QCOMPARE(log.model, model);
    QCOMPARE(log.sessions.first().model, model);
}

void RadioLogFilesTest::aKnownFileThatHasGrownGoesOnBehindItsLastRow()
{
    const QByteArray all = bytesOf(u"Day-with-hyphens-2026-05-01.csv"_s);
    const QList<Session> sessions = MadeLogs::readLog(all).sessions;
    QCOMPARE(sessions.size(), 2);
    QCOMPARE(sessions.first().endByte, sessions.last().firstByte);
    QCOMPARE(sessions.last().endByte, all.size());
    ReadOptions options;
    options.knownBytes = sessions.first().endByte;
    RadioLog grown = MadeLogs::readLog(all, options);
    QCOMPARE(grown.rows, 80);
    QCOMPARE(grown.sessions.size(), 1);
    QCOMPARE(grown.sessions.first().start, sessions.last().start);
    QVERIFY(grown.sessions.first().isResumed);

    options.knownBytes = sessions.last().firstByte + 40; // the first row of the second session was cut then
    QCOMPARE(MadeLogs::readLog(all, options).rows, 80);
    options.knownBytes = sessions.last().firstByte + 100;
    QCOMPARE(MadeLogs::readLog(all, options).rows, 79);
    options.knownBytes = all.size();
    grown = MadeLogs::readLog(all, options);
    QCOMPARE(grown.status, LogStatus::Read);
    QCOMPARE(grown.rows, 0);
    options.knownBytes = 20; // within the header
    QCOMPARE(MadeLogs::readLog(all, options).rows, 160);
}

void RadioLogFilesTest::aFingerprintIsThatOfTheFirstBytes()
{
    QByteArray bytes = "abcdef";
    QBuffer device(&bytes);
    QVERIFY(device.open(QBuffer::ReadOnly));
    const QString abc = u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s;
    QCOMPARE(fingerprint(device, 3), abc);
    QVERIFY(fingerprint(device) != abc);
    QCOMPARE(fingerprint(device).size(), 64);
    QCOMPARE(fingerprint(device), fingerprint(device, 6));
    QCOMPARE(fingerprint(device, 7), QString());
}

void RadioLogFilesTest::aReadingCanBeCancelled()
{
    QByteArray bytes = MadeLogs::Text().bytes();
    const QByteArray rows = MadeLogs::Text().add(MadeLogs::steady(1000, 5)).bytes().mid(bytes.size());
    while (bytes.size() < 4'000'000)
        bytes += rows;
    qint64 seen = 0;
    ReadOptions options;
    options.goOn = [&seen](qint64 read) { return (seen = read) < 2'000'000; };
    const RadioLog log = MadeLogs::readLog(bytes, options);
    QCOMPARE(log.status, LogStatus::Refused);
    QCOMPARE(log.reason, u"The reading was cancelled."_s);
    QVERIFY(log.sessions.isEmpty());
    QVERIFY(seen >= 2'000'000 && seen < 3'500'000);
}

void RadioLogFilesTest::aFileWhoseClockRunsWildIsRefused()
{
    QByteArray bytes = "Date,Time,Curr(A)\n";
    for (int i = 0; i < 6000; ++i)
        bytes += "2026-05-01,14:00:00,1\n2026-05-01,13:00:00,1\n";
    QCOMPARE(MadeLogs::readLog(bytes).status, LogStatus::Refused);
}

void RadioLogFilesTest::linesOfAnyLengthAreNoRows()
{
    const QByteArray usual = MadeLogs::Text().add(MadeLogs::steady(10, 5)).bytes();
    const RadioLog log = MadeLogs::readLog(usual + QByteArray(1'000'000, ',') + '\n' +
                                           usual.mid(usual.indexOf('\n') + 1).replace("14:00", "14:01"));
    QCOMPARE(log.rows, 20);
    QCOMPARE(log.skippedRows, 1);
    QCOMPARE(MadeLogs::readLog(QByteArray(1'000'000, 'x')).status, LogStatus::NotARadioLog);
}

QTEST_GUILESS_MAIN(RadioLogFilesTest)

#include "tst_radiologfiles.moc"
