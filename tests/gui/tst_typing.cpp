// SPDX-License-Identifier: GPL-3.0-or-later
// Typing on the discharge page as a hurried user does: one click, the keys, Tab, OK.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QApplication>
#include <QClipboard>

using namespace Qt::Literals::StringLiterals;

class TypingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aClickLetsTypingReplaceWhatStandsThere_data();
    void aClickLetsTypingReplaceWhatStandsThere();
    void everyLaterClickDoesTheSame_data() { aClickLetsTypingReplaceWhatStandsThere_data(); }
    void everyLaterClickDoesTheSame();
    void aDoubleClickDoesTheSame_data() { aClickLetsTypingReplaceWhatStandsThere_data(); }
    void aDoubleClickDoesTheSame();
    void tabLetsTypingReplaceWhatStandsThere_data();
    void tabLetsTypingReplaceWhatStandsThere();
    void aWholeDateOrTimeCanBeTyped_data();
    void aWholeDateOrTimeCanBeTyped();
    void draggingSelectsAPart();
    void anotherMouseButtonSelectsNothing();
    void pointAndCommaAreBothTheDecimalSign_data();
    void pointAndCommaAreBothTheDecimalSign();
    void whatIsTypedIsWhatIsRecorded();

private:
    std::unique_ptr<LogbookWindow> m_window;

    QAbstractSpinBox *input(const QString &name);
    static QLineEdit *editOf(QAbstractSpinBox *input) { return input->findChild<QLineEdit *>(); }
    QPoint placeOf(QAbstractSpinBox *input, int position);
    void leave(QAbstractSpinBox *input);
};

void TypingTest::init()
{
    m_window = std::make_unique<LogbookWindow>();
    RotavexPlugin::rotavexSettings->setValue(u"SETTINGS/voltbok"_s, u"Complex"_s);
    m_window->load(
        Test::document({{{u"Pack"_s, true, {}, 3700, 20, 50}}, {{u"Heli"_s, {u"Pack"_s}}}, {u"Meadow"_s}}));
    LogbookWindow::clickCard(m_window->battery(u"Pack"_s));
    Ui_VoltbokGui &ui = m_window->ui();
    ui.dedt_dischargeDate->setDate(QDate(2026, 11, 21));
    ui.tedt_dischargeTime->setTime(QTime(21, 21, 38));
    ui.cb_log_location->setFocus();
}

void TypingTest::cleanup()
{
    m_window.reset();
    QLocale::setDefault(QLocale::c());
}

QAbstractSpinBox *TypingTest::input(const QString &name)
{
    return (*m_window)->findChild<QAbstractSpinBox *>(name);
}

/** Where a character of an input is on its edit; -1 is the place at the left of them all. */
QPoint TypingTest::placeOf(QAbstractSpinBox *input, int position)
{
    QLineEdit *edit = editOf(input);
    const int middle = edit->height() / 2;
    for (int x = 0; x < edit->width(); ++x) {
        if (position >= 0 && edit->cursorPositionAt(QPoint(x, middle)) >= position)
            return {x + 2, middle};
        if (position < 0 && edit->cursorPositionAt(QPoint(x, middle)) > 0)
            return {x - 5, middle};
    }
    return {edit->width() - 2, middle};
}

/** Tab leaves a date or a time behind its last section only. */
void TypingTest::leave(QAbstractSpinBox *input)
{
    while (input->hasFocus())
        QTest::keyClick(input, Qt::Key_Tab);
}

