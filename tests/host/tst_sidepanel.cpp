// SPDX-License-Identifier: GPL-3.0-or-later
// The panel beside the logbook, its first tab, and what the user may change of it.
#include "host/window/advicelimits.h"
#include "host/window/batteriesmodel.h"
#include "host/window/batteriestab.h"
#include "host/window/preferencesdialog.h"
#include "host/window/sidepanel.h"
#include "host/window/statisticsmodel.h"
#include "host/window/statisticstab.h"
#include "host/window/todaytab.h"
#include "tests/host/support/hostwindow.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class SidePanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabsHaveTheirNames();
    void whatThereIsToDoIsListed();
    void theListFollowsTheLogbook();
    void aHiddenPanelReadsNothing();
    void everyTabFollowsTheCalendar_data();
    void everyTabFollowsTheCalendar();
    void aClickLeadsToTheBattery_data();
    void aClickLeadsToTheBattery();
    void anEmptyLogbookSaysWhatToDoFirst();
    void nothingToDoIsSaid();
    void aPageIsShownByItsName_data();
    void aPageIsShownByItsName();
    void everyLimitIsInThePreferences();
    void preferencesAreKeptByOkAlone();
    void aLimitOutOfItsRangeIsBroughtIntoIt();

private:
    static QByteArray charged(int daysAgo);
    static SidePanel &panel(HostWindow &window);
    static QListWidget &list(HostWindow &window) { return *panel(window).findChild<QListWidget *>(); }
    static QStringList texts(HostWindow &window);
};

/** One charged battery, last used some days ago. */
QByteArray SidePanelTest::charged(int daysAgo)
{
    Test::Battery battery{u"Pack A"_s, true};
    battery.lastUse = QDateTime::currentDateTime().addDays(-daysAgo);
    battery.purchase = QDate();
    return Test::document({{battery}, {}, {}});
}

SidePanel &SidePanelTest::panel(HostWindow &window)
{
    auto &panel = *window.window().findChild<SidePanel *>();
    if (!panel.isVisible())
        QTest::keySequence(&window.window(), QKeySequence(Qt::Key_F9));
    panel.refreshNow();
    return panel;
}

QStringList SidePanelTest::texts(HostWindow &window)
{
    QStringList texts;
    const QListWidget &items = list(window);
    for (int row = 0; row < items.count(); ++row)
        texts.append(items.item(row)->text());
    return texts;
}

void SidePanelTest::theTabsHaveTheirNames()
{
    HostWindow window;
    const SidePanel &tabs = panel(window);
    QCOMPARE(tabs.count(), 4);
    QCOMPARE(SidePanel::tabNames().size(), 4);
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i)
        captions.append(tabs.tabText(i).toLower());
    QCOMPARE(captions, SidePanel::tabNames());
}

void SidePanelTest::whatThereIsToDoIsListed()
{
    HostWindow window(charged(6));
    QCOMPARE(texts(window).size(), 1);
    QVERIFY(texts(window).constFirst().contains(u"Pack A"_s));
    const QListWidgetItem *item = list(window).item(0);
    QVERIFY(!item->icon().isNull());
    QCOMPARE(item->data(Qt::AccessibleTextRole).toString(), u"Warning: "_s + item->text());
}

void SidePanelTest::theListFollowsTheLogbook()
{
    HostWindow window(charged(6));
    QCOMPARE(texts(window).size(), 1);
    window.clickCard(u"Pack A"_s); // discharged, and used just now
    window.settle();
    QTRY_COMPARE(list(window).count(), 0);
    QTest::keySequence(&window.window(), QKeySequence::Undo);
    QTRY_COMPARE(list(window).count(), 1);
}

void SidePanelTest::aHiddenPanelReadsNothing()
{
    HostWindow window(charged(6));
    auto *tabs = window.window().findChild<SidePanel *>();
    tabs->hide();
    window.clickCard(u"Pack A"_s);
    window.settle();
    QTest::qWait(20);
    QVERIFY(!window.logbook().m_catalogue);
    tabs->show();
    QTRY_VERIFY(window.logbook().m_catalogue != nullptr);
}

void SidePanelTest::everyTabFollowsTheCalendar_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("Today") << int(SidePanel::Today);
    QTest::newRow("Batteries") << int(SidePanel::Batteries);
    QTest::newRow("Statistics") << int(SidePanel::Statistics);
}

void SidePanelTest::everyTabFollowsTheCalendar()
{
    QFETCH(int, tab);
    Test::Battery battery{u"Pack A"_s, true};
    battery.lastUse = QDateTime::currentDateTime().addDays(-6);
    battery.history = {{battery.lastUse, 1000, 2000}};
    HostWindow window(Test::document({{battery}, {}, {}}));
    SidePanel &tabs = panel(window);
    tabs.setCurrentIndex(tab);
    tabs.refreshNow();
    QTest::qWait(10);
    const QList<QAbstractItemView *> views{&list(window), tabs.m_batteries->m_table, nullptr,
                                           tabs.m_statistics->m_table};
    const QAbstractItemModel &model = *views.at(tab)->model();
    QVERIFY(model.rowCount() > 0);
    // What the tabs show is lost, so that only a refresh brings it back.
    list(window).clear();
    tabs.m_batteries->m_model->setFigures({}, {});
    tabs.m_statistics->m_model->setGroups({}, Grouping::Month);
    tabs.m_clock.start(1);
    QTest::qWait(20);
    QCOMPARE(model.rowCount(), 0); // it is still the same day
    tabs.m_day = tabs.m_day.addDays(-1);
    QTRY_VERIFY(model.rowCount() > 0);
    QCOMPARE(tabs.m_day, QDate::currentDate());
}

