// SPDX-License-Identifier: GPL-3.0-or-later
// What the window does when the disk fails it: it stays up and silent, a charge stays on screen, an edit
// shows what the file holds, and the first change after the fault writes the whole file again.
#include "tests/support/brokendisk.h"
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

using namespace Qt::Literals::StringLiterals;

class DiskFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aChargeThatDoesNotFitIsWrittenByTheNextChange_data();
    void aChargeThatDoesNotFitIsWrittenByTheNextChange();
    void anEditThatDoesNotFitLeavesWhatTheFileHolds_data();
    void anEditThatDoesNotFitLeavesWhatTheFileHolds();
    void aDeviceWithoutSpaceTakesNothingAndHoldsNothing();
    void aFolderInTheFilesPlaceIsLeftAlone();
    void aFolderThatVanishesIsMadeAgainByTheNextCharge();
    void aFolderThatVanishesTakesTheRecordsAlongAtTheNextEdit();
    void aFolderThatCannotBeMadeKeepsNothing();
    void aReadOnlyFileOutlivesChargeAndEdit_data();
    void aReadOnlyFileOutlivesChargeAndEdit();
    void aReadOnlyFolderIsNoHindranceToAFileThatIsThere();
    void aReadOnlyFolderGetsNoFile();
    void anUnreadableFileLoadsNothingAndIsBackWithItsPermissions();

private:
    bool charged(const char *name) const
    {
        return m_window->battery(QLatin1StringView(name))->getBatteryCharged();
    }
    void clickCard(const char *name) { m_window->clickCard(m_window->battery(QLatin1StringView(name))); }
    void addBattery(const QString &name);
    QStringList batteries() const;
    /** What another window reads from the file: the names of the batteries, a charged one with a "+". */
    QStringList batteriesInFile() const;
    QStringList locations() const;

    std::unique_ptr<LogbookWindow> m_window;
};

namespace {

const QByteArray catalogue = Test::document({{{u"Pack A"_s}, {u"Pack B"_s}}, {}, {u"Long Meadow"_s}});

constexpr auto ReadableByAll = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto WritableByAll = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
constexpr auto EnterableByAll = ReadableByAll | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

void addSizes()
{
    QTest::addColumn<int>("size");
    QTest::newRow("nothing") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("the prolog") << 60;
    QTest::newRow("the locations") << 140;
    QTest::newRow("half a battery") << 300;
    QTest::newRow("a battery and a half") << 590;
}

} // namespace

void DiskFaultsTest::init()
{
    m_window = std::make_unique<LogbookWindow>();
    QVERIFY(QFile::setPermissions(m_window->folder(), EnterableByAll | QFile::WriteOwner));
    m_window->load(catalogue);
    QCOMPARE(batteries(), QStringList({u"Pack A"_s, u"Pack B"_s}));
}

void DiskFaultsTest::cleanup()
{
    m_window.reset();
}

void DiskFaultsTest::addBattery(const QString &name)
{
    Ui_VoltbokGui &ui = m_window->ui();
    for (QPushButton *button : {ui.pb_options, ui.pb_edit_data, ui.pb_choose_addbattery})
        m_window->click(button);
    m_window->type(ui.ledt_name, name);
    m_window->click(ui.pb_addNewBattery);
    QCOMPARE(ui.stackedWidget->currentWidget(), ui.scrollLayout);
}

QStringList DiskFaultsTest::batteries() const
{
    QStringList names;
    for (const BatteryWidget *battery : std::as_const(m_window->gui().batteryList))
        names.append(battery->getBatteryName());
    return names;
}

QStringList DiskFaultsTest::batteriesInFile() const
{
    VoltbokGui other;
    other.changeStoragePath(m_window->folder());
    QStringList names;
    for (const BatteryWidget *battery : std::as_const(other.batteryList))
        names.append(battery->getBatteryName() + (battery->getBatteryCharged() ? u"+"_s : QString()));
    return names;
}

QStringList DiskFaultsTest::locations() const
{
    return m_window->gui().locations();
}

void DiskFaultsTest::aChargeThatDoesNotFitIsWrittenByTheNextChange_data()
{
    addSizes();
}

