// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "report.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <optional>

namespace {

/** A server of X11 windows that are drawn into memory. */
class XServer
{
public:
    XServer()
    {
        server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
        if (!server.waitForReadyRead())
            qFatal("Xvfb did not start.");
        surroundings.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        surroundings.insert(QStringLiteral("DISPLAY"),
                            u':' + QString::fromLatin1(server.readAllStandardOutput().trimmed()));
    }
    ~XServer()
    {
        server.terminate();
        server.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(XServer)

    /** Those of a program whose window this server shows. */
    const QProcessEnvironment &environment() const { return surroundings; }

private:
    QProcess server;
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
};

/** Runs a program, by its path or one that lies beside this one, and returns the number that it printed. */
double run(const QString &name, const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess program;
    program.setProcessEnvironment(environment);
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
Measure::Run showingFirst(const QString &name, const QProcessEnvironment &environment)
{
    return [name, environment] { return run(name, {}, environment); };
}

} // namespace

void Benchmarks::startup(Report &report, const Plan &plan)
{
    const QString empty = QStringLiteral("start_empty");
    const QString logbook = QStringLiteral("start_logbook");
    const int rounds = plan.rounds(1000);
    const auto compareFirstWindow = [&](const QString &where, const QProcessEnvironment &environment,
                                        std::optional<double> target) {
        report.compare(QStringLiteral("first window of a program constructed and shown") + where,
                       QStringLiteral("an empty QMainWindow as the first"), rounds,
                       showingFirst(logbook, environment), showingFirst(empty, environment), target);
    };
    compareFirstWindow({}, QProcessEnvironment::systemEnvironment(), {});
    compareFirstWindow(QStringLiteral(" by an X server"), XServer().environment(), 8.0);

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
