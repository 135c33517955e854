// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {
void openLogBook(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);
}

void showLogBookOf(LogbookWindow &window, const QList<Model> &models)
{
    window.load(document({{}, models}));
    openLogBook(window);
}

void older(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_logview_prev);
}

void newer(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_logview_next);
}

QString notes(LogbookWindow &window)
{
    return window.ui().ptext_logview_notes->toPlainText();
}

/** What the pilot sees of the two buttons: "<>", "< ", " >" or "  ". */
QString enabledSteps(LogbookWindow &window)
{
    return (window.ui().pb_logview_prev->isEnabled() ? u"<"_s : u" "_s) +
           (window.ui().pb_logview_next->isEnabled() ? u">"_s : u" "_s);
}

QStringList fields(LogbookWindow &window)
{
    const Ui_VoltbokGui &ui = window.ui();
    return {ui.lbl_logview_date->text(),     ui.lbl_logview_time->text(),
            ui.lbl_logview_location->text(), ui.lbl_logview_duration->text(),
            ui.lbl_logview_temp->text(),     ui.ptext_logview_notes->toPlainText()};
}
} // namespace

class LogbookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLogBookOpensOnItsPage();
    void aFlightIsShownFieldByField();
    void datesStayEnglishWhateverTheLocale();
    void textsOfThePilotAreShownAsStored();
    void longTextsLeaveTheWindowItsWidth();
    void aNegativeTemperatureIsShownUnsignedOnPurpose();
    void aFlightWithoutDateOrDurationLeavesThemEmpty();
    void aLogIsWalkedToItsEndsAndBack_data();
    void aLogIsWalkedToItsEndsAndBack();
    void turningRoundInTheMiddleShowsTheNeighbours();
    void openingThePageStartsAtTheNewestFlightAgain();
    void everyModelShowsItsOwnNewestFlight();
    void theModelChosenOnTheOverviewIsShown();
    void aModelWithoutFlightsEmptiesTheFields();
    void theLaterOfTwoModelsOfOneNameIsShownOnPurpose();
    void namesDifferInLetterCase();
    void aNameWithoutModelKeepsTheFieldsAndDisablesBothSteps();
    void aStepWithoutModelTouchesNothing();
    void aStepAfterAReloadShowsAFlightOfTheNewLog();
    void aStepThroughALogThatIsEmptyAfterAReloadTouchesNothing();
    void lookingWritesNothing();
};

void LogbookTest::theLogBookOpensOnItsPage()
{
    LogbookWindow window;
    openLogBook(window);

    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().logView);
    QCOMPARE(window->currentPage, 11);
    QCOMPARE(enabledSteps(window), u"  "_s);
    QVERIFY(window.ui().ptext_logview_notes->isReadOnly());
}

void LogbookTest::aFlightIsShownFieldByField()
{
    LogbookWindow window;
    showLogBookOf(window,
                  {{u"Heli"_s, {}, {{moment(0), u"Meadow"_s, QTime(0, 6, 5), 21, u"calm\nand warm"_s}}}});

    const Ui_VoltbokGui &ui = window.ui();
    QCOMPARE(ui.cb_logview_model->currentText(), u"Heli"_s);
    QCOMPARE(ui.lbl_logview_date->text(), u"Sun Nov 15 2026"_s);
    QCOMPARE(ui.lbl_logview_time->text(), u"12:04:22"_s);
    QCOMPARE(ui.lbl_logview_location->text(), u"Meadow"_s);
    QCOMPARE(ui.lbl_logview_duration->text(), u"00:06:05"_s);
    QCOMPARE(ui.lbl_logview_temp->text(), u"21°"_s);
    QCOMPARE(ui.ptext_logview_notes->toPlainText(), u"calm\nand warm"_s);
}

void LogbookTest::datesStayEnglishWhateverTheLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, {Flight{QDateTime(QDate(2026, 5, 3), QTime(9, 5, 7))}}}});
    QLocale::setDefault(before);

    QCOMPARE(window.ui().lbl_logview_date->text(), u"Sun May 3 2026"_s);
    QCOMPARE(window.ui().lbl_logview_time->text(), u"09:05:07"_s);
}

