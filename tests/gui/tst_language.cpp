// SPDX-License-Identifier: GPL-3.0-or-later
// The language changes while the window lives: every text follows, and the pilot loses nothing.
#include "tests/support/foreignlanguage.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QChart>
#include <QChartView>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyTextOfTheWindowFollows();
    void theTextsComeBackWithTheFirstLanguage();
    void theMasksFollowAndKeepTheirContent();
    void aMaskedFieldFilledInPartKeepsItsContent();
    void aNewWindowSpeaksTheLanguageInForce();
    void everyInputOfEveryPageStays();
    void cursorAndFocusStay();
    void pageAndChargedBatteryStay();
    void aQuestionThatWasAskedStaysAsked_data();
    void aQuestionThatWasAskedStaysAsked();
    void everyCardFollowsOnShowOrNot();
    void theTitleOfTheChartFollows();
    void noChartIsDrawnThatWasNotAskedFor();
    void theFlightOnShowStays();

private:
    std::unique_ptr<ForeignLanguage> translator;
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    void changeLanguage();
    void changeLanguageBack();
    QList<QPair<QWidget *, QString>> texts() const;
    QList<QLineEdit *> fields() const;
    QStringList inputs() const;
    void follow(const QStringList &buttons);
};

namespace {
bool isPartOfACard(const QWidget *widget)
{
    while (widget && !qobject_cast<const BatteryWidget *>(widget))
        widget = widget->parentWidget();
    return widget;
}

QString textOf(const QWidget *card, const char *name)
{
    return card->findChild<QWidget *>(QLatin1StringView(name))->property("text").toString();
}
} // namespace

void LanguageTest::init()
{
    translator = std::make_unique<ForeignLanguage>();
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    window->load(hangar());
}

void LanguageTest::cleanup()
{
    window.reset();
    translator.reset();
    QCoreApplication::sendPostedEvents();
}

