// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "report.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/** Runs one of the two programs that lie beside this one. */
Measure::Run starting(const QString &program, const QStringList &arguments)
{
    return [program, arguments] {
        const QDir here(QCoreApplication::applicationDirPath());
        const double before = Measure::childrenProcessorTime();
        if (QProcess::execute(here.filePath(program), arguments) != 0)
            qFatal("%s did not run.", qPrintable(program));
        return Measure::childrenProcessorTime() - before;
    };
}

} // namespace

void Benchmarks::startup(Report &report, const Plan &plan)
{
    const Measure::Run empty = starting(QStringLiteral("start_empty"), {});
    const QString against = QStringLiteral("a program with an empty QMainWindow");
    for (const int entries : {0, 1000}) {
        const QTemporaryDir folder;
        if (entries > 0)
            Catalogue::withEntries(entries).writeTo(folder.path());
        const Measure::Run logbook = starting(QStringLiteral("start_logbook"), {folder.path()});
        report.addRatio(QStringLiteral("program started to first frame, %1 entries").arg(entries), against,
                        Measure::compare(plan.rounds(1000), logbook, empty));
    }
}
