// SPDX-License-Identifier: GPL-3.0-or-later
// The form before any code of ours touches it: how its widgets look, and what they take.
#include "tests/support/rawform.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FormPropertiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anObjectHasItsProperty_data();
    void anObjectHasItsProperty();
    void aWidgetHasItsLimitsOfSize_data();
    void aWidgetHasItsLimitsOfSize();
    void onlyTitlesAndFieldLabelsHaveAFont();
    void onlyNamesToBeModifiedAndTheShownNotesAreReadOnly();
    void datesAreYearMonthDayAndTimesHave24Hours();
};

void FormPropertiesTest::anObjectHasItsProperty_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *object, const char *property, const auto &value) {
        QTest::addRow("%s: %s", object, property)
            << object << QByteArray(property) << QVariant::fromValue(value);
    };
    row("gridLayout", "contentsMargins", QMargins(5, 10, 5, 0));
    row("pb_options", "iconSize", QSize(21, 21));
    row("pb_home", "iconSize", QSize(25, 25));
    row("stackedWidget", "styleSheet", QString());

    row("scrollArea", "widgetResizable", true);
    row("scrollArea", "verticalScrollBarPolicy", Qt::ScrollBarAsNeeded);
    row("scrollArea", "sizeAdjustPolicy", QAbstractScrollArea::AdjustToContents);
    row("lbl_optionshint", "wordWrap", true);

    row("layout_batteryData", "contentsMargins", QMargins(10, 20, 10, 0));
    row("cb_batteryData", "sizePolicy", QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum));
    row("rb_showmAh", "checked", true);

    row("line_editData", "frameShape", QFrame::HLine);

    row("rb_modeSimple", "checked", true);
    row("rb_modeSimple", "ViewMode", u"Simple"_s);
    row("rb_modeAdvanced", "enabled", true);
    row("rb_modeAdvanced", "ViewMode", u"Complex"_s);
    row("label_18", "wordWrap", true);
    row("label_18", "lineWidth", 2);
    row("label_18", "margin", 4);
    row("label_18", "indent", 2);

    row("addModelView", "styleSheet", QString());
    row("ptext_logview_notes", "sizeAdjustPolicy", QAbstractScrollArea::AdjustToContents);
    for (const char *label : {"label_37", "label_20"})
        row(label, "alignment", Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));

    for (const char *field : {"dedt_dischargeDate", "tedt_dischargeTime", "sb_discharged_capacity",
                              "dsb_discharged_current", "sb_log_duration", "sb_log_temp"})
        row(field, "alignment", Qt::Alignment(Qt::AlignCenter));
    row("dedt_dischargeDate", "date", QDate(2018, 10, 30));
    row("dedt_dischargeDate", "time", QTime(5, 42, 42));
    row("dedt_dischargeDate", "minimumDate", QDate(2005, 1, 1));
    row("dedt_dischargeDate", "maximumDate", QDate(2030, 12, 31));
    row("sb_discharged_capacity", "minimum", 0);
    row("sb_discharged_capacity", "maximum", 20000);
    row("sb_discharged_capacity", "singleStep", 10);
    row("dsb_discharged_current", "minimum", 0.0);
    row("dsb_discharged_current", "maximum", 300.0);
    row("dsb_discharged_current", "singleStep", 0.5);
    row("dsb_discharged_current", "decimals", 2);
    row("sb_log_temp", "minimum", -99);
    row("sb_log_temp", "maximum", 99);
    row("sb_log_temp", "singleStep", 5);
}

void FormPropertiesTest::anObjectHasItsProperty()
{
    QFETCH(QString, object);
    QFETCH(QByteArray, property);
    const RawForm form;
    QTEST(form.window.findChild<QObject *>(object)->property(property), "value");
}

