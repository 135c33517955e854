// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/xlsx.h"
#include "tests/host/support/program.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"

#include <QDir>
#include <QTest>

using namespace Host;

class ExportCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void mistakesEndWithTwo_data();
    void mistakesEndWithTwo();
    void jsonGoesToStandardOutput();
    void jsonGoesToAFileWhereOneIsNamed();
    void tablesGoToAFolder();
    void theLocaleOfTheSystemChoosesTheSign();
    void theFilterLimitsWhatGoesOut();
    void aNameThatNobodyHasIsRefused_data();
    void aNameThatNobodyHasIsRefused();
    void nothingIsReplacedWithoutForce();
    void noExportTakesThePlaceOfTheLogbook();
    void aFullDiskIsSaidInOneLine_data();
    void aFullDiskIsSaidInOneLine();
    void textsThatWereCutAreSaid();
    void aWorkbookNeedsItsLibrary();
    void nothingIsWrittenBesideTheLogbook();

private:
    Program::Result run(const QStringList &arguments) const
    {
        return m_program->run(
            QStringList{u"--data"_s, m_program->home(u"log"_s), u"export"_s, u"--format"_s} + arguments);
    }
    QString path(const QString &name) const { return m_program->home(name); }
    void put(const Test::Catalogue &file) const
    {
        QVERIFY(Test::write(path(u"log/voltbok.xml"_s), Test::document(file)));
    }

    std::unique_ptr<Program> m_program;
};

void ExportCommandTest::init()
{
    m_program = std::make_unique<Program>();
    m_program->environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    QDir(m_program->home()).mkdir(u"log"_s);
    const auto at = [](int day) { return QDateTime(QDate(2026, 5, day), QTime(12, 0)); };
    put({{{u"A"_s, false, {{at(1), 1500, 1317}, {at(3), 1000, 2000}}}, {u"B"_s, false, {{at(1), 900, 100}}}},
         {{u"Skylark"_s, {u"A"_s, u"B"_s}, {{at(1)}, {at(2)}}}, {u"Firebrand"_s, {u"A"_s}, {{at(3)}}}},
         {u"Meadow"_s}});
}

void ExportCommandTest::mistakesEndWithTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown format") << QStringList{u"ods"_s};
    QTest::newRow("a folder is missing") << QStringList{u"csv"_s};
    QTest::newRow("another one") << QStringList{u"csv-local"_s};
    QTest::newRow("a file is missing") << QStringList{u"xlsx"_s};
    QTest::newRow("it has no name") << QStringList{u"xlsx"_s, u"--output"_s, QString()};
    QTest::newRow("no date") << QStringList{u"json"_s, u"--from"_s, u"1.5.2026"_s};
    QTest::newRow("backwards") << QStringList{u"json"_s, u"--from"_s, u"2026-05-02"_s, u"--to"_s,
                                              u"2026-05-01"_s};
    QTest::newRow("json") << QStringList{u"json"_s, u"--json"_s};
}

void ExportCommandTest::mistakesEndWithTwo()
{
    QFETCH(QStringList, arguments);
    const Program::Result result = run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
}

