// SPDX-License-Identifier: GPL-3.0-or-later
// What the overview shows, and how it follows the choice of a model.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QAbstractItemView>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class OverviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutADataFileThePilotIsWelcomed();
    void withoutBatteriesTheSelectorIsNotOnShow();
    void withoutModelsEveryBatteryIsOnShow();
    void aModelWithoutBatteriesGetsTheHint();
    void aModelShowsItsBatteriesInTheOrderOfTheCatalogue();
    void namesOfBatteriesAreComparedExactly();
    void ofTwoModelsOfOneNameTheLaterIsSelectedOnPurpose();
    void ofTwoBatteriesOfOneNameBothAreOnShow();
    void theWelcomeGoesWithTheFirstBatteryAndComesBackWithoutIt();
    void anotherModelBringsItsCards();
    void anotherModelWithoutBatteriesBringsTheHint();
    void theSelectorIsPlacedEvenWithoutRecords();
    void withoutASelectedModelEveryBatteryIsOnShow();
    void theEditPageAndTheLogBookFollowTheSelectorAtOnce();
    void theSelectorKeepsTheFocusOfTheKeyboard();
    void theSelectorKeepsTheFocusAfterAChoiceWithTheMouse();
    void theSelectorDoesNotTakeAFocusItDidNotHave();
    void onlyTheContentOnShowHasItsNames();
    void oldContentsStayAliveAndOutOfSight_data();
    void oldContentsStayAliveAndOutOfSight();
    void theSpacerIsInOneGridAtATime();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    QLayoutItem *row(int number) const { return ui->lo_overview->itemAtPosition(number, 0); }
    QWidget *widgetIn(int number) const { return row(number) ? row(number)->widget() : nullptr; }
    void expectWelcome() const;
    void expectHintUnderTheSelector() const;
};

namespace {
QList<Battery> fiveBatteries()
{
    return {{u"A"_s}, {u"B"_s}, {u"C"_s}, {u"D"_s}, {u"E"_s}};
}

QByteArray twoModels()
{
    return document(
        {fiveBatteries(), {Model{u"Heli"_s, {u"D"_s, u"B"_s}}, Model{u"Plane"_s, {u"B"_s, u"E"_s, u"A"_s}}}});
}
} // namespace

void OverviewTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
}

void OverviewTest::cleanup()
{
    window.reset();
}

void OverviewTest::expectWelcome() const
{
    QCOMPARE(widgetIn(0), ui->lbl_welcome);
    QCOMPARE(widgetIn(1), ui->lbl_optionshint);
    QCOMPARE(row(2), ui->verticalSpacer_overview);
    QCOMPARE(ui->lo_overview->count(), 3);
    QVERIFY(ui->lbl_welcome->isVisible() && ui->lbl_optionshint->isVisible());
    QVERIFY(ui->lbl_welcome->y() < ui->lbl_optionshint->y());
    QCOMPARE(ui->lbl_welcome->text(), u"Welcome"_s);
    QCOMPARE(ui->lbl_optionshint->text(), u"Please go to Options and add new model and battery!"_s);
    QVERIFY(!ui->cb_select_model->isVisible());
    QVERIFY(!ui->pb_chart->isEnabled());
    QCOMPARE(window->gui().overviewCardCount, 0);
}

void OverviewTest::expectHintUnderTheSelector() const
{
    QCOMPARE(widgetIn(0), ui->cb_select_model);
    QCOMPARE(widgetIn(1), ui->lbl_optionshint);
    QCOMPARE(row(2), ui->verticalSpacer_overview);
    QCOMPARE(ui->lo_overview->count(), 3);
    QVERIFY(ui->cb_select_model->isVisible() && ui->lbl_optionshint->isVisible());
    QVERIFY(!ui->lbl_welcome->isVisible());
    QCOMPARE(window->gui().overviewCardCount, 0);
}

void OverviewTest::withoutADataFileThePilotIsWelcomed()
{
    expectWelcome();
}

