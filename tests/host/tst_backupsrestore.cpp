// SPDX-License-Identifier: GPL-3.0-or-later
// The command that restores a copy, as a process.
#include "host/safety/folderlock.h"
#include "tests/host/support/copyhome.h"
#include "tests/support/brokendisk.h"

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class BackupsRestoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<CopyHome>(); }
    void aCopyIsRestoredAndThePresentFileCopiedFirst();
    void aRestoreCanBeTakenBack();
    void anUnknownOrBrokenCopyChangesNothing_data();
    void anUnknownOrBrokenCopyChangesNothing();
    void theHolderOfTheLockIsNamed();
    void whatIsThereAlreadyIsNotRestored();
    void aDamagedOrMissingFileIsReplacedAndKept_data();
    void aDamagedOrMissingFileIsReplacedAndKept();
    void aFileThatHoldsMoreThanIsUnderstoodIsKeptAside();
    void theMeasuredValuesOfTheCopyComeBack();
    void withoutMeasuredValuesBesideItWhatFitsIsKept();
    void measuredValuesOfALaterVersionAreLeftAlone();
    void damagedMeasuredValuesBesideACopyDoNotComeBack();
    void onlyTheMeasuredValuesAreRestoredWhereTheLogbookIsTheSame();
    void aFailureLeavesEverythingAsItWas_data();
    void aFailureLeavesEverythingAsItWas();
    void linksLeadWhereTheyLed();
    void rightsStay();
    void theSampleIsMadeFirst();

private:
    const QByteArray m_now = CopyHome::document(CopyHome::now());
    const QByteArray m_before = CopyHome::document(CopyHome::before());
    std::unique_ptr<CopyHome> m_home;
};

void BackupsRestoreTest::aCopyIsRestoredAndThePresentFileCopiedFirst()
{
    const QString stamp = m_home->copy(m_before);
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(m_home->bytes(), m_before);
    QVERIFY(m_home->isCopied(m_now));
    QCOMPARE(m_home->asides(), QStringList());
    const QList<Copy> copies = Backups::list(m_home->folder());
    QCOMPARE(Test::contents(m_home->folder().backups().filePath(copies.first().name)), m_before);
    QVERIFY(!QFileInfo::exists(m_home->folder().lock()));
    QVERIFY(!QFileInfo::exists(m_home->folder().replacement()));
}

void BackupsRestoreTest::aRestoreCanBeTakenBack()
{
    const Program::Result result = m_home->restore(m_home->copy(m_before));
    const QList<Copy> copies = Backups::list(m_home->folder());
    QCOMPARE(copies.size(), 3);
    const QString stamp = copies.at(1).stamp;
    QVERIFY2(result.output.endsWith(u"As it was before, it is the copy %1.\n"_s.arg(stamp)),
             qPrintable(result.output));
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(m_home->bytes(), m_now);
}

void BackupsRestoreTest::anUnknownOrBrokenCopyChangesNothing_data()
{
    QTest::addColumn<QString>("stamp");
    QTest::newRow("unknown") << u"20260504-120009-000Z"_s;
    QTest::newRow("no stamp") << u"yesterday"_s;
    QTest::newRow("a file name") << u"voltbok-00000001-20260504-120001-000Z.xml"_s;
    QTest::newRow("a path") << u"../voltbok.xml"_s;
    QTest::newRow("broken") << u"20260504-120002-000Z"_s;
    QTest::newRow("a beginning") << u"20260504-120001"_s;
}

void BackupsRestoreTest::anUnknownOrBrokenCopyChangesNothing()
{
    QFETCH(QString, stamp);
    m_home->copy(m_before);
    m_home->copy(m_before.chopped(30));
    const auto before = m_home->snapshot();
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(stamp) && result.errors.count(u'\n') == 1, qPrintable(result.errors));
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsRestoreTest::theHolderOfTheLockIsNamed()
{
    const QString stamp = m_home->copy(m_before);
    FolderLock lock;
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const auto before = m_home->snapshot();
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QString::number(QCoreApplication::applicationPid())),
             qPrintable(result.errors));
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsRestoreTest::whatIsThereAlreadyIsNotRestored()
{
    m_home->copy(m_before);
    const QString stamp = m_home->copy(m_now);
    const auto before = m_home->snapshot();
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.endsWith(u"already. Nothing was changed.\n"_s), qPrintable(result.output));
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsRestoreTest::aDamagedOrMissingFileIsReplacedAndKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("damaged") << m_now.chopped(30);
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("missing") << QByteArray();
}