void ExportCommandTest::jsonGoesToStandardOutput()
{
    const Program::Result result = run({u"json"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    QVERIFY(result.output.startsWith(u"{\"format\": \"voltbok-export\", \"version\": 1,"_s));
    const Program::Result full =
        m_program->shell(u"\"$0\" --data %1 export --format json > /dev/full"_s.arg(path(u"log"_s)));
    QCOMPARE(full.status, 1);
    QCOMPARE(full.errors.count(u'\n'), 1);
}

void ExportCommandTest::jsonGoesToAFileWhereOneIsNamed()
{
    const QString file = path(u"book.json"_s);
    const Program::Result result = run({u"json"_s, u"--output"_s, file});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output + result.errors, QString());
    QCOMPARE(QString::fromUtf8(Test::contents(file)), run({u"json"_s}).output);
}

void ExportCommandTest::tablesGoToAFolder()
{
    QCOMPARE(run({u"csv"_s, u"--output"_s, path(u"new/tables"_s)}).status, 0);
    QCOMPARE(QDir(path(u"new/tables"_s)).entryList(QDir::Files | QDir::Hidden),
             QStringList({u"batteries.csv"_s, u"discharges.csv"_s, u"flights.csv"_s, u"locations.csv"_s,
                          u"models.csv"_s}));
    QCOMPARE(Test::contents(path(u"new/tables/discharges.csv"_s)),
             "Battery,Time,Discharged (mAh),Maximum current (A),Source\r\n"
             "A,2026-05-01 12:00:00,1500,13.17,entered\r\n"
             "A,2026-05-03 12:00:00,1000,20,entered\r\n"
             "B,2026-05-01 12:00:00,900,1,entered\r\n");
}

void ExportCommandTest::theLocaleOfTheSystemChoosesTheSign()
{
    m_program->environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    QCOMPARE(run({u"csv-local"_s, u"--output"_s, path(u"local"_s)}).status, 0);
    QVERIFY(Test::contents(path(u"local/discharges.csv"_s))
                .startsWith("\xEF\xBB\xBF"
                            "Battery;Time;Discharged (mAh);Maximum current (A);Source\r\n"
                            "A;2026-05-01 12:00:00;1500;13,17;entered\r\n"));
    QCOMPARE(run({u"csv"_s, u"--output"_s, path(u"plain"_s)}).status, 0);
    QVERIFY(Test::contents(path(u"plain/discharges.csv"_s)).contains(",13.17,"));
}

void ExportCommandTest::theFilterLimitsWhatGoesOut()
{
    QCOMPARE(run({u"csv"_s, u"--output"_s, path(u"t"_s), u"--battery"_s, u"B"_s, u"--model"_s, u"Skylark"_s,
                  u"--from"_s, u"2026-05-01"_s, u"--to"_s, u"2026-05-01"_s})
                 .status,
             0);
    QCOMPARE(Test::contents(path(u"t/discharges.csv"_s)).split('\n').mid(1),
             QByteArrayList({"B,2026-05-01 12:00:00,900,1,entered\r", ""}));
    QCOMPARE(Test::contents(path(u"t/flights.csv"_s)).split('\n').mid(1),
             QByteArrayList({"Skylark,2026-05-01 12:00:00,390,Meadow,21,A; B,\r", ""}));
    QCOMPARE(Test::contents(path(u"t/models.csv"_s)).count("\r\n"), 2);
    QCOMPARE(
        run({u"csv"_s, u"--output"_s, path(u"u"_s), u"--battery"_s, u"B"_s, u"--battery"_s, u"A"_s}).status,
        0);
    QCOMPARE(Test::contents(path(u"u/batteries.csv"_s)).count("\r\n"), 3);
    QCOMPARE(Test::contents(path(u"u/models.csv"_s)).count("\r\n"), 3);
}

void ExportCommandTest::aNameThatNobodyHasIsRefused_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("battery")
        << u"--battery"_s
        << u"voltbok: There is no battery “Nobody” in this logbook. Nothing was exported.\n"_s;
    QTest::newRow("model")
        << u"--model"_s << u"voltbok: There is no model “Nobody” in this logbook. Nothing was exported.\n"_s;
}

void ExportCommandTest::aNameThatNobodyHasIsRefused()
{
    QFETCH(QString, option);
    QFETCH(QString, complaint);
    for (const QStringList &target :
         {QStringList{u"json"_s}, QStringList{u"csv"_s, u"--output"_s, path(u"t"_s)}}) {
        const Program::Result result = run(target + QStringList{option, u"Nobody"_s});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, complaint);
        QCOMPARE(result.output, QString());
    }
    QVERIFY(!QFileInfo::exists(path(u"t"_s)));
}

