// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the logbook in the window.
#include "host/data/cataloguefile.h"
#include "host/window/backupsdialog.h"
#include "host/window/copiesmodel.h"
#include "host/window/differencesmodel.h"
#include "tests/host/support/hostwindow.h"
#include "tests/support/brokendisk.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <sys/stat.h>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** A logbook with one more location than that of the window. */
QByteArray other()
{
    const QStringList packs{u"Pack A"_s, u"Pack B"_s};
    return Test::document({{{packs.first(), true}, {packs.last()}},
                           {{u"Firebrand"_s, packs}, {u"Skylark"_s, packs}},
                           {u"Long Meadow"_s, u"Slope"_s}});
}

/** A copy of an hour ago, older than what the window has copied. */
QString putCopy(const HostWindow &window, const QByteArray &bytes, const QByteArray &beside = {})
{
    const StorageFolder folder(window.path());
    Copy copy;
    copy.time = QDateTime::currentDateTimeUtc().addSecs(-3600);
    const QString name = u"voltbok-%1.xml"_s.arg(copy.time.toLocalTime().toString(u"yyyyMMdd-HHmmss-zzz"));
    folder.backups().mkpath(u"."_s);
    if (!Test::write(folder.backups().filePath(name), bytes) ||
        (!beside.isEmpty() && !Test::write(folder.backups().filePath(Backups::measuredName(name)), beside)))
        qFatal("a test cannot write a copy");
    return name;
}

/** The dialog, on show beside the window. */
struct Shown
{
    explicit Shown(HostWindow &window)
        : dialog(window.logbook(), StorageFolder(window.path()))
        , copies(dialog.m_copies)
        , differences(dialog.m_differences)
        , table(dialog.m_table)
    {
        dialog.show();
    }

    QPushButton *button(const QString &caption) const
    {
        for (auto *button : dialog.findChildren<QPushButton *>()) {
            if (button->text().remove(u'&') == caption)
                return button;
        }
        return nullptr;
    }
    QString text(int row, int column = 2) const { return copies->index(row, column).data().toString(); }
    /** What the dialog says in whole sentences. */
    QStringList texts() const
    {
        QStringList texts;
        for (const auto *label : dialog.findChildren<QLabel *>()) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts;
    }
    bool isCompared() const { return copies->known() == copies->rowCount(); }
    /** Chooses a copy and waits for its preview. */
    bool choose(int row)
    {
        table->selectRow(row);
        return QTest::qWaitFor([this] { return button(u"Restore"_s)->isEnabled(); });
    }
    void press(const QString &caption) { QTest::mouseClick(button(caption), Qt::LeftButton); }

    BackupsDialog dialog;
    CopiesModel *copies;
    DifferencesModel *differences;
    QTableView *table;
};

} // namespace

class BackupsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMenuLeadsToTheCopies();
    void nothingIsRestoredWhileAFlightIsEntered();
    void copiesAreListedWithDateSizeAndDifference();
    void thePreviewTellsWhatTheCopyHolds();
    void aRestoreIsOneStepThatUndoTakesBack();
    void measuredValuesAreRestoredAndTakenBackWithIt();
    void whatTheWindowDoesNotUnderstandIsKeptAside();
    void aCopyThatIsNotWholeCannotBeChosenAndSaysWhy_data();
    void aCopyThatIsNotWholeCannotBeChosenAndSaysWhy();
    void aCopyThatBreaksMeanwhileIsNotRestored();
    void whatIsThereAlreadyIsNotRestored();
    void aFailureIsToldAndLeavesEverythingAsItWas_data();
    void aFailureIsToldAndLeavesEverythingAsItWas();
    void aRestoreThatIsCancelledChangesNothing();
    void aLogbookThatChangesMeanwhileIsComparedAgain();
    void withoutCopiesThereIsNothingToRestore();
    void theReadingCanBeStoppedAndTheDialogClosed();
    void everythingCanBeReachedByKeysAndHasAName();
    void theWindowLivesWhileLongCopiesAreCompared();
};

