// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/faultrun.h"

#include "host/data/measured.h"
#include "host/data/moments.h"
#include "host/safety/backups.h"
#include "host/safety/recovery.h"
#include "host/safety/storagefolder.h"
#include "tests/support/files.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LookAgainMs = 15;
constexpr int SettleMs = 1200;     // within which a change must be in the file and in a copy
constexpr int SettleAgainMs = 200; // where one was not, the others need not be waited for
constexpr int PatienceMs = 30'000;

QList<std::pair<QString, QByteArray>> filesBelow(const QString &folder)
{
    QList<std::pair<QString, QByteArray>> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.append({path, Test::contents(path)});
    }
    return files;
}

bool changesTheLogbook(const QString &command)
{
    return command == u"click" || command.startsWith(u"add-");
}

} // namespace

QList<Operation> operationsIn(const QString &faultLog)
{
    QList<Operation> operations;
    const QList<QByteArray> lines = Test::contents(faultLog).split('\n');
    for (const QByteArray &line : lines) {
        const QStringList words = QString::fromUtf8(line).split(u'\t');
        if (words.size() >= 4)
            operations.append({words.at(0).toInt(), words.at(1), words.at(2), words.at(3), words.size() > 4});
    }
    return operations;
}

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

QByteArray measuredOf(const QString &battery, const QDateTime &time)
{
    Measured measured;
    MeasuredDischarge entry;
    entry.battery = battery;
    entry.moment = momentOf(time);
    measured.discharges.append(entry);
    return MeasuredFile::save(measured);
}

QString Fault::name() const
{
    if (kind.isEmpty())
        return u"no fault"_s;
    return kind + (forever ? u" from operation %1 on"_s : u" at operation %1"_s).arg(at);
}

FaultRun::FaultRun(const Scenario &scenario, const Fault &fault, const QString &display)
    : m_scenario(scenario)
    , m_fault(fault)
    , m_record(scenario.start)
{
    m_record.letItHoldMore(); // where it restores a copy
    m_home.makeLogbook(QByteArray());
    scenario.prepare(m_home);
    m_before = filesBelow(m_home.logbook());

    QProcessEnvironment environment = m_home.environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"DISPLAY"_s, display);
    Harness::drive(&environment);
    Harness::preload(&environment);
    environment.insert(u"VOLTBOK_FAULT_FOLDER"_s, m_home.logbook());
    environment.insert(u"VOLTBOK_FAULT_LOG"_s, m_home.faultLog());
    if (!fault.kind.isEmpty()) {
        environment.insert(u"VOLTBOK_FAULT_KIND"_s, fault.kind);
        environment.insert(u"VOLTBOK_FAULT_AT"_s, QString::number(fault.at));
    }
    if (fault.forever)
        environment.insert(u"VOLTBOK_FAULT_FOREVER"_s, u"1"_s);
    m_process.setProcessEnvironment(environment);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &FaultRun::readReports);
    connect(&m_process, &QProcess::finished, this, &FaultRun::finished);
    connect(&m_settling, &QTimer::timeout, this, &FaultRun::lookWhetherSettled);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_problems.append(u"it hangs"_s);
        m_process.kill();
    });
}

QString FaultRun::struck() const
{
    for (const Operation &operation : m_operations) {
        if (operation.struck)
            return operation.name + u' ' + operation.path;
    }
    return QString();
}

void FaultRun::start()
{
    m_process.start(QStringLiteral(PROGRAM), {u"--data"_s, m_home.logbook()});
    m_patience.start(PatienceMs);
    next();
}

void FaultRun::next()
{
    if (m_command < m_scenario.commands.size()) {
        const QStringList &command = m_scenario.commands.at(m_command++);
        m_process.write(Harness::command(command));
        if (command.constFirst() == u"wait") // which it does without a report
            next();
        return;
    }
    m_ends = true;
    m_process.write(Harness::command({u"quit"_s}));
    m_process.write(Harness::command({u"press"_s, u"Quit"_s})); // should it ask whether that is meant
}

void FaultRun::readReports()
{
    while (m_process.canReadLine()) {
        const Event event = Event::parse(m_process.readLine());
        m_record.add(event);
        if (event.state == u"box" || event.state == u"begin" || event.state == u"now" || m_ends)
            continue;
        const QString &command = event.words.constFirst();
        if (command == u"messages")
            judgeMessages(event.words.mid(1));
        static const QRegularExpression less(u"\\((damaged|cannot be read)\\)|cannot be listed"_s);
        m_offeredLess = m_offeredLess || !event.words.filter(less).isEmpty();
        m_settleBy = event.time + (m_missed ? SettleAgainMs : SettleMs);
        if (event.isDone() && changesTheLogbook(command))
            m_settling.start(LookAgainMs);
        else
            next();
    }
}

bool FaultRun::isSaved() const
{
    const Logbook found = Logbook::readFile(m_home.dataFile());
    return found.whole && m_record.missing(found).isEmpty();
}

