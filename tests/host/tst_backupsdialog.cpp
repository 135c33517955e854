// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the logbook in the window.
#include "tests/host/support/showncopies.h"

using namespace Host;
using namespace ShownCopies;
using namespace Qt::Literals::StringLiterals;

class BackupsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMenuLeadsToTheCopies();
    void copiesAreListedWithDateSizeAndDifference();
    void thePreviewTellsWhatTheCopyHolds();
    void aRestoreIsOneStepThatUndoTakesBack();
    void measuredValuesAreRestoredAndTakenBackWithIt();
    void whatTheWindowDoesNotUnderstandIsKeptAside();
    void aLogbookThatChangesMeanwhileIsComparedAgain();
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