void OverviewTest::withoutBatteriesTheSelectorIsNotOnShow()
{
    window->load(document({{}, {Model{u"Heli"_s}, Model{u"Plane"_s}}}));
    expectWelcome();
    QCOMPARE(ui->cb_select_model->count(), 2);
}

void OverviewTest::withoutModelsEveryBatteryIsOnShow()
{
    window->load(document({fiveBatteries()}));
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "C", "D", "E"}));
    QCOMPARE(widgetIn(0), window->battery("A"));
    QCOMPARE(widgetIn(4), window->battery("E"));
    QCOMPARE(row(5), ui->verticalSpacer_overview);
    QCOMPARE(window->gui().overviewCardCount, 4);
    QVERIFY(!ui->cb_select_model->isVisible());
    QVERIFY(!ui->lbl_optionshint->isVisible());
    QVERIFY(!ui->lbl_welcome->isVisible());

    window->load(document({{Battery{u"Alone"_s}}}));
    QCOMPARE(widgetIn(0), window->battery("Alone"));
    QCOMPARE(row(1), ui->verticalSpacer_overview);
    QCOMPARE(window->gui().overviewCardCount, 0);
    QVERIFY(!ui->lbl_optionshint->isVisible());
}

void OverviewTest::aModelWithoutBatteriesGetsTheHint()
{
    window->load(document({fiveBatteries(), {Model{u"Heli"_s}, Model{u"Plane"_s, {u"A"_s}}}}));
    expectHintUnderTheSelector();
    QVERIFY(ui->pb_chart->isEnabled());
}

void OverviewTest::aModelShowsItsBatteriesInTheOrderOfTheCatalogue()
{
    window->load(twoModels());
    QCOMPARE(ui->cb_select_model->currentText(), u"Heli"_s);
    QCOMPARE(window->cardsOnShow(), QStringList({"B", "D"}));
    QCOMPARE(widgetIn(0), ui->cb_select_model);
    QCOMPARE(widgetIn(1), window->battery("B"));
    QCOMPARE(widgetIn(2), window->battery("D"));
    QCOMPARE(row(3), ui->verticalSpacer_overview);
    QCOMPARE(ui->lo_overview->count(), 4);
    QCOMPARE(window->gui().overviewCardCount, 2);
    QVERIFY(!ui->lbl_optionshint->isVisible());
    for (const char *absent : {"A", "C", "E"})
        QVERIFY(!window->battery(QLatin1StringView(absent))->isVisible());
}

void OverviewTest::namesOfBatteriesAreComparedExactly()
{
    window->load(document(
        {{Battery{u"Pack"_s}, Battery{u"pack"_s}, Battery{u"Pack "_s}}, {Model{u"Heli"_s, {u"pack"_s}}}}));
    QCOMPARE(window->cardsOnShow(), QStringList({"pack"}));
}

void OverviewTest::ofTwoModelsOfOneNameTheLaterIsSelectedOnPurpose()
{
    window->load(document({fiveBatteries(), {Model{u"Heli"_s, {u"A"_s}}, Model{u"Heli"_s, {u"B"_s}}}}));
    QCOMPARE(window->cardsOnShow(), QStringList({"B"}));
    QCOMPARE(window->gui().selectedModel(), window->gui().modelList.constLast());
}

void OverviewTest::ofTwoBatteriesOfOneNameBothAreOnShow()
{
    window->load(
        document({{Battery{u"A"_s}, Battery{u"B"_s}, Battery{u"A"_s}}, {Model{u"Heli"_s, {u"A"_s}}}}));
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "A"}));
}

void OverviewTest::theWelcomeGoesWithTheFirstBatteryAndComesBackWithoutIt()
{
    window->load(twoModels());
    QVERIFY(!ui->lbl_welcome->isVisible());
    window->load(document({}));
    expectWelcome();
    window->load(twoModels());
    QCOMPARE(window->cardsOnShow(), QStringList({"B", "D"}));
    QVERIFY(!ui->lbl_welcome->isVisible() && !ui->lbl_optionshint->isVisible());
}

