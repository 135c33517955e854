// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/voltbokgui.h"

#include "gui/datemark.h"
#include "gui/decimalsign.h"
#include "gui/deleteall.h"
#include "gui/doubleclickguard.h"
#include "gui/fieldtexts.h"
#include "gui/readonlylook.h"
#include "gui/sectiontyping.h"
#include "gui/selectonentry.h"
#include "gui/wheelguard.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "ui_voltbokgui.h"

#include <QChartView>
#include <QEvent>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int WidestForm = 680; // beyond it the name fields, which stop at 250, no longer fill their column
constexpr QMargins LogMargins{3, 9, 3, 9};
constexpr QMargins LogMarginsRightToLeft{0, 9, 0, 9}; // makes room for the gap
constexpr QMargins LabelGap{0, 0, 6, 0};

/** The fields that the user types into; the edits inside spin boxes are not among them. */
QList<QLineEdit *> typedFields(const QWidget *pages)
{
    QList<QLineEdit *> fields = pages->findChildren<QLineEdit *>();
    fields.removeIf([](const QLineEdit *field) { return qobject_cast<QAbstractSpinBox *>(field->parent()); });
    return fields;
}
} // namespace

VoltbokGui::VoltbokGui(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui_VoltbokGui())
    , dataProcessor(this)
{
    ui->setupUi(this);
    setWindowTitle(u"Rotavex 15.7.0 64-bit"_s);
    // lbl_reallydelete_location stays visible on purpose: the first deletion of a location takes one click.
    ui->lbl_really->hide();
    ui->lbl_reallydelete_model->hide();
    new DoubleClickGuard({ui->pb_add_batt_to_model, ui->pb_rem_batt_from_model}, ui->dischargeView, this);

    FieldTexts::noteDefaults(typedFields(ui->stackedWidget));
    easeInput();
    adaptForms();
}

VoltbokGui::~VoltbokGui()
{
    delete ui; // the form is no QObject that a parent could own; its widgets live on until the window goes
    deleteAll(batteryList);
    deleteAll(modelList);
    delete chartView; // ahead of its parent: it is to be gone before the data processor is
}

void VoltbokGui::easeInput()
{
    auto *selectOnEntry = new SelectOnEntry(this);
    const auto lineEdits = ui->stackedWidget->findChildren<QLineEdit *>();
    for (QLineEdit *field : lineEdits)
        field->installEventFilter(selectOnEntry);

    auto *decimalSign = new DecimalSign(this);
    const auto fields = typedFields(ui->stackedWidget);
    for (QLineEdit *field : fields)
        field->installEventFilter(decimalSign);

    auto *sectionTyping = new SectionTyping(this);
    const auto moments = ui->stackedWidget->findChildren<QDateTimeEdit *>();
    for (QDateTimeEdit *moment : moments)
        moment->installEventFilter(sectionTyping);

    auto *wheelGuard = new WheelGuard(this);
    const auto choosers = ui->stackedWidget->findChildren<QComboBox *>();
    for (QComboBox *chooser : choosers)
        wheelGuard->watch(chooser);
    const auto numbers = ui->stackedWidget->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *number : numbers)
        wheelGuard->watch(number);

    auto *dateMark = new DateMark(this);
    for (QLineEdit *date : {ui->ledt_purchaseDate, ui->ledt_addheli_purchase, ui->ledt_modifyheli_purchase,
                            ui->ledt_modifyBattery_purchaseDate})
        dateMark->watch(date);
}

void VoltbokGui::adaptForms()
{
    for (QLineEdit *name : {ui->ledt_modifyBattery_name, ui->ledt_modifyheli_name})
        showAsReadOnly(name, palette());
    // A page that is narrower than the stack lies at its left, where a form read from the right must not be.
    const int widest = isRightToLeft() ? QWIDGETSIZE_MAX : WidestForm;
    for (QWidget *form : {ui->addLocationView, ui->addView, ui->addModelView, ui->dischargeView,
                          ui->modModelView, ui->modBatteryView})
        form->setMaximumWidth(widest);
    // There, a label that is as wide as its words stands left of another one.
    ui->layout_log->setContentsMargins(isRightToLeft() ? LogMarginsRightToLeft : LogMargins);
    ui->label_40->setContentsMargins(isRightToLeft() ? LabelGap : QMargins());
}

void VoltbokGui::changeStoragePath(const QString &path)
{
    dataProcessor.setBasePath(path);
    updateBatteryGui();
}

void VoltbokGui::keyPressEvent(QKeyEvent *event)
{
    // Intentional: the event is neither accepted nor ignored nor passed on.
    Q_UNUSED(event)
}

void VoltbokGui::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange)
        adaptForms();
    QMainWindow::changeEvent(event);
}

void VoltbokGui::retranslate()
{
    const QString title = windowTitle();
    FieldTexts contents(typedFields(ui->stackedWidget));

    ui->retranslateUi(this); // sets every text and mask anew

    contents.restore();
    setWindowTitle(title);
    for (QPushButton *button : {ui->pb_deleteConfirm, ui->pb_deleteConfirm_model, ui->pb_del_location})
        showConfirmationText(button);
    if (chartView)
        on_cb_batteryData_currentIndexChanged(ui->cb_batteryData->currentIndex());
}
