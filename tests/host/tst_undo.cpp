// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/undo.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class UndoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anewHistoryHasNothingToUndo();
    void everyVersionComesBackByteForByte_data();
    void everyVersionComesBackByteForByte();
    void theSameVersionIsNoStep();
    void aNewStepForgetsTheUndoneOnes();
    void aRestartForgetsEverything();
    void aStepHasTheNameThatItWasGiven();
    void aStepWithoutANameIsToldFromItsVersions();
    void theOldestStepsGoWhenAllTakeTooMuch();

private:
    static void undo(UndoHistory &history);
};

void UndoTest::undo(UndoHistory &history)
{
    const QByteArray before = history.before();
    history.undone();
    QCOMPARE(history.present(), before);
}

void UndoTest::anewHistoryHasNothingToUndo()
{
    UndoHistory history;
    history.restart("a");
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
    QCOMPARE(history.undoName(), QString());
    QCOMPARE(history.redoName(), QString());
}

void UndoTest::everyVersionComesBackByteForByte_data()
{
    QTest::addColumn<QByteArrayList>("versions");
    QTest::newRow("in the middle") << QByteArrayList{"one two three", "one 2 three", "one two three"};
    QTest::newRow("at the ends") << QByteArrayList{"abc", "xabc", "xabcy", "bcy"};
    QTest::newRow("repeated characters") << QByteArrayList{"aaa", "aaaa", "aa", "aaaaaa", "a"};
    QTest::newRow("from and to nothing") << QByteArrayList{"", "everything", ""};
    QTest::newRow("nothing in common") << QByteArrayList{"abc", "xyz"};
    QTest::newRow("any bytes") << QByteArrayList{QByteArray("\0\xff\r\n", 4), QByteArray("\0\n", 2)};
}

void UndoTest::everyVersionComesBackByteForByte()
{
    QFETCH(QByteArrayList, versions);
    UndoHistory history;
    history.restart(versions.constFirst());
    for (const QByteArray &version : versions)
        history.add(version);
    for (qsizetype i = versions.size() - 2; i >= 0; --i) {
        QVERIFY(history.canUndo());
        undo(history);
        QCOMPARE(history.present(), versions.at(i));
    }
    QVERIFY(!history.canUndo());
    for (qsizetype i = 1; i < versions.size(); ++i) {
        QVERIFY(history.canRedo());
        QCOMPARE(history.behind(), versions.at(i));
        history.redone();
        QCOMPARE(history.present(), versions.at(i));
    }
    QVERIFY(!history.canRedo());
}

void UndoTest::theSameVersionIsNoStep()
{
    UndoHistory history;
    history.restart("a");
    history.add("a");
    QVERIFY(!history.canUndo());
    history.add("b");
    undo(history);
    history.add("a");
    QVERIFY(history.canRedo());
}

void UndoTest::aNewStepForgetsTheUndoneOnes()
{
    UndoHistory history;
    history.restart("a");
    history.add("b");
    undo(history);
    history.add("c");
    QVERIFY(!history.canRedo());
    undo(history);
    QCOMPARE(history.present(), "a");
    QVERIFY(!history.canUndo());
}

void UndoTest::aRestartForgetsEverything()
{
    UndoHistory history;
    history.restart("a");
    history.add("b");
    history.add("c");
    undo(history);
    history.restart("theirs");
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
    QCOMPARE(history.present(), "theirs");
}

void UndoTest::aStepHasTheNameThatItWasGiven()
{
    UndoHistory history;
    history.restart("a");
    history.add("b", u"Flight edited"_s);
    QCOMPARE(history.undoName(), u"Flight edited"_s);
    QCOMPARE(history.redoName(), QString());
    undo(history);
    QCOMPARE(history.redoName(), u"Flight edited"_s);
}

void UndoTest::aStepWithoutANameIsToldFromItsVersions()
{
    const QByteArray empty =
        "<Voltbok><Battery><Name>3S 450 A</Name><Charged>0</Charged></Battery></Voltbok>";
    const QByteArray charged = QByteArray(empty).replace("<Charged>0", "<Charged>1");
    UndoHistory history;
    history.restart(empty);
    history.add(charged);
    QCOMPARE(history.undoName(), u"Charged 3S 450 A"_s);
    undo(history);
    QCOMPARE(history.redoName(), u"Charged 3S 450 A"_s);
}

void UndoTest::theOldestStepsGoWhenAllTakeTooMuch()
{
    // Bytes that do not compress, of which three versions are more than the history may take.
    const auto noise = [](quint32 seed) {
        QByteArray bytes(UndoHistory::MostBytes * 2 / 5, Qt::Uninitialized);
        quint32 state = seed;
        for (char &byte : bytes) {
            state = state * 1664525U + 1013904223U;
            byte = static_cast<char>(state >> 24U);
        }
        return bytes;
    };
    UndoHistory history;
    history.restart("a");
    history.add(noise(1));
    history.add("b");
    history.add(noise(2));
    undo(history);
    QVERIFY(history.canUndo());
    undo(history);
    QCOMPARE(history.present(), noise(1));
    QVERIFY(!history.canUndo());
}

QTEST_MAIN(UndoTest)
#include "tst_undo.moc"
