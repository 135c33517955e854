// SPDX-License-Identifier: GPL-3.0-or-later
// Changes by the program beside the window, and their undoing.
#include "host/data/cataloguefile.h"
#include "host/window/openlogbook.h"
#include "tests/host/support/brokensaves.h"

#include <QSignalSpy>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class OpenLogbookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeIsInFileWindowAndCatalogue();
    void whatTheWindowHoldsIsSavedFirst();
    void undoPutsTheOldBytesBack();
    void aClickOnACardIsUndone();
    void severalStepsAreUndoneAndDoneAgain();
    void aChangeThatIsRefusedChangesNothing();
    void aChangeOfNothingTouchesNoFile();
    void whatTheFileCannotHoldIsRefused_data();
    void whatTheFileCannotHoldIsRefused();
    void aFileThatCannotBeWrittenStaysAsItIs();
    void nothingIsChangedWhileAFlightIsEntered();
    void aVersionOfSomebodyElseEndsTheHistory();
    void whoLookedAtAnotherVersionChangesNothing();
    void aNewLogbookIsEmptyAgainAfterUndo();
    void aRestoreIsUndone();

private:
    static QString rename(OpenLogbook &logbook, const QString &name);
};

QString OpenLogbookTest::rename(OpenLogbook &logbook, const QString &name)
{
    return logbook.change(u"Renamed"_s, [&](Catalogue &catalogue) {
        catalogue.batteries[0].name = name;
        return QString();
    });
}

void OpenLogbookTest::aChangeIsInFileWindowAndCatalogue()
{
    HostWindow window;
    QSignalSpy changed(&window.logbook(), &OpenLogbook::changed);
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(window.logbook().catalogue()->batteries.at(0).name, u"Pack Z"_s);
    QCOMPARE(CatalogueFile::load(window.bytes()).catalogue, *window.logbook().catalogue());
    QVERIFY(window.battery(u"Pack Z"_s));
    QVERIFY(!window.battery(u"Pack A"_s));
    QCOMPARE(window.logbook().undoName(), u"Renamed"_s);
    window.settle();
    QCOMPARE(window.copies().constFirst(), window.bytes());
    QCOMPARE(window.told, QStringList());
}

void OpenLogbookTest::whatTheWindowHoldsIsSavedFirst()
{
    HostWindow window;
    window.chooseModel(u"Skylark"_s);
    window.chooseModel(u"Firebrand"_s);
    window.clickCard(u"Pack A"_s);
    const auto held = window.gui().modelList.constFirst()->getLogData().size();
    QVERIFY(held > 1); // in the window alone
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    QCOMPARE(window.logbook().catalogue()->models.at(0).log.size(), held);
    QCOMPARE(window.bytes().count("<LogData"), held);
}

void OpenLogbookTest::undoPutsTheOldBytesBack()
{
    HostWindow window;
    const QByteArray before = window.bytes(); // spelled otherwise than a save would
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    const QByteArray after = window.bytes();
    QVERIFY(window.logbook().canUndo());
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(window.battery(u"Pack A"_s));
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.logbook().redo(), QString());
    QCOMPARE(window.bytes(), after);
    QVERIFY(window.battery(u"Pack Z"_s));
    QVERIFY(!window.logbook().canRedo());
}

void OpenLogbookTest::aClickOnACardIsUndone()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    window.clickCard(u"Pack B"_s);
    window.settle();
    QVERIFY(window.bytes() != before);
    QCOMPARE(window.logbook().undoName(), u"Charged Pack B"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.battery(u"Pack B"_s)->getBatteryCharged());
    window.clickCard(u"Pack A"_s);
    window.settle();
    QCOMPARE(window.logbook().undoName(), u"Discharged Pack A"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void OpenLogbookTest::severalStepsAreUndoneAndDoneAgain()
{
    HostWindow window;
    QByteArrayList versions{window.bytes()};
    window.clickCard(u"Pack B"_s);
    window.settle();
    versions.append(window.bytes());
    window.addLocation(u"Hill"_s);
    window.settle();
    versions.append(window.bytes());
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    versions.append(window.bytes());
    for (int i = 2; i >= 0; --i) {
        QCOMPARE(window.logbook().undo(), QString());
        QCOMPARE(window.bytes(), versions.at(i));
    }
    QVERIFY(!window.logbook().canUndo());
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(window.logbook().redo(), QString());
        QCOMPARE(window.bytes(), versions.at(i));
    }
    QVERIFY(!window.logbook().canRedo());
}