void BackupsRestoreTest::aDamagedOrMissingFileIsReplacedAndKept()
{
    QFETCH(QByteArray, bytes);
    const QString stamp = m_home->copy(m_before);
    if (bytes.isNull())
        QVERIFY(QFile::remove(m_home->folder().dataFile()));
    else
        m_home->put(u"log/voltbok.xml"_s, bytes);
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(m_home->bytes(), m_before);
    QCOMPARE(m_home->asides().size(), bytes.isNull() ? 0 : 1);
    if (bytes.isNull())
        return;
    QCOMPARE(Test::contents(m_home->path() + u'/' + m_home->asides().first()), bytes);
    QVERIFY2(result.output.contains(m_home->asides().first()), qPrintable(result.output));
    QCOMPARE(m_home->folder().backups().entryList({u"*-kept-*"_s}).size(), 1);
}

void BackupsRestoreTest::aFileThatHoldsMoreThanIsUnderstoodIsKeptAside()
{
    const QByteArray strange = QByteArray(m_now).replace("<Locations>", "<Locations><Club/>");
    const QString stamp = m_home->copy(m_before);
    m_home->put(u"log/voltbok.xml"_s, strange);
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(m_home->asides().size(), 1);
    QCOMPARE(Test::contents(m_home->path() + u'/' + m_home->asides().first()), strange);
    QVERIFY(m_home->isCopied(strange));
}

void BackupsRestoreTest::theMeasuredValuesOfTheCopyComeBack()
{
    const QByteArray present = CopyHome::measured(PlainLogbook::at(10, 0));
    const QByteArray old = CopyHome::measured(PlainLogbook::at(9, 0));
    const QString stamp = m_home->copy(m_before, old);
    m_home->put(u"log/voltbok-measured.json"_s, present);
    const Program::Result result = m_home->restore(stamp);
    QCOMPARE(result.errors, QString());
    QCOMPARE(m_home->beside(), old);
    QCOMPARE(m_home->restore(Backups::list(m_home->folder()).at(1).stamp).status, 0);
    QCOMPARE(m_home->bytes(), m_now);
    QCOMPARE(m_home->beside(), present);
}

/** Battery A has both discharges in the copy, one of them with other values. */
void BackupsRestoreTest::withoutMeasuredValuesBesideItWhatFitsIsKept()
{
    Catalogue before = CopyHome::before();
    before.batteries[0].discharges[1].discharged = 1760;
    Measured known = MeasuredFile::load(CopyHome::measured(PlainLogbook::at(9, 0))).measured;
    const Measured more = MeasuredFile::load(CopyHome::measured(PlainLogbook::at(10, 0))).measured;
    known.discharges += more.discharges;
    known.logs += more.logs;
    known.models.insert(u"SKY"_s, u"Skylark"_s);
    m_home->put(u"log/voltbok-measured.json"_s, MeasuredFile::save(known));
    const QString stamp = m_home->copy(before);
    QCOMPARE(m_home->restore(stamp).status, 0);
    const Measured left = MeasuredStore::load(m_home->folder()).measured;
    QCOMPARE(left.discharges.size(), 1);
    QVERIFY(left.find(u"A"_s, momentOf(PlainLogbook::at(9, 0))));
    QCOMPARE(left.logs.size(), 1); // the other one can be imported again
    QCOMPARE(left.logs.first().sha256, left.discharges.first().sha256);
    QCOMPARE(left.models, known.models);
}

void BackupsRestoreTest::measuredValuesOfALaterVersionAreLeftAlone()
{
    const QByteArray later = R"({"format": "voltbok-measured", "version": 9})";
    m_home->put(u"log/voltbok-measured.json"_s, later);
    const QString stamp = m_home->copy(m_before, CopyHome::measured(PlainLogbook::at(9, 0)));
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(m_home->bytes(), m_before);
    QCOMPARE(m_home->beside(), later);
}

void BackupsRestoreTest::damagedMeasuredValuesBesideACopyDoNotComeBack()
{
    const QByteArray present = CopyHome::measured(PlainLogbook::at(9, 0));
    m_home->put(u"log/voltbok-measured.json"_s, present);
    const QString stamp = m_home->copy(m_before, "half");
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(m_home->bytes(), m_before);
    QCOMPARE(m_home->beside(), present);
}

