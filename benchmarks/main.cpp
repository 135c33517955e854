// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the library against the least that the same work takes with Qt alone.
#include "benchmarks.h"
#include "report.h"

#include "plugin/rotavexplugin.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Benchmark = void (*)(Report &, const Benchmarks::Plan &);

const QList<std::pair<QString, Benchmark>> All = {
    {u"storage"_s, Benchmarks::storage}, {u"window"_s, Benchmarks::window},
    {u"charts"_s, Benchmarks::charts},   {u"memory"_s, Benchmarks::memory},
    {u"startup"_s, Benchmarks::startup}, {u"care"_s, Benchmarks::care},
    {u"flights"_s, Benchmarks::flights}, {u"figures"_s, Benchmarks::figures},
    {u"radiologs"_s, Benchmarks::radioLogs},
#ifdef WITH_EXPORTS
    {u"exports"_s, Benchmarks::exports},
#endif
};

/** The same surroundings everywhere; the user's own settings are neither read nor written. */
void settleSurroundings(const QString &home)
{
    qputenv("TZ", "Europe/Berlin"); // without it each conversion of a date asks the file system for the zone
    tzset();
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("XDG_CONFIG_HOME", home.toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.toLocal8Bit());
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // the offscreen platform remarks on every window
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // This program's own store was opened when the library was loaded; those that it starts go by
    // XDG_CONFIG_HOME.
    auto *store = new QSettings(home + u"/settings.ini"_s, QSettings::IniFormat);
    delete std::exchange(RotavexPlugin::rotavexSettings, store);
}

} // namespace

QList<int> Benchmarks::Plan::sizes() const
{
    return quick ? QList<int>{1000, 10'000, 100'000} : QList<int>{1000, 10'000, 100'000, 300'000};
}

int Benchmarks::Plan::rounds(int entries) const
{
    const int thorough = entries <= 1000 ? 61 : entries <= 100'000 ? 21 : 9;
    return quick ? thorough / 3 : thorough;
}

int Benchmarks::Plan::repetitions() const
{
    return quick ? 200 : 1000;
}

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    settleSurroundings(home.path());
    const QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Measures the logbook against bare Qt."_s);
    parser.addHelpOption();
    const QCommandLineOption quick(u"quick"_s, u"Smaller catalogues and fewer rounds."_s);
    const QCommandLineOption json(u"json"_s, u"Write the figures into <file>."_s, u"file"_s,
                                  u"performance.json"_s);
    parser.addOptions({quick, json});
    parser.addPositionalArgument(
        u"subject"_s,
        u"storage, window, charts, memory, startup, care, flights, figures, exports; all by default."_s,
        u"[subject...]"_s);
    parser.process(application);

    Benchmarks::Plan plan;
    plan.quick = parser.isSet(quick);
    const QStringList subjects = parser.positionalArguments();
    const auto isUnknown = [](const QString &name) {
        return std::none_of(All.begin(), All.end(), [&](const auto &each) { return each.first == name; });
    };
    if (std::any_of(subjects.begin(), subjects.end(), isUnknown))
        parser.showHelp(EXIT_FAILURE);
    Report report(parser.value(json).toStdString());
    for (const auto &[subject, benchmark] : All) {
        if (!subjects.isEmpty() && !subjects.contains(subject))
            continue;
        QTextStream(stderr) << "measuring " << subject << Qt::endl;
        benchmark(report, plan);
    }
    return EXIT_SUCCESS;
}