void LogbookTest::textsOfThePilotAreShownAsStored()
{
    LogbookWindow window;
    const QString markup = u"<b>Meadow</b> & <a href='x'>hangar</a>"_s;
    showLogBookOf(window, {{u"Heli"_s, {}, {{moment(0), markup, QTime(0, 5), 20, markup}}}});

    QCOMPARE(window.ui().lbl_logview_location->text(), markup);
    QCOMPARE(window.ui().lbl_logview_location->textFormat(), Qt::PlainText);
    QCOMPARE(window.ui().lbl_logview_battname->textFormat(), Qt::PlainText);
    QCOMPARE(notes(window), markup);
}

void LogbookTest::longTextsLeaveTheWindowItsWidth()
{
    LogbookWindow window;
    const int width = window->width();
    const QString words = u"long "_s.repeated(40);
    const QString word = u"x"_s.repeated(200);
    showLogBookOf(window, {{words, {}, {{moment(0), words, QTime(0, 5), 20, words}}},
                           {word, {}, {{moment(0), word, QTime(0, 5), 20, word}}}});
    LogbookWindow::choose(window.ui().cb_logview_model, word);
    QCoreApplication::processEvents();

    QCOMPARE(window->width(), width);
    QVERIFY(window->minimumSizeHint().width() <= width);
}

void LogbookTest::aNegativeTemperatureIsShownUnsignedOnPurpose()
{
    LogbookWindow window;
    const Flight frosty{moment(0), u"Meadow"_s, QTime(0, 5), -5};
    const Flight mild{moment(1), u"Meadow"_s, QTime(0, 5), 0};
    showLogBookOf(window, {{u"Heli"_s, {}, {frosty, mild}}});

    QCOMPARE(window.ui().lbl_logview_temp->text(), u"0°"_s);
    older(window);
    QCOMPARE(window.ui().lbl_logview_temp->text(), u"4294967291°"_s);
}

void LogbookTest::aFlightWithoutDateOrDurationLeavesThemEmpty()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, {{QDateTime(), u"Meadow"_s, QTime(), 3, u"undated"_s}}}});

    QCOMPARE(fields(window),
             QStringList({QString(), QString(), u"Meadow"_s, QString(), u"3°"_s, u"undated"_s}));
}

void LogbookTest::aLogIsWalkedToItsEndsAndBack_data()
{
    QTest::addColumn<int>("count");

    QTest::newRow("no flight") << 0;
    QTest::newRow("one flight") << 1;
    QTest::newRow("two flights") << 2;
    QTest::newRow("three flights") << 3;
    QTest::newRow("fifty flights") << 50;
}

void LogbookTest::aLogIsWalkedToItsEndsAndBack()
{
    QFETCH(int, count);
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(count)}});

    QCOMPARE(notes(window), count == 0 ? QString() : QString::number(count - 1));
    QCOMPARE(enabledSteps(window), count > 1 ? u"< "_s : u"  "_s);

    for (int i = count - 2; i >= 0; --i) {
        older(window);
        QCOMPARE(notes(window), QString::number(i));
        QCOMPARE(window.ui().lbl_logview_time->text(), moment(i).time().toString(Qt::TextDate));
        QCOMPARE(enabledSteps(window), i > 0 ? u"<>"_s : u" >"_s);
    }
    for (int i = 1; i < count; ++i) {
        newer(window);
        QCOMPARE(notes(window), QString::number(i));
        QCOMPARE(enabledSteps(window), i < count - 1 ? u"<>"_s : u"< "_s);
    }
}

void LogbookTest::turningRoundInTheMiddleShowsTheNeighbours()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(5)}});

    QStringList seen{notes(window)};
    for (const char direction : "<<><<<>>><"_ba) {
        direction == '<' ? older(window) : newer(window);
        seen.append(notes(window));
    }
    QCOMPARE(seen.join(QString()), u"43232101232"_s);
}

void LogbookTest::openingThePageStartsAtTheNewestFlightAgain()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(3)}});
    older(window);
    older(window);
    QCOMPARE(enabledSteps(window), u" >"_s);

    openLogBook(window);

    QCOMPARE(notes(window), u"2"_s);
    QCOMPARE(enabledSteps(window), u"< "_s);
}

void LogbookTest::everyModelShowsItsOwnNewestFlight()
{
    LogbookWindow window;
    showLogBookOf(window,
                  {{u"Heli"_s, {}, flights(3)}, {u"Glider"_s, {}, flights(2)}, {u"Plane"_s, {}, flights(1)}});
    older(window);

    LogbookWindow::choose(window.ui().cb_logview_model, u"Glider"_s);
    QCOMPARE(notes(window), u"1"_s);
    QCOMPARE(enabledSteps(window), u"< "_s);

    older(window);
    LogbookWindow::choose(window.ui().cb_logview_model, u"Plane"_s);
    QCOMPARE(notes(window), u"0"_s);
    QCOMPARE(enabledSteps(window), u"  "_s);

    LogbookWindow::choose(window.ui().cb_logview_model, u"Heli"_s);
    QCOMPARE(notes(window), u"2"_s);
    QCOMPARE(enabledSteps(window), u"< "_s);
}