void BackupsDialogTest::theMenuLeadsToTheCopies()
{
    HostWindow window;
    putCopy(window, other());
    QAction *found = nullptr;
    QStringList before;
    for (QAction *action : window.window().menuBar()->actions().constFirst()->menu()->actions()) {
        if (action->text().remove(u'&') == u"Backups…"_s)
            found = action;
        else if (!found)
            before.append(action->text().remove(u'&'));
    }
    QVERIFY(found && found->isEnabled());
    QCOMPARE(before.constLast(), u"Flight Book (print, PDF)…"_s);
    QTimer::singleShot(0, &window.window(), [] {
        auto *dialog = qobject_cast<BackupsDialog *>(QApplication::activeModalWidget());
        if (QTest::qWaitFor([&] { return dialog->m_copies->known() == 2; }))
            dialog->m_table->selectRow(1);
        if (QTest::qWaitFor([&] { return dialog->m_differences->rowCount() > 0; }))
            dialog->accept();
        dialog->reject();
    });
    found->trigger();
    QCOMPARE(window.bytes(), other());
    QVERIFY2(window.message(u"backups"_s).contains(u"is restored"_s),
             qPrintable(window.message(u"backups"_s)));
}

void BackupsDialogTest::nothingIsRestoredWhileAFlightIsEntered()
{
    HostWindow window;
    putCopy(window, other());
    Shown shown(window);
    QVERIFY(shown.choose(1));
    window.logbook().setCapturing(true);
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    shown.dialog.accept();
    QVERIFY(shown.dialog.isVisible());
    for (QAction *action : window.window().menuBar()->actions().constFirst()->menu()->actions()) {
        if (action->text().remove(u'&') == u"Backups…"_s)
            QVERIFY(!action->isEnabled());
    }
    const QByteArray before = window.bytes();
    QVERIFY(!window.logbook().restore({other(), {}, {}, {}}).problem.isEmpty());
    QCOMPARE(window.bytes(), before);
    window.logbook().setCapturing(false);
    QVERIFY(shown.button(u"Restore"_s)->isEnabled());
}