void DiskFaultsTest::aChargeThatDoesNotFitIsWrittenByTheNextChange()
{
    QFETCH(int, size);
    {
        const FullDisk disk(static_cast<rlim_t>(size));
        QVERIFY(disk.works());
        clickCard("Pack A");
    }
    QCOMPARE(m_window->fileBytes().size(), size);
    QVERIFY(charged("Pack A"));

    clickCard("Pack B");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A+"_s, u"Pack B+"_s}));
    QVERIFY(m_window->fileBytes().endsWith("</Voltbok>\n"));
}

void DiskFaultsTest::anEditThatDoesNotFitLeavesWhatTheFileHolds_data()
{
    addSizes();
}

void DiskFaultsTest::anEditThatDoesNotFitLeavesWhatTheFileHolds()
{
    QFETCH(int, size);
    {
        const FullDisk disk(static_cast<rlim_t>(size));
        QVERIFY(disk.works());
        addBattery(u"Pack C"_s);
    }
    const QByteArray rest = m_window->fileBytes();
    QCOMPARE(rest.size(), size);
    QCOMPARE(batteries().size(), rest.count("<Battery>"));
    QCOMPARE(locations(), QStringList(u"Long Meadow"_s)); // kept when the file holds none

    const QStringList left = batteries();
    addBattery(u"Pack D"_s);
    QCOMPARE(batteries(), left + QStringList(u"Pack D"_s));
    QCOMPARE(batteriesInFile(), batteries());
    QVERIFY(m_window->fileBytes().contains("\"Long Meadow\""));
    QVERIFY(m_window->fileBytes().endsWith("</Voltbok>\n"));
}

void DiskFaultsTest::aDeviceWithoutSpaceTakesNothingAndHoldsNothing()
{
    // A library that replaced its file would, run by root, have replaced the device through the link.
    QVERIFY2(!QFileInfo(u"/dev/full"_s).isFile(), "/dev/full is no device; mknod -m 666 /dev/full c 1 7");
    QVERIFY(QFile::remove(m_window->filePath()));
    QVERIFY(QFile::link(u"/dev/full"_s, m_window->filePath()));
    clickCard("Pack A");
    QVERIFY(charged("Pack A"));
    addBattery(u"Pack C"_s); // the reload that follows meets a file of endless zeros
    QCOMPARE(batteries(), QStringList());

    QVERIFY(QFile::remove(m_window->filePath()));
    addBattery(u"Pack D"_s);
    QCOMPARE(batteriesInFile(), QStringList(u"Pack D"_s));
    QVERIFY(!QFileInfo(u"/dev/full"_s).isFile());
}

void DiskFaultsTest::aFolderInTheFilesPlaceIsLeftAlone()
{
    const QDir folder(m_window->folder());
    QVERIFY(QFile::remove(m_window->filePath()));
    QVERIFY(folder.mkdir(u"voltbok.xml"_s));
    clickCard("Pack A");
    QVERIFY(charged("Pack A"));
    QVERIFY(QFileInfo(m_window->filePath()).isDir());

    addBattery(u"Pack C"_s);
    QCOMPARE(batteries(), QStringList());
    QVERIFY(m_window->ui().lbl_welcome->isVisible());
    QVERIFY(QDir(m_window->filePath()).isEmpty());

    QVERIFY(folder.rmdir(u"voltbok.xml"_s));
    addBattery(u"Pack D"_s);
    QCOMPARE(batteriesInFile(), QStringList(u"Pack D"_s));
    QVERIFY(m_window->fileBytes().contains("\"Long Meadow\""));
}

void DiskFaultsTest::aFolderThatVanishesIsMadeAgainByTheNextCharge()
{
    QVERIFY(QDir(m_window->folder()).removeRecursively());
    clickCard("Pack B");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A"_s, u"Pack B+"_s}));
}