void ExportCommandTest::nothingIsReplacedWithoutForce()
{
    QDir(m_program->home()).mkdir(u"t"_s);
    QVERIFY(Test::write(path(u"t/locations.csv"_s), "mine"));
    const QStringList order{u"csv"_s, u"--output"_s, path(u"t"_s)};
    const Program::Result refused = run(order);
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors,
             u"voltbok: “%1” exists already. Nothing was exported; “--force” replaces it.\n"_s.arg(
                 path(u"t/locations.csv"_s)));
    QCOMPARE(QDir(path(u"t"_s)).entryList(QDir::Files | QDir::Hidden), QStringList(u"locations.csv"_s));
    QCOMPARE(Test::contents(path(u"t/locations.csv"_s)), "mine");
    QCOMPARE(run(order + QStringList(u"--force"_s)).status, 0);
    QCOMPARE(Test::contents(path(u"t/locations.csv"_s)), "Name\r\nMeadow\r\n");
}

void ExportCommandTest::noExportTakesThePlaceOfTheLogbook()
{
    const QByteArray before = Test::contents(path(u"log/voltbok.xml"_s));
    QVERIFY(!before.isEmpty());
    const Program::Result refused = run({u"json"_s, u"--output"_s, path(u"log/voltbok.xml"_s), u"--force"_s});
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors,
             u"voltbok: “%1” is a logbook, and nothing takes its place. Choose another name.\n"_s.arg(
                 path(u"log/voltbok.xml"_s)));
    QCOMPARE(Test::contents(path(u"log/voltbok.xml"_s)), before);
}

void ExportCommandTest::aFullDiskIsSaidInOneLine_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("csv") << u"csv"_s;
    QTest::newRow("json") << u"json"_s;
    if (Xlsx::isAvailable())
        QTest::newRow("xlsx") << u"xlsx"_s;
}

void ExportCommandTest::aFullDiskIsSaidInOneLine()
{
    QFETCH(QString, format);
    // A table repeats names that the logbook's file has once.
    Test::Battery battery{QString(3000, u'b')};
    Test::Model model{QString(3000, u'm'), {battery.name}};
    for (int i = 0; i < 100; ++i) {
        const QDateTime time = QDateTime(QDate(2026, 5, 3), QTime(12, 0)).addSecs(i * 900);
        battery.history.append({time, 1000, 1000});
        model.flights.append({time});
    }
    put({{battery}, {model}});
    // No file may grow beyond 64 KiB, as on a disk that is full from there on.
    const Program::Result result =
        m_program->shell(u"trap '' XFSZ; ulimit -f 64; \"$0\" --data %1 export --format %2 --output %3"_s.arg(
            path(u"log"_s), format, path(u"target"_s)));
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(
        result.errors.endsWith(u"cannot be written: the file would be too large. Nothing was exported.\n"_s),
        qPrintable(result.errors));
    QCOMPARE(QDir(m_program->home()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({u"log"_s}));
}

void ExportCommandTest::textsThatWereCutAreSaid()
{
    if (!Xlsx::isAvailable())
        return;
    Test::Catalogue file;
    file.locations = QStringList{QString(40'000, u'x'), u"Meadow"_s};
    put(file);
    const Program::Result result = run({u"xlsx"_s, u"--output"_s, path(u"book.xlsx"_s)});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors,
             u"voltbok: Texts of more than 32,767 characters do not fit into a cell and were cut: 1.\n"_s);
    QVERIFY(QFileInfo(path(u"book.xlsx"_s)).size() > 0);
}

void ExportCommandTest::aWorkbookNeedsItsLibrary()
{
    const Program::Result result = run({u"xlsx"_s, u"--output"_s, path(u"book.xlsx"_s)});
    QCOMPARE(result.status, Xlsx::isAvailable() ? 0 : 1);
    QCOMPARE(result.errors.count(u'\n'), Xlsx::isAvailable() ? 0 : 1);
    QCOMPARE(QFileInfo::exists(path(u"book.xlsx"_s)), Xlsx::isAvailable());
}

void ExportCommandTest::nothingIsWrittenBesideTheLogbook()
{
    const QByteArray before = Test::contents(path(u"log/voltbok.xml"_s));
    run({u"csv"_s, u"--output"_s, path(u"t"_s)});
    QCOMPARE(QDir(path(u"log"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(u"voltbok.xml"_s));
    QCOMPARE(Test::contents(path(u"log/voltbok.xml"_s)), before);
}

QTEST_GUILESS_MAIN(ExportCommandTest)
#include "tst_exportcommand.moc"
