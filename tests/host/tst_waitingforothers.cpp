// SPDX-License-Identifier: GPL-3.0-or-later
// Another program changes the file while something of ours is not saved: nothing of either side is lost.
#include "host/data/cataloguefile.h"
#include "tests/host/support/brokensaves.h"
#include "tests/host/support/otherprograms.h"

#include <QDialog>
#include <QRandomGenerator>
#include <QTableView>

using namespace Host;
using namespace OtherPrograms;
using namespace Qt::Literals::StringLiterals;

class WaitingForOthersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<HostWindow>(); }
    void cleanup();
    void theirsWaitsForWhatIsBeingEntered_data();
    void theirsWaitsForWhatIsBeingEntered();
    void theButtonLeavesThePageAndShowsIt();
    void aFlightThatIsRecordedOnTopKeepsTheirs();
    void theirsWaitsForADialog();
    void theirsWaitsForAPressedMouseButtonWithoutAWord();
    void bothVersionsAreOfferedWhereOursIsNotSaved_data();
    void bothVersionsAreOfferedWhereOursIsNotSaved();
    void aSaveThatFailedIsNotTriedAgainOverTheirsWithoutACopy();
    void withoutACopyOfOursTheirsWaits();
    void aSaveThatIsReplacedAtOnceIsKept();
    void aChangeThatIsReplacedAtOnceIsKept();
    void withoutEventsItIsPolled();
    void inAStormNothingOfEitherSideIsLost_data();
    void inAStormNothingOfEitherSideIsLost();
    void aLongLogbookFreezesForNoLongerThanItsReload();

private:
    HostWindow &window() { return *m_window; }
    bool shows(const QString &location) { return window().gui().locations().contains(location); }
    void openDischargePage();
    /** A flight that only the window holds: a card that was placed twice records twice, and saves once. */
    void recordInTheWindowAlone();
    bool isKeptOrThere(const QByteArray &version)
    {
        return window().bytes() == version || window().copies().contains(version);
    }

    std::unique_ptr<HostWindow> m_window;
};

void WaitingForOthersTest::cleanup()
{
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void WaitingForOthersTest::openDischargePage()
{
    LogbookWindow::click(window().ui().pb_options);
    LogbookWindow::click(window().ui().pb_mode);
    LogbookWindow::click(window().ui().rb_modeAdvanced);
    LogbookWindow::click(window().ui().pb_options);
    LogbookWindow::click(window().ui().pb_options);
    window().clickCard(u"Pack A"_s);
    QVERIFY(window().ui().dischargeView->isVisible());
}

void WaitingForOthersTest::recordInTheWindowAlone()
{
    window().chooseModel(u"Skylark"_s);
    window().chooseModel(u"Firebrand"_s);
    window().clickCard(u"Pack A"_s);
    QCoreApplication::processEvents();
}

using Enter = std::function<void(WaitingForOthersTest &)>;
Q_DECLARE_METATYPE(Enter)

void WaitingForOthersTest::theirsWaitsForWhatIsBeingEntered_data()
{
    QTest::addColumn<Enter>("enter");
    QTest::addColumn<Enter>("leave");
    const Enter home = [](WaitingForOthersTest &t) {
        t.window().questions.answer(u"Leave"_s);
        LogbookWindow::click(t.window().ui().pb_home);
    };
    QTest::newRow("a flight") << Enter([](WaitingForOthersTest &t) { t.openDischargePage(); }) << home;
    QTest::newRow("a form") << Enter([](WaitingForOthersTest &t) {
        t.window().goToEditPage();
        LogbookWindow::click(t.window().ui().pb_choose_addbattery);
        LogbookWindow::type(t.window().ui().ledt_name, u"Pack N"_s);
    }) << home;
    QTest::newRow("a deletion that is asked about") << Enter([](WaitingForOthersTest &t) {
        t.window().goToEditPage();
        LogbookWindow::click(t.window().ui().pb_choose_delmodel);
        LogbookWindow::click(t.window().ui().pb_deleteConfirm_model);
    }) << Enter([](WaitingForOthersTest &t) { LogbookWindow::click(t.window().ui().pb_home); });
    QTest::newRow("a cell") << Enter([](WaitingForOthersTest &t) {
        auto *table = new QTableView(&t.window().window());
        table->setObjectName(u"edited"_s);
        (new QLineEdit(table->viewport()))->show();
        table->show();
        t.window().window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&t.window().window()));
        table->findChild<QLineEdit *>()->setFocus();
    }) << Enter([](WaitingForOthersTest &t) {
        delete t.window().window().findChild<QTableView *>(u"edited"_s);
    });
}

