// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/voltbokgui.h"
#include "tests/support/formcells.h"
#include "tests/support/rawform.h"

#include <QMetaMethod>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int noLimit = QWIDGETSIZE_MAX;

QGridLayout *gridOf(const QWidget *widget)
{
    return qobject_cast<QGridLayout *>(widget->layout());
}

QList<int> cellOf(QWidget *widget)
{
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
    const QGridLayout *grid = gridOf(widget->parentWidget());
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &rowSpan, &columnSpan);
    return {row, column, rowSpan, columnSpan};
}

/** Whether a spacer stands in the cell; one may share it with the last row of a widget. */
bool hasSpacer(const QGridLayout *grid, int row, int column)
{
    for (int i = 0; i < grid->count(); ++i) {
        int at[4];
        grid->getItemPosition(i, &at[0], &at[1], &at[2], &at[3]);
        if (at[0] == row && at[1] == column && grid->itemAt(i)->spacerItem())
            return true;
    }
    return false;
}

} // namespace

class FormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWidgetStandsInItsCell_data();
    void aWidgetStandsInItsCell();
    void thePagesStandInTheirOrder();
    void theWindowOpensAtItsSizeOnTheOverview();
    void longNamesDoNotWidenTheWindow();
    void theHeaderStandsAboveThePages();
    void aHeaderButtonIsABareIcon_data();
    void aHeaderButtonIsABareIcon();
    void anIconIsInTheResources_data();
    void anIconIsInTheResources();
    void theOverviewScrolls();
    void theChartPageLeavesItsLastRowToTheChart();
    void theEditPageHasNoButtonToModifyALocation();
    void theUnitsAreOneGroupAndStartWithMilliampereHours();
    void theModesAreOneGroupAndStartWithQuick();
    void theHintOfTheModePageHasItsFrame();
    void aWidgetHasItsLimitsOfSize_data();
    void aWidgetHasItsLimitsOfSize();
    void onlyTitlesAndFieldLabelsHaveAFont();
    void onlyNamesToBeModifiedAndTheShownNotesAreReadOnly();
    void theLogsNotesFitTheirText();
    void numbersOfADischargeHaveTheirRange();
    void theDischargeDateStaysBetween2005And2030();
    void datesAreYearMonthDayAndTimesHave24Hours();
    void theFieldsOfADischargeAreCentred();
    void twoCapacityLabelsAreAlignedToTheLeft();
    void everySlotNamedAfterAWidgetFindsIt_data();
    void everySlotNamedAfterAWidgetFindsIt();
    void everyPageFitsTheFirstSize();
};

void FormTest::aWidgetStandsInItsCell_data()
{
    QTest::addColumn<FormCell>("expected");
    for (const FormCell &row : formCells)
        QTest::newRow(row.widget) << row;
}

void FormTest::aWidgetStandsInItsCell()
{
    QFETCH(FormCell, expected);

    const RawForm form;
    QWidget *widget = form.find(QString::fromUtf8(expected.widget));
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), expected.className);
    QCOMPARE(widget->parentWidget()->objectName(), QString::fromUtf8(expected.parent));
    QCOMPARE(cellOf(widget), QList<int>(std::begin(expected.cell), std::end(expected.cell)));
}

void FormTest::thePagesStandInTheirOrder()
{
    const RawForm form;
    const QList<QWidget *> pages{
        form.scrollLayout,       form.dataView, form.editDataView,  form.optionsView,  form.modeView,
        form.addLocationView,    form.addView,  form.addModelView,  form.deleteView,   form.deleteModelView,
        form.deleteLocationView, form.logView,  form.dischargeView, form.modModelView, form.modBatteryView};
    QCOMPARE(form.stackedWidget->count(), 15);
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(form.stackedWidget->widget(i), pages.at(i));
        QVERIFY(gridOf(pages.at(i)));
    }
    QCOMPARE(form.addModelView->styleSheet(), QString());
}

void FormTest::theWindowOpensAtItsSizeOnTheOverview()
{
    const RawForm form;
    QCOMPARE(form.window.objectName(), u"VoltbokGui"_s);
    QCOMPARE(form.window.size(), QSize(350, 531));
    QCOMPARE(form.window.centralWidget(), form.centralwidget);
    QCOMPARE(form.stackedWidget->currentIndex(), 0);
    QCOMPARE(form.stackedWidget->styleSheet(), QString());

    QMainWindow named;
    named.setObjectName(u"Logbook"_s);
    Ui_VoltbokGui().setupUi(&named);
    QCOMPARE(named.objectName(), u"Logbook"_s);
}

