// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of flights in the program's window: what is found, and what stays when the logbook changes.
#include "host/data/edits.h"
#include "tests/host/support/flightswindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class FlightsTabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNewestFlightStandsFirst();
    void whatIsSearchedForIsFound();
    void theChoosersOfferWhatThereIs();
    void datesCountWhenTheyAreTicked();
    void choiceAndScrollSurviveANewVersion();
    void choiceFollowsAFlightThatHasAnotherPlace();
    void aFilterAndTheOrderSurviveANewVersion();
    void nothingCanBeDoneWhileAFlightIsEntered();
    void anEmptyLogbookSaysWhatToDoFirst();
    void everythingHasANameForAScreenReader();
    void everythingIsReachedByTheTabKey();
    void itIsDrawnFromRightToLeftAndLarge();
    void theFilterIsAsHighAsItsRows();
};

void FlightsTabTest::theNewestFlightStandsFirst()
{
    FlightsWindow window;
    QCOMPARE(window.rowCount(), 5);
    QCOMPARE(window.column(FlightsModel::Time).constFirst(), u"2026-05-03 12:00:00"_s);
    QCOMPARE(window.column(FlightsModel::Time).constLast(), QString()); // without a time
    QCOMPARE(window.tab().m_count->text(), u"Flights: 5"_s);
    QVERIFY(!window.tab().m_hint->isVisible());
}

void FlightsTabTest::whatIsSearchedForIsFound()
{
    FlightsWindow window;
    window.bar().m_text->setFocus();
    QTest::keyClicks(window.bar().m_text, u"hill"_s);
    QCOMPARE(window.column(FlightsModel::Location), QStringList(u"Hill"_s));
    QCOMPARE(window.tab().m_count->text(), u"Flights: 1 of 5"_s);
    window.bar().clear();
    QCOMPARE(window.rowCount(), 5);
}

void FlightsTabTest::theChoosersOfferWhatThereIs()
{
    FlightsWindow window;
    LogbookWindow::choose(window.bar().m_location, u"Beach"_s); // only a flight knows it
    QCOMPARE(window.column(FlightsModel::ModelName), QStringList(u"Firebrand"_s));
    window.bar().clear();
    LogbookWindow::choose(window.bar().m_battery, u"B"_s);
    QCOMPARE(window.column(FlightsModel::Batteries), (QStringList{u"B"_s, u"A; B"_s}));
    LogbookWindow::choose(window.bar().m_model, u"Skylark"_s);
    QCOMPARE(window.column(FlightsModel::Batteries), QStringList(u"A; B"_s));
}

void FlightsTabTest::datesCountWhenTheyAreTicked()
{
    FlightsWindow window;
    window.bar().m_from->setDate(QDate(2026, 5, 4));
    window.bar().m_to->setDate(QDate(2026, 5, 3));
    QCOMPARE(window.rowCount(), 5);
    QVERIFY(!window.bar().m_to->isEnabled());
    QTest::keyClick(window.bar().m_isTo, Qt::Key_Space);
    QVERIFY(window.bar().m_to->isEnabled());
    QCOMPARE(window.rowCount(), 4); // the one without a time is left out
    QTest::keyClick(window.bar().m_isFrom, Qt::Key_Space);
    QCOMPARE(window.rowCount(), 0);
}

void FlightsTabTest::choiceAndScrollSurviveANewVersion()
{
    Catalogue catalogue = logbook();
    for (int i = 0; i < 200; ++i)
        catalogue.models[0].log.append(flight(at(13, 0, i % 60).addSecs(60 * (i / 60))));
    FlightsWindow window(catalogue);
    window.select({u"13:01:30"_s, u"13:02:00"_s});
    window.table().verticalScrollBar()->setValue(70);
    window.table().horizontalScrollBar()->setValue(5);
    window.clickCard(u"A"_s); // which records another flight
    window.settle();
    QTRY_VERIFY(window.tab().m_flights.catalogue() == window.logbook().catalogue());
    QVERIFY(window.logbook().canUndo());
    QCOMPARE(window.selected(), (QStringList{u"13:01:30"_s, u"13:02:00"_s}));
    QCOMPARE(window.table().verticalScrollBar()->value(), 70);
    QCOMPARE(window.table().horizontalScrollBar()->value(), 5);
}

void FlightsTabTest::choiceFollowsAFlightThatHasAnotherPlace()
{
    FlightsWindow window;
    window.select({u"10:00:00"_s});
    QCOMPARE(
        window.logbook().change(u"Elsewhere"_s,
                                [](Catalogue &catalogue) {
                                    return Edits::deleteFlights(catalogue, {{0, 0}}, Edits::Discharges::Keep);
                                }),
        QString());
    QTRY_COMPARE(window.rowCount(), 4);
    QCOMPARE(window.selected(), QStringList(u"10:00:00"_s));
}