void LanguageTest::changeLanguage()
{
    QVERIFY(QCoreApplication::installTranslator(translator.get()));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void LanguageTest::changeLanguageBack()
{
    QVERIFY(QCoreApplication::removeTranslator(translator.get()));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void LanguageTest::follow(const QStringList &buttons)
{
    for (const QString &name : buttons)
        window->click(window->gui().findChild<QAbstractButton *>(name));
}

/** The labels and buttons of the form whose texts are translated, with their texts. */
QList<QPair<QWidget *, QString>> LanguageTest::texts() const
{
    QList<QPair<QWidget *, QString>> result;
    for (QWidget *widget : ui->centralwidget->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        const QString text = widget->property("text").toString();
        const bool speaks = widget->inherits("QLabel") || widget->inherits("QAbstractButton");
        const bool unit = name.startsWith(u"rb_show"_s);
        const bool value = name.startsWith(u"lbl_logview"_s);
        if (speaks && !text.isEmpty() && !unit && !value && !isPartOfACard(widget))
            result.append({widget, text});
    }
    return result;
}

/** The line edits of the form; those inside spin boxes are not of it. */
QList<QLineEdit *> LanguageTest::fields() const
{
    return window->gui().findChildren<QLineEdit *>(QRegularExpression(u"^ledt_"_s));
}

/** Everything a pilot has entered on any page, by the name of the widget. */
QStringList LanguageTest::inputs() const
{
    QStringList result;
    const auto note = [&result](const QWidget *widget, const QString &what) {
        result.append(widget->objectName() + u'=' + what);
    };
    for (const QLineEdit *field : fields())
        note(field, field->text());
    for (const auto *field : window->gui().findChildren<QPlainTextEdit *>())
        note(field, field->toPlainText());
    for (const auto *box : window->gui().findChildren<QSpinBox *>())
        note(box, QString::number(box->value()));
    for (const auto *box : window->gui().findChildren<QDoubleSpinBox *>())
        note(box, QString::number(box->value()));
    for (const auto *edit : window->gui().findChildren<QDateTimeEdit *>())
        note(edit, edit->date().toString(Qt::ISODate) + edit->time().toString(Qt::ISODateWithMs));
    for (const auto *button : window->gui().findChildren<QRadioButton *>())
        note(button, QString::number(button->isChecked()));
    for (const auto *chooser : window->gui().findChildren<QComboBox *>())
        note(chooser, QString::number(chooser->count()) + chooser->currentText());
    return result;
}

void LanguageTest::everyTextOfTheWindowFollows()
{
    const auto before = texts();
    QVERIFY(before.size() > 80);
    changeLanguage();
    for (const auto &[widget, text] : before) {
        QVERIFY2(widget->property("text").toString() == foreign(text), qPrintable(widget->objectName()));
    }
    QCOMPARE(ui->lbl_optionshint->text(), foreign(u"Please go to Options and add new model and battery!"_s));
    QCOMPARE(ui->label_7->text(), foreign(u"Charge  rate (C)"_s));
    QCOMPARE(ui->rb_showmAh->text(), u"mAh"_s);
    QCOMPARE(window->gui().windowTitle(), u"Rotavex 15.7.0 64-bit"_s);
}

void LanguageTest::theTextsComeBackWithTheFirstLanguage()
{
    const auto before = texts();
    const QStringList entered = inputs();
    changeLanguage();
    changeLanguageBack();
    QCOMPARE(texts(), before);
    QCOMPARE(inputs(), entered);
    QCOMPARE(window->gui().windowTitle(), u"Rotavex 15.7.0 64-bit"_s);
}

void LanguageTest::theMasksFollowAndKeepTheirContent()
{
    ui->ledt_capacity->setText(u"3300"_s);
    ui->ledt_chargeRate->setText(u"1.5"_s);
    ui->ledt_purchaseDate->setText(u"2024-02-29"_s);
    changeLanguage();
    QCOMPARE(ui->ledt_capacity->inputMask(), foreign(u"00000"_s));
    QCOMPARE(ui->ledt_capacity->text(), u"3300"_s);
    QCOMPARE(ui->ledt_dischargeRate->inputMask(), foreign(u"000"_s));
    QCOMPARE(ui->ledt_dischargeRate->text(), foreign(u"30"_s)); // its default text
    QCOMPARE(ui->ledt_chargeRate->inputMask(), foreign(u"0.0"_s));
    QCOMPARE(ui->ledt_chargeRate->text(), u"1.5"_s);
    QCOMPARE(ui->ledt_modifyheli_size->inputMask(), foreign(u"0000"_s));
    QCOMPARE(ui->ledt_purchaseDate->inputMask(), u"0000-00-00"_s); // never translated
    QCOMPARE(ui->ledt_purchaseDate->text(), u"2024-02-29"_s);
    QCOMPARE(ui->ledt_addheli_weight->inputMask(), u"0.00"_s);
}

void LanguageTest::aMaskedFieldFilledInPartKeepsItsContent()
{
    follow({"pb_options", "pb_edit_data", "pb_choose_addbattery"});
    window->type(ui->ledt_purchaseDate, u"2024"_s);
    ui->ledt_purchaseDate->setCursorPosition(8);
    QTest::keyClicks(ui->ledt_purchaseDate, u"15"_s);
    window->type(ui->ledt_capacity, {});
    changeLanguage();
    QCOMPARE(ui->ledt_purchaseDate->displayText(), u"2024-  -15"_s);
    QCOMPARE(ui->ledt_capacity->text(), QString());
}

void LanguageTest::aNewWindowSpeaksTheLanguageInForce()
{
    changeLanguage();
    window->restart();
    ui = &window->ui();
    QCOMPARE(ui->pb_save_discharged->text(), foreign(u"OK"_s));
    QCOMPARE(ui->ledt_name->text(), foreign(u"MyBattery"_s));
    QCOMPARE(window->gui().windowTitle(), u"Rotavex 15.7.0 64-bit"_s);
    changeLanguageBack();
    QCOMPARE(ui->pb_save_discharged->text(), u"OK"_s);
}

void LanguageTest::everyInputOfEveryPageStays()
{
    for (QLineEdit *field : fields()) {
        if (!field->inputMask().isEmpty())
            field->setText(field->displayText().replace(u'0', u'3').replace(u'1', u'2'));
        else
            field->setText(u"Entered in "_s + field->objectName());
    }
    for (auto *field : window->gui().findChildren<QPlainTextEdit *>())
        field->setPlainText(u"Notes in "_s + field->objectName());
    for (auto *chooser : window->gui().findChildren<QComboBox *>())
        chooser->setCurrentIndex(1);
    ui->sb_discharged_capacity->setValue(1234);
    ui->dsb_discharged_current->setValue(12.34);
    ui->sb_log_temp->setValue(-7);
    ui->dedt_dischargeDate->setDate(QDate(2026, 11, 15));
    ui->tedt_dischargeTime->setTime(QTime(12, 4, 22));
    ui->sb_log_duration->setTime(QTime(0, 6, 30));
    ui->rb_showC->setChecked(true);
    ui->rb_modeAdvanced->setChecked(true);
    const QStringList before = inputs();
    changeLanguage();
    QCOMPARE(inputs(), before);
    changeLanguageBack();
    QCOMPARE(inputs(), before);
}

void LanguageTest::cursorAndFocusStay()
{
    follow({"pb_options", "pb_edit_data", "pb_choose_addbattery"});
    window->type(ui->ledt_name, u"Half typed"_s);
    ui->ledt_name->setCursorPosition(5);
    changeLanguage();
    QCOMPARE(window->gui().focusWidget(), ui->ledt_name);
    QTest::keyClicks(window->gui().focusWidget(), u"re"_s);
    QCOMPARE(ui->ledt_name->text(), u"Half retyped"_s);
}

void LanguageTest::pageAndChargedBatteryStay()
{
    LogbookWindow::storeFullMode();
    window->load(hangar());
    window->clickCard(window->battery("Pack"));
    changeLanguage();
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->dischargeView);
    QCOMPARE(window->gui().currentPage, 12);
    QCOMPARE(window->fileBytes(), hangar());
    window->click(ui->pb_save_discharged);
    QCOMPARE(window->battery("Pack")->getDischarges(), QList<unsigned int>({1760}));
}

void LanguageTest::aQuestionThatWasAskedStaysAsked_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("question");
    QTest::addColumn<bool>("startsAsked");
    const auto row = [](const char *tag, const char *page, const char *button, const char *question,
                        bool startsAsked) {
        QTest::newRow(tag) << page << button << question << startsAsked;
    };
    row("battery", "pb_choose_delbattery", "pb_deleteConfirm", "lbl_really", false);
    row("model", "pb_choose_delmodel", "pb_deleteConfirm_model", "lbl_reallydelete_model", false);
    row("location", "pb_choose_dellocation", "pb_del_location", "lbl_reallydelete_location", true);
}

