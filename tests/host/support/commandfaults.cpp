// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/commandfaults.h"

#include "host/safety/backups.h"
#include "tests/support/files.h"

#include <QDirIterator>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

CommandHome::State CommandHome::state() const
{
    return {Test::contents(dataFile()), Test::contents(folder().measuredFile())};
}

void CommandHome::put(const State &state) const
{
    write(dataFile(), state.document);
    write(folder().measuredFile(), state.beside);
}

void CommandHome::write(const QString &path, const QByteArray &bytes)
{
    if (!Test::write(path, bytes))
        qFatal("a test cannot write");
}

void CommandHome::begin()
{
    m_files = filesBelow();
    before = state();
}

CommandHome::Result CommandHome::run(const Fault &fault) const
{
    QProcess program;
    QProcessEnvironment variables = environment();
    Harness::preload(&variables);
    variables.insert(u"VOLTBOK_FAULT_FOLDER"_s, logbook());
    variables.insert(u"VOLTBOK_FAULT_LOG"_s, faultLog());
    QFile::remove(faultLog());
    if (!fault.kind.isEmpty()) {
        variables.insert(u"VOLTBOK_FAULT_KIND"_s, fault.kind);
        variables.insert(u"VOLTBOK_FAULT_AT"_s, QString::number(fault.at));
    }
    if (fault.forever)
        variables.insert(u"VOLTBOK_FAULT_FOREVER"_s, u"1"_s);
    program.setProcessEnvironment(variables);
    program.start(QStringLiteral(PROGRAM), QStringList{u"--data"_s, logbook()} + arguments);
    if (!program.waitForFinished(20'000))
        return {};
    return {program.exitStatus() == QProcess::CrashExit, program.exitCode(),
            QString::fromUtf8(program.readAllStandardError()), operationsIn(faultLog())};
}

QStringList CommandHome::lost() const
{
    QStringList problems;
    const QMap<QString, QByteArray> files = filesBelow();
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (!files.values().contains(file.value()))
            problems.append(u"lost bytes of "_s + file.key());
    }
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (Backups::parse(QFileInfo(file.key()).fileName()) && !Logbook::read(file.value()).whole)
            problems.append(u"broken copy "_s + file.key());
    }
    return problems;
}

QStringList CommandHome::judge(const Result &result) const
{
    if (result.isKilled)
        return judgeKilled();
    QStringList problems = lost();
    // Measured values that cannot be read cost themselves alone, and that is said.
    const bool isSaid = !result.errors.isEmpty() && state().document == after.document;
    if (result.status == 0 && !(state() == after) && !isSaid)
        problems.append(u"done, and it is not"_s);
    if (result.status == 1 && !(state() == before))
        problems.append(u"not done, and it is not as it was"_s);
    if (result.status == 1 && result.errors.isEmpty())
        problems.append(u"not a word"_s);
    if (result.status != 0 && result.status != 1)
        problems.append(u"status %1"_s.arg(result.status));
    const QStringList left = QDir(logbook()).entryList({u"voltbok-new.xml*"_s});
    if (!left.isEmpty() && result.status == 0)
        problems.append(u"left behind: "_s + left.join(u", "));
    return problems;
}

/** The file is one or the other, and the command ends what was cut off when it is repeated. */
QStringList CommandHome::judgeKilled() const
{
    QStringList problems = lost();
    const QByteArray document = state().document;
    if (QFile::exists(dataFile()) && document != before.document && document != after.document)
        problems.append(u"the file is neither"_s);
    Result again = run();
    if (again.errors.contains(u"take the logbook over"_s)) { // half a lock names no computer
        QFile::remove(folder().lock());
        again = run();
    }
    if (again.status != 0 || !(state() == after))
        problems.append(u"it cannot be repeated: "_s + again.errors);
    return problems + lost();
}

QMap<QString, QByteArray> CommandHome::filesBelow() const
{
    QMap<QString, QByteArray> files;
    QDirIterator it(logbook(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(path, Test::contents(path));
    }
    return files;
}

void tryEveryFault(const std::function<std::unique_ptr<CommandHome>()> &makeHome)
{
    const std::unique_ptr<CommandHome> first = makeHome();
    const CommandHome::Result faultless = first->run();
    QCOMPARE(faultless.errors, QString());
    QCOMPARE(faultless.status, 0);
    QVERIFY(first->state() == first->after && first->lost().isEmpty());
    const QList<Fault> faults = faultsFor(faultless.operations);
    int struck = 0;
    int killed = 0;
    QStringList problems;
    for (const Fault &fault : faults) {
        const std::unique_ptr<CommandHome> home = makeHome();
        const CommandHome::Result result = home->run(fault);
        QString place;
        for (const Operation &operation : result.operations) {
            if (operation.struck && place.isEmpty())
                place = operation.name + u' ' + operation.path;
        }
        struck += place.isEmpty() ? 0 : 1;
        killed += result.isKilled ? 1 : 0;
        const QStringList wrong = home->judge(result);
        if (!wrong.isEmpty())
            problems.append(u"%1 (%2): %3 %4"_s.arg(fault.name(), place, wrong.join(u"; "), result.errors));
    }
    qInfo("%lld operations, %lld runs, %d struck, %d killed",
          static_cast<long long>(faultless.operations.size()), static_cast<long long>(faults.size()), struck,
          killed);
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem));
    QVERIFY(problems.isEmpty());
    QCOMPARE(struck, faults.size()); // nothing else is at work
    QVERIFY(killed > 30);
}