void WaitingForOthersTest::theirsWaitsForWhatIsBeingEntered()
{
    QFETCH(Enter, enter);
    QFETCH(Enter, leave);
    enter(*this);
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    QCOMPARE(run(window(), u"cp $T new; mv new $F"_s, theirs), QByteArray());
    QTRY_COMPARE(window().others(),
                 u"Another program has changed the logbook: 1 location more. It is shown as "
                 "soon as you have recorded or left what you are entering."_s);
    QTest::qWait(400);
    QVERIFY(!shows(u"Their Hill"_s));
    QVERIFY(!window().logbook().mayChange());
    QVERIFY(window().gui().isEnabled());
    QCOMPARE(window().bytes(), theirs);
    leave(*this);
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QCOMPARE(window().others(), QString());
    QVERIFY(window().logbook().mayChange());
    QCOMPARE(window().bytes(), theirs);
    QCOMPARE(window().gui().modelList.constFirst()->getLogData().size(), 0);
}

void WaitingForOthersTest::theButtonLeavesThePageAndShowsIt()
{
    openDischargePage();
    window().put(HostWindow::withLocation(u"Their Hill"_s));
    QTRY_VERIFY(!window().others().isEmpty());
    window().questions.answer(u"Go Back"_s);
    window().press(u"Leave the Page and Show It"_s);
    QVERIFY(!shows(u"Their Hill"_s));
    QVERIFY(window().ui().dischargeView->isVisible());
    window().questions.answer(u"Leave"_s);
    window().press(u"Leave the Page and Show It"_s);
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QVERIFY(!window().ui().dischargeView->isVisible());
}

void WaitingForOthersTest::aFlightThatIsRecordedOnTopKeepsTheirs()
{
    openDischargePage();
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    window().put(theirs);
    QTRY_VERIFY(!window().others().isEmpty());
    LogbookWindow::click(window().ui().pb_save_discharged);
    window().settle();
    QCOMPARE(window().bytes().count("<LogData"), 1);
    QCOMPARE(window().battery(u"Pack A"_s)->getDates().size(), 1); // with its discharge
    QVERIFY(!window().bytes().contains("Their Hill"));
    QVERIFY(window().copies().contains(theirs));
    QVERIFY(window().taken().contains(window().path() + u"/backups"_s));
    QCOMPARE(window().others(), QString());
    const QList<Copy> copies = Backups::list(StorageFolder(window().path()));
    QVERIFY(std::any_of(copies.cbegin(), copies.cend(), [](const Copy &copy) { return copy.kept; }));
    QTest::qWait(500);
    QVERIFY(!shows(u"Their Hill"_s));
    QVERIFY(window().logbook().mayChange());
    QCOMPARE(window().logbook().undo(), QString());
    QCOMPARE(window().bytes(), theirs);
    QVERIFY(!window().logbook().canUndo());
}

void WaitingForOthersTest::theirsWaitsForADialog()
{
    QDialog dialog(&window().window());
    dialog.open();
    window().put(HostWindow::withLocation(u"Their Hill"_s));
    QTRY_VERIFY(!window().others().isEmpty());
    QVERIFY(!shows(u"Their Hill"_s));
    dialog.close();
    QTRY_VERIFY(shows(u"Their Hill"_s));
}

