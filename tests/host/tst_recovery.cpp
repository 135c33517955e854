// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QTest>

#include <sys/stat.h>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray Broken = "<Voltbok><Battery><Name>half a na"_ba;
const QByteArray Whole = LogbookFolder::document(u"restored"_s);
constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions Bits = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                    QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

} // namespace

class RecoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log = std::make_unique<LogbookFolder>(); }
    void theOldFileIsKeptAndTheNewOneInItsPlace();
    void withoutAnOldFileThereIsNothingToKeep();
    void aFullDiskLeavesAllAsItWas_data();
    void aFullDiskLeavesAllAsItWas();
    void aFullFileSystemLeavesAllAsItWas();
    void aFolderThatCannotBeWrittenLeavesAllAsItWas();
    void aFileThatCannotBeMovedLeavesAllAsItWas();
    void whatIsNoRegularFileIsNeverMoved();
    void aReplacementThatIsTakenByAFolderIsMovedAside();
    void aReplacementThatIsALinkIsNotFollowed();
    void aReplacementOfSomebodyElseIsKept();
    void twoReplacementsInOneMomentKeepBothFiles();
    void aLinkGoesOnLeadingToItsFile();
    void aLinkThatLeadsNowhereIsLeftAlone();
    void theRightsStay_data();
    void theRightsStay();
    void aMissingFileGetsTheRightsOfItsCopies();
    void deathAtAnyMomentLosesNothing_data();
    void deathAtAnyMomentLosesNothing();
    void deathBetweenTheMovesOfALinkedFileIsMended();
    void aReplacementThatIsNeededIsNeverRemoved();
    void whatWasCutOffWhileItWasWrittenIsRemoved();
    void aFileIsPutAsideOnce();
    void aFileThatCannotBePutAsideSaysWhy();

private:
    QString replace(const QByteArray &document, QString *aside = nullptr) const
    {
        QString kept;
        return Recovery::replace(m_log->folder(), document, LogbookFolder::noon(), aside ? aside : &kept);
    }
    QStringList names() const { return m_log->snapshot().keys(); }

    std::unique_ptr<LogbookFolder> m_log;
};

void RecoveryTest::theOldFileIsKeptAndTheNewOneInItsPlace()
{
    m_log->save(Broken);
    QString aside;
    QCOMPARE(replace(Whole, &aside), QString());
    QCOMPARE(aside, m_log->file(u"voltbok-broken-20261120-120000-000Z.xml"_s));
    QCOMPARE(m_log->snapshot(),
             (QMap<QString, QByteArray>{{u"log/voltbok-broken-20261120-120000-000Z.xml"_s, Broken},
                                        {u"log/voltbok.xml"_s, Whole}}));
}

void RecoveryTest::withoutAnOldFileThereIsNothingToKeep()
{
    QString aside;
    QCOMPARE(replace(Whole, &aside), QString());
    QCOMPARE(aside, QString());
    QCOMPARE(m_log->snapshot(), (QMap<QString, QByteArray>{{u"log/voltbok.xml"_s, Whole}}));
}

void RecoveryTest::aFullDiskLeavesAllAsItWas_data()
{
    QTest::addColumn<int>("room");
    for (const int room : {0, 1, 40, 120})
        QTest::addRow("%d bytes", room) << room;
}

void RecoveryTest::aFullDiskLeavesAllAsItWas()
{
    QFETCH(int, room);
    m_log->save(Broken);
    m_log->copy(Whole);
    const auto before = m_log->snapshot();
    {
        const FullDisk disk(static_cast<rlim_t>(room));
        QVERIFY(disk.works());
        QCOMPARE(replace(Whole), u"the file would be too large"_s);
    }
    QCOMPARE(m_log->snapshot(), before);
}