void BackupsDialogTest::copiesAreListedWithDateSizeAndDifference()
{
    HostWindow window;
    const QString name = putCopy(window, other());
    Shown shown(window);
    QTRY_VERIFY(shown.isCompared());
    QCOMPARE(shown.copies->rowCount(), 2);
    QCOMPARE(shown.text(0), u"the same as now"_s);
    QCOMPARE(shown.text(1), u"1 location more"_s);
    QCOMPARE(shown.text(1, 0), Backups::parse(name)->time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"));
    QCOMPARE(shown.text(1, 1), QLocale().formattedDataSize(other().size(), 1, QLocale::DataSizeSIFormat));
}

void BackupsDialogTest::thePreviewTellsWhatTheCopyHolds()
{
    HostWindow window;
    putCopy(window, other());
    Shown shown(window);
    QVERIFY(shown.choose(1));
    QVERIFY2(!shown.texts()
                  .filter(u"holds 2 batteries, 2 models, 2 locations, 0 discharges and 0 flights."_s)
                  .isEmpty(),
             qPrintable(shown.texts().join(u'\n')));
    QCOMPARE(shown.differences->rowCount(), 1);
    QStringList row;
    for (int column = 0; column < shown.differences->columnCount(); ++column)
        row.append(shown.differences->index(0, column).data().toString());
    QCOMPARE(row, (QStringList{u"Location"_s, u"Slope"_s, u"not there"_s}));
    QVERIFY(shown.choose(0));
    QCOMPARE(shown.differences->rowCount(), 0);
}

void BackupsDialogTest::aRestoreIsOneStepThatUndoTakesBack()
{
    HostWindow window;
    putCopy(window, other());
    window.clickCard(u"Pack B"_s); // one version of the window's own
    window.settle();
    const QByteArray before = window.bytes();
    QVERIFY(before != HostWindow::sample());
    Shown shown(window);
    QVERIFY(shown.choose(2));
    shown.press(u"Restore"_s);
    QVERIFY(!shown.dialog.isVisible());
    QVERIFY2(shown.dialog.report().contains(u"is restored"_s), qPrintable(shown.dialog.report()));
    QCOMPARE(window.bytes(), other());
    QVERIFY(window.copies().contains(before));
    QCOMPARE(window.logbook().catalogue()->locations.size(), 2);
    QVERIFY(!window.battery(u"Pack B"_s)->getBatteryCharged()); // the window shows it
    QCOMPARE(window.logbook().undoName(), u"Copy restored"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(window.battery(u"Pack B"_s)->getBatteryCharged());
    QCOMPARE(window.logbook().redo(), QString());
    QCOMPARE(window.bytes(), other());
    window.settle();
    QCOMPARE(window.copies().constFirst(), other()); // the newest state is the newest copy
    QCOMPARE(window.told, QStringList());
    QVERIFY(QDir(window.path()).entryList({u"voltbok-broken-*"_s}).isEmpty());
}

void BackupsDialogTest::measuredValuesAreRestoredAndTakenBackWithIt()
{
    HostWindow window;
    const QString path = window.path() + u"/voltbok-measured.json"_s;
    const auto values = [](const QString &battery) {
        Measured measured;
        MeasuredDischarge entry;
        entry.battery = battery;
        measured.discharges.append(entry);
        return MeasuredFile::save(measured);
    };
    window.close();
    QVERIFY(Test::write(path, values(u"Pack A"_s)));
    window.restart();
    putCopy(window, other(), values(u"Pack B"_s));
    Shown shown(window);
    QVERIFY(shown.choose(1));
    shown.press(u"Restore"_s);
    QCOMPARE(Test::contents(path), values(u"Pack B"_s));
    QCOMPARE(window.logbook().measured().discharges.first().battery, u"Pack B"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(Test::contents(path), values(u"Pack A"_s));
    QCOMPARE(window.logbook().measured().discharges.first().battery, u"Pack A"_s);
    QCOMPARE(window.bytes(), HostWindow::sample());
}

void BackupsDialogTest::whatTheWindowDoesNotUnderstandIsKeptAside()
{
    HostWindow window;
    const QByteArray strange = QByteArray(other()).replace("<Locations>", "<Locations><Club/>");
    putCopy(window, strange);
    Shown shown(window);
    QVERIFY(shown.choose(1));
    shown.press(u"Restore"_s);
    QCOMPARE(window.bytes(), strange);
    const QStringList asides = StorageFolder(window.path()).asides();
    QCOMPARE(asides.size(), 1);
    QCOMPARE(Test::contents(asides.constFirst()), strange);
}

void BackupsDialogTest::aCopyThatIsNotWholeCannotBeChosenAndSaysWhy_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cut off") << other().chopped(30) << u"line "_s;
    QTest::newRow("empty") << QByteArray() << u"it is empty"_s;
    QTest::newRow("something else") << QByteArray("<html/>") << u"it is not a logbook"_s;
}

void BackupsDialogTest::aCopyThatIsNotWholeCannotBeChosenAndSaysWhy()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    HostWindow window;
    putCopy(window, bytes);
    Shown shown(window);
    QTRY_VERIFY(shown.isCompared());
    QVERIFY2(shown.text(1).startsWith(u"not whole: "_s) && shown.text(1).contains(reason),
             qPrintable(shown.text(1)));
    QCOMPARE(shown.copies->index(1, 0).flags(), Qt::NoItemFlags);
    QVERIFY(shown.choose(0));
    shown.table->setCurrentIndex(shown.copies->index(1, 0));
    QCOMPARE(shown.table->currentIndex().row(), 0);
    // Nobody knows that it is not whole before it is read.
    QVERIFY(Test::write(
        StorageFolder(window.path()).backups().filePath(u"voltbok-99999999-20990101-000000-000Z.xml"_s),
        bytes));
    Shown again(window);
    QCOMPARE(again.table->currentIndex().row(), 0);
    QTRY_VERIFY(again.isCompared());
    QVERIFY2(!again.texts().filter(u"This copy cannot be restored: "_s).isEmpty(),
             qPrintable(again.texts().join(u'\n')));
    QVERIFY(!again.button(u"Restore"_s)->isEnabled());
    const QByteArray before = window.bytes();
    again.dialog.accept();
    QVERIFY(again.dialog.isVisible());
    QCOMPARE(window.bytes(), before);
}

void BackupsDialogTest::aCopyThatBreaksMeanwhileIsNotRestored()
{
    HostWindow window;
    const QString name = putCopy(window, other());
    const QByteArray before = window.bytes();
    Shown shown(window);
    QVERIFY(shown.choose(1));
    QVERIFY(Test::write(StorageFolder(window.path()).backups().filePath(name), other().chopped(30)));
    shown.press(u"Restore"_s);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(!shown.texts().filter(u"not whole any more"_s).isEmpty());
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void BackupsDialogTest::whatIsThereAlreadyIsNotRestored()
{
    HostWindow window;
    const auto copies = window.copies();
    Shown shown(window);
    QVERIFY(shown.choose(0));
    shown.press(u"Restore"_s);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(!shown.texts().filter(u"already. Nothing was changed."_s).isEmpty());
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.copies(), copies);
}

void BackupsDialogTest::aFailureIsToldAndLeavesEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("full disk") << 0;
    QTest::newRow("copies cannot be written") << 1;
    QTest::newRow("the measured values cannot be written") << 2;
}