void BackupsRestoreTest::onlyTheMeasuredValuesAreRestoredWhereTheLogbookIsTheSame()
{
    const QByteArray old = CopyHome::measured(PlainLogbook::at(9, 0));
    const QByteArray present = CopyHome::measured(PlainLogbook::at(10, 0));
    const QString stamp = m_home->copy(m_now, old);
    m_home->copy(m_before);
    m_home->put(u"log/voltbok-measured.json"_s, present);
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(m_home->bytes(), m_now);
    QCOMPARE(m_home->beside(), old);
}

void BackupsRestoreTest::aFailureLeavesEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("full disk") << 0;
    QTest::newRow("no room for the measured values") << 1;
    QTest::newRow("read-only folder") << 2;
    QTest::newRow("copies cannot be written") << 3;
    QTest::newRow("the file is a folder") << 4;
}

void BackupsRestoreTest::aFailureLeavesEverythingAsItWas()
{
    QFETCH(int, kind);
    const QString stamp = m_home->copy(m_before, CopyHome::measured(PlainLogbook::at(9, 0)));
    std::shared_ptr<void> fault;
    if (kind == 0)
        fault = std::make_shared<FullDisk>(1000);
    if (kind == 1)
        QVERIFY(QDir(m_home->path()).mkdir(u"voltbok-measured.json"_s) &&
                QFile::setPermissions(m_home->path() + u"/voltbok-measured.json"_s, QFile::Permissions()));
    if (kind == 4)
        QVERIFY(QFile::remove(m_home->folder().dataFile()) && QDir().mkdir(m_home->folder().dataFile()));
    const auto before = m_home->snapshot();
    const auto setMode = [&](const QString &path, int mode) {
        QVERIFY(QFile::setPermissions(m_home->file(path), QFile::Permissions(mode)));
    };
    const bool isNobody = kind == 2 || kind == 3;
    setMode(QString(), 0x7777);
    if (isNobody) {
        setMode(u"log"_s, kind == 2 ? 0x5555 : 0x7777);
        setMode(u"log/backups"_s, 0x5555);
    }
    const QString asNobody =
        u"$(test $(id -u) = 0 && echo setpriv --reuid=65534 --regid=65534 --clear-groups) \"$0\" "_s
        u"--data log backups restore "_s;
    const Program::Result result =
        isNobody ? m_home->program().shell(asNobody + stamp) : m_home->restore(stamp);
    setMode(u"log"_s, 0x7755);
    setMode(u"log/backups"_s, 0x7755);
    fault.reset();
    if (kind == 1) { // what cannot be read is left alone
        QCOMPARE(result.status, 0);
        return;
    }
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY(!result.errors.isEmpty());
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsRestoreTest::linksLeadWhereTheyLed()
{
    const QString stamp = m_home->copy(m_before);
    QVERIFY(QDir().mkdir(m_home->file(u"elsewhere"_s)));
    QVERIFY(QFile::rename(m_home->folder().dataFile(), m_home->file(u"elsewhere/flights.xml"_s)));
    QVERIFY(QFile::link(m_home->file(u"elsewhere/flights.xml"_s), m_home->folder().dataFile()));
    QCOMPARE(m_home->restore(stamp).status, 0);
    QVERIFY(QFileInfo(m_home->folder().dataFile()).isSymLink());
    QCOMPARE(Test::contents(m_home->file(u"elsewhere/flights.xml"_s)), m_before);
    QCOMPARE(QDir(m_home->file(u"elsewhere"_s)).entryList(QDir::Files), QStringList{u"flights.xml"_s});
}

void BackupsRestoreTest::rightsStay()
{
    const QString stamp = m_home->copy(m_before);
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(m_home->folder().dataFile(), mode));
    QCOMPARE(m_home->restore(stamp).status, 0);
    QCOMPARE(WholeFile::permissionsOf(m_home->folder().dataFile()), std::optional(mode));
}

void BackupsRestoreTest::theSampleIsMadeFirst()
{
    const Program::Result result = m_home->program().run({u"--demo"_s, u"backups"_s, u"restore"_s, u"x"_s});
    QCOMPARE(result.status, 1);
    QVERIFY(!QDir(m_home->file(u"data"_s)).isEmpty());
    QVERIFY2(result.errors.contains(u"There is no copy “x”"_s), qPrintable(result.errors));
}

QTEST_MAIN(BackupsRestoreTest)
#include "tst_backupsrestore.moc"