void SidePanelTest::aClickLeadsToTheBattery_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("mouse") << true;
    QTest::newRow("key") << false;
}

void SidePanelTest::aClickLeadsToTheBattery()
{
    QFETCH(bool, byMouse);
    HostWindow window(charged(6));
    SidePanel &tabs = panel(window);
    QListWidget &items = list(window);
    QSignalSpy requested(tabs.findChild<TodayTab *>(), &TodayTab::batteryRequested);
    if (byMouse) {
        QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualItemRect(items.item(0)).center());
    } else {
        items.setFocus();
        items.setCurrentRow(0);
        QTest::keyClick(&items, Qt::Key_Return);
    }
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.at(0).at(0).toString(), u"Pack A"_s);
    QCOMPARE(tabs.currentIndex(), int(SidePanel::Batteries));
}

void SidePanelTest::anEmptyLogbookSaysWhatToDoFirst()
{
    HostWindow window{QByteArray()};
    const auto *heading = panel(window).findChild<TodayTab *>()->findChild<QLabel *>();
    QVERIFY(heading->text().contains(u"no battery yet"_s));
    QVERIFY(!list(window).isVisible());
}

void SidePanelTest::nothingToDoIsSaid()
{
    HostWindow window(charged(0));
    const auto *heading = panel(window).findChild<TodayTab *>()->findChild<QLabel *>();
    QCOMPARE(heading->text(), u"Nothing to do today."_s);
}

void SidePanelTest::aPageIsShownByItsName_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("widget");
    QTest::newRow("overview") << u"overview"_s << u"scrollLayout"_s;
    QTest::newRow("menu") << u"menu"_s << u"optionsView"_s;
    QTest::newRow("mode") << u"mode"_s << u"modeView"_s;
    QTest::newRow("chart") << u"chart"_s << u"dataView"_s;
    QTest::newRow("log-book") << u"log-book"_s << u"logView"_s;
    QTest::newRow("edit") << u"edit"_s << u"editDataView"_s;
    QTest::newRow("add-battery") << u"add-battery"_s << u"addView"_s;
    QTest::newRow("add-model") << u"add-model"_s << u"addModelView"_s;
    QTest::newRow("add-location") << u"add-location"_s << u"addLocationView"_s;
    QTest::newRow("modify-battery") << u"modify-battery"_s << u"modBatteryView"_s;
    QTest::newRow("modify-model") << u"modify-model"_s << u"modModelView"_s;
    QTest::newRow("delete-battery") << u"delete-battery"_s << u"deleteView"_s;
    QTest::newRow("delete-model") << u"delete-model"_s << u"deleteModelView"_s;
    QTest::newRow("delete-location") << u"delete-location"_s << u"deleteLocationView"_s;
}

void SidePanelTest::aPageIsShownByItsName()
{
    QFETCH(QString, page);
    HostWindow window;
    QVERIFY(MainWindow::pageNames().contains(page));
    window.window().showPage(page);
    QTEST(window.ui().stackedWidget->currentWidget()->objectName(), "widget");
}

void SidePanelTest::everyLimitIsInThePreferences()
{
    const PreferencesDialog dialog;
    const auto edits = dialog.findChildren<QSpinBox *>();
    QCOMPARE(edits.size(), limitFields().size());
    const AdviceLimits defaults;
    for (const LimitField &field : limitFields()) {
        const int value = defaults.*field.value;
        QVERIFY2(field.least <= value && value <= field.most, field.name);
    }
    for (const QSpinBox *edit : edits)
        QVERIFY(!edit->accessibleName().isEmpty());
}

void SidePanelTest::preferencesAreKeptByOkAlone()
{
    HostWindow window(charged(3));
    QCOMPARE(texts(window).size(), 1);
    for (const bool kept : {false, true}) {
        PreferencesDialog dialog;
        dialog.show();
        dialog.findChildren<QSpinBox *>().constFirst()->setValue(4);
        const auto *buttons = dialog.findChild<QDialogButtonBox *>();
        LogbookWindow::click(buttons->button(kept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel));
        QCOMPARE(chosenLimits().storageNoticeDays, kept ? 4 : 2);
    }
    panel(window).refreshAll();
    QTRY_COMPARE(list(window).count(), 0);
    PreferencesDialog dialog;
    dialog.show();
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    LogbookWindow::click(buttons->button(QDialogButtonBox::RestoreDefaults));
    LogbookWindow::click(buttons->button(QDialogButtonBox::Ok));
    QCOMPARE(chosenLimits().storageNoticeDays, 2);
}

void SidePanelTest::aLimitOutOfItsRangeIsBroughtIntoIt()
{
    Settings().setLimit(u"timerStep"_s, 0);
    QCOMPARE(chosenLimits().timerStep, 1);
    Settings().setLimit(u"timerStep"_s, 100'000);
    QCOMPARE(chosenLimits().timerStep, 60);
    Settings().clear();
    QCOMPARE(chosenLimits().timerStep, 15);
}

QTEST_MAIN(SidePanelTest)
#include "tst_sidepanel.moc"