void BackupsDialogTest::aFailureIsToldAndLeavesEverythingAsItWas()
{
    QFETCH(int, kind);
    HostWindow window;
    Measured measured;
    measured.discharges.append(MeasuredDischarge());
    putCopy(window, other(), kind == 2 ? MeasuredFile::save(measured) : QByteArray());
    window.clickCard(u"Pack B"_s);
    window.settle();
    const QByteArray before = window.bytes();
    const StorageFolder folder(window.path());
    Shown shown(window);
    QVERIFY(shown.choose(2));
    std::shared_ptr<void> fault;
    if (kind == 0)
        fault = std::make_shared<FullDisk>(500);
    if (kind == 1) {
        // The newest copy is broken by somebody, so that another one is needed.
        QVERIFY(Test::write(folder.backups().filePath(Backups::list(folder).constFirst().name), "half"));
        fault = std::make_shared<Refusal>(folder.backups().path(), 0555);
    }
    if (kind == 2) // where there was nothing at the start, somebody puts what is no file
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, folder.measuredFile()));
    shown.press(u"Restore"_s);
    fault.reset();
    QVERIFY2(shown.dialog.isVisible(), qPrintable(shown.dialog.report()));
    QVERIFY2(!shown.texts().filter(u"Nothing was changed: "_s).isEmpty(),
             qPrintable(shown.texts().join(u'\n')));
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.logbook().catalogue()->locations.size(), 1);
    QVERIFY(window.logbook().undoName() != u"Copy restored"_s);
}

void BackupsDialogTest::aRestoreThatIsCancelledChangesNothing()
{
    for (int steps = 1; steps <= 4; ++steps) {
        HostWindow window;
        putCopy(window, other());
        const QByteArray before = window.bytes();
        Shown shown(window);
        QVERIFY(shown.choose(1));
        window.questions.cancelAfter(steps);
        shown.press(u"Restore"_s);
        QVERIFY(!shown.texts().filter(u"you have cancelled it"_s).isEmpty());
        QCOMPARE(window.bytes(), before);
        QVERIFY(!window.logbook().canUndo());
        window.questions.cancelAfter(0);
        QVERIFY(shown.choose(1));
        shown.press(u"Restore"_s);
        QCOMPARE(window.bytes(), other());
    }
}

void BackupsDialogTest::aLogbookThatChangesMeanwhileIsComparedAgain()
{
    HostWindow window;
    putCopy(window, other());
    Shown shown(window);
    QTRY_VERIFY(shown.isCompared());
    QVERIFY(shown.choose(1));
    window.clickCard(u"Pack B"_s);
    window.settle();
    QTRY_VERIFY(shown.isCompared());
    const int row = shown.copies->rowCount() - 1;
    QCOMPARE(shown.text(row), u"1 location more, 1 battery discharged"_s);
    QCOMPARE(shown.table->currentIndex().row(), row); // the same copy
}

void BackupsDialogTest::withoutCopiesThereIsNothingToRestore()
{
    HostWindow window;
    QVERIFY(StorageFolder(window.path()).backups().removeRecursively());
    Shown shown(window);
    QVERIFY(!shown.texts().filter(u"There is no copy yet."_s).isEmpty());
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    shown.dialog.accept();
    QVERIFY(shown.dialog.isVisible());
}

