// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

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
    return document(
        {{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}, {u"Field"_s, u"Meadow"_s, u"Hill"_s}});
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
    window.addLocation(u"Field"_s);
    window.addLocation(u"Meadow"_s);
    expectLocations(window, {u"Field"_s, u"Meadow"_s});
    QVERIFY(window.fileBytes().contains("<Location Name=\"Meadow\"/>"));
}

void LocationEditingTest::aNewLocationOpensTheOverviewAndLeavesTheFormAsItWas()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addlocation);
    QVERIFY(window.shows(window.ui().addLocationView, Page::AddLocation));
    window.type(window.ui().ledt_location_new, u"Field"_s);
    window.click(window.ui().pb_add_location);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.ui().ledt_location_new->text(), u"Field"_s);
}

void LocationEditingTest::aNameThatIsTakenGetsACounter()
{
    EditingWindow window;
    for (int i = 0; i < 2; ++i) {
        window.goTo(window.ui().pb_choose_addlocation);
        window.click(window.ui().pb_add_location);
    }
    expectLocations(window, {u"MyLocation"_s, u"MyLocation_1"_s});
}

void LocationEditingTest::aNewNameMayBeThatOfTheFirstLocationOnPurpose()
{
    EditingWindow window;
    window.addLocation(u"Field_1"_s);
    window.addLocation(u"Field"_s);
    window.addLocation(u"Field"_s);
    expectLocations(window, {u"Field_1"_s, u"Field"_s, u"Field_1"_s});
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
    window.addLocation(u"  <b>\"Kreuz\" & 'Quer'</b>  "_s);
    expectLocations(window, {u"  <b>\"Kreuz\" & 'Quer'</b>  "_s});
}

void LocationEditingTest::theLocationsWrittenAreThoseOfTheDischargePage()
{
    EditingWindow window;
    window.load(threeLocations());
    window.ui().cb_log_location->insertItem(1, u"Lake"_s);
    window.ui().cb_location_delete->addItem(u"Never written"_s);
    window.addBattery(u"B"_s);
    expectLocations(window, {u"Field"_s, u"Lake"_s, u"Meadow"_s, u"Hill"_s});
}

void LocationEditingTest::theFirstDeletionTakesOneClickOnPurpose()
{
    EditingWindow window;
    window.load(threeLocations());
    for (int windows = 0; windows < 2; ++windows) { // of every window
        openFor(window, window.ui().cb_location_delete->itemText(1));
        QVERIFY(window.shows(window.ui().deleteLocationView, Page::DeleteLocation));
        QVERIFY(window.ui().lbl_reallydelete_location->isVisible());
        QCOMPARE(window.ui().pb_del_location->text(), u"Delete"_s);
        window.click(window.ui().pb_del_location);
        QVERIFY(window.showsOverview());
        QCOMPARE(window.ui().cb_log_location->count(), 2 - windows);
        window.restart();
    }
    expectLocations(window, {u"Field"_s});
}

void LocationEditingTest::everyOtherDeletionTakesTwoClicks()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_s);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Field"_s, u"Hill"_s});

    for (const QString &location : {u"Hill"_s, u"Field"_s}) {
        const QByteArray before = window.fileBytes();
        openFor(window, location);
        QVERIFY(!window.ui().lbl_reallydelete_location->isVisible());
        window.click(window.ui().pb_del_location);
        QVERIFY(window.ui().lbl_reallydelete_location->isVisible());
        QCOMPARE(window.ui().pb_del_location->text(), u"Yes"_s);
        QVERIFY(window.shows(window.ui().deleteLocationView, Page::DeleteLocation));
        QCOMPARE(window.fileBytes(), before);

        window.click(window.ui().pb_del_location);
        QVERIFY(window.showsOverview());
        QVERIFY(!window.fileBytes().contains("<Location Name=\"" + location.toLatin1() + "\"/>"));
        QCOMPARE(window.ui().pb_del_location->text(), u"Delete"_s);
    }
    QCOMPARE(window.ui().cb_log_location->count(), 0);
}

