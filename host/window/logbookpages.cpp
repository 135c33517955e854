// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/logbookpages.h"

#include <QMetaObject>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Each page with the slot of the logbook that leads there; the overview is where it begins. */
constexpr std::pair<const char *, const char *> Ways[] = {
    {"overview", nullptr},
    {"menu", "on_pb_options_clicked"},
    {"mode", "on_pb_mode_clicked"},
    {"chart", "on_pb_chart_clicked"},
    {"log-book", "on_pb_logbook_clicked"},
    {"edit", "on_pb_edit_data_clicked"},
    {"add-battery", "on_pb_choose_addbattery_clicked"},
    {"add-model", "on_pb_choose_addmodel_clicked"},
    {"add-location", "on_pb_choose_addlocation_clicked"},
    {"modify-battery", "on_pb_choose_modify_battery_clicked"},
    {"modify-model", "on_pb_choose_modify_model_clicked"},
    {"delete-battery", "on_pb_choose_delbattery_clicked"},
    {"delete-model", "on_pb_choose_delmodel_clicked"},
    {"delete-location", "on_pb_choose_dellocation_clicked"}};

} // namespace

QStringList LogbookPages::names()
{
    QStringList names;
    for (const auto &[name, slot] : Ways)
        names.append(QLatin1StringView(name));
    return names;
}

void LogbookPages::show(QObject &logbook, const QString &name)
{
    for (const auto &[page, slot] : Ways) {
        if (name == QLatin1StringView(page) && slot)
            QMetaObject::invokeMethod(&logbook, slot, Qt::DirectConnection);
    }
}

} // namespace Host