void FormPropertiesTest::aWidgetHasItsLimitsOfSize_data()
{
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("most");

    const auto rows = [](QSize least, QSize most, std::initializer_list<const char *> widgets) {
        for (const char *widget : widgets)
            QTest::newRow(widget) << least << most;
    };
    const QSize any(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    rows({70, 34}, {100, 34}, {"pb_options", "pb_home"});
    rows({100, 35}, {100, 35},
         {"pb_add_location", "pb_addNewBattery", "pb_addNewModel", "pb_deleteConfirm",
          "pb_deleteConfirm_model", "pb_del_location", "pb_logview_prev", "pb_logview_next",
          "pb_save_discharged", "pb_update_model", "pb_update_battery"});
    rows({80, 35}, any,
         {"pb_choose_addlocation", "pb_choose_addbattery", "pb_choose_addmodel", "pb_choose_modify_battery",
          "pb_choose_modify_model", "pb_choose_dellocation", "pb_choose_delbattery", "pb_choose_delmodel",
          "pb_add_batt_to_model", "pb_rem_batt_from_model"});
    rows({100, 35}, any, {"pb_logbook", "pb_chart", "pb_edit_data", "pb_mode"});
    rows({0, 25}, any, {"cb_select_model", "cb_model_choose_bat", "cb_bat_choose_model", "cb_log_location"});
    rows({220, 25}, any,
         {"cb_batteryList_delete", "cb_modelList_delete", "cb_location_delete", "cb_logview_model"});
    rows({220, 25}, {300, QWIDGETSIZE_MAX}, {"cb_batteryData"});
    rows({50, 0}, any, {"rb_showmAh", "rb_showAmps", "rb_showC"});
    rows({0, 0}, {QWIDGETSIZE_MAX, 100}, {"lbl_optionshint"});
    rows({120, 0}, any, {"lbl_logview_time", "lbl_logview_capacity"});
    rows({120, 30}, any,
         {"dedt_dischargeDate", "tedt_dischargeTime", "sb_discharged_capacity", "dsb_discharged_current",
          "sb_log_duration", "sb_log_temp"});
    rows({180, 30}, {250, QWIDGETSIZE_MAX}, {"ledt_location_new"});
    rows({0, 30}, {250, QWIDGETSIZE_MAX},
         {"ledt_name", "ledt_addheli_name", "ledt_modifyheli_name", "ledt_modifyBattery_name"});
    rows({0, 30}, any,
         {"ledt_capacity",
          "ledt_dischargeRate",
          "ledt_chargeRate",
          "ledt_cyclesused",
          "ledt_purchaseDate",
          "ledt_addheli_type",
          "ledt_addheli_weight",
          "ledt_addheli_size",
          "ledt_addheli_flightsused",
          "ledt_addheli_purchase",
          "ledt_modifyheli_type",
          "ledt_modifyheli_weight",
          "ledt_modifyheli_size",
          "ledt_modifyheli_flightsused",
          "ledt_modifyheli_purchase",
          "ledt_modifyBattery_capacity",
          "ledt_modifyBattery_dischargeRate",
          "ledt_modifyBattery_chargeRate",
          "ledt_modifyBattery_cyclesused",
          "ledt_modifyBattery_purchaseDate"});
}

void FormPropertiesTest::aWidgetHasItsLimitsOfSize()
{
    const RawForm form;
    const QWidget *widget = form.find(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(widget->minimumSize(), "least");
    QTEST(widget->maximumSize(), "most");
}

void FormPropertiesTest::onlyTitlesAndFieldLabelsHaveAFont()
{
    const RawForm form;
    // A field label is any other label with a number for its name; the log page prints its own in bold.
    const QList<QWidget *> titles{
        form.lbl_welcome, form.lbl_batteryData, form.label_61, form.label_45, form.label_15, form.label_13,
        form.label_2,     form.label_43,        form.label_3,  form.label_17, form.label_10, form.label_28,
        form.label_44,    form.label_14,        form.label_19, form.label_29, form.label_51, form.label_54};
    const QList<QWidget *> alike{form.lbl_optionshint,
                                 form.rb_showmAh,
                                 form.rb_showAmps,
                                 form.rb_showC,
                                 form.rb_modeAdvanced,
                                 form.lbl_really,
                                 form.lbl_reallydelete_model,
                                 form.lbl_reallydelete_location};
    for (QWidget *widget : form.window.findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        const bool title = titles.contains(widget);
        const bool fieldLabel = !title && (name.startsWith("label_"_L1) || alike.contains(widget));
        const bool bold = title || (fieldLabel && widget->parentWidget() == form.logView);
        const QByteArray message = name.toUtf8();
        QVERIFY2(widget->testAttribute(Qt::WA_SetFont) == (title || fieldLabel), message.constData());
        if (title || fieldLabel) {
            QVERIFY2(widget->font().pointSize() == (title ? 12 : 10), message.constData());
            QVERIFY2(widget->font().bold() == bold, message.constData());
        }
    }
    QCOMPARE(form.label_33->font().weight(), QFont::Normal);
}

void FormPropertiesTest::onlyNamesToBeModifiedAndTheShownNotesAreReadOnly()
{
    const RawForm form;
    QSet<QString> found;
    for (const QWidget *widget : form.window.findChildren<QWidget *>()) {
        if (widget->property("readOnly").toBool())
            found << widget->objectName();
    }
    QCOMPARE(found, QSet<QString>(
                        {u"ledt_modifyheli_name"_s, u"ledt_modifyBattery_name"_s, u"ptext_logview_notes"_s}));
}

void FormPropertiesTest::datesAreYearMonthDayAndTimesHave24Hours()
{
    const RawForm form;
    QCOMPARE(form.dedt_dischargeDate->text(), u"2018-10-30"_s);
    form.tedt_dischargeTime->setTime(QTime(17, 5, 9));
    QCOMPARE(form.tedt_dischargeTime->text(), u"17:05:09"_s);
    QCOMPARE(form.sb_log_duration->text(), u"00:00:00"_s);
}

QTEST_MAIN(FormPropertiesTest)
#include "tst_formproperties.moc"