void LanguageTest::aQuestionThatWasAskedStaysAsked()
{
    QFETCH(QString, page);
    QFETCH(QString, button);
    QFETCH(QString, question);
    QFETCH(bool, startsAsked);
    auto *confirm = window->gui().findChild<QPushButton *>(button);
    const auto *really = window->gui().findChild<QLabel *>(question);

    if (startsAsked)
        follow({"pb_options", "pb_edit_data", page, button}); // deletes at once, and asks from now on
    while (ui->stackedWidget->currentWidget() != ui->optionsView)
        window->click(ui->pb_options);
    follow({"pb_edit_data", page});
    changeLanguage();
    QCOMPARE(confirm->text(), foreign(u"Delete"_s));
    QVERIFY(!really->isVisible());
    window->click(confirm);
    QCOMPARE(confirm->text(), foreign(u"Yes"_s));
    QVERIFY(really->isVisible());
    QCOMPARE(really->text(), foreign(u"Really?"_s));

    changeLanguageBack();
    QCOMPARE(confirm->text(), u"Yes"_s);
    QVERIFY(really->isVisible());
    changeLanguage();
    QCOMPARE(confirm->text(), foreign(u"Yes"_s));
    window->click(confirm);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->scrollLayout); // the second click was the second
    QCOMPARE(confirm->text(), foreign(u"Delete"_s));
}

void LanguageTest::everyCardFollowsOnShowOrNot()
{
    window->choose(ui->cb_select_model, u"Plane"_s);
    changeLanguage();
    // "Spare" is on show, "Pack" and "Flat" were, "Old" never has been.
    QCOMPARE(textOf(window->battery("Pack"), "pushButton"), foreign(u"Charged"_s));
    QCOMPARE(textOf(window->battery("Flat"), "pushButton"), foreign(u"Discharged"_s));
    QCOMPARE(textOf(window->battery("Spare"), "pushButton"), foreign(u"Charged"_s));
    QCOMPARE(textOf(window->battery("Old"), "pushButton"), foreign(u"Discharged"_s));
    for (const BatteryWidget *card : window->gui().batteryList) {
        QCOMPARE(textOf(card, "label"), foreign(u"Cycles:"_s));
        QCOMPARE(textOf(card, "label_6"), foreign(u"Last use:"_s));
        QCOMPARE(textOf(card, "lbl_discharged_label"), foreign(u"Discharged:"_s));
        QCOMPARE(textOf(card, "lbl_maxCurrent_label"), foreign(u"Max. Current:"_s));
        QCOMPARE(textOf(card, "lbl_name"), card->getBatteryName());
        QCOMPARE(textOf(card, "lbl_capacity"), u"2200mAh"_s);
    }
    changeLanguageBack();
    QCOMPARE(textOf(window->battery("Pack"), "pushButton"), u"Charged"_s);
}

void LanguageTest::theTitleOfTheChartFollows()
{
    follow({"pb_options", "pb_chart"});
    window->choose(ui->cb_batteryData, u"Old"_s);
    window->click(ui->rb_showC);
    QCOMPARE(window->gui().chartView->chart()->title(), u"Battery age: 0.00 years"_s);
    changeLanguage();
    QCOMPARE(window->gui().chartView->chart()->title(), foreign(u"Battery age: 0.00 years"_s));
    QVERIFY(window->gui().chartView->isVisible());
    QCOMPARE(ui->cb_batteryData->currentText(), u"Old"_s);
    QVERIFY(ui->rb_showC->isChecked());
}

void LanguageTest::noChartIsDrawnThatWasNotAskedFor()
{
    changeLanguage();
    QVERIFY(!window->gui().chartView);
}

void LanguageTest::theFlightOnShowStays()
{
    window->clickCard(window->battery("Pack"));
    follow({"pb_options", "pb_logbook"});
    const QString date = ui->lbl_logview_date->text();
    QVERIFY(!date.isEmpty());
    changeLanguage();
    QCOMPARE(ui->lbl_logview_date->text(), date);
    QCOMPARE(ui->lbl_logview_location->text(), u"Meadow"_s);
}

QTEST_MAIN(LanguageTest)
#include "tst_language.moc"
