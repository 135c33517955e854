// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

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
    return EditingWindow::document({EditingWindow::batteryElement("A"), EditingWindow::batteryElement("B"),
                                    EditingWindow::modelElement("Bird", {"A"}),
                                    EditingWindow::modelElement("Wing", {"B"}),
                                    EditingWindow::modelElement("Kite")});
}

void ModelDeletionTest::expectAsking(EditingWindow &window, bool asking)
{
    QCOMPARE(window.ui().lbl_reallydelete_model->isVisible(), asking);
    QCOMPARE(window.ui().lbl_reallydelete_model->text(), u"Really?"_qs);
    QCOMPARE(window.ui().pb_deleteConfirm_model->text(), asking ? u"Yes"_qs : u"Delete"_qs);
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
    openFor(window, u"Kite"_qs);
    QVERIFY(window.shows(window.ui().deleteModelView, Page::DeleteModel));
    QCOMPARE(window.ui().cb_modelList_delete->currentText(), u"Kite"_qs);
    expectAsking(window, false);
}

void ModelDeletionTest::theSelectionStaysWhenItDoesNotOfferTheModelOfTheEditPage()
{
    EditingWindow window;
    window.load(threeModels());
    window.ui().cb_modelList_delete->setCurrentIndex(1);
    window.ui().cb_model_choose_bat->addItem(u"kite"_qs);
    openFor(window, u"kite"_qs);
    QCOMPARE(window.ui().cb_modelList_delete->currentText(), u"Wing"_qs);
}

void ModelDeletionTest::theFirstClickOnlyAsks()
{
    EditingWindow window;
    window.load(threeModels());
    openFor(window, u"Wing"_qs);
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
    deleteModel(window, u"Wing"_qs);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.modelNames(), QStringList({u"Bird"_qs, u"Kite"_qs}));
    QVERIFY(!window.fileBytes().contains("Wing"));
    QCOMPARE(window.fileBytes().count("<FlightLog>"), 2); // its log goes with it
    for (const QComboBox *chooser : {window.ui().cb_select_model, window.ui().cb_logview_model,
                                     window.ui().cb_model_choose_bat, window.ui().cb_modelList_delete})
        QCOMPARE(window.items(chooser), window.modelNames());
    openFor(window, u"Bird"_qs);
    expectAsking(window, false);
}

void ModelDeletionTest::anotherChoiceDoesNotTakeTheFirstClickBackOnPurpose()
{
    EditingWindow window;
    window.load(threeModels());
    openFor(window, u"Bird"_qs);
    window.click(window.ui().pb_deleteConfirm_model);
    window.choose(window.ui().cb_modelList_delete, u"Kite"_qs);
    expectAsking(window, true);
    window.click(window.ui().pb_deleteConfirm_model);
    QCOMPARE(window.modelNames(), QStringList({u"Bird"_qs, u"Wing"_qs}));

    openFor(window, u"Bird"_qs);
    window.click(window.ui().pb_deleteConfirm_model);
    openFor(window, u"Wing"_qs); // not even leaving the page for another model does
    expectAsking(window, true);
}

void ModelDeletionTest::theBatteriesOfTheModelStay()
{
    EditingWindow window;
    window.load(threeModels());
    deleteModel(window, u"Bird"_qs);
    QCOMPARE(window.batteryNames(), QStringList({u"A"_qs, u"B"_qs}));
    QCOMPARE(window.battery(u"A"_qs)->getDates().size(), 1);
}

void ModelDeletionTest::theOverviewGoesOnWithTheFirstModelLeft()
{
    EditingWindow window;
    window.load(threeModels());
    QCOMPARE(window.cardsOnShow(), QStringList{u"A"_qs});
    deleteModel(window, u"Bird"_qs);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Wing"_qs);
    QCOMPARE(window.cardsOnShow(), QStringList{u"B"_qs});
}

void ModelDeletionTest::theOverviewGoesOnWithTheModelThatThePreferencesName()
{
    EditingWindow window;
    RotavexPlugin::rotavexSettings->setValue("SETTINGS/logmodel", u"Kite"_qs);
    window.load(threeModels());
    deleteModel(window, u"Bird"_qs);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Kite"_qs);
    QCOMPARE(window.cardsOnShow(), QStringList());
    QVERIFY(window.ui().lbl_optionshint->isVisible());
}

void ModelDeletionTest::ofTwoModelsOfOneNameTheFirstIsDeleted()
{
    EditingWindow window;
    window.load(window.document({window.modelElement("bird"), window.modelElement("Bird", {"first"}),
                                 window.modelElement("Bird", {"last"})}));
    deleteModel(window, u"Bird"_qs);
    QCOMPARE(window.modelNames(), QStringList({u"bird"_qs, u"Bird"_qs}));
    QCOMPARE(window.model(u"Bird"_qs)->getBatteries(), QStringList{u"last"_qs});
}

void ModelDeletionTest::aNameWithoutModelOnlyTakesTheFirstClickBack()
{
    EditingWindow window;
    window.load(window.document({window.modelElement("Bird")}));
    deleteModel(window, u"Bird"_qs); // and the choosers go on offering it
    QVERIFY(QFile::remove(window.filePath()));
    deleteModel(window, u"Bird"_qs);
    QVERIFY(window.shows(window.ui().deleteModelView, Page::DeleteModel));
    expectAsking(window, false);
    QVERIFY(!QFile::exists(window.filePath()));
}

void ModelDeletionTest::theChoosersKeepTheNameOfTheLastModelOnPurpose()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("A"), window.modelElement("Bird", {"A"})}));
    deleteModel(window, u"Bird"_qs);
    QVERIFY(window->modelList.isEmpty());
    for (const QComboBox *chooser : {window.ui().cb_select_model, window.ui().cb_logview_model,
                                     window.ui().cb_model_choose_bat, window.ui().cb_modelList_delete})
        QCOMPARE(window.items(chooser), QStringList{u"Bird"_qs});

    window.goTo(window.ui().pb_choose_modify_model); // offers it, and finds no model of this name
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
}

void ModelDeletionTest::theRemovedRecordIsDestroyedOnce()
{
    EditingWindow window;
    window.load(threeModels());
    int destroyed = 0;
    const QPointer<ModelWidget> removed = window.model(u"Wing"_qs);
    connect(removed, &QObject::destroyed, this, [&destroyed] { ++destroyed; });
    deleteModel(window, u"Wing"_qs);
    QVERIFY(!removed);
    QCOMPARE(destroyed, 1);
    const QPointer<ModelWidget> left = window.model(u"Kite"_qs);
    window.restart();
    QVERIFY(!left);
}

QTEST_MAIN(ModelDeletionTest)
#include "tst_modeldeletion.moc"
