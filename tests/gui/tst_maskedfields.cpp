// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/logbookwindow.h"

using namespace Qt::Literals::StringLiterals;

/** Typing into the fields with masks as a hurried user does: click anywhere, or Tab, and type. */
class MaskedFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<LogbookWindow>();
        LogbookWindow::click(m_window->ui().pb_options);
        LogbookWindow::click(m_window->ui().pb_edit_data);
        LogbookWindow::click(m_window->ui().pb_choose_addbattery);
    }
    void cleanup() { m_window.reset(); }

    void aClickAnywhereLetsTypingReplaceTheContent_data();
    void aClickAnywhereLetsTypingReplaceTheContent();
    void tabLetsTypingReplaceTheContent();
    void everyLaterClickLetsTypingReplaceTheContent();
    void aDoubleClickLetsTypingReplaceTheContent();
    void draggingSelectsAPart();
    void anotherMouseButtonSelectsNothing();
    void pointAndCommaAreBothTheDecimalSign_data();
    void pointAndCommaAreBothTheDecimalSign();
    void aFieldWithoutAMaskIsLeftToItself();

private:
    std::unique_ptr<LogbookWindow> m_window;
};

void MaskedFieldsTest::aClickAnywhereLetsTypingReplaceTheContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("where"); // as a part of the field's width
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    for (const double where : {0.05, 0.3, 0.9}) {
        const auto row = [where](const char *tag, const char *name, const char *typed, const char *expected) {
            QTest::addRow("%s at %g", tag, where) << name << where << typed << expected;
        };
        row("capacity", "ledt_capacity", "220", "220");
        row("charge rate", "ledt_chargeRate", "35", "3.5");
        row("charge rate with its point", "ledt_chargeRate", "3.5", "3.5");
        row("date", "ledt_purchaseDate", "20240229", "2024-02-29");
        row("date with hyphens", "ledt_purchaseDate", "2024-02-29", "2024-02-29");
    }
}

void MaskedFieldsTest::aClickAnywhereLetsTypingReplaceTheContent()
{
    QFETCH(QString, name);
    QFETCH(double, where);
    QFETCH(QString, typed);
    auto *field = (*m_window)->findChild<QLineEdit *>(name);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(int(field->width() * where), field->height() / 2));
    QTest::keyClicks(field, typed);
    QTEST(field->text(), "expected");
}

void MaskedFieldsTest::tabLetsTypingReplaceTheContent()
{
    Ui_VoltbokGui &ui = m_window->ui();
    ui.ledt_name->setFocus();
    QTest::keyClick(ui.ledt_name, Qt::Key_Tab);
    QWidget *focused = (*m_window)->focusWidget();
    auto *field = qobject_cast<QLineEdit *>(focused);
    QVERIFY(field);
    QVERIFY2(!field->inputMask().isEmpty(), qPrintable(field->objectName()));
    QTest::keyClicks(field, u"22"_s);
    QCOMPARE(field->text(), u"22"_s);
}

void MaskedFieldsTest::everyLaterClickLetsTypingReplaceTheContent()
{
    QLineEdit *field = m_window->ui().ledt_capacity;
    for (const double where : {0.05, 0.9, 0.05, 0.9}) {
        const QPoint place(int(field->width() * where), field->height() / 2);
        QTest::mouseClick(field, Qt::LeftButton, {}, place, QApplication::doubleClickInterval() + 50);
        QTest::keyClicks(field, u"5200"_s);
        QCOMPARE(field->text(), u"5200"_s);
    }
}

void MaskedFieldsTest::aDoubleClickLetsTypingReplaceTheContent()
{
    QLineEdit *field = m_window->ui().ledt_purchaseDate;
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::mouseDClick(field, Qt::LeftButton);
    QTest::mouseRelease(field, Qt::LeftButton);
    QTest::keyClicks(field, u"2024-02-29"_s);
    QCOMPARE(field->text(), u"2024-02-29"_s);
}

void MaskedFieldsTest::draggingSelectsAPart()
{
    QLineEdit *field = m_window->ui().ledt_capacity;
    field->setFocus();
    const int middle = field->height() / 2;
    QTest::mousePress(field, Qt::LeftButton, {}, QPoint(1, middle));
    QTest::mouseMove(field, QPoint(field->cursorRect().left() + 4, middle));
    QTest::mouseMove(field, QPoint(24, middle));
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(24, middle));
    QVERIFY(field->hasSelectedText());
    QVERIFY(field->selectedText().size() < field->text().size());
}

void MaskedFieldsTest::anotherMouseButtonSelectsNothing()
{
    QLineEdit *field = m_window->ui().ledt_capacity;
    QTest::mouseClick(field, Qt::RightButton);
    QVERIFY(!field->hasSelectedText());
}

void MaskedFieldsTest::pointAndCommaAreBothTheDecimalSign_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("point") << u"1.5"_s << u"1.5"_s;
    QTest::newRow("comma") << u"1,5"_s << u"1.5"_s;
    QTest::newRow("point first") << u".5"_s << u".5"_s;
    QTest::newRow("comma first") << u",5"_s << u".5"_s;
}

void MaskedFieldsTest::pointAndCommaAreBothTheDecimalSign()
{
    QFETCH(QString, typed);
    QLineEdit *field = m_window->ui().ledt_chargeRate;
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClicks(field, typed);
    QTEST(field->text(), "expected");
}

void MaskedFieldsTest::aFieldWithoutAMaskIsLeftToItself()
{
    QLineEdit *field = m_window->ui().ledt_name;
    m_window->ui().ledt_capacity->setFocus();
    field->deselect(); // the page came on show with it selected
    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(!field->hasSelectedText());
    QTest::keyClicks(field, u"X"_s);
    QCOMPARE(field->text(), u"MyBatteryX"_s);
}

QTEST_MAIN(MaskedFieldsTest)
#include "tst_maskedfields.moc"
