// SPDX-License-Identifier: GPL-3.0-or-later
// The wheel over inputs: it belongs to the page until an input has the focus.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

class WheelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void anInputWithoutFocusLeavesTheWheelAlone_data();
    void anInputWithoutFocusLeavesTheWheelAlone();
    void aFocusedChooserTurns();
    void aFocusedSpinBoxTurns();
    void aFocusedDateTurns();
    void theCardsScrollUnderTheChooser();
    void scrollingPastTheChooserChangesNeitherModelNorFile();

private:
    std::unique_ptr<LogbookWindow> m_window;

    static QByteArray fleet();
    static void turn(QWidget *widget, int notches);
    QString valueOf(const QWidget *widget) const;
};

/** Enough cards to scroll, and two of everything to choose from. */
QByteArray WheelTest::fleet()
{
    QList<Test::Battery> batteries;
    QStringList names;
    for (int i = 0; i < 12; ++i) {
        names.append(u"Pack%1"_s.arg(i));
        batteries.append({names.constLast(), true});
    }
    return Test::document({batteries,
                           {{u"Heli"_s, names}, {u"Plane"_s, names}, {u"Glider"_s, names}},
                           {u"Meadow"_s, u"Hill"_s, u"Field"_s}});
}

void WheelTest::init()
{
    m_window = std::make_unique<LogbookWindow>();
    m_window->load(fleet());
    QVERIFY(QTest::qWaitForWindowActive(&m_window->gui()));
    const auto choosers = (*m_window)->findChildren<QComboBox *>();
    for (QComboBox *chooser : choosers)
        chooser->setCurrentIndex(1);
    m_window->ui().sb_discharged_capacity->setValue(2960);
    m_window->ui().dsb_discharged_current->setValue(185);
}

/** Turns the wheel as the window system does, which also gives the focus to those who want it by wheel. */
void WheelTest::turn(QWidget *widget, int notches)
{
    auto *edit = qobject_cast<QAbstractSpinBox *>(widget) ? widget->findChild<QLineEdit *>() : nullptr;
    QWidget *under = edit ? edit : widget;
    const QPointF middle = QRectF(under->rect()).center();
    QWheelEvent event(middle, under->mapToGlobal(middle), {},
                      {0, notches * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(under, &event);
}

QString WheelTest::valueOf(const QWidget *widget) const
{
    if (const auto *chooser = qobject_cast<const QComboBox *>(widget))
        return chooser->currentText();
    return qobject_cast<const QAbstractSpinBox *>(widget)->text();
}

void WheelTest::anInputWithoutFocusLeavesTheWheelAlone_data()
{
    QTest::addColumn<QString>("name");
    LogbookWindow window;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget))
            QTest::newRow(qPrintable(widget->objectName())) << widget->objectName();
    }
}

void WheelTest::anInputWithoutFocusLeavesTheWheelAlone()
{
    QFETCH(QString, name);
    auto *input = (*m_window)->findChild<QWidget *>(name);
    QWidget *page = input;
    while (page->parentWidget() != m_window->ui().stackedWidget)
        page = page->parentWidget();
    m_window->ui().stackedWidget->setCurrentWidget(page);
    m_window->ui().pb_home->setFocus();
    QVERIFY(input->isVisible());
    const QString before = valueOf(input);
    turn(input, -1);
    turn(input, -1);
    turn(input, 1);
    turn(input, 1);
    turn(input, 1);
    QCOMPARE(valueOf(input), before);
    QVERIFY(m_window->ui().pb_home->hasFocus());
}

void WheelTest::aFocusedChooserTurns()
{
    QComboBox *chooser = m_window->ui().cb_select_model;
    chooser->setFocus();
    turn(chooser, -1);
    QCOMPARE(chooser->currentIndex(), 2);
}

void WheelTest::aFocusedSpinBoxTurns()
{
    m_window->ui().stackedWidget->setCurrentWidget(m_window->ui().dischargeView);
    QSpinBox *capacity = m_window->ui().sb_discharged_capacity;
    capacity->setFocus();
    turn(capacity, 1);
    QCOMPARE(capacity->value(), 2970);
}

void WheelTest::aFocusedDateTurns()
{
    m_window->ui().stackedWidget->setCurrentWidget(m_window->ui().dischargeView);
    QDateEdit *date = m_window->ui().dedt_dischargeDate;
    date->setDate(QDate(2026, 11, 21));
    date->setFocus();
    turn(date, -1);
    QCOMPARE(date->date(), QDate(2025, 11, 21));
}

void WheelTest::theCardsScrollUnderTheChooser()
{
    QScrollBar *bar = m_window->ui().scrollArea->verticalScrollBar();
    QCoreApplication::processEvents();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), 0);
    turn(m_window->ui().cb_select_model, -1);
    QVERIFY(bar->value() > 0);
}

void WheelTest::scrollingPastTheChooserChangesNeitherModelNorFile()
{
    Ui_VoltbokGui &ui = m_window->ui();
    LogbookWindow::click(ui.pb_options); // from the menu back to the cards, as the page comes on show
    LogbookWindow::click(ui.pb_options);
    turn(ui.cb_select_model, -3);
    turn(ui.cb_select_model, 3);
    QCOMPARE(ui.cb_select_model->currentText(), u"Plane"_s);
    m_window->load(fleet());
    turn(ui.cb_select_model, -1);
    LogbookWindow::clickCard(m_window->battery(u"Pack0"_s));
    QCOMPARE(m_window->fileBytes().count("<LogData"), 1);
}

QTEST_MAIN(WheelTest)
#include "tst_wheel.moc"