void LocationEditingTest::anotherChoiceDoesNotTakeTheFirstClickBack()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_s);
    window.click(window.ui().pb_del_location);
    openFor(window, u"Field"_s);
    window.click(window.ui().pb_del_location);
    window.choose(window.ui().cb_location_delete, u"Hill"_s);
    QCOMPARE(window.ui().pb_del_location->text(), u"Yes"_s);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Field"_s});
}

void LocationEditingTest::theFirstOfTwoEqualLocationsIsDeleted()
{
    EditingWindow window;
    window.load(document({{}, {}, {u"Field"_s, u"Hill"_s, u"Field"_s}}));
    openFor(window, u"Field"_s);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Hill"_s, u"Field"_s});
}

void LocationEditingTest::namesAreComparedExactly()
{
    EditingWindow window;
    window.load(document({{}, {}, {u"field"_s, u"FIELD"_s, u"Field hill"_s, u"Field"_s}}));
    window.goTo(window.ui().pb_choose_dellocation);
    window.ui().cb_location_delete->setCurrentIndex(3);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"field"_s, u"FIELD"_s, u"Field hill"_s});
}

void LocationEditingTest::theLocationIsFoundByItsNameAndNotByItsPlace()
{
    EditingWindow window;
    window.load(threeLocations());
    window.ui().cb_log_location->insertItem(0, u"Lake"_s);
    openFor(window, u"Meadow"_s);
    window.click(window.ui().pb_del_location);
    expectLocations(window, {u"Lake"_s, u"Field"_s, u"Hill"_s});
}

void LocationEditingTest::theFlightsKeepTheLocationTheyRecorded()
{
    EditingWindow window;
    window.load(threeLocations());
    openFor(window, u"Meadow"_s);
    window.click(window.ui().pb_del_location);
    QCOMPARE(window.model(u"Bird"_s)->getLogData().constFirst().location, u"Meadow"_s);
    QVERIFY(window.fileBytes().contains(" Location=\"Meadow\""));
}

void LocationEditingTest::theNameOfTheLastLocationStaysOnThePageOnPurpose()
{
    EditingWindow window;
    window.load(document({{}, {}, {u"Field"_s}}));
    openFor(window, u"Field"_s);
    window.click(window.ui().pb_del_location);
    QCOMPARE(window.ui().cb_log_location->count(), 0);
    QCOMPARE(window.items(window.ui().cb_location_delete), QStringList{u"Field"_s});
    QVERIFY(!window.fileBytes().contains("Location"));

    window.addLocation(u"Hill"_s); // fills both choosers anew
    expectLocations(window, {u"Hill"_s});
}

void LocationEditingTest::deletingALocationThatIsGoneStillWritesAndReloadsOnPurpose()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}, {u"Field"_s}}));
    openFor(window, u"Field"_s);
    window.click(window.ui().pb_del_location);
    const QByteArray before = window.fileBytes();
    QVERIFY(QFile::remove(window.filePath()));
    const ModelWidget *old = window.model(u"Bird"_s);
    bool reloaded = false;
    connect(old, &QObject::destroyed, this, [&reloaded] { reloaded = true; });

    openFor(window, u"Field"_s);
    window.click(window.ui().pb_del_location);
    QVERIFY(!reloaded);
    window.click(window.ui().pb_del_location);
    QVERIFY(reloaded);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.fileBytes(), before);
    QCOMPARE(window.modelNames(), QStringList{u"Bird"_s});
}

void LocationEditingTest::theFolderThatIsChangedToInheritsTheLocations()
{
    EditingWindow window;
    window.load(threeLocations());
    const QString other = window.folder() + u"/other"_s;
    window->changeStoragePath(other);
    QVERIFY(window->batteryList.isEmpty());
    QCOMPARE(window.ui().cb_log_location->count(), 3);
    QVERIFY(!QFile::exists(other));

    window.addLocation(u"Lake"_s);
    expectLocations(window, {u"Field"_s, u"Meadow"_s, u"Hill"_s, u"Lake"_s});
    QVERIFY(QFile::exists(other + u"/voltbok.xml"_s));
    QVERIFY(window->batteryList.isEmpty());
}

QTEST_MAIN(LocationEditingTest)
#include "tst_locationediting.moc"