void TypingTest::aClickLetsTypingReplaceWhatStandsThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("position"); // the character that is clicked, -1 for the left of them all
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    QTest::newRow("capacity") << u"sb_discharged_capacity"_s << 2 << u"2600"_s << u"2600"_s;
    QTest::newRow("capacity, at its left") << u"sb_discharged_capacity"_s << -1 << u"2600"_s << u"2600"_s;
    QTest::newRow("capacity, at its right") << u"sb_discharged_capacity"_s << 9 << u"2600"_s << u"2600"_s;
    QTest::newRow("current") << u"dsb_discharged_current"_s << 2 << u"92.5"_s << u"92.50"_s;
    QTest::newRow("current, in its decimals") << u"dsb_discharged_current"_s << 5 << u"92.5"_s << u"92.50"_s;
    QTest::newRow("duration, hours") << u"sb_log_duration"_s << 0 << u"06"_s << u"06:00:00"_s;
    QTest::newRow("duration, minutes") << u"sb_log_duration"_s << 4 << u"06"_s << u"00:06:00"_s;
    QTest::newRow("duration, from minutes on") << u"sb_log_duration"_s << 4 << u"0630"_s << u"00:06:30"_s;
    QTest::newRow("duration, colon") << u"sb_log_duration"_s << 4 << u"06:30"_s << u"00:06:30"_s;
    QTest::newRow("duration, short") << u"sb_log_duration"_s << 4 << u"6:3"_s << u"00:06:03"_s;
    QTest::newRow("temperature, left of it") << u"sb_log_temp"_s << -1 << u"-7"_s << u"-7"_s;
    QTest::newRow("temperature, right of it") << u"sb_log_temp"_s << 5 << u"-7"_s << u"-7"_s;
    QTest::newRow("date, year") << u"dedt_dischargeDate"_s << 2 << u"2025"_s << u"2025-11-21"_s;
    QTest::newRow("date, month") << u"dedt_dischargeDate"_s << 6 << u"02"_s << u"2026-02-21"_s;
    QTest::newRow("date, day") << u"dedt_dischargeDate"_s << 9 << u"05"_s << u"2026-11-05"_s;
    QTest::newRow("date, whole") << u"dedt_dischargeDate"_s << 2 << u"2025-02-14"_s << u"2025-02-14"_s;
    QTest::newRow("time, hours") << u"tedt_dischargeTime"_s << 1 << u"10"_s << u"10:21:38"_s;
    QTest::newRow("time, minutes") << u"tedt_dischargeTime"_s << 4 << u"10"_s << u"21:10:38"_s;
    QTest::newRow("time, seconds") << u"tedt_dischargeTime"_s << 7 << u"10"_s << u"21:21:10"_s;
    QTest::newRow("time, whole") << u"tedt_dischargeTime"_s << 1 << u"10:05:07"_s << u"10:05:07"_s;
}

void TypingTest::aClickLetsTypingReplaceWhatStandsThere()
{
    QFETCH(QString, name);
    QFETCH(int, position);
    QFETCH(QString, typed);
    QAbstractSpinBox *entered = input(name);
    QTest::mouseClick(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position));
    QTest::keyClicks(entered, typed);
    leave(entered);
    QTEST(entered->text(), "expected");
}

void TypingTest::everyLaterClickDoesTheSame()
{
    QFETCH(QString, name);
    QFETCH(int, position);
    QFETCH(QString, typed);
    QAbstractSpinBox *entered = input(name);
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position),
                          QApplication::doubleClickInterval() + 50);
    }
    QTest::keyClicks(entered, typed);
    leave(entered);
    QTEST(entered->text(), "expected");
}

void TypingTest::aDoubleClickDoesTheSame()
{
    QFETCH(QString, name);
    QFETCH(int, position);
    QFETCH(QString, typed);
    QAbstractSpinBox *entered = input(name);
    QTest::mouseClick(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position));
    QTest::mouseDClick(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position));
    QTest::mouseRelease(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position));
    QTest::keyClicks(entered, typed);
    leave(entered);
    QTEST(entered->text(), "expected");
}

void TypingTest::tabLetsTypingReplaceWhatStandsThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("date") << u"dedt_dischargeDate"_s << u"2025-02-14"_s << u"2025-02-14"_s;
    QTest::newRow("time") << u"tedt_dischargeTime"_s << u"10:05:07"_s << u"10:05:07"_s;
    QTest::newRow("capacity") << u"sb_discharged_capacity"_s << u"2600"_s << u"2600"_s;
    QTest::newRow("current") << u"dsb_discharged_current"_s << u"92.5"_s << u"92.50"_s;
    QTest::newRow("duration") << u"sb_log_duration"_s << u"00:06:30"_s << u"00:06:30"_s;
    QTest::newRow("temperature") << u"sb_log_temp"_s << u"-7"_s << u"-7"_s;
}

void TypingTest::tabLetsTypingReplaceWhatStandsThere()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QAbstractSpinBox *entered = input(name);
    m_window->ui().pb_home->setFocus();
    for (int i = 0; i < 40 && !entered->hasFocus(); ++i)
        QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Tab);
    QVERIFY(entered->hasFocus());
    QTest::keyClicks(entered, typed);
    leave(entered);
    QTEST(entered->text(), "expected");
}