void FormTest::longNamesDoNotWidenTheWindow()
{
    RawForm form;
    form.lo_overview->addWidget(form.cb_select_model, 0, 0); // where it stands once there are models
    const auto choosers = form.window.findChildren<QComboBox *>();
    QCOMPARE(choosers.size(), 9);
    for (QComboBox *chooser : choosers)
        chooser->addItem(QString(200, u'W'));
    for (QLabel *name : {form.lbl_logview_location, form.lbl_logview_battname})
        name->setText(QString(200, u'W'));
    form.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form.window));
    QVERIFY(form.window.minimumSizeHint().width() <= 350);
    QCOMPARE(form.window.width(), 350);
}

void FormTest::theHeaderStandsAboveThePages()
{
    const RawForm form;
    QCOMPARE(gridOf(form.centralwidget), form.gridLayout);
    QCOMPARE(form.gridLayout->horizontalSpacing(), 0);
    QCOMPARE(form.gridLayout->verticalSpacing(), 0);
    QCOMPARE(form.gridLayout->contentsMargins(), QMargins(5, 10, 5, 0));
    for (const QPoint spacer : {QPoint(1, 0), QPoint(1, 3), QPoint(1, 4), QPoint(1, 6), QPoint(0, 7)})
        QVERIFY2(hasSpacer(form.gridLayout, spacer.y(), spacer.x()), qPrintable(QString::number(spacer.y())));
}

void FormTest::aHeaderButtonIsABareIcon_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QSize>("iconSize");
    QTest::addColumn<QString>("picture");

    QTest::newRow("menu") << u"pb_options"_s << QSize(21, 21) << u":/png/Resources/menu_64_grey.png"_s;
    QTest::newRow("home") << u"pb_home"_s << QSize(25, 25) << u":/png/Resources/home_64_grey.png"_s;
}

