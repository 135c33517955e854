// SPDX-License-Identifier: GPL-3.0-or-later
// The form before any code of ours touches it: what stands where, and under which name.
#include "gui/voltbokgui.h"
#include "tests/support/formcells.h"
#include "tests/support/rawform.h"

#include <QMetaMethod>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

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
    void aSpacerFillsItsCell_data();
    void aSpacerFillsItsCell();
    void thePagesStandInTheirOrder();
    void theWindowOpensAtItsSizeOnTheOverview();
    void longNamesDoNotWidenTheWindow();
    void theEditPageHasNoButtonToModifyALocation();
    void theHeaderButtonsAreBareIcons();
    void anIconIsInTheResources_data();
    void anIconIsInTheResources();
    void theUnitsAndTheModesAreOneGroupEach();
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

void FormTest::aSpacerFillsItsCell_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");

    const auto spacer = [](const char *layout, int row, int column) {
        QTest::addRow("%s %d, %d", layout, row, column) << layout << row << column;
    };
    spacer("gridLayout", 0, 1);
    spacer("gridLayout", 3, 1);
    spacer("gridLayout", 4, 1);
    spacer("gridLayout", 6, 1);
    spacer("gridLayout", 7, 0);
    spacer("lo_overview", 6, 0);
    spacer("layout_batteryData", 3, 0);
}

void FormTest::aSpacerFillsItsCell()
{
    QFETCH(QString, layout);
    QFETCH(int, row);
    QFETCH(int, column);
    const RawForm form;
    QVERIFY(hasSpacer(form.window.findChild<QGridLayout *>(layout), row, column));
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
    QCOMPARE(gridOf(form.centralwidget), form.gridLayout);
    QCOMPARE(form.gridLayout->spacing(), 0);
    QCOMPARE(gridOf(form.scrollLayout), form.overviewLO);
    QCOMPARE(form.overviewLO->spacing(), 10);
    QCOMPARE(form.overviewLO->count(), 1);
    QCOMPARE(form.scrollArea->widget(), form.scrollView);
    QCOMPARE(gridOf(form.scrollView), form.lo_overview);
    QCOMPARE(form.verticalSpacer_overview->expandingDirections(), Qt::Vertical);
    QCOMPARE(gridOf(form.dataView), form.layout_batteryData);
    QCOMPARE(form.layout_batteryData->verticalSpacing(), 10);
}

void FormTest::theWindowOpensAtItsSizeOnTheOverview()
{
    const RawForm form;
    QCOMPARE(form.window.objectName(), u"VoltbokGui"_s);
    QCOMPARE(form.window.size(), QSize(350, 531));
    QCOMPARE(form.window.centralWidget(), form.centralwidget);
    QCOMPARE(form.stackedWidget->currentIndex(), 0);

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

void FormTest::theEditPageHasNoButtonToModifyALocation()
{
    const RawForm form;
    QCOMPARE(gridOf(form.label_61->parentWidget())->itemAtPosition(1, 1), nullptr);
}

void FormTest::theHeaderButtonsAreBareIcons()
{
    const RawForm form;
    const QPair<QPushButton *, QString> buttons[] = {{form.pb_options, u":/png/Resources/menu_64_grey.png"_s},
                                                     {form.pb_home, u":/png/Resources/home_64_grey.png"_s}};
    for (const auto &[button, picture] : buttons) {
        QCOMPARE(button->text(), QString());
        QCOMPARE(button->icon().pixmap(64).toImage(), QIcon(picture).pixmap(64).toImage());
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button->styleSheet(), u"QPushButton\n{\nborder: none;\n}\n\nQPushButton::pressed\n{\n"
                                       "background-color: rgb(240,240,240);\n}"_s);
    }
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

void FormTest::theUnitsAndTheModesAreOneGroupEach()
{
    const RawForm form;
    QCOMPARE(form.btngrp_showData->buttons(),
             QList<QAbstractButton *>({form.rb_showmAh, form.rb_showAmps, form.rb_showC}));
    QCOMPARE(form.btnGrp_mode->buttons(),
             QList<QAbstractButton *>({form.rb_modeSimple, form.rb_modeAdvanced}));
    for (const QButtonGroup *group : {form.btngrp_showData, form.btnGrp_mode}) {
        QVERIFY(group->exclusive());
        QCOMPARE(group->parent(), &form.window);
    }
    QCOMPARE(form.btngrp_showData->objectName(), u"btngrp_showData"_s);
    QCOMPARE(form.btnGrp_mode->objectName(), u"btnGrp_mode"_s);
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