void TypingTest::aWholeDateOrTimeCanBeTyped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("date") << u"dedt_dischargeDate"_s << u"2025-02-14"_s << u"2025-02-14"_s;
    QTest::newRow("date without hyphens") << u"dedt_dischargeDate"_s << u"20250214"_s << u"2025-02-14"_s;
    QTest::newRow("date with strokes") << u"dedt_dischargeDate"_s << u"2025/02/14"_s << u"2025-02-14"_s;
    QTest::newRow("time") << u"tedt_dischargeTime"_s << u"06:30:00"_s << u"06:30:00"_s;
    QTest::newRow("short time") << u"tedt_dischargeTime"_s << u"6:3:1"_s << u"06:03:01"_s;
    QTest::newRow("duration") << u"sb_log_duration"_s << u"000630"_s << u"00:06:30"_s;
}

void TypingTest::aWholeDateOrTimeCanBeTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QAbstractSpinBox *entered = input(name);
    entered->setFocus();
    QTest::keyClick(entered, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(entered, typed);
    leave(entered);
    QTEST(entered->text(), "expected");
}

void TypingTest::draggingSelectsAPart()
{
    QSpinBox *capacity = m_window->ui().sb_discharged_capacity;
    QLineEdit *edit = editOf(capacity);
    const QString all = edit->text();
    QTest::mousePress(edit, Qt::LeftButton, {}, placeOf(capacity, -1));
    QTest::mouseMove(edit, placeOf(capacity, 1));
    QTest::mouseMove(edit, placeOf(capacity, 2));
    QTest::mouseRelease(edit, Qt::LeftButton, {}, placeOf(capacity, 2));
    QCOMPARE(edit->selectedText(), all.left(2));
}

void TypingTest::anotherMouseButtonSelectsNothing()
{
    QSpinBox *capacity = m_window->ui().sb_discharged_capacity;
    QTest::mouseClick(editOf(capacity), Qt::RightButton, {}, placeOf(capacity, 2));
    QVERIFY(!editOf(capacity)->hasSelectedText());
}

void TypingTest::pointAndCommaAreBothTheDecimalSign_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("sign");
    const QLocale locales[] = {QLocale::c(),
                               QLocale(QLocale::English, QLocale::UnitedStates),
                               QLocale(QLocale::German),
                               QLocale(QLocale::German, QLocale::Switzerland),
                               QLocale(QLocale::French),
                               QLocale(QLocale::Persian)};
    for (const QLocale &locale : locales) {
        for (const char *sign : {".", ","})
            QTest::addRow("%s in %s", sign, qPrintable(locale.name())) << locale << QString::fromLatin1(sign);
    }
}

void TypingTest::pointAndCommaAreBothTheDecimalSign()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, sign);
    QDoubleSpinBox *current = m_window->ui().dsb_discharged_current;
    current->setLocale(locale);
    QTest::mouseClick(editOf(current), Qt::LeftButton);
    QTest::keyClicks(current, u"187"_s + sign + u'5');
    QCOMPARE(current->value(), 187.5);
    QApplication::clipboard()->setText(u"92"_s + sign + u"25"_s);
    QTest::keyClick(current, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(current, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(current->value(), 92.25);
    QVERIFY(current->text().contains(locale.decimalPoint()));
}

void TypingTest::whatIsTypedIsWhatIsRecorded()
{
    const auto enter = [this](const QString &name, int position, const QString &typed) {
        QAbstractSpinBox *entered = input(name);
        QTest::mouseClick(editOf(entered), Qt::LeftButton, {}, placeOf(entered, position));
        QTest::keyClicks(entered, typed);
    };
    enter(u"sb_discharged_capacity"_s, 2, u"2600"_s);
    enter(u"dsb_discharged_current"_s, 2, u"92,5"_s);
    enter(u"sb_log_duration"_s, 0, u"00:06:30"_s);
    enter(u"sb_log_temp"_s, -1, u"7"_s);
    enter(u"dedt_dischargeDate"_s, 0, u"2025-02-14"_s);
    enter(u"tedt_dischargeTime"_s, 0, u"10:05:07"_s);
    LogbookWindow::click(m_window->ui().pb_save_discharged);
    const QByteArray bytes = m_window->fileBytes();
    for (const char *part : {"Discharged=\"2600\"", "Current=\"9250\"", "00:06:30", "Temperature=\"7\"",
                             "Fri Feb 14 10:05:07 2025"})
        QVERIFY2(bytes.contains(part),
                 qPrintable(QString::fromUtf8(part) + u" in "_s + QString::fromUtf8(bytes)));
}

QTEST_MAIN(TypingTest)
#include "tst_typing.moc"
