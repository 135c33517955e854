// SPDX-License-Identifier: GPL-3.0-or-later
// Where the measured values stand: beside the data file, and beside its copies.
#include "host/data/moments.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/brokendisk.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime Noon(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);

Measured known()
{
    Measured measured;
    MeasuredDischarge entry;
    entry.battery = u"A"_s;
    entry.moment = momentOf(at(9, 0));
    measured.discharges = {entry};
    measured.models = {{u"SKYLK"_s, u"Skylark"_s}};
    return measured;
}

/** A folder of a logbook. */
struct Place
{
    QTemporaryDir root;
    StorageFolder folder = StorageFolder(root.path());

    QString path(const QString &name) const { return root.filePath(name); }
    bool put(const QString &name, const QByteArray &bytes) const
    {
        return WholeFile::write(path(name), bytes).isEmpty();
    }
    QByteArray measured() const { return Test::contents(folder.measuredFile()); }
};

} // namespace

class MeasuredStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDamagedFileIsPutAsideBeforeItIsReplaced();
    void aFileOfALaterVersionIsLeftAlone();
    void whatCannotBeReadIsLeftAlone();
    void aFullDiskLeavesTheFileAsItWas();
    void nothingIsNoFile();
    void aCopyOfTheLogbookHasTheMeasuredValuesBesideIt();
    void aCopyIsGivenTheMeasuredValuesThatItLacks();
    void otherMeasuredValuesAreAnotherCopy();
    void theirLossHindersNoCopy();
    void theyGoWithTheirCopy();
};

void MeasuredStoreTest::aDamagedFileIsPutAsideBeforeItIsReplaced()
{
    const Place place;
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half of it"));
    const MeasuredStore::Stored stored = MeasuredStore::load(place.folder);
    QVERIFY2(stored.problem.contains(u"damaged"_s), qPrintable(stored.problem));
    QVERIFY(stored.measured.isEmpty());
    QVERIFY(stored.mayWrite);
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(place.measured(), MeasuredFile::save(known()));
    const QStringList asides = QDir(place.root.path()).entryList({u"voltbok-measured-broken-*Z.json"_s});
    QCOMPARE(asides.size(), 1);
    QCOMPARE(Test::contents(place.path(asides.first())), QByteArray("half of it"));
}

void MeasuredStoreTest::aFileOfALaterVersionIsLeftAlone()
{
    const Place place;
    const QByteArray later = R"({"format": "voltbok-measured", "version": 2, "discharges": []})";
    QVERIFY(place.put(u"voltbok-measured.json"_s, later));
    const MeasuredStore::Stored stored = MeasuredStore::load(place.folder);
    QVERIFY2(stored.problem.contains(u"later version"_s), qPrintable(stored.problem));
    QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    QCOMPARE(Test::snapshot(place.root.path()).size(), 1);
    QCOMPARE(place.measured(), later);
}

void MeasuredStoreTest::whatCannotBeReadIsLeftAlone()
{
    const Place place;
    QVERIFY(QDir(place.root.path()).mkdir(u"voltbok-measured.json"_s));
    QVERIFY(MeasuredStore::load(place.folder).problem.contains(u"folder"_s));
    QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    QVERIFY(QFileInfo(place.folder.measuredFile()).isDir());
}

void MeasuredStoreTest::aFullDiskLeavesTheFileAsItWas()
{
    const Place place;
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half of it"));
    {
        const FullDisk disk(4);
        QVERIFY(disk.works());
        QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    }
    QCOMPARE(Test::snapshot(place.root.path()).size(), 1);
    QCOMPARE(place.measured(), QByteArray("half of it"));
}

void MeasuredStoreTest::nothingIsNoFile()
{
    const Place place;
    QVERIFY(MeasuredStore::load(place.folder).problem.isEmpty());
    QCOMPARE(MeasuredStore::save(place.folder, {}), QString());
    QCOMPARE(MeasuredStore::put(place.folder, {}), QString());
    QVERIFY(Test::snapshot(place.root.path()).isEmpty());
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(MeasuredStore::put(place.folder, {}), QString());
    QVERIFY(Test::snapshot(place.root.path()).isEmpty());
}

void MeasuredStoreTest::aCopyOfTheLogbookHasTheMeasuredValuesBesideIt()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    const QString name = Backups::measuredName(Backups::list(place.folder).first().name);
    QCOMPARE(name, u"voltbok-00000001-20261121-120000-000Z.json"_s);
    QCOMPARE(Test::contents(place.folder.backups().filePath(name)), MeasuredFile::save(known()));
    QCOMPARE(Backups::list(place.folder).size(), 1);
}

void MeasuredStoreTest::aCopyIsGivenTheMeasuredValuesThatItLacks()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 1);
    const QString beside =
        place.folder.backups().filePath(Backups::measuredName(Backups::list(place.folder).first().name));
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
    QVERIFY(Test::write(beside, "half"));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
    // Nothing damaged is copied, and what is gone says nothing.
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half"));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QVERIFY(QFile::remove(place.folder.measuredFile()));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 1);
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
}

/** A restore may have put others in their place: this copy is then the only place where they are. */
void MeasuredStoreTest::otherMeasuredValuesAreAnotherCopy()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    Measured later = known();
    later.models.clear();
    const QList<Measured> versions{known(), later, known()};
    for (const Measured &version : versions) {
        QCOMPARE(MeasuredStore::save(place.folder, version), QString());
        QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    }
    const QList<Copy> copies = Backups::list(place.folder);
    QCOMPARE(copies.size(), versions.size());
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const Backups::Held held = Backups::held(place.folder, copies.at(copies.size() - 1 - i));
        QCOMPARE(held.document, document);
        QCOMPARE(held.beside, MeasuredFile::save(versions.at(i)));
    }
}

void MeasuredStoreTest::theirLossHindersNoCopy()
{
    const Place place;
    QVERIFY(QDir(place.root.path()).mkpath(u"voltbok-measured.json/below"_s));
    QVERIFY(QDir(place.root.path()).mkpath(u"backups/voltbok-00000002-20261121-120000-000Z.json"_s));
    QCOMPARE(Backups::add(place.folder, "<Voltbok/>\n", Noon), QString());
    QVERIFY(QDir(place.root.path()).rmdir(u"voltbok-measured.json/below"_s));
    QVERIFY(QDir(place.root.path()).rmdir(u"voltbok-measured.json"_s));
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, "<Voltbok><a/></Voltbok>\n", Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 2);
}

void MeasuredStoreTest::theyGoWithTheirCopy()
{
    const Place place;
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, "<Voltbok/>\n", Noon), QString());
    QCOMPARE(Backups::keepNewestWhole(place.folder), QString());
    QVERIFY(QFileInfo::exists(
        place.folder.backups().filePath(u"voltbok-00000001-kept-20261121-120000-000Z.json"_s)));
    for (int i = 1; i <= 3; ++i) {
        const QByteArray document = "<Voltbok><a x=\"" + QByteArray::number(i) + "\"/></Voltbok>\n";
        QCOMPARE(Backups::add(place.folder, document, Noon.addSecs(i)), QString());
    }
    Backups::thin(place.folder, Noon.addDays(40)); // the first is kept, the last is that of its month
    QCOMPARE(Backups::list(place.folder).size(), 2);
    QCOMPARE(place.folder.backups().entryList({u"*.json"_s}).size(), 2);
}

QTEST_GUILESS_MAIN(MeasuredStoreTest)
#include "tst_measuredstore.moc"
