// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/exporting.h"

#include "host/exchange/xlsx.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Host::ExportFormat)

namespace {

const QStringList CsvNames{u"batteries.csv"_s, u"discharges.csv"_s, u"flights.csv"_s, u"locations.csv"_s,
                           u"models.csv"_s};

/** Some thousand rows, so that nothing fits into one block of a disk. */
Catalogue longLogbook()
{
    Catalogue catalogue = PlainLogbook::logbook();
    for (int i = 0; i < 4000; ++i)
        catalogue.batteries.first().discharges.append(
            {PlainLogbook::at(9, 0).addSecs(i * 61), 1000U + static_cast<unsigned int>(i % 900), 3000});
    return catalogue;
}

/** Everything below a folder, hidden files and folders too. */
QStringList below(const QString &folder)
{
    QStringList found;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        found.append(QDir(folder).relativeFilePath(it.next()));
    found.sort();
    return found;
}

} // namespace

class ExportingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFolderIsMadeForCsv_data();
    void aFolderIsMadeForCsv();
    void aFileNeedsItsFolder_data();
    void aFileNeedsItsFolder();
    void nothingIsWrittenWhereOneFileExists_data();
    void nothingIsWrittenWhereOneFileExists();
    void whatExistsIsReplacedWhenThatIsWished_data();
    void whatExistsIsReplacedWhenThatIsWished();
    void whatIsNoFileIsNeverReplaced();
    void aLinkToNowhereExists();
    void aFullDiskLeavesWhatWasThere_data();
    void aFullDiskLeavesWhatWasThere();
    void aDiskOfAnySizeGetsTheWholeWorkbookOrNothing();
    void aFolderThatCannotBeWrittenIsSaid();
    void stoppingLeavesNothing_data();
    void stoppingLeavesNothing();
    void namesThatNobodyHasAreFound();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    ExportOrder order(ExportFormat format, const QString &name) const
    {
        ExportOrder order;
        order.format = format;
        order.path = path(name);
        return order;
    }
    static void addFormats(bool withCsv);

    const QByteArray m_temporary = qgetenv("TMPDIR");
    std::unique_ptr<QTemporaryDir> m_folder;
};

void ExportingTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void ExportingTest::cleanup()
{
    qputenv("TMPDIR", m_temporary);
}

void ExportingTest::addFormats(bool withCsv)
{
    QTest::addColumn<ExportFormat>("format");
    if (withCsv)
        QTest::newRow("csv") << ExportFormat::Csv;
    QTest::newRow("json") << ExportFormat::Json;
    if (Xlsx::isAvailable())
        QTest::newRow("xlsx") << ExportFormat::Xlsx;
}

void ExportingTest::aFolderIsMadeForCsv_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("one") << u"new"_s;
    QTest::newRow("several") << u"new/and/deeper"_s;
    QTest::newRow("none") << u"."_s;
}

void ExportingTest::aFolderIsMadeForCsv()
{
    QFETCH(QString, folder);
    QCOMPARE(exportLogbook(PlainLogbook::logbook(), order(ExportFormat::Csv, folder)).problem, QString());
    QCOMPARE(QDir(path(folder)).entryList(QDir::Files | QDir::Hidden), CsvNames);
    QCOMPARE(Test::contents(path(folder + u"/locations.csv"_s)), "Name\r\nMeadow\r\nHill\r\n");
}

void ExportingTest::aFileNeedsItsFolder_data()
{
    addFormats(false);
}

void ExportingTest::aFileNeedsItsFolder()
{
    QFETCH(ExportFormat, format);
    QCOMPARE(exportLogbook({}, order(format, u"none/file"_s)).problem,
             u"There is no folder “%1”. Nothing was exported."_s.arg(path(u"none"_s)));
    QVERIFY(Test::write(path(u"file"_s), "mine"));
    QCOMPARE(exportLogbook({}, order(format, u"file/file"_s)).problem,
             u"“%1” is not a folder. Nothing was exported."_s.arg(path(u"file"_s)));
    QCOMPARE(exportLogbook({}, order(ExportFormat::Csv, u"file"_s)).problem,
             u"“%1” is not a folder. Nothing was exported."_s.arg(path(u"file"_s)));
    QVERIFY(
        exportLogbook({}, order(ExportFormat::Csv, u"file/deeper"_s)).problem.contains(u"cannot be made"_s));
    QCOMPARE(below(m_folder->path()), QStringList(u"file"_s));
    QCOMPARE(exportLogbook({}, order(format, u"other"_s)).problem, QString());
    QVERIFY(QFileInfo(path(u"other"_s)).size() > 0);
}