void OverviewTest::anotherModelBringsItsCards()
{
    window->load(twoModels());
    const QList<BatteryWidget *> records = window->gui().batteryList;
    window->choose(ui->cb_select_model, u"Plane"_s);
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "E"}));
    QCOMPARE(widgetIn(0), ui->cb_select_model);
    QCOMPARE(widgetIn(3), window->battery("E"));
    QCOMPARE(row(4), ui->verticalSpacer_overview);
    QCOMPARE(window->gui().overviewCardCount, 3);
    QVERIFY(!window->battery("D")->isVisible());
    QCOMPARE(window->gui().batteryList, records); // the same cards, laid out again

    window->choose(ui->cb_select_model, u"Heli"_s);
    QCOMPARE(window->cardsOnShow(), QStringList({"B", "D"}));
    QVERIFY(!window->battery("A")->isVisible());
}

void OverviewTest::anotherModelWithoutBatteriesBringsTheHint()
{
    window->load(document({fiveBatteries(), {Model{u"Heli"_s, {u"A"_s}}, Model{u"Kit"_s}}}));
    window->choose(ui->cb_select_model, u"Kit"_s);
    expectHintUnderTheSelector();
    window->choose(ui->cb_select_model, u"Heli"_s);
    QVERIFY(!ui->lbl_optionshint->isVisible());
    QCOMPARE(window->cardsOnShow(), QStringList({"A"}));
}

void OverviewTest::theSelectorIsPlacedEvenWithoutRecords()
{
    window->load(document({{}, {Model{u"Heli"_s}}}));
    window->gui().on_cb_select_model_currentIndexChanged(0);
    expectHintUnderTheSelector();

    window->load(document({})); // the names are stale now: there is no selected model
    window->gui().on_cb_select_model_currentIndexChanged(0);
    QCOMPARE(widgetIn(0), ui->cb_select_model);
    QCOMPARE(row(1), ui->verticalSpacer_overview);
    QCOMPARE(ui->lo_overview->count(), 2);
    QVERIFY(!ui->lbl_welcome->isVisible() && !ui->lbl_optionshint->isVisible());
}

void OverviewTest::withoutASelectedModelEveryBatteryIsOnShow()
{
    window->load(document({fiveBatteries()}));
    window->gui().on_cb_select_model_currentIndexChanged(-1);
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "C", "D", "E"}));
    QCOMPARE(widgetIn(1), window->battery("A"));
    QCOMPARE(row(6), ui->verticalSpacer_overview);
    QCOMPARE(window->gui().overviewCardCount, 5);
}

void OverviewTest::theEditPageAndTheLogBookFollowTheSelectorAtOnce()
{
    window->load(twoModels());
    LogData flight;
    flight.location = u"Hill"_s;
    window->model("Plane")->addLogData(flight);
    QVERIFY(ui->pb_add_batt_to_model->isEnabled()); // "A" is not assigned to "Heli"

    window->choose(ui->cb_select_model, u"Plane"_s);
    QCOMPARE(ui->cb_model_choose_bat->currentText(), u"Plane"_s);
    QVERIFY(ui->pb_rem_batt_from_model->isEnabled());
    QCOMPARE(ui->cb_logview_model->currentText(), u"Plane"_s);
    QCOMPARE(ui->lbl_logview_location->text(), u"Hill"_s);
    QCOMPARE(ui->cb_modelList_delete->currentText(), u"Heli"_s);
    QVERIFY(!window->fileBytes().contains("Hill")); // looking writes nothing
}

void OverviewTest::theSelectorKeepsTheFocusOfTheKeyboard()
{
    window->load(twoModels());
    ui->cb_select_model->setFocus();
    QTest::keyClick(ui->cb_select_model, Qt::Key_Down);
    QCOMPARE(window->gui().focusWidget(), ui->cb_select_model);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QCOMPARE(ui->cb_select_model->currentText(), u"Heli"_s);
    QCOMPARE(window->gui().focusWidget(), ui->cb_select_model);
}

