// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class ModelDeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageOpensWithTheModelOfTheEditPage();
    void theSelectionStaysWhenItDoesNotOfferTheModelOfTheEditPage();
    void theFirstClickOnlyAsks();
    void theSecondClickDeletes();
    void anotherChoiceDoesNotTakeTheFirstClickBackOnPurpose();
    void theBatteriesOfTheModelStay();
    void theOverviewGoesOnWithTheFirstModelLeft();
    void theOverviewGoesOnWithTheModelThatThePreferencesName();
    void ofTwoModelsOfOneNameTheFirstIsDeleted();
    void aNameWithoutModelOnlyTakesTheFirstClickBack();
    void theChoosersKeepTheNameOfTheLastModelOnPurpose();
    void theRemovedRecordIsDestroyedOnce();

private:
    static QByteArray threeModels();
    static void expectAsking(EditingWindow &window, bool asking);
    static void openFor(EditingWindow &window, const QString &model);
    static void deleteModel(EditingWindow &window, const QString &model);
};

QByteArray ModelDeletionTest::threeModels()
{
    return document(
        {{flownBattery(u"A"_s), flownBattery(u"B"_s)},
         {flownModel(u"Bird"_s, {u"A"_s}), flownModel(u"Wing"_s, {u"B"_s}), flownModel(u"Kite"_s)}});
}

void ModelDeletionTest::expectAsking(EditingWindow &window, bool asking)
{
    QCOMPARE(window.ui().lbl_reallydelete_model->isVisible(), asking);
    QCOMPARE(window.ui().lbl_reallydelete_model->text(), u"Really?"_s);
    QCOMPARE(window.ui().pb_deleteConfirm_model->text(), asking ? u"Yes"_s : u"Delete"_s);
}

void ModelDeletionTest::openFor(EditingWindow &window, const QString &model)
{
    window.goToEditPage();
    window.choose(window.ui().cb_model_choose_bat, model);
    window.click(window.ui().pb_choose_delmodel);
}

void ModelDeletionTest::deleteModel(EditingWindow &window, const QString &model)
{
    openFor(window, model);
    window.click(window.ui().pb_deleteConfirm_model);
    window.click(window.ui().pb_deleteConfirm_model);
}

void ModelDeletionTest::thePageOpensWithTheModelOfTheEditPage()
{
    EditingWindow window;
    window.load(threeModels());
    openFor(window, u"Kite"_s);
    QVERIFY(window.shows(window.ui().deleteModelView, Page::DeleteModel));
    QCOMPARE(window.ui().cb_modelList_delete->currentText(), u"Kite"_s);
    expectAsking(window, false);
}

void ModelDeletionTest::theSelectionStaysWhenItDoesNotOfferTheModelOfTheEditPage()
{
    EditingWindow window;
    window.load(threeModels());
    window.ui().cb_modelList_delete->setCurrentIndex(1);
    window.ui().cb_model_choose_bat->addItem(u"kite"_s);
    openFor(window, u"kite"_s);
    QCOMPARE(window.ui().cb_modelList_delete->currentText(), u"Wing"_s);
}

void ModelDeletionTest::theFirstClickOnlyAsks()
{
    EditingWindow window;
    window.load(threeModels());
    openFor(window, u"Wing"_s);
    const QByteArray before = window.fileBytes();
    window.click(window.ui().pb_deleteConfirm_model);
    expectAsking(window, true);
    QVERIFY(window.shows(window.ui().deleteModelView, Page::DeleteModel));
    QCOMPARE(window->modelList.size(), 3);
    QCOMPARE(window.fileBytes(), before);
}

void ModelDeletionTest::theSecondClickDeletes()
{
    EditingWindow window;
    window.load(threeModels());
    deleteModel(window, u"Wing"_s);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.modelNames(), QStringList({u"Bird"_s, u"Kite"_s}));
    QVERIFY(!window.fileBytes().contains("Wing"));
    QCOMPARE(window.fileBytes().count("<FlightLog>"), 2); // its log goes with it
    for (const QComboBox *chooser : window.modelChoosers())
        QCOMPARE(window.items(chooser), window.modelNames());
    openFor(window, u"Bird"_s);
    expectAsking(window, false);
}

