// SPDX-License-Identifier: GPL-3.0-or-later
// What the command that imports radio logs does where something is in its way.
#include "host/safety/folderlock.h"
#include "host/safety/measuredstore.h"
#include "tests/host/support/importhome.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/brokendisk.h"

#include <QTest>

#include <memory>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class ImportFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<ImportHome>(); }
    void theHolderOfTheLockIsNamed();
    void aFailureLeavesEverythingAsItWas_data();
    void aFailureLeavesEverythingAsItWas();
    void damagedMeasuredValuesAreSaidAndPutAside();
    void aFileOfALaterVersionIsNotWrittenTo();
    void anImportThatWasCutOffIsCompletedAndAddsNothing();

private:
    std::unique_ptr<ImportHome> m_home;
    const QString m_log = ImportHome::log();
};

void ImportFailuresTest::theHolderOfTheLockIsNamed()
{
    const auto before = m_home->catalogue();
    FolderLock lock;
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const Program::Result result = m_home->import({m_log});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QString::number(QCoreApplication::applicationPid())),
             qPrintable(result.errors));
    QVERIFY(m_home->catalogue() == before);
    QCOMPARE(m_home->import({u"--dry-run"_s, m_log}).status, 0);
}

void ImportFailuresTest::aFailureLeavesEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("full disk") << 0;
    QTest::newRow("no room for the measured values") << 1;
    QTest::newRow("read-only folder") << 2;
    QTest::newRow("no folder for copies") << 3;
    QTest::newRow("a folder that does not exist") << 4;
}

void ImportFailuresTest::aFailureLeavesEverythingAsItWas()
{
    QFETCH(int, kind);
    std::shared_ptr<void> fault;
    if (kind == 0)
        fault = std::make_shared<FullDisk>(2000);
    if (kind == 1)
        QVERIFY(QDir(m_home->path()).mkdir(u"voltbok-measured.json"_s));
    if (kind == 3)
        QVERIFY(m_home->put(u"log/backups"_s, "a file"));
    const QMap<QString, QByteArray> before = Test::snapshot(m_home->path());
    if (kind == 2) // the folder of the test lets nobody else in
        QVERIFY(QFile::setPermissions(m_home->program().home(), QFile::Permissions(0x7777)) &&
                QFile::setPermissions(m_home->path(), QFile::Permissions(0x5555)));
    const QString asNobody =
        u"$(test $(id -u) = 0 && echo setpriv --reuid=65534 --regid=65534 --clear-groups) \"$0\" "_s
        u"--data log import "_s;
    const Program::Result result =
        kind == 2   ? m_home->program().shell(asNobody + m_log)
        : kind == 4 ? m_home->program().run({u"--data"_s, m_home->file(u"not"_s), u"import"_s, m_log})
                    : m_home->import({m_log});
    QVERIFY(QFile::setPermissions(m_home->path(), QFile::Permissions(0x7755)));
    fault.reset();
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY(!result.errors.isEmpty());
    QMap<QString, QByteArray> after = Test::snapshot(m_home->path());
    after.removeIf([](auto entry) { return entry.key().startsWith(u"backups/"_s); });
    QCOMPARE(after, before);
    QVERIFY(!QFileInfo::exists(m_home->file(u"not"_s)));
}

void ImportFailuresTest::damagedMeasuredValuesAreSaidAndPutAside()
{
    QVERIFY(m_home->put(u"log/voltbok-measured.json"_s, "half"));
    const Program::Result result = m_home->import({m_log});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.contains(u"damaged"_s), qPrintable(result.errors));
    QCOMPARE(QDir(m_home->path()).entryList({u"voltbok-measured-broken-*"_s}).size(), 1);
    QVERIFY(MeasuredStore::load(m_home->folder()).measured.find(u"A"_s, momentOf(at(14, 38))));
}

void ImportFailuresTest::aFileOfALaterVersionIsNotWrittenTo()
{
    const QByteArray later = R"({"format": "voltbok-measured", "version": 9})";
    QVERIFY(m_home->put(u"log/voltbok-measured.json"_s, later));
    const Program::Result result = m_home->import({m_log});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(u"later version"_s), qPrintable(result.errors));
    QCOMPARE(WholeFile::read(m_home->folder().measuredFile()).bytes, later);
    QVERIFY(m_home->catalogue() == Flown::logbook());
    QCOMPARE(m_home->import({u"--dry-run"_s, m_log}).status, 0);
}

/** As after a power cut between the two files. */
void ImportFailuresTest::anImportThatWasCutOffIsCompletedAndAddsNothing()
{
    const QString early = u"Skylark-2026-05-03-060000.csv"_s;
    QVERIFY(m_home->put(early, ImportHome::header() + ImportHome::rows(at(6, 0), 300, 1500)));
    const QStringList arguments{u"--json"_s, u"--battery"_s, u"C"_s, m_log, early};
    QCOMPARE(m_home->import(arguments).status, 0);
    const QByteArray known = WholeFile::read(m_home->folder().measuredFile()).bytes;
    const QByteArray document = WholeFile::read(m_home->folder().dataFile()).bytes;
    QVERIFY(QFile::remove(m_home->folder().measuredFile()));
    QCOMPARE(m_home->import(arguments).status, 0);
    QCOMPARE(WholeFile::read(m_home->folder().dataFile()).bytes, document);
    QCOMPARE(WholeFile::read(m_home->folder().measuredFile()).bytes, known);
}

QTEST_MAIN(ImportFailuresTest)
#include "tst_importfailures.moc"
