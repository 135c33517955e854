// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/voltbokgui.h"

#include "gui/doubleclickguard.h"
#include "gui/selectonentry.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "ui_voltbokgui.h"

#include <QEvent>
#include <QRegularExpression>

#include <utility>

namespace {
/** The fields that the user types into; the edits inside spin boxes are not among them. */
QList<QLineEdit *> typedFields(const QWidget *pages)
{
    return pages->findChildren<QLineEdit *>(QRegularExpression(QStringLiteral("^ledt_")));
}
} // namespace

VoltbokGui::VoltbokGui(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui_VoltbokGui())
    , dataProcessor(this)
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Rotavex 15.7.0 64-bit"));
    // lbl_reallydelete_location stays visible on purpose: the first deletion of a location takes one click.
    ui->lbl_really->hide();
    ui->lbl_reallydelete_model->hide();
    new DoubleClickGuard({ui->pb_add_batt_to_model, ui->pb_rem_batt_from_model}, ui->dischargeView, this);

    auto *selectOnEntry = new SelectOnEntry(this);
    const auto fields = typedFields(ui->stackedWidget);
    for (QLineEdit *field : fields)
        field->installEventFilter(selectOnEntry);
}

VoltbokGui::~VoltbokGui()
{
    delete ui; // no object with a parent; its widgets have one, and go with the window as the chart views do
    qDeleteAll(std::exchange(batteryList, {}));
    qDeleteAll(std::exchange(modelList, {}));
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
    QMainWindow::changeEvent(event);
}

void VoltbokGui::retranslate()
{
    struct Input
    {
        QLineEdit *field;
        QString text;
        int cursor;
    };
    QList<Input> inputs;
    const auto fields = typedFields(ui->stackedWidget);
    for (QLineEdit *field : fields)
        inputs.append({field, field->text(), field->cursorPosition()});
    const QString title = windowTitle();

    ui->retranslateUi(this); // puts every field back to its first text and mask

    setWindowTitle(title);
    for (const Input &input : std::as_const(inputs)) {
        input.field->setText(input.text);
        input.field->setCursorPosition(input.cursor);
    }
    for (QPushButton *button : {ui->pb_deleteConfirm, ui->pb_deleteConfirm_model, ui->pb_del_location})
        showConfirmationText(button);
    if (chartView)
        on_cb_batteryData_currentIndexChanged(ui->cb_batteryData->currentIndex());
}