void WaitingForOthersTest::theirsWaitsForAPressedMouseButtonWithoutAWord()
{
    QTest::mousePress(window().window().windowHandle(), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(QApplication::mouseButtons() != Qt::NoButton);
    window().put(HostWindow::withLocation(u"Their Hill"_s));
    QTRY_COMPARE(window().care().m_watch.file().state(), FileWatch::Other);
    QTest::qWait(100);
    QVERIFY(!shows(u"Their Hill"_s));
    QTest::mouseRelease(window().window().windowHandle(), Qt::LeftButton, {}, QPoint(2, 2));
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QCOMPARE(window().told.size(), 1);
}

void WaitingForOthersTest::bothVersionsAreOfferedWhereOursIsNotSaved_data()
{
    QTest::addColumn<bool>("isTheirs");
    QTest::newRow("theirs") << true;
    QTest::newRow("ours") << false;
}

void WaitingForOthersTest::bothVersionsAreOfferedWhereOursIsNotSaved()
{
    QFETCH(bool, isTheirs);
    recordInTheWindowAlone();
    const QByteArray ours = window().care().heldByWindow();
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    window().put(theirs);
    QTRY_VERIFY(window().others().contains(u"holds something that is not saved"_s));
    QVERIFY(!shows(u"Their Hill"_s));
    QCOMPARE(window().bytes(), theirs);
    window().press(isTheirs ? u"Show the Other Version"_s : u"Keep This Version"_s);
    window().settle();
    QCOMPARE(window().others(), QString());
    QCOMPARE(shows(u"Their Hill"_s), isTheirs);
    QCOMPARE(window().bytes(), isTheirs ? theirs : ours);
    QVERIFY(window().copies().contains(ours));
    QVERIFY(window().copies().contains(theirs));
    QVERIFY(window().logbook().mayChange());
    QCOMPARE(window().loss(), QString());
}

void WaitingForOthersTest::aSaveThatFailedIsNotTriedAgainOverTheirsWithoutACopy()
{
    Fault fault = Faults::readOnlyFile(window());
    window().clickCard(u"Pack B"_s);
    QCoreApplication::processEvents();
    QVERIFY(!window().loss().isEmpty());
    fault.reset();
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    QCOMPARE(run(window(), u"cp $T new; mv new $F"_s, theirs), QByteArray());
    QTRY_VERIFY(!window().others().isEmpty());
    QCOMPARE(window().bytes(), theirs);
    window().press(u"Try Again"_s);
    window().settle();
    QCOMPARE(window().bytes().count("<Charged>1<"), 2);
    QVERIFY(window().copies().contains(theirs));
    QCOMPARE(window().loss(), QString());
    QCOMPARE(window().others(), QString());
}

void WaitingForOthersTest::withoutACopyOfOursTheirsWaits()
{
    window().clickCard(u"Pack B"_s);
    window().settle();
    const QByteArray ours = window().bytes();
    const QDir backups = StorageFolder(window().path()).backups();
    QVERIFY(QDir(backups).removeRecursively());
    QFile inTheWay(backups.path());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    window().put(theirs);
    QTRY_VERIFY(!window().message(u"copies"_s).isEmpty());
    QTest::qWait(500);
    QVERIFY(!shows(u"Their Hill"_s));
    window().clickCard(u"Pack B"_s); // would overwrite theirs
    QCOMPARE(window().bytes(), theirs);
    QVERIFY(inTheWay.remove());
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QVERIFY(window().copies().contains(ours));
}

void WaitingForOthersTest::aSaveThatIsReplacedAtOnceIsKept()
{
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    QVERIFY(Test::write(window().path() + u"/new"_s, theirs));
    window().clickCard(u"Pack B"_s); // saved, and before the program looks:
    const QByteArray ours = window().bytes();
    QVERIFY(ours != HostWindow::sample());
    QCOMPARE(::rename(QFile::encodeName(window().path() + u"/new"_s), QFile::encodeName(window().filePath())),
             0);
    QTRY_VERIFY(shows(u"Their Hill"_s));
    window().settle();
    QVERIFY(window().copies().contains(ours));
    QCOMPARE(window().bytes(), theirs);
    QVERIFY(!window().logbook().canUndo());
}

void WaitingForOthersTest::aChangeThatIsReplacedAtOnceIsKept()
{
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    QByteArray ours;
    window().questions.atEachStep([&] {
        if (!window().bytes().contains("Pack Z"))
            return; // not written yet
        ours = window().bytes();
        window().put(theirs);
        window().questions.atEachStep({});
    });
    const auto rename = [](Catalogue &catalogue) {
        catalogue.batteries[0].name = u"Pack Z"_s;
        return QString();
    };
    QCOMPARE(window().logbook().change(u"Renamed"_s, rename), QString());
    QVERIFY(!ours.isEmpty());
    QTRY_VERIFY(shows(u"Their Hill"_s));
    window().settle();
    QCOMPARE(window().bytes(), theirs);
    QVERIFY(window().copies().contains(ours));
    QCOMPARE(window().others(), QString());
    QVERIFY(!window().logbook().canUndo());
    QVERIFY(window().battery(u"Pack A"_s));
}

void WaitingForOthersTest::withoutEventsItIsPolled()
{
    takeEventsAway(window());
    for (int i = 0; i < 3; ++i) {
        const QString name = u"Hill %1"_s.arg(i);
        QCOMPARE(run(window(), u"cp $T new; mv new $F"_s, HostWindow::withLocation(name)), QByteArray());
        QTRY_VERIFY(shows(name));
    }
    QVERIFY(QFile::remove(window().filePath()));
    QTRY_VERIFY(window().others().contains(u"is gone"_s));
    window().put(HostWindow::sample());
    QTRY_COMPARE(window().others(), QString());
}

void WaitingForOthersTest::inAStormNothingOfEitherSideIsLost_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void WaitingForOthersTest::inAStormNothingOfEitherSideIsLost()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    QByteArrayList versions; // each of them was the file's when the other side wrote
    for (int step = 0; step < 120; ++step) {
        switch (random.bounded(7)) {
        case 0: {
            const QByteArray base = random.bounded(2) ? window().bytes() : HostWindow::sample();
            const QByteArray theirs = HostWindow::withLocation(u"Hill %1"_s.arg(step), base);
            versions += {window().bytes(), theirs};
            QVERIFY(Test::write(window().path() + u"/new"_s, theirs));
            QCOMPARE(::rename(QFile::encodeName(window().path() + u"/new"_s),
                              QFile::encodeName(window().filePath())),
                     0);
            // Who writes twice before anybody can look has overwritten his own.
            window().care().m_watch.catchUp();
            break;
        }
        case 1:
            QTest::qWait(random.bounded(80));
            break;
        case 2:
            QCoreApplication::processEvents();
            break;
        case 3:
            window().addLocation(u"Ours %1"_s.arg(step));
            break;
        default:
            window().clickCard(random.bounded(2) ? u"Pack A"_s : u"Pack B"_s);
        }
        QVERIFY2(WholeFile::isWhole(window().bytes()), qPrintable(QString::number(step)));
    }
    QTRY_VERIFY(window().care().m_watch.file().state() == FileWatch::Known && window().others().isEmpty());
    window().settle();
    QCOMPARE(window().care().heldByWindow(), CatalogueFile::loadAndSave(window().bytes()).document);
    QVERIFY(versions.size() > 10);
    const QByteArrayList copies = window().copies();
    for (const QByteArray &version : std::as_const(versions))
        QVERIFY2(copies.contains(version) || version == window().bytes(), version.constData());
    QCOMPARE(window().loss(), QString());
}

