// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;

class LocationEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewLocationIsInBothChoosersAndInTheFile();
    void aNewLocationOpensTheOverviewAndLeavesTheFormAsItWas();
    void aNameThatIsTakenGetsACounter();
    void aNewNameMayBeThatOfTheFirstLocationOnPurpose();
    void anEmptyNameAddsNothing();
    void aNameMayHoldAnyCharacters();
    void theLocationsWrittenAreThoseOfTheDischargePage();

    void theFirstDeletionTakesOneClickOnPurpose();
    void everyOtherDeletionTakesTwoClicks();
    void anotherChoiceDoesNotTakeTheFirstClickBack();
    void theFirstOfTwoEqualLocationsIsDeleted();
    void namesAreComparedExactly();
    void theLocationIsFoundByItsNameAndNotByItsPlace();
    void theFlightsKeepTheLocationTheyRecorded();
    void theNameOfTheLastLocationStaysOnThePageOnPurpose();
    void deletingALocationThatIsGoneStillWritesAndReloadsOnPurpose();
    void theFolderThatIsChangedToInheritsTheLocations();

private:
    static QByteArray threeLocations();
    static void expectLocations(EditingWindow &window, const QStringList &names);
    static void openFor(EditingWindow &window, const QString &location);
};

QByteArray LocationEditingTest::threeLocations()
{
    return EditingWindow::document({EditingWindow::locationsElement({"Field", "Meadow", "Hill"}),
                                    EditingWindow::batteryElement("A"),
                                    EditingWindow::modelElement("Bird", {"A"})});
}

/** In the file and in both choosers. */
void LocationEditingTest::expectLocations(EditingWindow &window, const QStringList &names)
{
    QCOMPARE(window.items(window.ui().cb_log_location), names);
    QCOMPARE(window.items(window.ui().cb_location_delete), names);
    QStringList written;
    window->dataProcessor.getLocationsFromData(written);
    QCOMPARE(written, names);
}

void LocationEditingTest::openFor(EditingWindow &window, const QString &location)
{
    window.goTo(window.ui().pb_choose_dellocation);
    window.choose(window.ui().cb_location_delete, location);
}

void LocationEditingTest::aNewLocationIsInBothChoosersAndInTheFile()
{
    EditingWindow window;
    window.addLocation(u"Field"_qs);
    window.addLocation(u"Meadow"_qs);
    expectLocations(window, {u"Field"_qs, u"Meadow"_qs});
    QVERIFY(window.fileBytes().contains("<Location Name=\"Meadow\"/>"));
}

void LocationEditingTest::aNewLocationOpensTheOverviewAndLeavesTheFormAsItWas()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addlocation);
    QVERIFY(window.shows(window.ui().addLocationView, Page::AddLocation));
    window.type(window.ui().ledt_location_new, u"Field"_qs);
    window.click(window.ui().pb_add_location);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.ui().ledt_location_new->text(), u"Field"_qs);
}

void LocationEditingTest::aNameThatIsTakenGetsACounter()
{
    EditingWindow window;
    for (int i = 0; i < 2; ++i) {
        window.goTo(window.ui().pb_choose_addlocation);
        window.click(window.ui().pb_add_location);
    }
    expectLocations(window, {u"MyLocation"_qs, u"MyLocation_1"_qs});
}

void LocationEditingTest::aNewNameMayBeThatOfTheFirstLocationOnPurpose()
{
    EditingWindow window;
    window.addLocation(u"Field_1"_qs);
    window.addLocation(u"Field"_qs);
    window.addLocation(u"Field"_qs);
    expectLocations(window, {u"Field_1"_qs, u"Field"_qs, u"Field_1"_qs});
}

void LocationEditingTest::anEmptyNameAddsNothing()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addlocation);
    window.type(window.ui().ledt_location_new, QString());
    window.click(window.ui().pb_add_location);
    QVERIFY(window.shows(window.ui().addLocationView, Page::AddLocation));
    QCOMPARE(window.ui().cb_log_location->count(), 0);
    QVERIFY(!QFile::exists(window.filePath()));
}

void LocationEditingTest::aNameMayHoldAnyCharacters()
{
    EditingWindow window;
    window.addLocation(u"  <b>\"Kreuz\" & 'Quer'</b>  "_qs);
    expectLocations(window, {u"  <b>\"Kreuz\" & 'Quer'</b>  "_qs});
}

void LocationEditingTest::theLocationsWrittenAreThoseOfTheDischargePage()
{
    EditingWindow window;
    window.load(threeLocations());
    window.ui().cb_log_location->insertItem(1, u"Lake"_qs);
    window.ui().cb_location_delete->addItem(u"Never written"_qs);
    window.addBattery(u"B"_qs);
    expectLocations(window, {u"Field"_qs, u"Lake"_qs, u"Meadow"_qs, u"Hill"_qs});
}

void LocationEditingTest::theFirstDeletionTakesOneClickOnPurpose()
{
    EditingWindow window;
    window.load(threeLocations());
    for (int windows = 0; windows < 2; ++windows) { // of every window
        openFor(window, window.ui().cb_location_delete->itemText(1));
        QVERIFY(window.shows(window.ui().deleteLocationView, Page::DeleteLocation));
        QVERIFY(window.ui().lbl_reallydelete_location->isVisible());
        QCOMPARE(window.ui().pb_del_location->text(), u"Delete"_qs);
        window.click(window.ui().pb_del_location);
        QVERIFY(window.showsOverview());
        QCOMPARE(window.ui().cb_log_location->count(), 2 - windows);
        window.restart();
    }
    expectLocations(window, {u"Field"_qs});
}

