// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/advicetexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Advice)
};

constexpr double Tiny = 1e-9; // what a share may be short of by the way that it is worked out

int toInt(qint64 days)
{
    return static_cast<int>(days);
}

} // namespace

QString AdviceTexts::storage(const QString &battery, qint64 days)
{
    return Text::tr("Bring “%1” to storage charge: it has been charged, and not used, "
                    "for %n days.",
                    nullptr, toInt(days))
        .arg(battery);
}

QString AdviceTexts::deep(const QString &battery, double share)
{
    return Text::tr("Land earlier with “%1”: one of its last discharges took %2 of its "
                    "capacity.")
        .arg(battery, QLocale().toString(std::floor(share * 100.0 + Tiny), 'f', 0) + u" %"_s);
}

QString AdviceTexts::load(const QString &battery, double load, unsigned int rating)
{
    return Text::tr("Load “%1” less: one of its last discharges reached %2 C, and its "
                    "label allows %3 C.")
        .arg(battery, QLocale().toString(load, 'f', 1), QLocale().toString(rating));
}

QString AdviceTexts::cold(const QString &battery, int degrees)
{
    return Text::tr("Warm “%1” before you fly: its last flight was at %2 °C.")
        .arg(battery, QLocale().toString(degrees));
}

QString AdviceTexts::idle(const QString &battery, qint64 days)
{
    return Text::tr("Check the voltage of “%1”: it has not been used for %n days.", nullptr, toInt(days))
        .arg(battery);
}

QString AdviceTexts::age(const QString &battery, QDate purchase)
{
    return Text::tr("Watch how “%1” performs: it was bought on %2.")
        .arg(battery, QLocale().toString(purchase, QLocale::ShortFormat));
}

QString AdviceTexts::timer(const QString &battery, const QString &model, int seconds)
{
    return Text::tr("Set the timer of “%1” to %2 for “%3”: its flights on this battery "
                    "show how much it needs.")
        .arg(model, minutes(seconds), battery);
}

QString AdviceTexts::minutes(int seconds)
{
    constexpr int SecondsOfAMinute = 60;
    return u"%1:%2"_s.arg(seconds / SecondsOfAMinute).arg(seconds % SecondsOfAMinute, 2, 10, QChar(u'0'));
}

} // namespace Host