void DiskFaultsTest::aFolderThatVanishesTakesTheRecordsAlongAtTheNextEdit()
{
    m_window->gui().changeStoragePath(m_window->folder() + u"/not/there"_s);
    QCOMPARE(batteries(), QStringList());
    QCOMPARE(locations(), QStringList(u"Long Meadow"_s));
    QVERIFY(!QFileInfo::exists(m_window->folder() + u"/not"_s)); // nothing is written by looking

    addBattery(u"Pack D"_s);
    QVERIFY(QFileInfo::exists(m_window->folder() + u"/not/there/voltbok.xml"_s));
    QCOMPARE(batteries(), QStringList(u"Pack D"_s));
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A"_s, u"Pack B"_s}));
}

void DiskFaultsTest::aFolderThatCannotBeMadeKeepsNothing()
{
    m_window->gui().changeStoragePath(m_window->filePath() + u"/below"_s); // below a file
    addBattery(u"Pack C"_s);
    QCOMPARE(batteries(), QStringList());
    QCOMPARE(m_window->fileBytes(), catalogue);

    m_window->gui().changeStoragePath(m_window->folder());
    clickCard("Pack A");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A+"_s, u"Pack B"_s}));
}

void DiskFaultsTest::aReadOnlyFileOutlivesChargeAndEdit_data()
{
    QTest::addColumn<bool>("mounted");
    QTest::newRow("by its permissions") << false;
    if (Mount::allowed())
        QTest::newRow("on a read-only mount") << true;
}

void DiskFaultsTest::aReadOnlyFileOutlivesChargeAndEdit()
{
    QFETCH(bool, mounted);
    std::unique_ptr<Mount> mount;
    std::unique_ptr<Refusal> refusal;
    if (mounted) {
        mount = std::make_unique<Mount>(m_window->folder());
        QVERIFY(mount->works());
        m_window->load(catalogue);
        QVERIFY(mount->setReadOnly(true));
    } else {
        refusal = std::make_unique<Refusal>(m_window->filePath(), 0444);
        QVERIFY(refusal->works());
    }

    clickCard("Pack A");
    QVERIFY(charged("Pack A")); // on screen until the next reload
    QCOMPARE(m_window->fileBytes(), catalogue);
    addBattery(u"Pack C"_s);
    QCOMPARE(batteries(), QStringList({u"Pack A"_s, u"Pack B"_s}));
    QVERIFY(!charged("Pack A"));
    QCOMPARE(m_window->fileBytes(), catalogue);

    refusal.reset();
    if (mounted)
        QVERIFY(mount->setReadOnly(false));
    clickCard("Pack B");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A"_s, u"Pack B+"_s}));
}

void DiskFaultsTest::aReadOnlyFolderIsNoHindranceToAFileThatIsThere()
{
    QVERIFY(QFile::setPermissions(m_window->filePath(), ReadableByAll | WritableByAll));
    const Refusal refusal(m_window->folder(), 0555);
    QVERIFY(refusal.works());
    clickCard("Pack A");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A+"_s, u"Pack B"_s}));
}

void DiskFaultsTest::aReadOnlyFolderGetsNoFile()
{
    QVERIFY(QFile::remove(m_window->filePath()));
    {
        const Refusal refusal(m_window->folder(), 0555);
        QVERIFY(refusal.works());
        clickCard("Pack A");
        QVERIFY(charged("Pack A"));
        QVERIFY(QDir(m_window->folder()).isEmpty());
    }
    clickCard("Pack B");
    QCOMPARE(batteriesInFile(), QStringList({u"Pack A+"_s, u"Pack B+"_s}));
}

void DiskFaultsTest::anUnreadableFileLoadsNothingAndIsBackWithItsPermissions()
{
    {
        const Refusal refusal(m_window->filePath(), 0);
        QVERIFY(refusal.works());
        m_window->gui().changeStoragePath(m_window->folder());
        QCOMPARE(batteries(), QStringList());
        QVERIFY(m_window->ui().lbl_welcome->isVisible());
        QCOMPARE(locations(), QStringList(u"Long Meadow"_s));
        addBattery(u"Pack C"_s);
    }
    QCOMPARE(m_window->fileBytes(), catalogue);
    m_window->gui().changeStoragePath(m_window->folder());
    QCOMPARE(batteries(), QStringList({u"Pack A"_s, u"Pack B"_s}));
}

QTEST_MAIN(DiskFaultsTest)
#include "tst_diskfaults.moc"