void BackupsDialogTest::theReadingCanBeStoppedAndTheDialogClosed()
{
    HostWindow window;
    for (int i = 0; i < 300; ++i)
        QVERIFY(Test::write(StorageFolder(window.path())
                                .backups()
                                .filePath(u"voltbok-20250101-0000%1-%2.xml"_s.arg(i / 10, 2, 10, QChar(u'0'))
                                              .arg(i % 10, 3, 10, QChar(u'0'))),
                            other()));
    {
        Shown shown(window);
        auto *bar = shown.dialog.findChild<QProgressBar *>();
        QVERIFY(!bar->isVisible());
        shown.dialog.showProgress(); // as after a moment
        QVERIFY(bar->isVisible());
        QTRY_VERIFY(bar->value() > 1);
        shown.press(u"Stop"_s);
        QVERIFY(!bar->isVisible());
        const int known = shown.copies->known();
        QTest::qWait(300);
        QVERIFY(known < 200 && shown.copies->known() <= known + 1); // one may have been under way
        QVERIFY(shown.choose(300)); // what was not read is read when it is chosen
        QCOMPARE(shown.text(300), u"1 location more"_s);
    }
    Shown shown(window);
    QTRY_VERIFY(shown.copies->known() > 1);
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QVERIFY(!shown.dialog.isVisible());
}

void BackupsDialogTest::everythingCanBeReachedByKeysAndHasAName()
{
    HostWindow window;
    putCopy(window, other());
    Shown shown(window);
    QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
    QVERIFY(shown.choose(0));
    QVERIFY(shown.table->hasFocus());
    QTest::keyClick(shown.table, Qt::Key_Down);
    QTRY_COMPARE(shown.differences->rowCount(), 1);
    QStringList reached;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(shown.dialog.focusWidget(), Qt::Key_Tab);
        const QWidget *widget = shown.dialog.focusWidget();
        const auto *button = qobject_cast<const QPushButton *>(widget);
        reached.append(button ? button->text().remove(u'&') : widget->accessibleName());
    }
    QVERIFY2(reached.contains(u"What differs from the logbook now"_s) && reached.contains(u"Restore"_s) &&
                 reached.contains(u"Close"_s),
             qPrintable(reached.join(u", "_s)));
    QCOMPARE(shown.table->accessibleName(), u"Copies, the newest first"_s);
    QVERIFY(!shown.dialog.findChild<QProgressBar *>()->accessibleName().isEmpty());
    shown.button(u"Restore"_s)->setFocus();
    QTest::keyClick(shown.button(u"Restore"_s), Qt::Key_Space);
    QCOMPARE(window.bytes(), other());
}

/** Between two copies of ten thousand flights other events happen. */
void BackupsDialogTest::theWindowLivesWhileLongCopiesAreCompared()
{
    HostWindow window;
    Catalogue catalogue = *window.logbook().catalogue();
    for (int i = 0; i < 10'000; ++i)
        catalogue.models[0].log.append(
            {QDateTime(QDate(2020, 1, 1), QTime(12, 0)).addSecs(3600LL * i), QTime(0, 5), {}, 20, {}});
    const QByteArray document = CatalogueFile::save(catalogue).document;
    for (int i = 0; i < 10; ++i)
        QVERIFY(Test::write(
            StorageFolder(window.path()).backups().filePath(u"voltbok-20250101-00000%1-000.xml"_s.arg(i)),
            document));
    Shown shown(window);
    int known = 0;
    int atOnce = 0; // so many were compared without another event in between
    QTimer pulse;
    connect(&pulse, &QTimer::timeout, &pulse, [&] {
        atOnce = qMax(atOnce, shown.copies->known() - known);
        known = shown.copies->known();
    });
    pulse.start(0);
    QTRY_VERIFY_WITH_TIMEOUT(known == 11, 60'000);
    QCOMPARE(atOnce, 1);
    QCOMPARE(shown.text(5), u"10000 flights more"_s);
}

QTEST_MAIN(BackupsDialogTest)
#include "tst_backupsdialog.moc"
