// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/foreignlanguage.h"
#include "tests/support/formtexts.h"
#include "tests/support/rawform.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

QString shownText(const RawForm &form, const QString &widget)
{
    return form.find(widget)->property("text").toString();
}

template <class Table>
void fillRows(const Table &table)
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("translated");
    for (const FormText &row : table) {
        QTest::newRow(row.widget) << QString::fromUtf8(row.widget) << QString::fromUtf8(row.source)
                                  << row.translated;
    }
}

} // namespace

class FormTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextStandsAndIsTranslatedUnlessItIsAName_data() { fillRows(formTexts); }
    void aTextStandsAndIsTranslatedUnlessItIsAName();
    void aMaskStandsAndIsTranslatedUnlessItIsADateOrAWeight_data() { fillRows(formMasks); }
    void aMaskStandsAndIsTranslatedUnlessItIsADateOrAWeight();
    void everyOtherWidgetStartsWithoutText();
    void everyOtherFieldTakesAnyText();
    void whatTheCodeFillsInSurvivesATranslation();
    void theWindowsTitleIsTranslated();
    void aMaskTakesOnlyItsDigits_data();
    void aMaskTakesOnlyItsDigits();
};

void FormTextsTest::aTextStandsAndIsTranslatedUnlessItIsAName()
{
    QFETCH(QString, widget);
    QFETCH(QString, source);
    QFETCH(bool, translated);

    RawForm form;
    QCOMPARE(shownText(form, widget), source);
    form.retranslateUi(&form.window);
    form.retranslateUi(&form.window);
    QCOMPARE(shownText(form, widget), source);

    ForeignLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    form.retranslateUi(&form.window);
    QCOMPARE(shownText(form, widget), translated ? foreign(source) : source);
}

void FormTextsTest::aMaskStandsAndIsTranslatedUnlessItIsADateOrAWeight()
{
    QFETCH(QString, widget);
    QFETCH(QString, source);
    QFETCH(bool, translated);

    RawForm form;
    const auto *field = form.find<QLineEdit>(widget);
    QCOMPARE(field->inputMask(), source);
    QVERIFY(field->hasAcceptableInput() || field->text().size() < source.size());
    form.retranslateUi(&form.window);
    QCOMPARE(field->inputMask(), source);

    ForeignLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    form.retranslateUi(&form.window);
    QCOMPARE(field->inputMask(), translated ? foreign(source) : source);
}

void FormTextsTest::everyOtherWidgetStartsWithoutText()
{
    const RawForm form;
    QSet<QString> named;
    for (const FormText &row : formTexts)
        named << QString::fromUtf8(row.widget);
    for (const QWidget *widget : form.window.findChildren<QWidget *>()) {
        const bool ofAField = qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) != nullptr;
        if (!ofAField && !qobject_cast<const QAbstractSpinBox *>(widget) &&
            !named.contains(widget->objectName()))
            QVERIFY2(widget->property("text").toString().isEmpty(), qPrintable(widget->objectName()));
    }
    for (const QPlainTextEdit *notes : form.window.findChildren<QPlainTextEdit *>())
        QCOMPARE(notes->toPlainText(), QString());
}

void FormTextsTest::everyOtherFieldTakesAnyText()
{
    const RawForm form;
    QSet<QString> masked;
    for (const FormText &row : formMasks)
        masked << QString::fromUtf8(row.widget);
    int free = 0;
    for (const QLineEdit *field : form.window.findChildren<QLineEdit *>()) {
        if (masked.contains(field->objectName()))
            continue;
        QVERIFY2(field->inputMask().isEmpty(), qPrintable(field->objectName()));
        free += field->objectName().startsWith("ledt_"_L1) ? 1 : 0;
    }
    QCOMPARE(free, 7);
}

void FormTextsTest::whatTheCodeFillsInSurvivesATranslation()
{
    RawForm form;
    const QList<QLabel *> log{form.lbl_logview_date,     form.lbl_logview_time,   form.lbl_logview_location,
                              form.lbl_logview_duration, form.lbl_logview_temp,   form.lbl_logview_battname,
                              form.lbl_logview_capacity, form.lbl_logview_current};
    for (QLabel *label : log)
        label->setText(u"flown"_s);
    for (QPlainTextEdit *notes : form.window.findChildren<QPlainTextEdit *>())
        notes->setPlainText(u"windy"_s);
    form.cb_log_location->addItem(u"Meadow"_s);
    form.dedt_dischargeDate->setDate(QDate(2026, 5, 17));
    form.tedt_dischargeTime->setTime(QTime(14, 32, 10));
    form.sb_log_duration->setTime(QTime(0, 6, 30));

    ForeignLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    form.retranslateUi(&form.window);

    for (const QLabel *label : log)
        QCOMPARE(label->text(), u"flown"_s);
    for (const QPlainTextEdit *notes : form.window.findChildren<QPlainTextEdit *>())
        QCOMPARE(notes->toPlainText(), u"windy"_s);
    QCOMPARE(form.cb_log_location->currentText(), u"Meadow"_s);
    QCOMPARE(form.dedt_dischargeDate->text(), u"2026-05-17"_s);
    QCOMPARE(form.tedt_dischargeTime->text(), u"14:32:10"_s);
    QCOMPARE(form.sb_log_duration->text(), u"00:06:30"_s);
    QCOMPARE(form.rb_modeAdvanced->property("ViewMode").toString(), u"Complex"_s);
    QVERIFY(!form.pb_home->styleSheet().isEmpty());
}

void FormTextsTest::theWindowsTitleIsTranslated()
{
    RawForm form;
    QCOMPARE(form.window.windowTitle(), u"MainWindow"_s);
    ForeignLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    form.retranslateUi(&form.window);
    QCOMPARE(form.window.windowTitle(), u"[MainWindow]"_s);
}

void FormTextsTest::aMaskTakesOnlyItsDigits_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    QTest::newRow("capacity") << u"ledt_capacity"_s << u"a1b2c3d4e5f6"_s << u"12345"_s;
    QTest::newRow("discharge rate") << u"ledt_dischargeRate"_s << u"x4 5"_s << u"45"_s;
    QTest::newRow("charge rate") << u"ledt_chargeRate"_s << u"15"_s << u"1.5"_s;
    QTest::newRow("charge rate with its point") << u"ledt_chargeRate"_s << u"1.5"_s << u"1.5"_s;
    QTest::newRow("cycles") << u"ledt_cyclesused"_s << u"-12"_s << u"12"_s;
    QTest::newRow("weight") << u"ledt_addheli_weight"_s << u"450"_s << u"4.50"_s;
    QTest::newRow("size") << u"ledt_addheli_size"_s << u"98765"_s << u"9876"_s;
    QTest::newRow("date") << u"ledt_purchaseDate"_s << u"20261121"_s << u"2026-11-21"_s;
    QTest::newRow("date in part") << u"ledt_purchaseDate"_s << u"2026"_s << u"2026--"_s;
    QTest::newRow("a name has no mask") << u"ledt_name"_s << u"6S / 3700"_s << u"6S / 3700"_s;
}

void FormTextsTest::aMaskTakesOnlyItsDigits()
{
    QFETCH(QString, widget);
    QFETCH(QString, typed);

    const RawForm form;
    auto *field = form.find<QLineEdit>(widget);
    field->clear();
    field->setCursorPosition(0);
    QTest::keyClicks(field, typed);
    QTEST(field->text(), "expected");
}

QTEST_MAIN(FormTextsTest)
#include "tst_formtexts.moc"
