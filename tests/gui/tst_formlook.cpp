// SPDX-License-Identifier: GPL-3.0-or-later
// What the forms look like: read-only names, wrong dates, wide windows, large fonts, right to left.
#include "tests/support/datafile.h"
#include "tests/support/editingwindow.h"

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

class FormLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aNameThatCanOnlyBeReadLooksSo_data() { themes(); }
    void aNameThatCanOnlyBeReadLooksSo();
    void aLongNameShowsItsBeginning();
    void aWrongDateIsMarked_data();
    void aWrongDateIsMarked();
    void theMarkCanBeRead_data() { themes(); }
    void theMarkCanBeRead();
    void theMarkFollowsTheColours();
    void aDateBeingTypedIsMarkedWhenItIsLeft();
    void theTooltipOfAWrongDateSaysWhy();
    void theFieldsOfAFormLineUpInAWideWindow_data();
    void theFieldsOfAFormLineUpInAWideWindow();
    void aLargeFontLetsNoPageWidenTheWindow_data();
    void aLargeFontLetsNoPageWidenTheWindow();
    void datesAndTimesKeepTheirOrderFromRightToLeft();
    void theLabelsOfTheLogBookKeepApartFromRightToLeft();

private:
    std::unique_ptr<EditingWindow> m_window;
    QFont m_font;

    static void themes();
    static QPalette dark();
    static double contrast(const QColor &a, const QColor &b);
    bool isMarked(const QLineEdit *field) const;
    void openAddPage() { m_window->goTo(m_window->ui().pb_choose_addbattery); }
};

void FormLookTest::init()
{
    m_font = QApplication::font();
    m_window = std::make_unique<EditingWindow>();
    m_window->load(Test::document(
        {{{u"Pack"_s, true}}, {{u"A glider of "_s + QString(80, u'x'), {u"Pack"_s}}}, {u"Meadow"_s}}));
    QVERIFY(QTest::qWaitForWindowActive(&m_window->gui()));
}

void FormLookTest::cleanup()
{
    m_window.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(m_font);
}

void FormLookTest::themes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(0xefefef));
    QTest::newRow("dark") << dark();
}

