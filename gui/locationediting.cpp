// SPDX-License-Identifier: GPL-3.0-or-later
// Adding and deleting locations: the items of cb_log_location are the list of them.
#include "gui/uniquename.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

void VoltbokGui::on_pb_add_location_clicked()
{
    const QString name = uniqueName(ui->ledt_location_new->text(), locations());
    if (name.isEmpty())
        return;
    ui->cb_log_location->addItem(name);
    saveAndReload();
    showOverview();
}

void VoltbokGui::on_pb_del_location_clicked()
{
    if (!confirmed(ui->pb_del_location, ui->lbl_reallydelete_location))
        return;
    // Intentional: a name that is gone already removes nothing, and still the file is written and read.
    ui->cb_log_location->removeItem(ui->cb_log_location->findText(ui->cb_location_delete->currentText()));
    saveAndReload();
    showOverview();
    resetConfirmation(ui->pb_del_location, ui->lbl_reallydelete_location);
}
