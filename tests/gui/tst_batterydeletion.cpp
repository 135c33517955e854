// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

#include <QPointer>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class BatteryDeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageOpensWithTheBatteryOfTheEditPage();
    void theSelectionStaysWhenItDoesNotOfferTheBatteryOfTheEditPage();
    void theFirstClickOnlyAsks();
    void theSecondClickDeletes();
    void anotherChoiceTakesTheFirstClickBack();
    void thePageKeepsTheQuestionWhileItIsLeft();
    void openingThePageForAnotherBatteryTakesTheFirstClickBack();
    void theModelsGoOnNamingTheBatteryOnPurpose();
    void theFlightsOfTheBatteryStay();
    void ofTwoBatteriesOfOneNameTheFirstIsDeleted();
    void namesAreComparedExactly();
    void aNameWithoutBatteryOnlyTakesTheFirstClickBack();
    void theChoosersKeepTheNameOfTheLastBatteryOnPurpose();
    void aDeletionThatCannotBeWrittenIsUndoneByTheReload();
    void theRemovedRecordIsDestroyedOnce();
    void noDischargeIsRecordedOnABatteryThatIsGone();
    void theWindowCanGoRightAfterADeletion();
    void theQuestionIsTranslated();

private:
    static QByteArray threeBatteries();
    static void expectAsking(EditingWindow &window, bool asking);
    static void openFor(EditingWindow &window, const QString &battery);
    static void deleteBattery(EditingWindow &window, const QString &battery);
};

QByteArray BatteryDeletionTest::threeBatteries()
{
    return document({{flownBattery(u"A"_s, 1000), flownBattery(u"B"_s, 2000), flownBattery(u"C"_s, 3000)},
                     {flownModel(u"Bird"_s, {u"A"_s, u"B"_s})}});
}

void BatteryDeletionTest::expectAsking(EditingWindow &window, bool asking)
{
    QCOMPARE(window.ui().lbl_really->isVisible(), asking);
    QCOMPARE(window.ui().lbl_really->text(), u"Really?"_s);
    QCOMPARE(window.ui().pb_deleteConfirm->text(), asking ? u"Yes"_s : u"Delete"_s);
}

void BatteryDeletionTest::openFor(EditingWindow &window, const QString &battery)
{
    window.goToEditPage();
    window.choose(window.ui().cb_bat_choose_model, battery);
    window.click(window.ui().pb_choose_delbattery);
}

void BatteryDeletionTest::deleteBattery(EditingWindow &window, const QString &battery)
{
    openFor(window, battery);
    window.click(window.ui().pb_deleteConfirm);
    window.click(window.ui().pb_deleteConfirm);
}

void BatteryDeletionTest::thePageOpensWithTheBatteryOfTheEditPage()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"C"_s);
    QVERIFY(window.shows(window.ui().deleteView, Page::DeleteBattery));
    QCOMPARE(window.ui().cb_batteryList_delete->currentText(), u"C"_s);
    expectAsking(window, false);
}

void BatteryDeletionTest::theSelectionStaysWhenItDoesNotOfferTheBatteryOfTheEditPage()
{
    EditingWindow window;
    window.load(threeBatteries());
    window.ui().cb_batteryList_delete->setCurrentIndex(1);
    window.ui().cb_bat_choose_model->addItem(u"b"_s);
    openFor(window, u"b"_s);
    QCOMPARE(window.ui().cb_batteryList_delete->currentText(), u"B"_s);
}

void BatteryDeletionTest::theFirstClickOnlyAsks()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"B"_s);
    const QByteArray before = window.fileBytes();
    window.click(window.ui().pb_deleteConfirm);
    expectAsking(window, true);
    QVERIFY(window.shows(window.ui().deleteView, Page::DeleteBattery));
    QCOMPARE(window->batteryList.size(), 3);
    QCOMPARE(window.fileBytes(), before);
}

void BatteryDeletionTest::theSecondClickDeletes()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"B"_s);
    window.click(window.ui().pb_deleteConfirm);
    window.click(window.ui().pb_deleteConfirm);

    QVERIFY(window.showsOverview());
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"C"_s}));
    QCOMPARE(window.cardsOnShow(), QStringList{u"A"_s});
    QCOMPARE(window->overviewCardCount, 1);
    QVERIFY(!window.fileBytes().contains("<Name>B</Name>"));
    QCOMPARE(window.fileBytes().count("<Capacity>"), 2);
    for (const QComboBox *chooser : window.batteryChoosers())
        QCOMPARE(window.items(chooser), window.batteryNames());
    openFor(window, u"A"_s);
    expectAsking(window, false);
}

void BatteryDeletionTest::anotherChoiceTakesTheFirstClickBack()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"A"_s);
    window.click(window.ui().pb_deleteConfirm);
    window.choose(window.ui().cb_batteryList_delete, u"C"_s);
    expectAsking(window, false);
    window.click(window.ui().pb_deleteConfirm);
    expectAsking(window, true);
    QCOMPARE(window->batteryList.size(), 3);
    window.click(window.ui().pb_deleteConfirm);
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"B"_s}));
}

void BatteryDeletionTest::thePageKeepsTheQuestionWhileItIsLeft()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"B"_s);
    window.click(window.ui().pb_deleteConfirm);
    openFor(window, u"B"_s);
    expectAsking(window, true);
    window.click(window.ui().pb_deleteConfirm);
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"C"_s}));
}

void BatteryDeletionTest::openingThePageForAnotherBatteryTakesTheFirstClickBack()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"B"_s);
    window.click(window.ui().pb_deleteConfirm);
    openFor(window, u"C"_s);
    expectAsking(window, false);
}

