// SPDX-License-Identifier: GPL-3.0-or-later
// Opening a folder, closing the window, and what is in the file afterwards.
#include "tests/host/support/brokensaves.h"
#include "tests/support/files.h"

#include <QHash>
#include <QScopedValueRollback>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFlightThatOnlyTheWindowHoldsIsSavedAtTheEnd();
    void aWindowWithoutAnyChangeNeverTouchesTheFile_data();
    void aWindowWithoutAnyChangeNeverTouchesTheFile();
    void aNewFolderGetsNoFileByOpeningAndClosing();
    void whatSomebodyElseHasWrittenIsNotOverwrittenAtTheEnd();
    void aLastSaveThatFailsAsks();
    void aRestoredFileIsNotRewrittenAtTheEnd();
    void theHouseLeadsToTheOverview_data();
    void theHouseLeadsToTheOverview();
    void aFormThatWasFilledInIsAskedAbout_data();
    void aFormThatWasFilledInIsAskedAbout();
    void aFlightThatIsNotRecordedIsAskedAbout();
    void escapeAndAltLeftLeadBackOnePage();
    void theModelChosenLastIsKept();
    void theTitleNamesTheFolder();
    void theTitleOfTheDemoSaysSo();
    void anotherFolderEndsTheMessagesAndTheCareForTheOneBefore();
    void messagesStandAboveTheLogbook();
    void settingsThatCannotBeSavedAreToldOnce();

private:
    /** The first battery's card is saved twice with each click, and its second flight is in the window alone.
     */
    static void recordInTheWindowAlone(HostWindow &window);
};

void MainWindowTest::recordInTheWindowAlone(HostWindow &window)
{
    window.chooseModel(u"Skylark"_s);
    window.chooseModel(u"Firebrand"_s);
    window.clickCard(u"Pack A"_s);
    window.settle();
    const auto held = window.gui().modelList.constFirst()->getLogData().size();
    QVERIFY(held > 1);
    QCOMPARE(window.bytes().count("<LogData"), 1);
}

void MainWindowTest::aFlightThatOnlyTheWindowHoldsIsSavedAtTheEnd()
{
    HostWindow window;
    recordInTheWindowAlone(window);
    const auto held = window.gui().modelList.constFirst()->getLogData().size();
    QVERIFY(window.window().close());
    QCOMPARE(window.bytes().count("<LogData"), held);
    window.close();
    QCOMPARE(window.bytes().count("<LogData"), held);
    QCOMPARE(window.copies().constFirst(), window.bytes());
    QCOMPARE(window.told, QStringList());
}

void MainWindowTest::aWindowWithoutAnyChangeNeverTouchesTheFile_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("spelled otherwise") << HostWindow::sample();
    QTest::newRow("without anything") << QByteArray("<Voltbok></Voltbok>");
    QTest::newRow("with what the window does not know") << QByteArray("<Voltbok><Kite/></Voltbok>");
}

void MainWindowTest::aWindowWithoutAnyChangeNeverTouchesTheFile()
{
    QFETCH(QByteArray, document);
    HostWindow window(document);
    const QDateTime time = QFileInfo(window.filePath()).lastModified();
    QTest::qWait(20); // longer than a tick of the file's clock
    window.goToEditPage();
    QVERIFY(window.window().close());
    window.close();
    QCOMPARE(window.bytes(), document);
    QCOMPARE(QFileInfo(window.filePath()).lastModified(), time);
}

void MainWindowTest::aNewFolderGetsNoFileByOpeningAndClosing()
{
    HostWindow window{QByteArray()};
    QVERIFY(window.window().close());
    window.close();
    QVERIFY(!QFileInfo::exists(window.filePath()));
    QCOMPARE(window.told.size(), 1); // the greeting
}

void MainWindowTest::whatSomebodyElseHasWrittenIsNotOverwrittenAtTheEnd()
{
    HostWindow window;
    recordInTheWindowAlone(window);
    const auto held = window.gui().modelList.constFirst()->getLogData().size();
    const QByteArray theirs = HostWindow::theirs(u"of another"_s);
    window.put(theirs); // and at once:
    QVERIFY(window.window().close());
    window.close();
    QCOMPARE(window.bytes(), theirs);
    const QByteArrayList copies = window.copies();
    QVERIFY(copies.contains(theirs));
    QVERIFY(std::any_of(copies.cbegin(), copies.cend(), // it is in no other place
                        [held](const QByteArray &copy) { return copy.count("<LogData") == held; }));
}