void RecoveryTest::aFullFileSystemLeavesAllAsItWas()
{
    if (!Mount::allowed())
        return; // the same is told by aFullDiskLeavesAllAsItWas()
    const QString place = QDir(m_log->root()).filePath(u"log"_s);
    const Mount mount(place);
    QVERIFY(mount.works());
    QVERIFY(::mount("none", QFile::encodeName(place), nullptr, MS_REMOUNT, "size=64k") == 0);
    m_log->save(QByteArray(40'000, 'x'));
    const auto before = m_log->snapshot();
    QCOMPARE(replace(Whole + QByteArray(40'000, '\n')), u"no space left on device"_s);
    QCOMPARE(m_log->snapshot(), before);
    QCOMPARE(replace(Whole), QString()); // a smaller one fits beside
}

void RecoveryTest::aFolderThatCannotBeWrittenLeavesAllAsItWas()
{
    m_log->save(Broken);
    const auto before = m_log->snapshot();
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    {
        const Refusal closed(m_log->path(), 0555);
        QVERIFY(closed.works());
        QCOMPARE(replace(Whole), u"permission denied"_s);
    }
    QCOMPARE(m_log->snapshot(), before);
}

/** In a folder like /tmp: everybody may write there, and nobody may move what is another's. */
void RecoveryTest::aFileThatCannotBeMovedLeavesAllAsItWas()
{
    if (geteuid() != 0)
        return; // nobody else can be the owner
    m_log->save(Broken);
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    QCOMPARE(::chmod(QFile::encodeName(m_log->path()), 01777), 0);
    const auto before = m_log->snapshot();
    QCOMPARE(seteuid(65534), 0);
    const QString problem = replace(Whole);
    QCOMPARE(seteuid(0), 0);
    QCOMPARE(problem, u"operation not permitted"_s);
    QCOMPARE(m_log->snapshot(), before);
}

void RecoveryTest::whatIsNoRegularFileIsNeverMoved()
{
    QVERIFY(QDir(m_log->path()).mkpath(u"voltbok.xml/hers"_s));
    const auto before = QDir(m_log->path()).entryList();
    QCOMPARE(replace(Whole), u"it is not a regular file"_s);
    QCOMPARE(QDir(m_log->path()).entryList(), before);
}

void RecoveryTest::aReplacementThatIsTakenByAFolderIsMovedAside()
{
    m_log->save(Broken);
    QVERIFY(QDir(m_log->path()).mkpath(u"voltbok-new.xml/hers"_s));
    QVERIFY(Test::write(m_log->file(u"voltbok-new.xml/hers/notes"_s), "mine"));
    QCOMPARE(replace(Whole), QString());
    QCOMPARE(Test::contents(m_log->dataFile()), Whole);
    const auto after = m_log->snapshot();
    QCOMPARE(after.size(), 3);
    QVERIFY(after.values().contains("mine"));
    QVERIFY(after.values().contains(Broken));
}

void RecoveryTest::aReplacementThatIsALinkIsNotFollowed()
{
    m_log->save(Broken);
    QVERIFY(QFile::link(m_log->dataFile(), m_log->file(u"voltbok-new.xml"_s)));
    QCOMPARE(replace(Whole), QString());
    QCOMPARE(Test::contents(m_log->dataFile()), Whole);
    QVERIFY(!QFileInfo(m_log->dataFile()).isSymLink());
    QVERIFY(m_log->snapshot().values().contains(Broken));
}

void RecoveryTest::aReplacementOfSomebodyElseIsKept()
{
    m_log->save(Broken);
    QVERIFY(Test::write(m_log->file(u"voltbok-new.xml"_s), "hers"));
    QCOMPARE(replace(Whole), QString());
    QVERIFY(m_log->snapshot().values().contains("hers"));
    QVERIFY(m_log->snapshot().values().contains(Broken));
    QCOMPARE(Test::contents(m_log->dataFile()), Whole);
}

void RecoveryTest::twoReplacementsInOneMomentKeepBothFiles()
{
    m_log->save(Broken);
    QCOMPARE(replace("<Voltbok>\n"), QString());
    QCOMPARE(replace(Whole), QString());
    QCOMPARE(m_log->snapshot().values(), (QList<QByteArray>{Broken, "<Voltbok>\n", Whole}));
}

void RecoveryTest::aLinkGoesOnLeadingToItsFile()
{
    QVERIFY(QDir(m_log->root()).mkdir(u"sync"_s));
    const QString target = QDir(m_log->root()).filePath(u"sync/flights.xml"_s);
    QVERIFY(Test::write(target, Broken));
    QVERIFY(QFile::link(target, m_log->dataFile()));
    QString aside;
    QCOMPARE(replace(Whole, &aside), QString());
    QCOMPARE(QFileInfo(m_log->dataFile()).symLinkTarget(), target);
    QCOMPARE(Test::contents(target), Whole);
    QCOMPARE(Test::contents(aside), Broken);
    QCOMPARE(names(), (QStringList{u"log/voltbok.xml"_s, u"sync/flights.xml"_s,
                                   u"sync/voltbok-broken-20261120-120000-000Z.xml"_s}));
}

void RecoveryTest::aLinkThatLeadsNowhereIsLeftAlone()
{
    const QString target = QDir(m_log->root()).filePath(u"unmounted/voltbok.xml"_s);
    QVERIFY(QFile::link(target, m_log->dataFile()));
    QCOMPARE(replace(Whole), u"it is a link to “%1”, which does not exist"_s.arg(target));
    QCOMPARE(QFileInfo(m_log->dataFile()).symLinkTarget(), target);
    QCOMPARE(names(), QStringList{u"log/voltbok.xml"_s});
}

void RecoveryTest::theRightsStay_data()
{
    QTest::addColumn<int>("permissions");
    for (const int permissions : {0x6000, 0x6400, 0x6440, 0x6660, 0x6664, 0x4000})
        QTest::addRow("%x", permissions) << permissions;
}

void RecoveryTest::theRightsStay()
{
    QFETCH(int, permissions);
    const QFile::Permissions wanted = QFile::Permissions(permissions) & Bits;
    for (const QByteArray &document : {Whole, CatalogueFile::emptyDocument()}) {
        m_log = std::make_unique<LogbookFolder>();
        m_log->save(Broken);
        QVERIFY(QFile::setPermissions(m_log->dataFile(), wanted));
        QString aside;
        QCOMPARE(replace(document, &aside), QString());
        QCOMPARE(QFile::permissions(m_log->dataFile()) & Bits, wanted);
        QCOMPARE(QFile::permissions(aside) & Bits, wanted);
    }
}

void RecoveryTest::aMissingFileGetsTheRightsOfItsCopies()
{
    QFile::setPermissions(m_log->copy(Whole), Bits);
    QFile::setPermissions(m_log->copy(Whole), OwnerOnly);
    QCOMPARE(replace(Whole), QString());
    QCOMPARE(QFile::permissions(m_log->dataFile()) & Bits, OwnerOnly);
}

void RecoveryTest::deathAtAnyMomentLosesNothing_data()
{
    using Content = QMap<QString, QByteArray>;
    QTest::addColumn<Content>("left");
    QTest::addColumn<Content>("expected");

    const QString data = u"voltbok.xml"_s;
    const QString fresh = u"voltbok-new.xml"_s;
    const QString half = u"voltbok-new.xml.aBcDeF"_s;
    const QString aside = u"voltbok-broken-20261120-120000-000Z.xml"_s;
    const QString copy = u"backups/voltbok-00000001-20261120-120001-000Z.xml"_s;
    const Content before{{data, Broken}, {copy, Whole}};
    const Content after{{data, Whole}, {aside, Broken}, {copy, Whole}};
    const auto with = [](Content content, const QString &name, const QByteArray &bytes) {
        content.insert(name, bytes);
        return content;
    };
    QTest::newRow("while it was written") << with(before, half, Whole.first(40)) << before;
    QTest::newRow("when it was written") << with(before, half, Whole) << before;
    QTest::newRow("before the old one was moved") << with(before, fresh, Whole) << before;
    QTest::newRow("after the old one was moved")
        << Content{{fresh, Whole}, {aside, Broken}, {copy, Whole}} << after;
    QTest::newRow("after the new one was moved") << after << after;
    QTest::newRow("without an old one")
        << Content{{fresh, Whole}, {copy, Whole}} << Content{{data, Whole}, {copy, Whole}};
}

void RecoveryTest::deathAtAnyMomentLosesNothing()
{
    using Content = QMap<QString, QByteArray>;
    QFETCH(Content, left);
    QFETCH(Content, expected);
    QVERIFY(QDir(m_log->path()).mkdir(u"backups"_s));
    for (auto it = left.cbegin(); it != left.cend(); ++it)
        QVERIFY(Test::write(m_log->file(it.key()), it.value()));
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(Test::snapshot(m_log->path()), expected);
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(Test::snapshot(m_log->path()), expected);
}

void RecoveryTest::deathBetweenTheMovesOfALinkedFileIsMended()
{
    QVERIFY(QDir(m_log->root()).mkdir(u"sync"_s));
    const QDir sync(QDir(m_log->root()).filePath(u"sync"_s));
    QVERIFY(QFile::link(sync.filePath(u"flights.xml"_s), m_log->file(u"second"_s)));
    QVERIFY(QFile::link(m_log->file(u"second"_s), m_log->dataFile()));
    QVERIFY(Test::write(sync.filePath(u"voltbok-new.xml"_s), Whole));
    QVERIFY(Test::write(sync.filePath(u"voltbok-broken-20261120-120000-000Z.xml"_s), Broken));
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(Test::contents(sync.filePath(u"flights.xml"_s)), Whole);
    QCOMPARE(Recovery::examine(m_log->folder()).kind, FileState::Whole);
    QVERIFY(!sync.exists(u"voltbok-new.xml"_s));
    QCOMPARE(Test::contents(sync.filePath(u"voltbok-broken-20261120-120000-000Z.xml"_s)), Broken);
}

void RecoveryTest::aReplacementThatIsNeededIsNeverRemoved()
{
    const QString fresh = m_log->file(u"voltbok-new.xml"_s);
    m_log->save(Broken);
    QVERIFY(Test::write(fresh, Whole)); // nobody else holds it
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(Test::contents(m_log->dataFile()), Broken);
    QVERIFY(m_log->snapshot().values().contains(Whole));
    QCOMPARE(m_log->folder().asides().size(), 1);

    m_log = std::make_unique<LogbookFolder>();
    const QString half = m_log->file(u"voltbok-new.xml"_s);
    QVERIFY(Test::write(half, Broken)); // without a logbook, but it is none itself
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(m_log->snapshot(), (QMap<QString, QByteArray>{{u"log/voltbok-new.xml"_s, Broken}}));

    m_log = std::make_unique<LogbookFolder>();
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    QVERIFY(Test::write(m_log->file(u"voltbok-new.xml"_s), Whole)); // it cannot be moved to its place
    {
        const Refusal closed(m_log->path(), 0555);
        Recovery::finishInterrupted(m_log->folder());
    }
    QCOMPARE(m_log->snapshot(), (QMap<QString, QByteArray>{{u"log/voltbok-new.xml"_s, Whole}}));
}

void RecoveryTest::whatWasCutOffWhileItWasWrittenIsRemoved()
{
    m_log->save(Whole);
    for (const QString &name : {u"voltbok-new.xml.AbCdEf"_s, u"voltbok-new.xml.zzzzzz"_s})
        QVERIFY(Test::write(m_log->file(name), "half"));
    const QStringList hers{u"voltbok-new.xml.backups"_s, u"voltbok-new.xml.1"_s, u"voltbok-new.xml.2026-1"_s,
                           u"voltbok.xml.backup"_s, u"voltbok.xml.AbCdEf"_s};
    for (const QString &name : hers)
        QVERIFY(Test::write(m_log->file(name), "hers"));
    QVERIFY(QFile::link(m_log->dataFile(), m_log->file(u"voltbok-new.xml.LinkTo"_s)));
    Recovery::finishInterrupted(m_log->folder());
    QCOMPARE(m_log->snapshot().values().count("hers"), hers.size());
    QVERIFY(!m_log->snapshot().values().contains("half"));
    QVERIFY(QFileInfo(m_log->file(u"voltbok-new.xml.LinkTo"_s)).isSymLink());
}

void RecoveryTest::aFileIsPutAsideOnce()
{
    m_log->save(Whole);
    QVERIFY(QFile::setPermissions(m_log->dataFile(), OwnerOnly));
    QString first;
    QString second;
    const QDateTime now = LogbookFolder::noon();
    QCOMPARE(Recovery::keepAside(m_log->folder(), Whole, now, &first), QString());
    QCOMPARE(Recovery::keepAside(m_log->folder(), Whole, now.addDays(1), &second), QString());
    QCOMPARE(first, second);
    QCOMPARE(Test::contents(first), Whole);
    QCOMPARE(QFile::permissions(first) & Bits, OwnerOnly);
    QCOMPARE(m_log->snapshot().size(), 2);
    QString other;
    QCOMPARE(Recovery::keepAside(m_log->folder(), LogbookFolder::document(u"retsored"_s), now, &other),
             QString());
    QVERIFY(other != first);
    QCOMPARE(Test::contents(first), Whole);
}

void RecoveryTest::aFileThatCannotBePutAsideSaysWhy()
{
    m_log->save(Whole);
    const auto before = m_log->snapshot();
    QString aside;
    {
        const FullDisk disk(10);
        QCOMPARE(Recovery::keepAside(m_log->folder(), Whole, LogbookFolder::noon(), &aside),
                 u"the file would be too large"_s);
    }
    QCOMPARE(aside, QString());
    QCOMPARE(m_log->snapshot(), before);
}

QTEST_GUILESS_MAIN(RecoveryTest)
#include "tst_recovery.moc"
