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

/** Runs a program, by its path or one that lies beside this one, and returns the number that it printed. */
double run(const QString &name, const QStringList &arguments)
{
    QProcess program;
    program.start(QDir(QCoreApplication::applicationDirPath()).filePath(name), arguments);
    if (!program.waitForFinished() || program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0)
        qFatal("%s did not run.", qPrintable(name));
    return program.readAllStandardOutput().trimmed().toDouble();
}

/** The processor time of a whole program. */
Measure::Run starting(const QString &name, const QStringList &arguments = {})
{
    return [name, arguments] {
        const double before = Measure::childrenProcessorTime();
        run(name, arguments);
        return Measure::childrenProcessorTime() - before;
    };
}

/** The processor time of its window alone, which is the first of its process. */
Measure::Run showingFirst(const QString &name)
{
    return [name] { return run(name, {}); };
}

} // namespace

void Benchmarks::startup(Report &report, const Plan &plan)
{
    const QString empty = QStringLiteral("start_empty");
    const QString logbook = QStringLiteral("start_logbook");
    const int rounds = plan.rounds(1000);
    report.compare(QStringLiteral("first window of a program constructed and shown"),
                   QStringLiteral("an empty QMainWindow as the first"), rounds, showingFirst(logbook),
                   showingFirst(empty));

    const QString against = QStringLiteral("a program with an empty QMainWindow");
    report.compare(QStringLiteral("program started to first frame"), against, rounds, starting(logbook),
                   starting(empty));
    const QTemporaryDir folder;
    Catalogue::withEntries(1000).writeTo(folder.path());
    report.compare(QStringLiteral("program started to first frame, 100 batteries, 1000 entries"), against,
                   rounds, starting(logbook, {folder.path()}), starting(empty));

    const QTemporaryDir pictures;
    const QStringList drawing = {QStringLiteral("--data"), folder.path(), QStringLiteral("--screenshot"),
                                 pictures.filePath(QStringLiteral("overview.png"))};
    report.compare(QStringLiteral("host started, folder locked, file checked, window drawn into a file"),
                   against, rounds, starting(QStringLiteral(HOST), drawing), starting(empty));
}