void MainWindowTest::aLastSaveThatFailsAsks()
{
    HostWindow window;
    recordInTheWindowAlone(window);
    Fault fault = Faults::readOnlyFile(window);
    window.questions.answer(u"Go Back"_s);
    QVERIFY(!window.window().close());
    QVERIFY(window.window().isVisible());
    QVERIFY(window.loss().contains(u"permission denied"_s));
    const Host::Question question = window.questions.asked().constFirst();
    QCOMPARE(question.answers.at(question.preferred), u"Go Back"_s);
    QCOMPARE(question.answers.at(question.refusal), u"Go Back"_s);
    fault.reset();
    QVERIFY(window.window().close()); // without a question
    QVERIFY(window.questions.isDone());
    QVERIFY(window.bytes().count("<LogData") > 1);
}

void MainWindowTest::aRestoredFileIsNotRewrittenAtTheEnd()
{
    HostWindow window;
    {
        const FullDisk disk(300);
        QVERIFY(disk.works());
        window.addLocation(u"Hill"_s);
    }
    window.press(u"Restore Last State"_s);
    QVERIFY(window.window().close());
    window.close();
    QCOMPARE(window.bytes(), HostWindow::sample());
}

void MainWindowTest::theHouseLeadsToTheOverview_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : {u"scrollLayout"_s, u"optionsView"_s, u"modeView"_s, u"dataView"_s,
                                u"editDataView"_s, u"addView"_s, u"addLocationView"_s, u"logView"_s})
        QTest::newRow(qPrintable(page)) << page;
}

void MainWindowTest::theHouseLeadsToTheOverview()
{
    QFETCH(QString, page);
    HostWindow window;
    const QHash<QString, QList<QPushButton *>> ways{
        {u"scrollLayout"_s, {}},
        {u"optionsView"_s, {}},
        {u"modeView"_s, {window.ui().pb_mode}},
        {u"dataView"_s, {window.ui().pb_chart}},
        {u"editDataView"_s, {window.ui().pb_edit_data}},
        {u"addView"_s, {window.ui().pb_edit_data, window.ui().pb_choose_addbattery}},
        {u"addLocationView"_s, {window.ui().pb_edit_data, window.ui().pb_choose_addlocation}},
        {u"logView"_s, {window.ui().pb_logbook}}};
    if (page != u"scrollLayout")
        LogbookWindow::click(window.ui().pb_options);
    for (QPushButton *button : ways.value(page))
        LogbookWindow::click(button);
    QCOMPARE(window.ui().stackedWidget->currentWidget()->objectName(), page);
    LogbookWindow::click(window.ui().pb_home);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().scrollLayout);
    QCOMPARE(window.gui().currentPage, 0);
    QVERIFY(window.window().isVisible());
    QVERIFY(window.questions.asked().isEmpty());
}

void MainWindowTest::aFormThatWasFilledInIsAskedAbout_data()
{
    QTest::addColumn<bool>("quits");
    QTest::newRow("the house") << false;
    QTest::newRow("quitting") << true;
}

void MainWindowTest::aFormThatWasFilledInIsAskedAbout()
{
    QFETCH(bool, quits);
    HostWindow window;
    const auto leave = [&] {
        if (quits)
            window.window().close();
        else
            LogbookWindow::click(window.ui().pb_home);
    };
    window.goToEditPage();
    LogbookWindow::click(window.ui().pb_choose_addbattery);
    LogbookWindow::type(window.ui().ledt_name, u"Half"_s);
    window.questions.answer(u"Go Back"_s);
    leave();
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().addView);
    QCOMPARE(window.ui().ledt_name->text(), u"Half"_s);
    window.questions.answer(u"Leave"_s);
    leave();
    QVERIFY(window.questions.isDone());
    QCOMPARE(window.window().isVisible(), !quits);
    if (!quits)
        QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().scrollLayout);
    QCOMPARE(window.bytes(), HostWindow::sample());
}