void ExportingTest::nothingIsWrittenWhereOneFileExists_data()
{
    QTest::addColumn<ExportFormat>("format");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("existing");
    for (const QString &name : CsvNames)
        QTest::newRow(qPrintable(name)) << ExportFormat::Csv << u"."_s << name;
    QTest::newRow("json") << ExportFormat::Json << u"logbook.json"_s << u"logbook.json"_s;
    QTest::newRow("xlsx") << ExportFormat::Xlsx << u"logbook.xlsx"_s << u"logbook.xlsx"_s;
}

void ExportingTest::nothingIsWrittenWhereOneFileExists()
{
    QFETCH(ExportFormat, format);
    QFETCH(QString, target);
    QFETCH(QString, existing);
    QVERIFY(Test::write(path(existing), "mine"));
    const Exported exported = exportLogbook(PlainLogbook::logbook(), order(format, target));
    if (format != ExportFormat::Xlsx || Xlsx::isAvailable())
        QVERIFY2(exported.problem.contains(u"exists already"_s), qPrintable(exported.problem));
    QCOMPARE(below(m_folder->path()), QStringList(existing));
    QCOMPARE(Test::contents(path(existing)), "mine");
}

void ExportingTest::whatExistsIsReplacedWhenThatIsWished_data()
{
    addFormats(true);
}

void ExportingTest::whatExistsIsReplacedWhenThatIsWished()
{
    QFETCH(ExportFormat, format);
    ExportOrder again = order(format, format == ExportFormat::Csv ? u"."_s : u"file"_s);
    for (const QString &name : exportFiles(format, again.path))
        QVERIFY(Test::write(name, "mine"));
    again.replaces = true;
    QCOMPARE(exportLogbook(PlainLogbook::logbook(), again).problem, QString());
    for (const QString &name : exportFiles(format, again.path))
        QVERIFY(Test::contents(name) != "mine");
}

void ExportingTest::whatIsNoFileIsNeverReplaced()
{
    QDir(m_folder->path()).mkdir(u"folder.json"_s);
    ExportOrder onFolder = order(ExportFormat::Json, u"folder.json"_s);
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), S_IRUSR | S_IWUSR), 0);
    ExportOrder onPipe = order(ExportFormat::Json, u"pipe"_s);
    for (ExportOrder *each : {&onFolder, &onPipe}) {
        each->replaces = true;
        const QString problem = exportLogbook({}, *each).problem;
        QVERIFY2(problem.contains(u"no file that could be replaced"_s), qPrintable(problem));
    }
    QVERIFY(!QFileInfo(onPipe.path).isFile());
    QCOMPARE(below(m_folder->path()), QStringList({u"folder.json"_s, u"pipe"_s}));
}

void ExportingTest::aLinkToNowhereExists()
{
    QVERIFY(QFile::link(u"nowhere"_s, path(u"models.csv"_s)));
    QVERIFY(exportLogbook({}, order(ExportFormat::Csv, u"."_s)).problem.contains(u"models.csv” exists"_s));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::System), QStringList(u"models.csv"_s));
}

void ExportingTest::aFullDiskLeavesWhatWasThere_data()
{
    addFormats(true);
}

void ExportingTest::aFullDiskLeavesWhatWasThere()
{
    QFETCH(ExportFormat, format);
    const bool isCsv = format == ExportFormat::Csv;
    ExportOrder mine = order(format, isCsv ? u"."_s : u"file"_s);
    mine.replaces = true;
    const QString kept = isCsv ? u"discharges.csv"_s : u"file"_s;
    QVERIFY(Test::write(path(kept), "mine"));
    ExportOrder made = order(format, isCsv ? u"new/deeper"_s : u"other"_s);
    {
        const FullDisk disk(8000);
        QVERIFY(disk.works());
        for (const ExportOrder &each : {mine, made}) {
            const QString problem = exportLogbook(longLogbook(), each).problem;
            QVERIFY2(
                problem.endsWith(u"cannot be written: the file would be too large. Nothing was exported."_s),
                qPrintable(problem));
        }
    }
    QCOMPARE(below(m_folder->path()), QStringList(kept));
    QCOMPARE(Test::contents(path(kept)), "mine");
}