void BatteryDeletionTest::theModelsGoOnNamingTheBatteryOnPurpose()
{
    EditingWindow window;
    window.load(threeBatteries());
    deleteBattery(window, u"B"_s);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList({u"A"_s, u"B"_s}));
    QVERIFY(window.fileBytes().contains("<Battery>B</Battery>"));

    window.addBattery(u"B"_s);
    QCOMPARE(window.cardsOnShow(), QStringList({u"A"_s, u"B"_s}));
}

void BatteryDeletionTest::theFlightsOfTheBatteryStay()
{
    EditingWindow window;
    window.load(threeBatteries());
    deleteBattery(window, u"A"_s);
    const LogData flight = window.model(u"Bird"_s)->getLogData().value(0);
    QCOMPARE(flight.date, QDateTime(QDate(2025, 11, 8), QTime(10, 30)));
    QCOMPARE(flight.location, u"Meadow"_s);
    QCOMPARE(flight.temperature, -5);
}

void BatteryDeletionTest::ofTwoBatteriesOfOneNameTheFirstIsDeleted()
{
    EditingWindow window;
    window.load(
        document({{flownBattery(u"A"_s, 1000), flownBattery(u"B"_s, 2000), flownBattery(u"A"_s, 3000)}}));
    deleteBattery(window, u"A"_s);
    QCOMPARE(window.batteryNames(), QStringList({u"B"_s, u"A"_s}));
    QCOMPARE(window.battery(u"A"_s)->getBatteryCapacity(), 3000U);
}

void BatteryDeletionTest::namesAreComparedExactly()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s), flownBattery(u"a"_s)}}));
    deleteBattery(window, u"a"_s);
    QCOMPARE(window.batteryNames(), QStringList{u"A"_s});
}

void BatteryDeletionTest::aNameWithoutBatteryOnlyTakesTheFirstClickBack()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}}));
    deleteBattery(window, u"A"_s); // and both choosers go on offering it
    QVERIFY(QFile::remove(window.filePath()));
    deleteBattery(window, u"A"_s);
    QVERIFY(window.shows(window.ui().deleteView, Page::DeleteBattery));
    expectAsking(window, false);
    QVERIFY(!QFile::exists(window.filePath()));
}

void BatteryDeletionTest::theChoosersKeepTheNameOfTheLastBatteryOnPurpose()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}}));
    deleteBattery(window, u"A"_s);
    QVERIFY(window->batteryList.isEmpty());
    for (const QComboBox *chooser : window.batteryChoosers())
        QCOMPARE(window.items(chooser), QStringList{u"A"_s});

    window.goTo(window.ui().pb_choose_modify_battery); // offers it, and finds no battery of this name
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
}

void BatteryDeletionTest::aDeletionThatCannotBeWrittenIsUndoneByTheReload()
{
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"B"_s);
    window.click(window.ui().pb_deleteConfirm);

    // Without a path the window saves nothing, and reads from the working folder.
    window->dataProcessor.setBasePath(QString());
    const QString here = QDir::currentPath();
    QVERIFY(QDir::setCurrent(window.folder()));
    window.click(window.ui().pb_deleteConfirm);
    QVERIFY(QDir::setCurrent(here));

    QVERIFY(window.showsOverview());
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"B"_s, u"C"_s}));
}

void BatteryDeletionTest::theRemovedRecordIsDestroyedOnce()
{
    EditingWindow window;
    window.load(threeBatteries());
    int destroyed = 0;
    const QPointer<BatteryWidget> removed = window.battery(u"B"_s);
    connect(removed, &QObject::destroyed, this, [&destroyed] { ++destroyed; });
    deleteBattery(window, u"B"_s);
    QVERIFY(!removed);
    QCOMPARE(destroyed, 1);
    for (BatteryWidget *card : window->findChildren<BatteryWidget *>())
        QVERIFY(window->batteryList.contains(card));
}

void BatteryDeletionTest::noDischargeIsRecordedOnABatteryThatIsGone()
{
    EditingWindow window;
    window.load(threeBatteries());
    window->on_btnGrp_mode_buttonClicked(window.ui().rb_modeAdvanced);
    window.clickCard(window.battery(u"B"_s));
    QVERIFY(window.shows(window.ui().dischargeView, Page::Discharge));
    QCOMPARE(window->chargeBattery, window.battery(u"B"_s));

    window.click(window.ui().pb_options); // leaves the page without recording
    deleteBattery(window, u"B"_s);
    QVERIFY(!window->chargeBattery);
    window->on_pb_save_discharged_clicked();
    for (BatteryWidget *battery : std::as_const(window->batteryList))
        QCOMPARE(battery->getDates().size(), 1);
}

void BatteryDeletionTest::theWindowCanGoRightAfterADeletion()
{
    EditingWindow window;
    window.load(threeBatteries());
    window.clickCard(window.battery(u"A"_s));
    deleteBattery(window, u"A"_s);
    const QPointer<BatteryWidget> left = window.battery(u"B"_s);
    window.restart();
    QVERIFY(!left);
    QCOMPARE(window.batteryNames(), QStringList({u"B"_s, u"C"_s}));
}

void BatteryDeletionTest::theQuestionIsTranslated()
{
    class Shouting : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return qstrcmp(context, "VoltbokGui") == 0 ? QString::fromLatin1(text).toUpper() + u'!'
                                                       : QString();
        }
    };
    EditingWindow window;
    window.load(threeBatteries());
    openFor(window, u"A"_s);
    Shouting translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QPushButton *button = window.ui().pb_deleteConfirm;
    window.click(button);
    QCOMPARE(button->text(), u"YES!"_s);
    window.choose(window.ui().cb_batteryList_delete, u"B"_s);
    QCOMPARE(button->text(), u"DELETE!"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

QTEST_MAIN(BatteryDeletionTest)
#include "tst_batterydeletion.moc"
