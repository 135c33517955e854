// SPDX-License-Identifier: GPL-3.0-or-later
// What the open logbook does with the measured values beside it.
#include "host/data/edits.h"
#include "host/safety/measuredstore.h"
#include "host/window/openlogbook.h"
#include "tests/host/support/brokensaves.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Name = u"Imported"_s;

/** The data file cannot be read for a while: something else has its name. */
class Unread
{
public:
    explicit Unread(const HostWindow &window)
        : m_file(window.filePath())
    {
        QVERIFY(QFile::rename(m_file, m_file + u".away"_s));
        QVERIFY(QDir().mkdir(m_file));
    }
    void giveBack() const
    {
        QVERIFY(QDir().rmdir(m_file));
        QVERIFY(QFile::rename(m_file + u".away"_s, m_file));
    }

private:
    const QString m_file;
};

} // namespace

class MeasuredLogbookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anImportIsOneStepOfBothFiles();
    void measuredDischargesAreMarkedInTheCatalogue();
    void editsTakeTheEntriesAlong();
    void whatTheWindowRenamesTakesTheEntriesAlong();
    void aFileThatCannotBeWrittenChangesNothing();
    void withoutMeasuredValuesThereIsNoFile();
    void aDiskThatDoesNotGiveTheFileIsAskedAgain();
    void nothingFollowsFromALogbookThatNobodyHasRead();

private:
    /** Adds a measured discharge at noon to the first battery. */
    static QString import(OpenLogbook &logbook);
    static QByteArray measured(const HostWindow &window)
    {
        return Test::contents(window.path() + u"/voltbok-measured.json"_s);
    }
    static QDateTime noon() { return QDateTime(QDate(2026, 5, 3), QTime(12, 0)); }
};

QString MeasuredLogbookTest::import(OpenLogbook &logbook)
{
    return logbook.changeWhole(Name, [](Catalogue &catalogue, Measured &measured) {
        MeasuredDischarge entry;
        entry.battery = catalogue.batteries.first().name;
        entry.moment = momentOf(noon());
        measured.discharges.append(entry);
        return Edits::addDischarge(catalogue, noon(), {0, 900, 1000});
    });
}

void MeasuredLogbookTest::anImportIsOneStepOfBothFiles()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    QCOMPARE(import(window.logbook()), QString());
    const QByteArray after = window.bytes();
    const QByteArray known = measured(window);
    QVERIFY(after != before);
    QVERIFY(known.contains("2026-05-03T12:00:00"));
    QCOMPARE(window.logbook().undoName(), Name);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!QFileInfo::exists(window.path() + u"/voltbok-measured.json"_s));
    QVERIFY(window.logbook().measured().isEmpty());
    window.clickCard(u"Pack B"_s);
    window.settle();
    QCOMPARE(window.logbook().undo(), QString());
    QVERIFY(window.logbook().measured().isEmpty());
    QCOMPARE(import(window.logbook()), QString());
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.logbook().redo(), QString());
    QCOMPARE(window.bytes(), after);
    QCOMPARE(measured(window), known);
    QCOMPARE(window.told, QStringList());
}

void MeasuredLogbookTest::measuredDischargesAreMarkedInTheCatalogue()
{
    HostWindow window;
    QCOMPARE(import(window.logbook()), QString());
    QVERIFY(window.logbook().catalogue()->batteries.first().discharges.last().isMeasured);
    window.restart();
    QVERIFY(window.logbook().catalogue()->batteries.first().discharges.last().isMeasured);
    QCOMPARE(window.logbook().measured().discharges.size(), 1);
}

void MeasuredLogbookTest::editsTakeTheEntriesAlong()
{
    HostWindow window;
    QCOMPARE(import(window.logbook()), QString());
    const QByteArray known = measured(window);
    QCOMPARE(window.logbook().change(
                 u"Renamed"_s,
                 [](Catalogue &catalogue) { return Edits::renameBattery(catalogue, 0, u"Pack Z"_s); }),
             QString());
    QVERIFY(measured(window).contains("\"battery\": \"Pack Z\""));
    QVERIFY(window.logbook().catalogue()->batteries.first().discharges.last().isMeasured);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(measured(window), known);
}

void MeasuredLogbookTest::whatTheWindowRenamesTakesTheEntriesAlong()
{
    HostWindow window;
    QCOMPARE(import(window.logbook()), QString());
    const QByteArray known = measured(window);
    QString name = u"Pack Y"_s;
    window.battery(u"Pack A"_s)->setBatteryName(name); // as its form would
    window.clickCard(u"Pack B"_s);                     // saves that, too
    window.settle();
    window.close(); // whether or not somebody has looked at the catalogue
    QVERIFY2(measured(window).contains("\"battery\": \"Pack Y\""), measured(window).constData());
    window.restart();
    QVERIFY(window.logbook().catalogue()->batteries.first().discharges.last().isMeasured);
    QVERIFY(measured(window) != known);
}

void MeasuredLogbookTest::aFileThatCannotBeWrittenChangesNothing()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    QVERIFY(QDir(window.path()).mkdir(u"voltbok-measured.json"_s));
    QVERIFY(import(window.logbook()).contains(u"Nothing was changed"_s));
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
    QVERIFY(window.logbook().measured().isEmpty());
}

void MeasuredLogbookTest::withoutMeasuredValuesThereIsNoFile()
{
    HostWindow window;
    window.clickCard(u"Pack B"_s);
    window.settle();
    QCOMPARE(window.logbook().change(
                 u"Renamed"_s,
                 [](Catalogue &catalogue) { return Edits::renameBattery(catalogue, 0, u"Pack Z"_s); }),
             QString());
    QCOMPARE(window.logbook().undo(), QString());
    window.close();
    QVERIFY(!QFileInfo::exists(window.path() + u"/voltbok-measured.json"_s));
}

void MeasuredLogbookTest::aDiskThatDoesNotGiveTheFileIsAskedAgain()
{
    HostWindow window;
    const Unread file(window);
    OpenLogbook logbook(StorageFolder(window.path()), &window.care(), window.questions);
    QVERIFY(!logbook.catalogue());
    file.giveBack();
    QCOMPARE(
        logbook.change(u"Renamed"_s,
                       [](Catalogue &catalogue) { return Edits::renameBattery(catalogue, 0, u"Pack Z"_s); }),
        QString());
    QCOMPARE(logbook.undo(), QString());
    QCOMPARE(window.bytes(), HostWindow::sample());
    QVERIFY(!logbook.canUndo());
}

void MeasuredLogbookTest::nothingFollowsFromALogbookThatNobodyHasRead()
{
    HostWindow window;
    QCOMPARE(import(window.logbook()), QString());
    const QByteArray known = measured(window);
    window.settle();
    {
        const Unread file(window);
        OpenLogbook logbook(StorageFolder(window.path()), &window.care(), window.questions);
        file.giveBack();
        window.clickCard(u"Pack B"_s);
        window.settle();
        QVERIFY(!logbook.canUndo()); // to what nobody has read
        QCOMPARE(logbook.catalogue()->batteries.size(), 2);
    }
    QCOMPARE(measured(window), known);
}

QTEST_MAIN(MeasuredLogbookTest)
#include "tst_measuredlogbook.moc"
