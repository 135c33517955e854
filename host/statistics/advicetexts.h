// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

/** The sentences of the advice: what to do, and why. */
namespace Host::AdviceTexts {

QString storage(const QString &battery, qint64 days);
QString deep(const QString &battery, double share);
QString load(const QString &battery, double load, unsigned int rating);
QString cold(const QString &battery, int degrees);
QString idle(const QString &battery, qint64 days);
QString age(const QString &battery, QDate purchase);
QString timer(const QString &battery, const QString &model, int seconds);

/** "5:15" for 315 seconds. */
QString minutes(int seconds);

} // namespace Host::AdviceTexts
