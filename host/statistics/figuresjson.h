// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/advice.h"
#include "host/statistics/figures.h"

#include <QJsonArray>
#include <QJsonObject>

/** Figures and advice for scripts: keys in English, times local, null for what is missing. */
namespace Host::FiguresJson {

QJsonObject figures(const Figures &figures);
QJsonArray advice(const QList<Advice> &advice);

/** "2026-11-10T21:09:54"; null for an invalid time. */
QJsonValue time(const QDateTime &time);

} // namespace Host::FiguresJson