void ExportingTest::aDiskOfAnySizeGetsTheWholeWorkbookOrNothing()
{
    if (!Xlsx::isAvailable())
        return;
    const Catalogue logbook = longLogbook();
    QCOMPARE(exportLogbook(logbook, order(ExportFormat::Xlsx, u"whole.xlsx"_s)).problem, QString());
    const QByteArray whole = Test::contents(path(u"whole.xlsx"_s));
    const QString disk = path(u"disk"_s);
    QDir().mkdir(disk);
    const Mount mount(disk);
    QVERIFY(mount.works());
    qputenv("TMPDIR", disk.toLocal8Bit());
    int successes = 0;
    int failures = 0;
    for (int kilobytes = 8; kilobytes < 10'000; kilobytes += kilobytes / 8) {
        const QByteArray size = "size=" + QByteArray::number(kilobytes) + 'k';
        QCOMPARE(::mount("none", disk.toLocal8Bit().constData(), nullptr, MS_REMOUNT, size.constData()), 0);
        const QString problem =
            exportLogbook(logbook, order(ExportFormat::Xlsx, u"disk/book.xlsx"_s)).problem;
        if (problem.isEmpty()) {
            QVERIFY(Test::contents(path(u"disk/book.xlsx"_s)) == whole);
            QVERIFY(QFile::remove(path(u"disk/book.xlsx"_s)));
            ++successes;
        } else {
            QVERIFY2(problem.contains(u"no space left on device"_s), qPrintable(problem));
            ++failures;
        }
        QCOMPARE(below(disk), QStringList());
    }
    QVERIFY(successes > 3);
    QVERIFY(failures > 10);
}

void ExportingTest::aFolderThatCannotBeWrittenIsSaid()
{
    QString problem;
    QFile::setPermissions(m_folder->path(),
                          QFile::ReadOther | QFile::ExeOther | QFile::ReadOwner | QFile::ExeOwner);
    {
        const Permissions readOnly(m_folder->path(),
                                   QFile::ReadOther | QFile::ExeOther | QFile::ReadOwner | QFile::ExeOwner);
        QVERIFY(readOnly.works());
        problem = exportLogbook({}, order(ExportFormat::Json, u"file"_s)).problem;
    }
    QCOMPARE(problem,
             u"“%1” cannot be written: permission denied. Nothing was exported."_s.arg(path(u"file"_s)));
}

void ExportingTest::stoppingLeavesNothing_data()
{
    addFormats(true);
}

void ExportingTest::stoppingLeavesNothing()
{
    QFETCH(ExportFormat, format);
    int asked = 0;
    const QDir openFiles(u"/proc/self/fd"_s);
    const uint before = openFiles.count();
    const Exported exported =
        exportLogbook(longLogbook(), order(format, u"target"_s), [&asked](qsizetype) { return ++asked < 2; });
    openFiles.refresh();
    QCOMPARE(openFiles.count(), before);
    QVERIFY(exported.isStopped);
    QCOMPARE(exported.problem, QString());
    QCOMPARE(asked, 2);
    QCOMPARE(below(m_folder->path()), QStringList());
}

void ExportingTest::namesThatNobodyHasAreFound()
{
    const Catalogue logbook = PlainLogbook::logbook();
    ExportFilter filter;
    QVERIFY(!unknownBattery(logbook, filter) && !unknownModel(logbook, filter));
    filter.batteries = {u"A"_s, u"Skylark"_s};
    filter.models = {u"Skylark"_s};
    QCOMPARE(unknownBattery(logbook, filter), u"Skylark"_s);
    QVERIFY(!unknownModel(logbook, filter));
}

QTEST_GUILESS_MAIN(ExportingTest)
#include "tst_exporting.moc"