void ModelDeletionTest::anotherChoiceDoesNotTakeTheFirstClickBackOnPurpose()
{
    EditingWindow window;
    window.load(threeModels());
    openFor(window, u"Bird"_s);
    window.click(window.ui().pb_deleteConfirm_model);
    window.choose(window.ui().cb_modelList_delete, u"Kite"_s);
    expectAsking(window, true);
    window.click(window.ui().pb_deleteConfirm_model);
    QCOMPARE(window.modelNames(), QStringList({u"Bird"_s, u"Wing"_s}));

    openFor(window, u"Bird"_s);
    window.click(window.ui().pb_deleteConfirm_model);
    openFor(window, u"Wing"_s); // not even leaving the page for another model does
    expectAsking(window, true);
}

void ModelDeletionTest::theBatteriesOfTheModelStay()
{
    EditingWindow window;
    window.load(threeModels());
    deleteModel(window, u"Bird"_s);
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(window.battery(u"A"_s)->getDates().size(), 1);
}

void ModelDeletionTest::theOverviewGoesOnWithTheFirstModelLeft()
{
    EditingWindow window;
    window.load(threeModels());
    QCOMPARE(window.cardsOnShow(), QStringList{u"A"_s});
    deleteModel(window, u"Bird"_s);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Wing"_s);
    QCOMPARE(window.cardsOnShow(), QStringList{u"B"_s});
}

void ModelDeletionTest::theOverviewGoesOnWithTheModelThatThePreferencesName()
{
    EditingWindow window;
    LogbookWindow::storeModel(u"Kite"_s);
    window.load(threeModels());
    deleteModel(window, u"Bird"_s);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Kite"_s);
    QCOMPARE(window.cardsOnShow(), QStringList());
    QVERIFY(window.ui().lbl_optionshint->isVisible());
}

void ModelDeletionTest::ofTwoModelsOfOneNameTheFirstIsDeleted()
{
    EditingWindow window;
    window.load(document(
        {{},
         {flownModel(u"bird"_s), flownModel(u"Bird"_s, {u"first"_s}), flownModel(u"Bird"_s, {u"last"_s})}}));
    deleteModel(window, u"Bird"_s);
    QCOMPARE(window.modelNames(), QStringList({u"bird"_s, u"Bird"_s}));
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList{u"last"_s});
}

void ModelDeletionTest::aNameWithoutModelOnlyTakesTheFirstClickBack()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    deleteModel(window, u"Bird"_s); // and the choosers go on offering it
    QVERIFY(QFile::remove(window.filePath()));
    deleteModel(window, u"Bird"_s);
    QVERIFY(window.shows(window.ui().deleteModelView, Page::DeleteModel));
    expectAsking(window, false);
    QVERIFY(!QFile::exists(window.filePath()));
}

void ModelDeletionTest::theChoosersKeepTheNameOfTheLastModelOnPurpose()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}}));
    deleteModel(window, u"Bird"_s);
    QVERIFY(window->modelList.isEmpty());
    for (const QComboBox *chooser : window.modelChoosers())
        QCOMPARE(window.items(chooser), QStringList{u"Bird"_s});

    window.goTo(window.ui().pb_choose_modify_model); // offers it, and finds no model of this name
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
}

void ModelDeletionTest::theRemovedRecordIsDestroyedOnce()
{
    EditingWindow window;
    window.load(threeModels());
    int destroyed = 0;
    const QPointer<ModelWidget> removed = window.model(u"Wing"_s);
    connect(removed, &QObject::destroyed, this, [&destroyed] { ++destroyed; });
    deleteModel(window, u"Wing"_s);
    QVERIFY(!removed);
    QCOMPARE(destroyed, 1);
    const QPointer<ModelWidget> left = window.model(u"Kite"_s);
    window.restart();
    QVERIFY(!left);
}

QTEST_MAIN(ModelDeletionTest)
#include "tst_modeldeletion.moc"