void FormTest::aHeaderButtonIsABareIcon()
{
    QFETCH(QString, button);
    QFETCH(QSize, iconSize);
    QFETCH(QString, picture);

    const RawForm form;
    const auto *header = form.find<QPushButton>(button);
    QCOMPARE(header->text(), QString());
    QCOMPARE(header->iconSize(), iconSize);
    QCOMPARE(header->icon().pixmap(64).toImage(), QIcon(picture).pixmap(64).toImage());
    QCOMPARE(header->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(header->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(header->styleSheet(), u"QPushButton\n{\nborder: none;\n}\n\nQPushButton::pressed\n{\n"
                                   "background-color: rgb(240,240,240);\n}"_s);
}

void FormTest::anIconIsInTheResources_data()
{
    QTest::addColumn<QString>("picture");
    for (const char *name : {"home_64_grey.png", "menu_64_grey.png", "menu_64.png"})
        QTest::newRow(name) << u":/png/Resources/"_s + QString::fromUtf8(name);
}

void FormTest::anIconIsInTheResources()
{
    QFETCH(QString, picture);
    const QImage image(picture);
    QCOMPARE(image.size(), QSize(64, 64));
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(image.pixel(32, 32)), 255);
}

void FormTest::theOverviewScrolls()
{
    const RawForm form;
    QCOMPARE(gridOf(form.scrollLayout), form.overviewLO);
    QCOMPARE(form.overviewLO->horizontalSpacing(), 10);
    QCOMPARE(form.overviewLO->verticalSpacing(), 10);
    QCOMPARE(form.overviewLO->count(), 1);
    QCOMPARE(form.scrollArea->widget(), form.scrollView);
    QVERIFY(form.scrollArea->widgetResizable());
    QCOMPARE(form.scrollArea->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(form.scrollArea->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QCOMPARE(gridOf(form.scrollView), form.lo_overview);
    QVERIFY(hasSpacer(form.lo_overview, 6, 0));
    QCOMPARE(form.verticalSpacer_overview->expandingDirections(), Qt::Vertical);
    QVERIFY(form.lbl_optionshint->wordWrap());
}

void FormTest::theChartPageLeavesItsLastRowToTheChart()
{
    const RawForm form;
    QCOMPARE(gridOf(form.dataView), form.layout_batteryData);
    QCOMPARE(form.layout_batteryData->verticalSpacing(), 10);
    QCOMPARE(form.layout_batteryData->contentsMargins(), QMargins(10, 20, 10, 0));
    QCOMPARE(form.cb_batteryData->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(form.cb_batteryData->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QVERIFY(hasSpacer(form.layout_batteryData, 3, 0));
}

void FormTest::theEditPageHasNoButtonToModifyALocation()
{
    const RawForm form;
    const QGridLayout *actions = gridOf(form.label_61->parentWidget());
    QCOMPARE(actions->itemAtPosition(1, 1), nullptr);
    QCOMPARE(form.line_editData->frameShape(), QFrame::HLine);
}

void FormTest::theUnitsAreOneGroupAndStartWithMilliampereHours()
{
    const RawForm form;
    const QList<QAbstractButton *> units{form.rb_showmAh, form.rb_showAmps, form.rb_showC};
    QCOMPARE(form.btngrp_showData->buttons(), units);
    QCOMPARE(form.btngrp_showData->checkedButton(), form.rb_showmAh);
    QVERIFY(form.btngrp_showData->exclusive());
    QCOMPARE(form.btngrp_showData->parent(), &form.window);
    QCOMPARE(form.btngrp_showData->objectName(), u"btngrp_showData"_s);
}

void FormTest::theModesAreOneGroupAndStartWithQuick()
{
    const RawForm form;
    const QList<QAbstractButton *> modes{form.rb_modeSimple, form.rb_modeAdvanced};
    QCOMPARE(form.btnGrp_mode->buttons(), modes);
    QCOMPARE(form.btnGrp_mode->checkedButton(), form.rb_modeSimple);
    QVERIFY(form.btnGrp_mode->exclusive());
    QCOMPARE(form.btnGrp_mode->parent(), &form.window);
    QCOMPARE(form.btnGrp_mode->objectName(), u"btnGrp_mode"_s);
    QCOMPARE(form.rb_modeSimple->property("ViewMode"), QVariant(u"Simple"_s));
    QCOMPARE(form.rb_modeAdvanced->property("ViewMode"), QVariant(u"Complex"_s));
    QVERIFY(form.rb_modeAdvanced->isEnabled());
}

void FormTest::theHintOfTheModePageHasItsFrame()
{
    const RawForm form;
    QVERIFY(form.label_18->wordWrap());
    QCOMPARE(form.label_18->lineWidth(), 2);
    QCOMPARE(form.label_18->margin(), 4);
    QCOMPARE(form.label_18->indent(), 2);
}

void FormTest::aWidgetHasItsLimitsOfSize_data()
{
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("most");

    const auto rows = [](QSize least, QSize most, std::initializer_list<const char *> widgets) {
        for (const char *widget : widgets)
            QTest::newRow(widget) << least << most;
    };
    const QSize any(noLimit, noLimit);
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
    rows({220, 25}, {300, noLimit}, {"cb_batteryData"});
    rows({50, 0}, any, {"rb_showmAh", "rb_showAmps", "rb_showC"});
    rows({0, 0}, {noLimit, 100}, {"lbl_optionshint"});
    rows({120, 0}, any, {"lbl_logview_time", "lbl_logview_capacity"});
    rows({120, 30}, any,
         {"dedt_dischargeDate", "tedt_dischargeTime", "sb_discharged_capacity", "dsb_discharged_current",
          "sb_log_duration", "sb_log_temp"});
    rows({180, 30}, {250, noLimit}, {"ledt_location_new"});
    rows({0, 30}, {250, noLimit},
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

void FormTest::aWidgetHasItsLimitsOfSize()
{
    const RawForm form;
    const QWidget *widget = form.find(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(widget->minimumSize(), "least");
    QTEST(widget->maximumSize(), "most");
}

void FormTest::onlyTitlesAndFieldLabelsHaveAFont()
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

void FormTest::onlyNamesToBeModifiedAndTheShownNotesAreReadOnly()
{
    const RawForm form;
    const QSet<QString> readOnly{u"ledt_modifyheli_name"_s, u"ledt_modifyBattery_name"_s,
                                 u"ptext_logview_notes"_s};
    QSet<QString> found;
    for (const QWidget *widget : form.window.findChildren<QWidget *>()) {
        if (widget->property("readOnly").toBool())
            found << widget->objectName();
    }
    QCOMPARE(found, readOnly);
}

void FormTest::theLogsNotesFitTheirText()
{
    const RawForm form;
    QCOMPARE(form.ptext_logview_notes->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
}

void FormTest::numbersOfADischargeHaveTheirRange()
{
    const RawForm form;
    QCOMPARE(form.sb_discharged_capacity->minimum(), 0);
    QCOMPARE(form.sb_discharged_capacity->maximum(), 20000);
    QCOMPARE(form.sb_discharged_capacity->singleStep(), 10);
    form.sb_discharged_capacity->setValue(20001);
    QCOMPARE(form.sb_discharged_capacity->value(), 20000);

    QCOMPARE(form.dsb_discharged_current->minimum(), 0.0);
    QCOMPARE(form.dsb_discharged_current->maximum(), 300.0);
    QCOMPARE(form.dsb_discharged_current->singleStep(), 0.5);
    QCOMPARE(form.dsb_discharged_current->decimals(), 2);
    form.dsb_discharged_current->setValue(300.01);
    QCOMPARE(form.dsb_discharged_current->value(), 300.0);

    QCOMPARE(form.sb_log_temp->minimum(), -99);
    QCOMPARE(form.sb_log_temp->maximum(), 99);
    QCOMPARE(form.sb_log_temp->singleStep(), 5);
    form.sb_log_temp->setValue(-100);
    QCOMPARE(form.sb_log_temp->value(), -99);
}

void FormTest::theDischargeDateStaysBetween2005And2030()
{
    const RawForm form;
    QDateEdit *date = form.dedt_dischargeDate;
    QCOMPARE(date->date(), QDate(2018, 10, 30));
    QCOMPARE(date->time(), QTime(5, 42, 42));
    QCOMPARE(date->minimumDate(), QDate(2005, 1, 1));
    QCOMPARE(date->maximumDate(), QDate(2030, 12, 31));
    date->setDate(QDate(2004, 12, 31));
    QCOMPARE(date->date(), QDate(2005, 1, 1));
    date->setDate(QDate(2031, 1, 1));
    QCOMPARE(date->date(), QDate(2030, 12, 31));
}

void FormTest::datesAreYearMonthDayAndTimesHave24Hours()
{
    const RawForm form;
    QCOMPARE(form.dedt_dischargeDate->text(), u"2018-10-30"_s);
    form.tedt_dischargeTime->setTime(QTime(17, 5, 9));
    QCOMPARE(form.tedt_dischargeTime->text(), u"17:05:09"_s);
    QCOMPARE(form.sb_log_duration->text(), u"00:00:00"_s);
}

void FormTest::theFieldsOfADischargeAreCentred()
{
    const RawForm form;
    for (const QWidget *field :
         {static_cast<QWidget *>(form.dedt_dischargeDate), static_cast<QWidget *>(form.tedt_dischargeTime),
          static_cast<QWidget *>(form.sb_discharged_capacity),
          static_cast<QWidget *>(form.dsb_discharged_current), static_cast<QWidget *>(form.sb_log_duration),
          static_cast<QWidget *>(form.sb_log_temp)})
        QCOMPARE(qobject_cast<const QAbstractSpinBox *>(field)->alignment(), Qt::AlignCenter);
}

void FormTest::twoCapacityLabelsAreAlignedToTheLeft()
{
    const RawForm form;
    QCOMPARE(form.label_37->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(form.label_20->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void FormTest::everySlotNamedAfterAWidgetFindsIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("signal");

    const QMetaObject &window = VoltbokGui::staticMetaObject;
    for (int i = window.methodOffset(); i < window.methodCount(); ++i) {
        const QByteArray slot = window.method(i).methodSignature();
        if (!slot.startsWith("on_"))
            continue;
        const qsizetype cut = slot.lastIndexOf('_');
        QTest::newRow(slot.constData()) << QString::fromLatin1(slot.mid(3, cut - 3)) << slot.mid(cut + 1);
    }
}

void FormTest::everySlotNamedAfterAWidgetFindsIt()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, signal);

    const RawForm form;
    const QList<QObject *> named = form.window.findChildren<QObject *>(name);
    QCOMPARE(named.size(), 1);
    // A button's clicked() has a default argument, so that the short form is a signal of its own.
    QVERIFY(named.first()->metaObject()->indexOfSignal(signal.constData()) >= 0);
}

void FormTest::everyPageFitsTheFirstSize()
{
    RawForm form;
    const QSize before = form.window.size();
    form.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form.window));
    QCOMPARE(form.window.size(), before);
    QVERIFY(form.stackedWidget->height() > 450);
}

QTEST_MAIN(FormTest)
#include "tst_form.moc"