void LogbookTest::theModelChosenOnTheOverviewIsShown()
{
    LogbookWindow window;
    window.load(
        document({{Battery{u"Nano"_s}}, {{u"Heli"_s, {}, flights(3)}, {u"Glider"_s, {}, flights(2)}}}));
    LogbookWindow::choose(window.ui().cb_select_model, u"Glider"_s);
    openLogBook(window);

    QCOMPARE(window.ui().cb_logview_model->currentText(), u"Glider"_s);
    QCOMPARE(notes(window), u"1"_s);
}

void LogbookTest::aModelWithoutFlightsEmptiesTheFields()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(2)}, Model{u"Glider"_s}});
    LogbookWindow::choose(window.ui().cb_logview_model, u"Glider"_s);

    QCOMPARE(fields(window), QStringList(6));
    QCOMPARE(enabledSteps(window), u"  "_s);
}

void LogbookTest::theLaterOfTwoModelsOfOneNameIsShownOnPurpose()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(4)}, {u"Heli"_s, {}, flights(2)}});
    QCOMPARE(notes(window), u"1"_s);
    older(window);
    QCOMPARE(enabledSteps(window), u" >"_s);

    QTest::keyClick(window.ui().cb_logview_model, Qt::Key_Down);
    QCOMPARE(window.ui().cb_logview_model->currentIndex(), 1);
    QCOMPARE(notes(window), u"1"_s);
}

void LogbookTest::namesDifferInLetterCase()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(1)}, {u"heli"_s, {}, flights(2)}});
    QCOMPARE(notes(window), u"0"_s);
    LogbookWindow::choose(window.ui().cb_logview_model, u"heli"_s);
    QCOMPARE(notes(window), u"1"_s);
}

void LogbookTest::aNameWithoutModelKeepsTheFieldsAndDisablesBothSteps()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(3)}});
    older(window);
    const QStringList before = fields(window);

    window.load(document({})); // the chooser goes on offering the model that is gone
    openLogBook(window);

    QCOMPARE(window.ui().cb_logview_model->currentText(), u"Heli"_s);
    QCOMPARE(fields(window), before);
    QCOMPARE(enabledSteps(window), u"  "_s);
    QCOMPARE(window->currentPage, 11);
}

void LogbookTest::aStepWithoutModelTouchesNothing()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(3)}});
    older(window);
    const QStringList before = fields(window);
    window.load(document({}));

    older(window);
    newer(window);

    QCOMPARE(fields(window), before);
    QCOMPARE(enabledSteps(window), u"<>"_s);
}

void LogbookTest::aStepAfterAReloadShowsAFlightOfTheNewLog()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(50)}});
    older(window);

    window.load(document({{}, {{u"Heli"_s, {}, flights(2)}}})); // the page stays on show
    older(window);
    QVERIFY(QStringList({u"0"_s, u"1"_s}).contains(notes(window)));
    newer(window);
    QCOMPARE(notes(window), u"1"_s);
    QCOMPARE(enabledSteps(window), u"< "_s);
}

void LogbookTest::aStepThroughALogThatIsEmptyAfterAReloadTouchesNothing()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(3)}});
    older(window);
    const QStringList before = fields(window);

    window.load(document({{}, {Model{u"Heli"_s}}}));
    newer(window);
    older(window);

    QCOMPARE(fields(window), before);
    QCOMPARE(enabledSteps(window), u"<>"_s);
}

void LogbookTest::lookingWritesNothing()
{
    LogbookWindow window;
    showLogBookOf(window, {{u"Heli"_s, {}, flights(3)}, {u"Glider"_s, {}, flights(2)}});
    const QByteArray before = window.fileBytes();
    older(window);
    newer(window);
    LogbookWindow::choose(window.ui().cb_logview_model, u"Glider"_s);
    older(window);

    QCOMPARE(window.fileBytes(), before);
    QCOMPARE(QDir(window.folder()).entryList(QDir::Files), QStringList(u"voltbok.xml"_s));
}

QTEST_MAIN(LogbookTest)
#include "tst_logbook.moc"