bool FaultRun::isCopied() const
{
    const QList<Copy> copies = Backups::list(StorageFolder(m_home.logbook()));
    return !copies.isEmpty() && Test::contents(m_home.logbook() + u"/backups/"_s +
                                               copies.constFirst().name) == Test::contents(m_home.dataFile());
}

bool FaultRun::isAsItWas() const
{
    for (const auto &[path, bytes] : m_before) {
        if (path == m_home.dataFile())
            return Test::contents(path) == bytes;
    }
    return !QFile::exists(m_home.dataFile());
}

void FaultRun::lookWhetherSettled()
{
    const bool settled = isSaved() && isCopied();
    if (!settled && QDateTime::currentMSecsSinceEpoch() < m_settleBy)
        return;
    m_settling.stop();
    if (settled)
        m_settled = m_record.events().constLast().time;
    m_missed = m_missed || !settled;
    // It must say so now, but a loss that it was asked about before is told once.
    const QStringList missing = m_record.missing(Logbook::readFile(m_home.dataFile()));
    const bool isKnown = !missing.isEmpty() && missing == m_askedAbout && isCopied();
    m_askedAbout = missing;
    if (settled || isKnown)
        next();
    else
        m_process.write(Harness::command({u"messages"_s}));
}

void FaultRun::finished()
{
    m_settling.stop();
    m_patience.stop();
    readReports();
    m_operations = operationsIn(m_home.faultLog());
    m_complaints = Harness::complaints(m_process.readAllStandardError());
    const bool killed = m_process.exitStatus() == QProcess::CrashExit;
    if (m_problems.isEmpty() && killed != (m_fault.kills() && !struck().isEmpty()))
        m_problems.append(killed ? u"it crashed"_s : u"it lived on"_s);
    judge();
    Q_EMIT over();
}

void FaultRun::judge()
{
    judgeCopies();
    judgeRecords();
    if (m_fault.kills())
        return;
    judgeWords();
    judgeLeftovers();
}

/** No copy is ever broken, and nothing that was in the folder at first is gone. */
void FaultRun::judgeCopies()
{
    const auto files = filesBelow(m_home.logbook());
    for (const auto &[path, bytes] : files) {
        if (Backups::parse(QFileInfo(path).fileName()) && !Logbook::read(bytes).whole)
            m_problems.append(u"broken copy "_s + path);
    }
    for (const auto &before : std::as_const(m_before)) {
        const bool isThere = std::any_of(files.cbegin(), files.cend(),
                                         [&](const auto &file) { return file.second == before.second; });
        // What was whole at first may be changed by the window; a copy of it is then one of the copies.
        const bool mayChange = before.first == m_home.dataFile() && Logbook::read(before.second).whole;
        if (!isThere && !mayChange)
            m_problems.append(u"lost bytes of "_s + before.first);
    }
}

/** What was acknowledged is in the file, or what had time to be copied is in a whole copy. */
void FaultRun::judgeRecords()
{
    const StorageFolder folder(m_home.logbook());
    const Logbook file = Logbook::readFile(m_home.dataFile());
    const QStringList notInFile = m_record.missing(file);
    if (file.whole && notInFile.isEmpty())
        return;
    if (m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() != 0 && !isAsItWas())
        m_problems.append(u"refused, and the file is not as it was"_s);
    if (file.whole && m_fault.kills()) {
        m_problems.append(u"not in the file: "_s + notInFile.join(u", "));
        return;
    }
    m_missed = true;
    QByteArray copy;
    Backups::newestWhole(folder, &copy);
    const QStringList notInCopy = m_record.missing(Logbook::read(copy), m_settled);
    if (m_settled > 0 && !notInCopy.isEmpty())
        m_problems.append(u"neither in the file nor in the newest copy: "_s + notInCopy.join(u", "));
    if (!m_before.isEmpty() && Recovery::examine(folder).kind == FileState::New)
        m_problems.append(u"the next start would begin with an empty logbook"_s);
}

/** Something was not saved or not copied: the window says so while it is on show. */
void FaultRun::judgeMessages(const QStringList &messages)
{
    if (messages.isEmpty() && !m_offeredLess)
        m_problems.append(u"not a word in the window"_s);
}

/** Nothing stays behind where a program that ended in order has made it. */
void FaultRun::judgeLeftovers()
{
    const QStringList names = m_home.leftovers();
    if (!names.isEmpty())
        m_problems.append(u"left behind: "_s + names.join(u", "));
}

/** Whatever was not saved or not copied was said, once. */
void FaultRun::judgeWords()
{
    const bool atTheEnd = Logbook::readFile(m_home.dataFile()).whole && !isCopied();
    if ((m_missed || atTheEnd) && m_complaints.isEmpty())
        m_problems.append(u"not a word on standard error"_s);
    QStringList once = m_complaints;
    if (once.removeDuplicates() > 0)
        m_problems.append(u"said more than once: "_s + m_complaints.join(u" | "));
}