void FlightsTabTest::aFilterAndTheOrderSurviveANewVersion()
{
    FlightsWindow window;
    LogbookWindow::choose(window.bar().m_model, u"Skylark"_s);
    window.table().sortByColumn(FlightsModel::Discharged, Qt::AscendingOrder);
    const QStringList before = window.column(FlightsModel::Time);
    QVERIFY(!window.command(u"Delete"_s)->isEnabled());
    QCOMPARE(window.logbook().change(
                 u"Elsewhere"_s,
                 [](Catalogue &catalogue) { return Edits::addFlight(catalogue, 1, flight(at(18, 0))); }),
             QString());
    QTRY_COMPARE(window.tab().m_count->text(), u"Flights: 3 of 6"_s);
    QCOMPARE(window.column(FlightsModel::Time), before);
}

void FlightsTabTest::nothingCanBeDoneWhileAFlightIsEntered()
{
    FlightsWindow window;
    window.select({u"11:00:00"_s});
    for (const QString &name : {u"Add…"_s, u"Edit…"_s, u"Delete"_s, u"Move…"_s, u"Tidy Up…"_s, u"Rename…"_s})
        QVERIFY2(window.command(name)->isEnabled(), qPrintable(name));
    window.logbook().setCapturing(true);
    for (const QString &name : {u"Add…"_s, u"Edit…"_s, u"Delete"_s, u"Move…"_s, u"Tidy Up…"_s, u"Rename…"_s})
        QVERIFY2(!window.command(name)->isEnabled(), qPrintable(name));
    QVERIFY(!window.openEditor(u"11:00:00"_s, FlightsModel::Notes));
    window.table().setFocus();
    QTest::keyClick(&window.table(), Qt::Key_Delete); // asks nothing
    QVERIFY(window.questions.asked().isEmpty());
    window.logbook().setCapturing(false);
    QVERIFY(window.command(u"Delete"_s)->isEnabled());
    QVERIFY(window.openEditor(u"11:00:00"_s, FlightsModel::Notes));
}

void FlightsTabTest::anEmptyLogbookSaysWhatToDoFirst()
{
    FlightsWindow window{Catalogue()};
    QVERIFY(window.tab().m_hint->isVisible());
    QVERIFY(window.tab().m_hint->text().contains(u"no model yet"_s));
    QVERIFY(!window.command(u"Add…"_s)->isEnabled());
    Catalogue catalogue;
    catalogue.models = {model(u"Skylark"_s, {})};
    FlightsWindow first(catalogue);
    QVERIFY(first.tab().m_hint->text().contains(u"no flight yet"_s));
    QVERIFY(first.command(u"Add…"_s)->isEnabled());
}

void FlightsTabTest::everythingHasANameForAScreenReader()
{
    FlightsWindow window;
    const auto widgets = window.tab().findChildren<QWidget *>();
    int inputs = 0;
    for (const QWidget *widget : widgets) {
        const bool isInput = qobject_cast<const QComboBox *>(widget) || widget->inherits("QDateEdit") ||
                             widget == window.bar().m_text || widget == &window.table();
        if (!isInput)
            continue;
        ++inputs;
        QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
    }
    QCOMPARE(inputs, 7);
}

void FlightsTabTest::everythingIsReachedByTheTabKey()
{
    FlightsWindow window;
    window.select({u"11:00:00"_s});
    window.window().activateWindow();
    window.bar().m_text->setFocus();
    QSet<QWidget *> reached;
    for (int i = 0; i < 40; ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget *widget : std::initializer_list<QWidget *>{
             window.bar().m_text, window.bar().m_model, window.bar().m_battery, window.bar().m_location,
             window.bar().m_isFrom, window.bar().m_isTo, &window.table(), window.command(u"Add…"_s),
             window.command(u"Edit…"_s), window.command(u"Delete"_s), window.command(u"Rename…"_s)})
        QVERIFY2(reached.contains(widget), widget->metaObject()->className());
}

void FlightsTabTest::itIsDrawnFromRightToLeftAndLarge()
{
    const QFont font = QApplication::font();
    QFont large = font;
    large.setPointSizeF(font.pointSizeF() * 2.0);
    QApplication::setFont(large);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        FlightsWindow window;
        window.window().resize(900, 700);
        window.settleTab();
        const auto buttons = window.tab().findChildren<QPushButton *>();
        for (const QPushButton *button : buttons) {
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
            QVERIFY2(window.tab().rect().contains(button->geometry()), qPrintable(button->text()));
        }
        QCOMPARE(window.bar().m_from->text(), window.bar().m_from->date().toString(Qt::ISODate));
        const auto *edit = window.openEditor<QDateTimeEdit>(u"10:00:00"_s, FlightsModel::Time);
        QCOMPARE(edit->text(), u"2026-05-03 10:00:00"_s);
        QVERIFY(window.table().verticalHeader()->sectionSize(0) >= QFontMetrics(large).height());
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(font);
}

void FlightsTabTest::theFilterIsAsHighAsItsRows()
{
    FilterBar bar;
    bar.show();
    for (int width = 250; width < 1000; width += 25) {
        bar.resize(width, bar.heightForWidth(width));
        QCoreApplication::processEvents();
        const auto fields = bar.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *field : fields)
            QVERIFY2(bar.rect().contains(field->geometry()), field->metaObject()->className());
    }
}

QTEST_MAIN(FlightsTabTest)
#include "tst_flightstab.moc"
