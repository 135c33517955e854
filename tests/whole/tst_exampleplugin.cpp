// SPDX-License-Identifier: GPL-3.0-or-later
#include "examples/plugin/logbookplugin.h"
#include "gui/voltbokgui.h"

#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ExamplePluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMenuOpensTheLogbookAsOftenAsTheHouseClosesIt();
    void theMenuSpeaksTheChosenLanguage();
};

namespace {

VoltbokGui *shownLogbook()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *logbook = qobject_cast<VoltbokGui *>(window); logbook && logbook->isVisible())
            return logbook;
    }
    return nullptr;
}

QString entryOf(LogbookPlugin &plugin)
{
    QMenu menu;
    plugin.addTo(&menu);
    return menu.actions().value(0)->text();
}

} // namespace

void ExamplePluginTest::theMenuOpensTheLogbookAsOftenAsTheHouseClosesIt()
{
    const QTemporaryDir folder;
    LogbookPlugin plugin(folder.path());
    QMenu menu;
    plugin.addTo(&menu);
    QCOMPARE(menu.actions().size(), 1);
    for (int time = 0; time < 2; ++time) {
        QVERIFY(!shownLogbook());
        menu.actions().first()->trigger();
        QVERIFY(shownLogbook());
        shownLogbook()->findChild<QPushButton *>(u"pb_home"_s)->click();
    }
    QVERIFY(!shownLogbook());
}

void ExamplePluginTest::theMenuSpeaksTheChosenLanguage()
{
    const QTemporaryDir folder;
    LogbookPlugin plugin(folder.path());
    plugin.switchLanguage(QLocale(QLocale::German));
    QCOMPARE(entryOf(plugin), u"&Akku- und Flugbuch"_s);
    plugin.switchLanguage(QLocale(QLocale::English));
    QCOMPARE(entryOf(plugin), u"Battery &Logbook"_s);
}

QTEST_MAIN(ExamplePluginTest)
#include "tst_exampleplugin.moc"
