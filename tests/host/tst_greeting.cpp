// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/hostwindow.h"

#include <QTest>

class GreetingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyLogbookGreetsWithThreeWaysOn();
    void aLogbookWithABatteryOrAModelDoesNot_data();
    void aLogbookWithABatteryOrAModelDoesNot();
    void theFirstBatteryEndsIt();
    void theSampleIsAskedFor();
    void anotherFolderCanBeChosen();
};

namespace {

const QString Matter = u"greeting"_s;

} // namespace

void GreetingTest::anEmptyLogbookGreetsWithThreeWaysOn()
{
    HostWindow window{QByteArray()};
    QVERIFY(window.message(Matter).startsWith(u"This logbook is empty."_s));
    for (const QString &way : {u"Add a Battery"_s, u"Open the Sample"_s, u"Choose a Folder…"_s})
        QVERIFY2(window.button(way), qPrintable(way));
}

void GreetingTest::aLogbookWithABatteryOrAModelDoesNot_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("a battery") << Test::document({{{u"Pack A"_s}}});
    QTest::newRow("a model") << Test::document({{}, {{u"Skylark"_s}}});
}

void GreetingTest::aLogbookWithABatteryOrAModelDoesNot()
{
    QFETCH(QByteArray, document);
    HostWindow window(document);
    QCOMPARE(window.message(Matter), QString());
}

void GreetingTest::theFirstBatteryEndsIt()
{
    HostWindow window{QByteArray()};
    window.press(u"Add a Battery"_s);
    QCOMPARE(window.gui().currentPage, Page::AddBattery);
    LogbookWindow::type(window.ui().ledt_name, u"Pack A"_s);
    LogbookWindow::click(window.ui().pb_addNewBattery);
    QVERIFY(window.battery(u"Pack A"_s));
    QTRY_COMPARE(window.message(Matter), QString());
}

void GreetingTest::theSampleIsAskedFor()
{
    HostWindow window{QByteArray()};
    QString asked;
    connect(&window.window(), &Host::MainWindow::folderRequested, &window.window(),
            [&asked](const Host::StorageFolder &folder) { asked = folder.path(); });
    window.press(u"Open the Sample"_s);
    QCOMPARE(asked, Host::StorageFolder::ofDemo().path());
}

void GreetingTest::anotherFolderCanBeChosen()
{
    HostWindow window{QByteArray()};
    window.questions.choose(window.place());
    QString asked;
    connect(&window.window(), &Host::MainWindow::folderRequested, &window.window(),
            [&asked](const Host::StorageFolder &folder) { asked = folder.path(); });
    window.press(u"Choose a Folder…"_s);
    QCOMPARE(asked, Host::StorageFolder(window.place()).path());
}

QTEST_MAIN(GreetingTest)
#include "tst_greeting.moc"