QPalette FormLookTest::dark()
{
    QPalette palette(QColor(0x353535));
    palette.setColor(QPalette::Base, QColor(0x191919));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

/** As the accessibility guidelines for the web define it. */
double FormLookTest::contrast(const QColor &a, const QColor &b)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [part](const QColor &colour) {
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

bool FormLookTest::isMarked(const QLineEdit *field) const
{
    const QColor usual = m_window->ui().ledt_name->palette().color(QPalette::Text);
    return field->palette().color(QPalette::Text) != usual;
}

void FormLookTest::aNameThatCanOnlyBeReadLooksSo()
{
    QFETCH(QPalette, palette);
    (*m_window)->setPalette(palette);
    Ui_VoltbokGui &ui = m_window->ui();
    m_window->goTo(ui.pb_choose_modify_battery);
    for (const QLineEdit *name : {ui.ledt_modifyBattery_name, ui.ledt_modifyheli_name}) {
        QCOMPARE(name->palette().color(QPalette::Base), palette.color(QPalette::Window));
        QCOMPARE(name->palette().color(QPalette::Text), palette.color(QPalette::Text));
    }
    QCOMPARE(ui.ledt_modifyBattery_capacity->palette().color(QPalette::Base), palette.color(QPalette::Base));
    const QImage painted = ui.ledt_modifyBattery_name->grab().toImage();
    QCOMPARE(painted.pixelColor(painted.width() - 12, painted.height() / 2), palette.color(QPalette::Window));
}

void FormLookTest::aLongNameShowsItsBeginning()
{
    Ui_VoltbokGui &ui = m_window->ui();
    for (int visit = 0; visit < 2; ++visit) {
        m_window->goTo(ui.pb_choose_modify_model);
        QCOMPARE(ui.ledt_modifyheli_name->cursorPosition(), 0);
        QVERIFY(!ui.ledt_modifyheli_name->hasFocus());
        QTest::mouseClick(ui.ledt_modifyheli_name, Qt::LeftButton);
        QTest::keyClick(ui.ledt_modifyheli_name, Qt::Key_End);
    }
}

void FormLookTest::aWrongDateIsMarked_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("marked");
    QTest::newRow("a date") << u"2024-02-29"_s << false;
    QTest::newRow("no such day") << u"2025-02-29"_s << true;
    QTest::newRow("no such month") << u"2024-13-45"_s << true;
    QTest::newRow("day first") << u"15.03.2025"_s << true;
    QTest::newRow("half a date") << u"2024"_s << true;
    QTest::newRow("nothing") << QString() << false;
}

void FormLookTest::aWrongDateIsMarked()
{
    QFETCH(QString, typed);
    openAddPage();
    QLineEdit *date = m_window->ui().ledt_purchaseDate;
    QVERIFY(!isMarked(date));
    LogbookWindow::type(date, typed);
    QTest::keyClick(date, Qt::Key_Tab);
    QTEST(isMarked(date), "marked");
    LogbookWindow::type(date, u"2026-01-31"_s);
    QVERIFY(!isMarked(date));
}

void FormLookTest::theMarkCanBeRead()
{
    QFETCH(QPalette, palette);
    (*m_window)->setPalette(palette);
    Ui_VoltbokGui &ui = m_window->ui();
    for (QLineEdit *date : {ui.ledt_purchaseDate, ui.ledt_addheli_purchase, ui.ledt_modifyheli_purchase,
                            ui.ledt_modifyBattery_purchaseDate}) {
        date->setText(u"2024-13-45"_s);
        QVERIFY(isMarked(date));
        const QPalette used = date->palette();
        QVERIFY(contrast(used.color(QPalette::Text), used.color(QPalette::Base)) >= 4.5);
    }
}

void FormLookTest::theMarkFollowsTheColours()
{
    QLineEdit *date = m_window->ui().ledt_purchaseDate;
    date->setText(u"2024-13-45"_s);
    (*m_window)->setPalette(dark());
    QVERIFY(isMarked(date));
    QCOMPARE(date->palette().color(QPalette::Base), dark().color(QPalette::Base));
    QVERIFY(contrast(date->palette().color(QPalette::Text), dark().color(QPalette::Base)) >= 4.5);
}

void FormLookTest::aDateBeingTypedIsMarkedWhenItIsLeft()
{
    openAddPage();
    QLineEdit *date = m_window->ui().ledt_purchaseDate;
    LogbookWindow::type(date, u"2024-1"_s);
    QVERIFY(!isMarked(date));
    QTest::keyClick(date, Qt::Key_Tab);
    QVERIFY(isMarked(date));
}

void FormLookTest::theTooltipOfAWrongDateSaysWhy()
{
    openAddPage();
    QLineEdit *date = m_window->ui().ledt_purchaseDate;
    const auto hover = [date] {
        QToolTip::hideText(); // takes a moment
        if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
            return u"the tooltip stays"_s;
        const QPoint middle = date->rect().center();
        QHelpEvent event(QEvent::ToolTip, middle, date->mapToGlobal(middle));
        QApplication::sendEvent(date, &event);
        return QToolTip::text();
    };
    const QString usual = date->toolTip();
    date->setText(u"2024-13-45"_s);
    QCOMPARE(hover(), u"Not a valid date: no date will be stored"_s);
    QCOMPARE(date->toolTip(), usual);
    date->setText(u"2024-12-24"_s);
    QCOMPARE(hover(), usual);
}

void FormLookTest::theFieldsOfAFormLineUpInAWideWindow_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("column");
    QTest::newRow("battery") << u"addView"_s
                             << QStringList{u"ledt_name"_s, u"ledt_dischargeRate"_s, u"ledt_cyclesused"_s};
    QTest::newRow("model") << u"addModelView"_s
                           << QStringList{u"ledt_addheli_name"_s, u"ledt_addheli_weight"_s,
                                          u"ledt_addheli_flightsused"_s};
    QTest::newRow("battery to modify")
        << u"modBatteryView"_s
        << QStringList{u"ledt_modifyBattery_name"_s, u"ledt_modifyBattery_dischargeRate"_s,
                       u"ledt_modifyBattery_cyclesused"_s};
    QTest::newRow("model to modify") << u"modModelView"_s
                                     << QStringList{u"ledt_modifyheli_name"_s, u"ledt_modifyheli_weight"_s,
                                                    u"ledt_modifyheli_flightsused"_s};
    QTest::newRow("location") << u"addLocationView"_s << QStringList{u"ledt_location_new"_s, u"label_42"_s};
}