void WaitingForOthersTest::aLongLogbookFreezesForNoLongerThanItsReload()
{
    QList<Test::Discharge> history;
    for (int i = 0; i < 100'000; ++i)
        history.append({QDateTime(QDate(2020, 1, 1), QTime(0, 0)).addSecs(i * 60), 1000, 1000});
    const QByteArray document = Test::document(
        {{{u"Pack A"_s, true, history}}, {{u"Firebrand"_s, {u"Pack A"_s}}}, {u"Long Meadow"_s}});
    m_window = std::make_unique<HostWindow>(document);
    QElapsedTimer time;
    time.start();
    window().window().reload();
    const qint64 reload = time.elapsed();
    QList<qint64> steps;
    window().questions.atEachStep([&] { steps.append(time.restart()); });
    const QByteArray theirs =
        CatalogueFile::loadAndSave(HostWindow::withLocation(u"Their Hill"_s, document)).document;
    connect(&window().care().m_watch.file(), &FileWatch::changed, this, [&] { time.restart(); });
    QCOMPARE(run(window(), u"cp $T new; mv new $F"_s, theirs), QByteArray());
    QTRY_VERIFY_WITH_TIMEOUT(!window().taken().isEmpty(), 20000);
    qInfo() << "A reload takes" << reload << "ms, the steps take" << steps;
    QCOMPARE(steps.size(), 5);
    QVERIFY(*std::max_element(steps.cbegin(), steps.cend()) <= 2 * reload + 500);
}

QTEST_MAIN(WaitingForOthersTest)
#include "tst_waitingforothers.moc"