void MainWindowTest::aFlightThatIsNotRecordedIsAskedAbout()
{
    HostWindow window;
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_mode);
    LogbookWindow::click(window.ui().rb_modeAdvanced);
    LogbookWindow::click(window.ui().pb_home);
    window.clickCard(u"Pack A"_s);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);
    QVERIFY(!window.logbook().mayChange());
    window.questions.answer(u"Go Back"_s);
    LogbookWindow::click(window.ui().pb_home);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);
    window.questions.answer(u"Go Back"_s);
    QVERIFY(!window.window().close());
    QVERIFY(window.questions.isDone());
    LogbookWindow::click(window.ui().pb_save_discharged);
    QVERIFY(window.logbook().mayChange());
    LogbookWindow::click(window.ui().pb_home); // nothing to ask about
    QVERIFY(window.window().close());
}

void MainWindowTest::escapeAndAltLeftLeadBackOnePage()
{
    HostWindow window;
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_chart);
    QTest::keyClick(window.window().focusWidget(), Qt::Key_Escape);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().optionsView);
    QTest::keyClick(&window.window(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().scrollLayout);
    QTest::keyClick(&window.window(), Qt::Key_Escape); // the overview is the first page
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().scrollLayout);
}

void MainWindowTest::theModelChosenLastIsKept()
{
    HostWindow window;
    LogbookWindow::choose(window.ui().cb_select_model, u"Skylark"_s);
    Q_EMIT window.ui().cb_select_model->textActivated(u"Skylark"_s); // as the user's own choice does
    window.addLocation(u"Hill"_s);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Skylark"_s);
    window.restart();
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Skylark"_s);
}

void MainWindowTest::theTitleNamesTheFolder()
{
    HostWindow window;
    QCOMPARE(window.window().windowTitle(), u"Voltbok - logbook"_s);
}

void MainWindowTest::theTitleOfTheDemoSaysSo()
{
    HostWindow window;
    window.window().open(Host::StorageFolder::ofDemo(), std::make_shared<Host::FolderLock>());
    QCOMPARE(window.window().windowTitle(), u"Voltbok - sample logbook"_s);
}

void MainWindowTest::anotherFolderEndsTheMessagesAndTheCareForTheOneBefore()
{
    HostWindow window;
    window.put(HostWindow::theirs(u"of another"_s));
    QTRY_VERIFY(!window.taken().isEmpty());
    const QByteArray before = window.bytes();
    const Host::StorageFolder other(window.place() + u"/other"_s);
    auto lock = std::make_shared<Host::FolderLock>();
    QVERIFY(QDir().mkdir(other.path()));
    QCOMPARE(lock->take(other).problem, QString());
    window.window().open(other, std::move(lock));
    QCOMPARE(window.taken(), QString());
    window.addLocation(u"Hill"_s);
    window.settle();
    QVERIFY(Test::contents(other.dataFile()).contains("Hill"));
    QCOMPARE(window.bytes(), before);
    Host::FolderLock again;
    QCOMPARE(again.take(Host::StorageFolder(window.path())).problem, QString());
}

void MainWindowTest::messagesStandAboveTheLogbook()
{
    HostWindow window;
    window.window().tell(u"matter"_s, u"What there is to say."_s);
    QTRY_VERIFY(window.messages().height() > 0);
    const int bottom = window.messages().mapTo(&window.window(), QPoint(0, window.messages().height())).y();
    QTRY_VERIFY(window.gui().mapTo(&window.window(), QPoint()).y() >= bottom);
    QCOMPARE(window.told, QStringList(u"What there is to say."_s));
}

void MainWindowTest::settingsThatCannotBeSavedAreToldOnce()
{
    HostWindow window;
    QCOMPARE(window.message(u"settings"_s), QString());
    QSettings *const store = RotavexPlugin::rotavexSettings;
    const QString blocked = window.place() + u"/settings.conf"_s;
    QVERIFY(QDir().mkdir(blocked)); // where a folder lies no file can be written
    QSettings unwritable(blocked, QSettings::IniFormat);
    const QScopedValueRollback<QSettings *> swapped(RotavexPlugin::rotavexSettings, &unwritable);
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_mode);
    LogbookWindow::click(window.ui().rb_modeAdvanced);
    LogbookWindow::click(window.ui().rb_modeSimple);
    QCOMPARE(window.told.filter(blocked).size(), 1);
    RotavexPlugin::rotavexSettings = store;
    LogbookWindow::click(window.ui().rb_modeAdvanced);
    QCOMPARE(window.message(u"settings"_s), QString());
}

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