void OpenLogbookTest::aChangeThatIsRefusedChangesNothing()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    QCOMPARE(window.logbook().change(u"No"_s,
                                     [](Catalogue &catalogue) {
                                         catalogue.batteries.clear();
                                         return u"This is not possible."_s;
                                     }),
             u"This is not possible."_s);
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.logbook().catalogue()->batteries.size(), 2);
    QVERIFY(!window.logbook().canUndo());
}

void OpenLogbookTest::aChangeOfNothingTouchesNoFile()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    QCOMPARE(window.logbook().change(u"Nothing"_s, [](Catalogue &) { return QString(); }), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void OpenLogbookTest::whatTheFileCannotHoldIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a control character") << u"Pack\u0007"_s;
    QTest::newRow("half a character") << u"Pack "_s + QChar(0xD800);
    QTest::newRow("no character") << u"Pack "_s + QChar(0xFFFF);
}

void OpenLogbookTest::whatTheFileCannotHoldIsRefused()
{
    QFETCH(QString, name);
    HostWindow window;
    const QByteArray before = window.bytes();
    QVERIFY(rename(window.logbook(), name).contains(u"cannot hold"_s));
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void OpenLogbookTest::aFileThatCannotBeWrittenStaysAsItIs()
{
    HostWindow window;
    QCOMPARE(rename(window.logbook(), u"Pack Y"_s), QString());
    const QByteArray before = window.bytes();
    {
        const FullDisk disk(200);
        QVERIFY(disk.works());
        const QString problem = rename(window.logbook(), u"Pack Z"_s);
        QVERIFY2(problem.startsWith(u"Nothing was changed"_s), qPrintable(problem));
    }
    QCOMPARE(window.bytes(), before);
    QVERIFY(window.battery(u"Pack Y"_s));
    QCOMPARE(window.logbook().catalogue()->batteries.at(0).name, u"Pack Y"_s);
    QCOMPARE(window.logbook().undoName(), u"Renamed"_s);
    QVERIFY(!window.logbook().canRedo());
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void OpenLogbookTest::nothingIsChangedWhileAFlightIsEntered()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    QSignalSpy possibilities(&window.logbook(), &OpenLogbook::possibilitiesChanged);
    window.logbook().setCapturing(true);
    QCOMPARE(possibilities.size(), 1);
    QVERIFY(!window.logbook().mayChange());
    QVERIFY(!rename(window.logbook(), u"Pack Z"_s).isEmpty());
    QCOMPARE(window.bytes(), before);
    window.logbook().setCapturing(false);
    QVERIFY(window.logbook().mayChange());
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
}

void OpenLogbookTest::aVersionOfSomebodyElseEndsTheHistory()
{
    HostWindow window;
    window.clickCard(u"Pack B"_s);
    window.settle();
    QVERIFY(window.logbook().canUndo());
    const QByteArray theirs = window.bytes().replace("Long Meadow", "Their Meadow");
    window.put(theirs);
    QTRY_VERIFY(!window.taken().isEmpty());
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.logbook().catalogue()->locations, QStringList(u"Their Meadow"_s));
    QCOMPARE(window.gui().locations(), QStringList(u"Their Meadow"_s));
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), theirs);
}

void OpenLogbookTest::whoLookedAtAnotherVersionChangesNothing()
{
    HostWindow window;
    const QByteArray theirs = window.bytes().replace("Pack A", "Pack C");
    window.put(theirs); // and at once:
    QVERIFY(rename(window.logbook(), u"Pack Z"_s).startsWith(u"Nothing was changed"_s));
    QCOMPARE(window.bytes(), theirs);
    QTRY_VERIFY(!window.taken().isEmpty());
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
}

void OpenLogbookTest::aNewLogbookIsEmptyAgainAfterUndo()
{
    HostWindow window{QByteArray()};
    window.addLocation(u"Hill"_s);
    window.settle();
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), CatalogueFile::emptyDocument());
    QCOMPARE(window.gui().locations(), QStringList());
}

void OpenLogbookTest::aRestoreIsUndone()
{
    HostWindow window;
    {
        const FullDisk disk(300);
        QVERIFY(disk.works());
        window.addLocation(u"Hill"_s);
    }
    QVERIFY(!window.logbook().mayChange());
    window.press(u"Restore Last State"_s);
    QVERIFY(window.logbook().mayChange());
    QCOMPARE(window.bytes(), HostWindow::sample());
    QCOMPARE(rename(window.logbook(), u"Pack Z"_s), QString());
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), HostWindow::sample());
}

QTEST_MAIN(OpenLogbookTest)
#include "tst_openlogbook.moc"
