// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/panel.h"
#include "tests/host/support/scriptedquestions.h"

#include "host/window/batteryplot.h"
#include "host/window/plotview.h"

#include <QChart>
#include <QTemporaryDir>

/** The plot of a battery on show, and a folder to save it in. */
class ShownPlot
{
public:
    ShownPlot()
        : plot(questions)
    {
        Test::failOnWarnings();
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)); // for tests that are another user
        plot.resize(700, 500);
        show(flown());
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
    }

    /** 2,000 mAh at 25 C: measured, entered, guessed, not entered, and without a time. */
    static Host::Battery flown()
    {
        const auto day = [](int number) {
            return QDateTime(QDate(2026, 1, 1).addDays(number), QTime(12, 0));
        };
        Host::Battery battery;
        battery.name = u"Pack A"_s;
        battery.capacity = 2000;
        battery.rating = 25;
        battery.discharges = {{day(0), 1200, 3000, true},
                              {day(40), 1400, 4000},
                              {day(80), 1600, 5000},
                              {day(120), 0, 0},
                              {QDateTime(), 900, 1000}};
        return battery;
    }

    static QPalette dark()
    {
        QPalette palette(QColor(40, 40, 40), QColor(20, 20, 20));
        palette.setColor(QPalette::Base, QColor(10, 10, 30));
        return palette;
    }

    void show(const Host::Battery &battery)
    {
        plot.setBattery(battery);
        QCoreApplication::processEvents();
    }

    Host::PlotView &view() { return *plot.findChild<Host::PlotView *>(); }
    QChart &chart() { return *view().chart(); }
    QString file(const QString &name) const { return folder.filePath(name); }
    void press(const QString &caption) { LogbookWindow::click(Panel::button(plot, caption)); }

    QTemporaryDir folder;
    ScriptedQuestions questions;
    Host::BatteryPlot plot;
};
