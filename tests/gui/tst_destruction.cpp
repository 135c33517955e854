// SPDX-License-Identifier: GPL-3.0-or-later
// In which order the window takes down what it owns.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QChartView>

using namespace Qt::Literals::StringLiterals;

class DestructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsGoBeforeTheChartAndTheChartBeforeTheDataProcessor();
    void aWindowThatDrewNoChartGoesAsWell();
};

namespace {
QByteArray smallFile()
{
    return Test::document({{{u"One"_s, true}, {u"Two"_s}}, {{u"Heli"_s, {u"One"_s}}, {u"Plane"_s}}});
}

/** The names of what a window deletes, in the order in which it does. */
class Farewells : public QObject
{
public:
    void watch(QObject *object, const QString &name)
    {
        connect(object, &QObject::destroyed, this, [this, name] { m_names.append(name); });
    }

    void watchAll(VoltbokGui &window)
    {
        for (BatteryWidget *battery : std::as_const(window.batteryList))
            watch(battery, u"battery"_s);
        for (ModelWidget *model : std::as_const(window.modelList))
            watch(model, u"model"_s);
        if (window.chartView)
            watch(window.chartView, u"chart"_s);
        watch(&window.dataProcessor, u"processor"_s);
        watch(&window, u"window"_s);
    }

    QStringList names() const { return m_names; }

private:
    QStringList m_names;
};
} // namespace

void DestructionTest::recordsGoBeforeTheChartAndTheChartBeforeTheDataProcessor()
{
    Farewells farewells;
    {
        LogbookWindow window;
        window.load(smallFile());
        LogbookWindow::click(window.ui().pb_options);
        LogbookWindow::click(window.ui().pb_chart);
        LogbookWindow::click(window.ui().rb_showAmps); // the chart on show is not the first one
        farewells.watchAll(window.gui());
    }
    QCOMPARE(farewells.names(), QStringList({u"battery"_s, u"battery"_s, u"model"_s, u"model"_s, u"chart"_s,
                                             u"processor"_s, u"window"_s}));
}

void DestructionTest::aWindowThatDrewNoChartGoesAsWell()
{
    Farewells farewells;
    {
        LogbookWindow window;
        window.load(smallFile());
        farewells.watchAll(window.gui());
    }
    QCOMPARE(farewells.names(),
             QStringList({u"battery"_s, u"battery"_s, u"model"_s, u"model"_s, u"processor"_s, u"window"_s}));
}

QTEST_MAIN(DestructionTest)
#include "tst_destruction.moc"