void LocationEditingTest::everyOtherDeletionTakesTwoClicks()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_qs);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Field"_qs, u"Hill"_qs});

    for (const QString &location : {u"Hill"_qs, u"Field"_qs}) {
        const QByteArray before = window.fileBytes();
        openFor(window, location);
        QVERIFY(!window.ui().lbl_reallydelete_location->isVisible());
        window.click(window.ui().pb_del_location);
        QVERIFY(window.ui().lbl_reallydelete_location->isVisible());
        QCOMPARE(window.ui().pb_del_location->text(), u"Yes"_qs);
        QVERIFY(window.shows(window.ui().deleteLocationView, Page::DeleteLocation));
        QCOMPARE(window.fileBytes(), before);

        window.click(window.ui().pb_del_location);
        QVERIFY(window.showsOverview());
        QVERIFY(!window.fileBytes().contains("<Location Name=\"" + location.toLatin1() + "\"/>"));
        QCOMPARE(window.ui().pb_del_location->text(), u"Delete"_qs);
    }
    QCOMPARE(window.ui().cb_log_location->count(), 0);
}

void LocationEditingTest::anotherChoiceDoesNotTakeTheFirstClickBack()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_qs);
    window.click(window.ui().pb_del_location);
    openFor(window, u"Field"_qs);
    window.click(window.ui().pb_del_location);
    window.choose(window.ui().cb_location_delete, u"Hill"_qs);
    QCOMPARE(window.ui().pb_del_location->text(), u"Yes"_qs);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Field"_qs});
}

void LocationEditingTest::theFirstOfTwoEqualLocationsIsDeleted()
{
    EditingWindow window;
    window.load(window.document({window.locationsElement({"Field", "Hill", "Field"})}));
    openFor(window, u"Field"_qs);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Hill"_qs, u"Field"_qs});
}

void LocationEditingTest::namesAreComparedExactly()
{
    EditingWindow window;
    window.load(window.document({window.locationsElement({"field", "FIELD", "Field hill", "Field"})}));
    window.goTo(window.ui().pb_choose_dellocation);
    window.ui().cb_location_delete->setCurrentIndex(3);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"field"_qs, u"FIELD"_qs, u"Field hill"_qs});
}

void LocationEditingTest::theLocationIsFoundByItsNameAndNotByItsPlace()
{
    EditingWindow window;
    window.load(threeLocations());
    window.ui().cb_log_location->insertItem(0, u"Lake"_qs);
    openFor(window, u"Meadow"_qs);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Lake"_qs, u"Field"_qs, u"Hill"_qs});
}

void LocationEditingTest::theFlightsKeepTheLocationTheyRecorded()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_qs);
    window.click(window.ui().pb_del_location);
    QCOMPARE(window.model(u"Bird"_qs)->getLogData().constFirst().location, u"Meadow"_qs);
    QVERIFY(window.fileBytes().contains(" Location=\"Meadow\""));
}

void LocationEditingTest::theNameOfTheLastLocationStaysOnThePageOnPurpose()
{
    EditingWindow window;
    window.load(window.document({window.locationsElement({"Field"})}));
    openFor(window, u"Field"_qs);
    window.click(window.ui().pb_del_location);
    QCOMPARE(window.ui().cb_log_location->count(), 0);
    QCOMPARE(window.items(window.ui().cb_location_delete), QStringList{u"Field"_qs});
    QVERIFY(!window.fileBytes().contains("Location"));

    window.addLocation(u"Hill"_qs); // fills both choosers anew
    expectLocations(window, {u"Hill"_qs});
}

void LocationEditingTest::deletingALocationThatIsGoneStillWritesAndReloadsOnPurpose()
{
    EditingWindow window;
    window.load(window.document({window.locationsElement({"Field"}), window.modelElement("Bird")}));
    openFor(window, u"Field"_qs);
    window.click(window.ui().pb_del_location);
    const QByteArray before = window.fileBytes();
    QVERIFY(QFile::remove(window.filePath()));
    const ModelWidget *old = window.model(u"Bird"_qs);
    bool reloaded = false;
    connect(old, &QObject::destroyed, this, [&reloaded] { reloaded = true; });

    openFor(window, u"Field"_qs);
    window.click(window.ui().pb_del_location);
    QVERIFY(!reloaded);
    window.click(window.ui().pb_del_location);
    QVERIFY(reloaded);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.fileBytes(), before);
    QCOMPARE(window.modelNames(), QStringList{u"Bird"_qs});
}

void LocationEditingTest::theFolderThatIsChangedToInheritsTheLocations()
{
    EditingWindow window;
    window.load(threeLocations());
    const QString other = window.folder() + u"/other"_qs;
    window->changeStoragePath(other);
    QVERIFY(window->batteryList.isEmpty());
    QCOMPARE(window.ui().cb_log_location->count(), 3);
    QVERIFY(!QFile::exists(other));

    window.addLocation(u"Lake"_qs);
    expectLocations(window, {u"Field"_qs, u"Meadow"_qs, u"Hill"_qs, u"Lake"_qs});
    QVERIFY(QFile::exists(other + u"/voltbok.xml"_qs));
    QVERIFY(window->batteryList.isEmpty());
}

QTEST_MAIN(LocationEditingTest)
#include "tst_locationediting.moc"
