// SPDX-License-Identifier: GPL-3.0-or-later
// The command that restores a copy, killed at or failing in each of its file operations.
#include "host/data/measured.h"
#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/faultrun.h"
#include "tests/support/files.h"

#include <QDirIterator>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray laterLogbook()
{
    return smallLogbook().replace("\"Meadow\"/>", "\"Meadow\"/>\n        <Location Name=\"Slope\"/>");
}

QByteArray measured(const QString &battery)
{
    Measured measured;
    MeasuredDischarge entry;
    entry.battery = battery;
    measured.discharges.append(entry);
    return MeasuredFile::save(measured);
}

struct Result
{
    bool isKilled = false;
    int status = -1;
    QString errors;
    QList<Operation> operations;
};

/** A logbook, a copy of it as it was earlier, and measured values of both. */
class RestoreHome : public Home
{
public:
    explicit RestoreHome(const QByteArray &present)
    {
        makeLogbook(laterLogbook());
        write(measuredFile(), measured(u"3S A"_s));
        const QString problem =
            Backups::add(folder(), laterLogbook(), QDateTime::currentDateTimeUtc().addSecs(-3600));
        if (!problem.isEmpty())
            qFatal("%s", qPrintable(problem));
        m_stamp = Backups::list(folder()).constFirst().stamp;
        write(dataFile(), present);
        write(measuredFile(), measured(u"3S B"_s));
        m_before = filesBelow();
    }

    StorageFolder folder() const { return StorageFolder(logbook()); }
    QString measuredFile() const { return folder().measuredFile(); }
    bool isRestored() const
    {
        return Test::contents(dataFile()) == laterLogbook() &&
               Test::contents(measuredFile()) == measured(u"3S A"_s);
    }
    bool isAsItWas(const QByteArray &present) const
    {
        return Test::contents(dataFile()) == present && Test::contents(measuredFile()) == measured(u"3S B"_s);
    }

    Result restore(const Fault &fault) const
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
        program.start(QStringLiteral(PROGRAM), {u"--data"_s, logbook(), u"backups"_s, u"restore"_s, m_stamp});
        if (!program.waitForFinished(20'000))
            return {};
        return {program.exitStatus() == QProcess::CrashExit, program.exitCode(),
                QString::fromUtf8(program.readAllStandardError()), operationsIn(faultLog())};
    }

    /** What is lost or half of what was there at first; empty when nothing is. */
    QStringList lost() const
    {
        QStringList problems;
        const QMap<QString, QByteArray> files = filesBelow();
        for (auto file = m_before.cbegin(); file != m_before.cend(); ++file) {
            if (!files.values().contains(file.value()))
                problems.append(u"lost bytes of "_s + file.key());
        }
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            if (Backups::parse(QFileInfo(file.key()).fileName()) && !Logbook::read(file.value()).whole)
                problems.append(u"broken copy "_s + file.key());
        }
        return problems;
    }

private:
    static void write(const QString &path, const QByteArray &bytes)
    {
        if (!Test::write(path, bytes))
            qFatal("a test cannot write");
    }
    QMap<QString, QByteArray> filesBelow() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator it(logbook(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            files.insert(path, Test::contents(path));
        }
        return files;
    }

    QString m_stamp;
    QMap<QString, QByteArray> m_before;
};

QList<Fault> faultsFor(const QList<Operation> &operations)
{
    QList<Fault> faults;
    for (const Operation &operation : operations) {
        const auto add = [&](QChar flag, const QString &kind, bool forever = false) {
            if (flag.isNull() || operation.flags.contains(flag))
                faults.append({kind, operation.number, forever});
        };
        add(u'c', u"kill-before"_s);
        add(u'c', u"kill-after"_s);
        add(u'w', u"kill-middle"_s);
        add(u's', u"ENOSPC"_s);
        add(u's', u"ENOSPC"_s, true);
        add(u'p', u"EACCES"_s);
        add(QChar(), u"EIO"_s);
    }
    return faults;
}

} // namespace

class RestoreFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whateverOperationFailsTheLogbookIsAsItWasOrRestored_data();
    void whateverOperationFailsTheLogbookIsAsItWasOrRestored();

private:
    static QStringList judge(const RestoreHome &home, const Result &result, const QByteArray &present);
};

/** What is wrong after a fault; nothing when every promise is kept. */
QStringList RestoreFaultsTest::judge(const RestoreHome &home, const Result &result, const QByteArray &present)
{
    QStringList problems = home.lost();
    if (result.isKilled) {
        const QByteArray bytes = Test::contents(home.dataFile());
        if (QFile::exists(home.dataFile()) && bytes != present && bytes != laterLogbook())
            problems.append(u"the file is neither"_s);
        Result again = home.restore({});                         // which ends what was cut off
        if (again.errors.contains(u"take the logbook over"_s)) { // half a lock names no computer
            QFile::remove(home.folder().lock());
            again = home.restore({});
        }
        if (again.status != 0 || !home.isRestored())
            problems.append(u"it cannot be repeated: "_s + again.errors);
        return problems + home.lost();
    }
    // Measured values that cannot be read cost themselves alone, and that is said.
    const bool isSaid = !result.errors.isEmpty() && Test::contents(home.dataFile()) == laterLogbook();
    if (result.status == 0 && !home.isRestored() && !isSaid)
        problems.append(u"done, and it is not"_s);
    if (result.status == 1 && !home.isAsItWas(present))
        problems.append(u"not done, and it is not as it was"_s);
    if (result.status == 1 && result.errors.isEmpty())
        problems.append(u"not a word"_s);
    if (result.status != 0 && result.status != 1)
        problems.append(u"status %1"_s.arg(result.status));
    const QStringList left = QDir(home.logbook()).entryList({u"voltbok-new.xml*"_s});
    if (!left.isEmpty() && result.status == 0)
        problems.append(u"left behind: "_s + left.join(u", "));
    return problems;
}

void RestoreFaultsTest::whateverOperationFailsTheLogbookIsAsItWasOrRestored_data()
{
    QTest::addColumn<QByteArray>("present");
    QTest::newRow("whole") << smallLogbook();
    QTest::newRow("damaged") << smallLogbook().chopped(40);
}

void RestoreFaultsTest::whateverOperationFailsTheLogbookIsAsItWasOrRestored()
{
    QFETCH(QByteArray, present);
    QList<Operation> operations;
    {
        const RestoreHome home(present);
        const Result faultless = home.restore({});
        QCOMPARE(faultless.errors, QString());
        QCOMPARE(faultless.status, 0);
        QVERIFY(home.isRestored() && home.lost().isEmpty());
        operations = faultless.operations;
    }
    const QList<Fault> faults = faultsFor(operations);
    int struck = 0;
    int killed = 0;
    QStringList problems;
    for (const Fault &fault : faults) {
        const RestoreHome home(present);
        const Result result = home.restore(fault);
        QString place;
        for (const Operation &operation : result.operations) {
            if (operation.struck && place.isEmpty())
                place = operation.name + u' ' + operation.path;
        }
        struck += place.isEmpty() ? 0 : 1;
        killed += result.isKilled ? 1 : 0;
        const QStringList wrong = judge(home, result, present);
        if (!wrong.isEmpty())
            problems.append(u"%1 (%2): %3 %4"_s.arg(fault.name(), place, wrong.join(u"; "), result.errors));
    }
    qInfo("%lld operations, %lld runs, %d struck, %d killed", static_cast<long long>(operations.size()),
          static_cast<long long>(faults.size()), struck, killed);
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem));
    QVERIFY(problems.isEmpty());
    QCOMPARE(struck, faults.size()); // nothing else is at work
    QVERIFY(killed > 30);
}

QTEST_GUILESS_MAIN(RestoreFaultsTest)
#include "tst_restorefaults.moc"
