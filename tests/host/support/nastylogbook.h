// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "tests/host/support/plainlogbook.h"

#include <limits>

/** What nobody enters on purpose, and a file may hold all the same. */
namespace NastyLogbook {

using namespace Qt::Literals::StringLiterals;

inline constexpr unsigned int Largest = std::numeric_limits<unsigned int>::max();

inline QStringList texts()
{
    return {u""_s,
            u"plain"_s,
            u"a, comma; a semicolon"_s,
            u"a \"quoted\" word"_s,
            u"\""_s,
            u"two\nlines"_s,
            u"ends with a line\n"_s,
            u"\nbegins with one"_s,
            u" spaces around "_s,
            u"=1+1"_s,
            u"=HYPERLINK(\"http://example.org\")"_s,
            u"+49 89"_s,
            u"-5 apples"_s,
            u"@home"_s,
            u"\ttab"_s,
            u"'apostrophe"_s,
            u"http://example.org/flights"_s,
            u"mailto:pilot@example.org"_s,
            u"internal:Sheet2!A1"_s,
            u"007"_s,
            u"1e5"_s,
            u"1,5"_s,
            u"TRUE"_s,
            u"2026-01-01"_s,
            u"sep=;"_s,
            u"NULL"_s,
            u"<b>&amp;</b>"_s,
            u"grüße, 東京, 🛩️ and 👨‍👩‍👧"_s,
            u"\u202Eright to left: \u0634\u0631\u0627\u0639"_s,
            u"\u00A0non-breaking\u2028separators\u2029"_s,
            u"\u0085next line"_s,
            QString(40'000, u'x'),
            QString(32'766, u'y') + u"🛩 across the limit"_s};
}

inline Host::Battery battery(const QString &name)
{
    Host::Battery battery = PlainLogbook::battery(name);
    battery.capacity = Largest;
    battery.rating = Largest;
    battery.chargeRate = Largest;
    battery.cycles = Largest;
    battery.charged = false;
    battery.purchase = QDate(1899, 12, 31);
    battery.lastUse = QDateTime(QDate(1850, 2, 28), QTime(23, 59, 59));
    battery.discharges = {{PlainLogbook::at(9, 0), Largest, Largest},
                          {PlainLogbook::at(9, 0), 1, 5},
                          {QDateTime(), 0, 0},
                          {QDateTime(QDate(1900, 1, 1), QTime(0, 0)), 10, 10},
                          {QDateTime(QDate(1900, 2, 28), QTime(12, 0, 1)), 20, 1320},
                          {QDateTime(QDate(1900, 3, 1), QTime(23, 59, 59)), 30, 1317},
                          {QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)), 40, 1300}};
    return battery;
}

/** A battery, a model, a flight and a location for each text. */
inline Host::Catalogue logbook()
{
    Host::Catalogue catalogue;
    for (const QString &text : texts()) {
        catalogue.locations.append(text);
        catalogue.batteries.append(battery(text));
        Host::Model model = PlainLogbook::model(text, {text, u"another; one"_s});
        model.type = text;
        model.notes = text;
        model.weight = Largest;
        model.log = {{PlainLogbook::at(10, 0), QTime(), text, std::numeric_limits<int>::min(), text},
                     {QDateTime(), QTime(23, 59, 59), text, -5, text},
                     {QDateTime(QDate(1875, 6, 1), QTime(4, 5, 6)), QTime(0, 0), text, 0, text}};
        catalogue.models.append(model);
    }
    return catalogue;
}

} // namespace NastyLogbook