void FormLookTest::theFieldsOfAFormLineUpInAWideWindow()
{
    QFETCH(QString, page);
    QFETCH(QStringList, column);
    (*m_window)->resize(1280, 800);
    m_window->ui().stackedWidget->setCurrentWidget((*m_window)->findChild<QWidget *>(page));
    QCoreApplication::processEvents();
    const auto *first = (*m_window)->findChild<QWidget *>(column.first());
    for (const QString &name : column) {
        const auto *field = (*m_window)->findChild<QWidget *>(name);
        QCOMPARE(field->x(), first->x());
        QCOMPARE(field->geometry().right(), first->geometry().right());
    }
}

void FormLookTest::aLargeFontLetsNoPageWidenTheWindow_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {9, 11, 12, 16})
        QTest::addRow("%d points", points) << points;
}

void FormLookTest::aLargeFontLetsNoPageWidenTheWindow()
{
    QFETCH(int, points);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    m_window->restart();
    const QSize before = (*m_window)->size();
    for (int i = 0; i < m_window->ui().stackedWidget->count(); ++i) {
        m_window->ui().stackedWidget->setCurrentIndex(i);
        QCoreApplication::processEvents();
        QCOMPARE((*m_window)->width(), before.width());
    }
}

void FormLookTest::datesAndTimesKeepTheirOrderFromRightToLeft()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_window->restart(); // the edits look at the direction when they are made
    Ui_VoltbokGui &ui = m_window->ui();
    ui.stackedWidget->setCurrentWidget(ui.dischargeView);
    ui.dedt_dischargeDate->setDate(QDate(2026, 11, 21));
    ui.tedt_dischargeTime->setTime(QTime(21, 1, 12));
    ui.sb_log_duration->setTime(QTime(0, 6, 30));
    const QPair<QDateTimeEdit *, QString> edits[] = {{ui.dedt_dischargeDate, u"2026-11-21"_s},
                                                     {ui.tedt_dischargeTime, u"21:01:12"_s},
                                                     {ui.sb_log_duration, u"00:06:30"_s}};
    for (const auto &[edit, text] : edits) {
        auto *line = edit->findChild<QLineEdit *>();
        QCOMPARE(edit->text(), text);
        QVERIFY(line->cursorPositionAt(QPoint(line->width() - 3, line->height() / 2)) >
                line->cursorPositionAt(QPoint(3, line->height() / 2)));
    }
}

void FormLookTest::theLabelsOfTheLogBookKeepApartFromRightToLeft()
{
    const int width = (*m_window)->width();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    Ui_VoltbokGui &ui = m_window->ui();
    ui.stackedWidget->setCurrentWidget(ui.logView);
    QCoreApplication::processEvents();
    const int left = ui.label_40->x() + ui.label_40->contentsRect().right();
    QVERIFY(ui.label_37->x() - left > 5);
    QCOMPARE((*m_window)->width(), width);
}

QTEST_MAIN(FormLookTest)
#include "tst_formlook.moc"
