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

using namespace Qt::Literals::StringLiterals;

namespace {

/** A server of X11 windows that are drawn into memory. */
class XServer
{
public:
    XServer()
    {
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s});
        if (!server.waitForReadyRead())
            qFatal("Xvfb did not start.");
        surroundings.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        surroundings.insert(u"DISPLAY"_s,
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
    const QString empty = u"start_empty"_s;
    const QString logbook = u"start_logbook"_s;
    const int rounds = plan.rounds(1000);
    const auto compareFirstWindow = [&](const QString &where, const QProcessEnvironment &environment,
                                        std::optional<double> target) {
        report.compare(u"first window of a program constructed and shown"_s + where,
                       u"an empty QMainWindow as the first"_s, rounds, showingFirst(logbook, environment),
                       showingFirst(empty, environment), target);
    };
    compareFirstWindow({}, QProcessEnvironment::systemEnvironment(), {});
    compareFirstWindow(u" by an X server"_s, XServer().environment(), 8.0);

    const QString against = u"a program with an empty QMainWindow"_s;
    report.compare(u"program started to first frame"_s, against, rounds, starting(logbook), starting(empty));
    const QTemporaryDir folder;
    Catalogue::withEntries(1000).writeTo(folder.path());
    report.compare(u"program started to first frame, 100 batteries, 1000 entries"_s, against, rounds,
                   starting(logbook, {folder.path()}), starting(empty));

    const QTemporaryDir pictures;
    const QStringList drawing = {u"--data"_s, folder.path(), u"--screenshot"_s,
                                 pictures.filePath(u"overview.png"_s)};
    report.compare(u"host started, folder locked, file checked, window drawn into a file"_s, against, rounds,
                   starting(QStringLiteral(HOST), drawing), starting(empty));
}