void OverviewTest::theSelectorKeepsTheFocusAfterAChoiceWithTheMouse()
{
    window->load(twoModels());
    QTest::mouseClick(ui->cb_select_model, Qt::LeftButton);
    QAbstractItemView *list = ui->cb_select_model->view();
    QTRY_VERIFY(list->isVisible());
    QTest::qWait(
        QApplication::doubleClickInterval()); // the release after a click that opens a list is ignored
    const QPoint item = list->visualRect(list->model()->index(1, 0)).center();
    QTest::mouseMove(list->viewport(), item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item);
    QCOMPARE(ui->cb_select_model->currentText(), u"Plane"_s);
    QTRY_VERIFY(!list->isVisible());
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "E"}));
    QCOMPARE(window->gui().focusWidget(), ui->cb_select_model);
}

void OverviewTest::theSelectorDoesNotTakeAFocusItDidNotHave()
{
    window->load(twoModels());
    window->click(ui->pb_options);
    window->click(ui->pb_mode);
    ui->rb_modeSimple->setFocus();
    ui->cb_select_model->setCurrentIndex(1); // as a host may
    QCOMPARE(window->gui().focusWidget(), ui->rb_modeSimple);
}

void OverviewTest::onlyTheContentOnShowHasItsNames()
{
    window->load(twoModels());
    window->choose(ui->cb_select_model, u"Plane"_s);
    QCOMPARE(window->gui().findChildren<QWidget *>(u"scrollView"_s),
             QList<QWidget *>({ui->scrollArea->widget()}));
    QCOMPARE(window->gui().findChildren<QGridLayout *>(u"lo_overview"_s),
             QList<QGridLayout *>({ui->lo_overview}));
    QCOMPARE(ui->scrollView, ui->scrollArea->widget());
    QCOMPARE(ui->scrollView->layout(), ui->lo_overview);
}

void OverviewTest::oldContentsStayAliveAndOutOfSight_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("rebuilt on the screen") << true;
    QTest::newRow("rebuilt on its way to the screen") << false;
}

void OverviewTest::oldContentsStayAliveAndOutOfSight()
{
    QFETCH(bool, shown);
    window->gui().setVisible(shown);
    QList<QPointer<QWidget>> contents = {ui->scrollView};
    for (int i = 0; i < 3; ++i) {
        window->load(i == 1 ? document({}) : twoModels());
        contents.append(ui->scrollView);
    }
    ui->cb_select_model->setCurrentIndex(1);
    window->gui().show();
    QVERIFY(QTest::qWaitForWindowExposed(&window->gui()));
    for (const QPointer<QWidget> &content : contents) {
        QVERIFY(content);
        QVERIFY(!content->isVisible());
        QCOMPARE(content->window(), &window->gui());
    }
    QVERIFY(ui->scrollView->isVisible());
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "E"}));
}

void OverviewTest::theSpacerIsInOneGridAtATime()
{
    const auto gridsWithTheSpacer = [this] {
        QList<QGridLayout *> grids = window->gui().findChildren<QGridLayout *>();
        grids.removeIf([this](QGridLayout *grid) {
            for (int i = 0; i < grid->count(); ++i) {
                if (grid->itemAt(i) == ui->verticalSpacer_overview)
                    return false;
            }
            return true;
        });
        return grids;
    };
    QCOMPARE(gridsWithTheSpacer(), QList<QGridLayout *>({ui->lo_overview}));
    window->load(twoModels());
    QCOMPARE(gridsWithTheSpacer(), QList<QGridLayout *>({ui->lo_overview}));
    ui->cb_select_model->setCurrentIndex(1);
    QCOMPARE(gridsWithTheSpacer(), QList<QGridLayout *>({ui->lo_overview}));
    window->load(document({}));
    QCOMPARE(gridsWithTheSpacer(), QList<QGridLayout *>({ui->lo_overview}));
}

QTEST_MAIN(OverviewTest)
#include "tst_overview.moc"
