// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/measured.h"
#include "host/data/moments.h"
#include "host/safety/backups.h"
#include "host/safety/recovery.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/harness.h"
#include "tests/host/support/logbook.h"
#include "tests/host/support/record.h"
#include "tests/host/support/stormbook.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Kills = 500;
constexpr int Logs = 3;
constexpr int AtOnce = 8;
constexpr int KillsOfALogbook = 10; // the copies of ten lives take little room
constexpr int PauseMs = 40;         // between two changes
constexpr int GraceMs = 1000;       // within which a change must be in a copy

struct Tally
{
    int started = 0;
    int kills = 0;
    int inDeed = 0; // kills while the whole logbook was being changed
    int owing = 0;  // kills at which something was owed beyond what the start had found
    int broken = 0;
    int recoveries = 0;
    int saves = 0;
    QMap<QString, int> deeds; // changes of the whole logbook, by what was done
    QStringList faults;
};

/** Which discharges the file beside a logbook tells of. */
QStringList measuredBeside(const StorageFolder &folder)
{
    QStringList names;
    const Measured measured = MeasuredFile::load(Test::contents(folder.measuredFile())).measured;
    for (const MeasuredDischarge &discharge : measured.discharges)
        names.append(discharge.battery + u' ' + timeOf(discharge.moment).toString(Qt::ISODate));
    names.sort();
    return names;
}

} // namespace

/** A program that changes its logbook without rest, killed and started again over the same folder. */
class Victim final : public QObject
{
    Q_OBJECT

public:
    Victim(Tally &tally, QRandomGenerator &random)
        : m_tally(tally)
        , m_random(random)
    {
        m_kill.setSingleShot(true);
        connect(&m_kill, &QTimer::timeout, this, &Victim::kill);
        connect(&m_process, &QProcess::readyReadStandardOutput, this, &Victim::readReports);
        connect(&m_process, &QProcess::finished, this, &Victim::died);
    }

    void start();

Q_SIGNALS:
    void over();

private:
    void makeHome();
    void putConflict();
    void readReports();
    void kill();
    void died();
    QString judge(qint64 death);
    QString judgeWhole(const Logbook &found) const;
    QString judgeConflict(const Logbook &found) const;
    QString conflictFile() const { return m_home->logbook() + u'/' + StormBook::conflictName(m_conflicts); }
    QString recover(const QByteArray &damaged, qint64 limit);
    QString refusal(const QByteArray &damaged) const;

    Tally &m_tally;
    QRandomGenerator &m_random;
    std::unique_ptr<Home> m_home;
    int m_deaths = 0;
    int m_conflicts = 0; // that the logbook has had
    bool m_hasConflict = false;
    QProcess m_process;
    QTimer m_kill;
    qint64 m_killed = 0;
    Record m_record; // since this start; it began with a file that held all that was owed before
};

void Victim::makeHome()
{
    m_home = std::make_unique<Home>();
    m_home->makeLogbook(StormBook::document());
    const QString problem = Backups::add(StorageFolder(m_home->logbook()), StormBook::document(),
                                         QDateTime::currentDateTimeUtc().addSecs(-3600));
    QDir(m_home->path()).mkdir(u"card"_s);
    bool isWritten = problem.isEmpty();
    for (int i = 0; i < Logs; ++i)
        isWritten =
            Test::write(m_home->path() + u"/card/"_s + StormBook::logName(i), StormBook::log(i)) && isWritten;
    if (!isWritten)
        qFatal("a test cannot write a logbook");
    m_deaths = 0;
    m_conflicts = 0;
}

/** Another computer has changed the logbook, too; unless its last change is not merged yet. */
void Victim::putConflict()
{
    m_hasConflict = m_conflicts > 0 && QFile::exists(conflictFile());
    if (m_hasConflict || m_random.bounded(2) == 0)
        return;
    ++m_conflicts;
    m_hasConflict = true;
    if (!Test::write(conflictFile(), StormBook::theirs(m_conflicts)))
        qFatal("a test cannot write a logbook");
}

void Victim::start()
{
    if (m_tally.started == Kills)
        return Q_EMIT over();
    ++m_tally.started;
    if (!m_home || m_deaths == KillsOfALogbook)
        makeHome();
    putConflict();
    m_record =
        Record(Logbook::readFile(m_home->dataFile()), measuredBeside(StorageFolder(m_home->logbook())));
    m_killed = 0;
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    Harness::drive(&environment);
    const int fate = m_random.bounded(4); // a kill from outside rarely meets a save or a change half done
    if (fate < 2) {
        Harness::preload(&environment);
        environment.insert(u"VOLTBOK_FAULT_FOLDER"_s, m_home->logbook());
    }
    if (fate == 0) {
        environment.insert(u"VOLTBOK_DIES_IN_DEED"_s, u"1"_s);
    } else if (fate == 1) {
        environment.insert(u"VOLTBOK_FAULT_KIND"_s, u"kill-middle"_s);
        environment.insert(u"VOLTBOK_FAULT_AT"_s, QString::number(m_random.bounded(500, 1500)));
    }
    m_process.setProcessEnvironment(environment);
    m_process.start(QStringLiteral(PROGRAM), {u"--data"_s, m_home->logbook()});
    m_process.write(Harness::command({u"storm"_s, QString::number(PauseMs),
                                      QString::number(m_random.generate()), m_home->path() + u"/card"_s}));
    m_kill.start(60'000); // should it never report anything
}

void Victim::readReports()
{
    while (m_process.canReadLine()) {
        const int changes = m_record.changes();
        m_record.add(Event::parse(m_process.readLine()));
        if (changes == 0 && m_record.changes() == 1)
            m_kill.start(m_process.processEnvironment().contains(u"VOLTBOK_FAULT_FOLDER"_s)
                             ? 10'000
                             : m_random.bounded(900, 2300));
    }
}

void Victim::kill()
{
    m_killed = QDateTime::currentMSecsSinceEpoch();
    m_process.kill();
}

void Victim::died()
{
    m_kill.stop();
    readReports();
    ++m_deaths;
    ++m_tally.kills;
    m_tally.saves += m_record.changes();
    m_tally.inDeed += m_record.unfinishedDeed().isEmpty() ? 0 : 1;
    for (const Event &event : m_record.events()) {
        if (event.isDone() && Steps::isDeed(event.words.value(0)))
            ++m_tally.deeds[event.words.constFirst()];
    }
    const QString standardError = QString::fromUtf8(m_process.readAllStandardError());
    // One that died by itself in the middle of a save did so right after its last report.
    const qint64 death =
        m_killed || m_record.events().isEmpty() ? m_killed : m_record.events().constLast().time;
    const bool hasBegun = m_record.changes() > 0 || !m_record.unfinishedDeed().isEmpty(); // be it its first
    const QString fault = m_process.exitStatus() == QProcess::CrashExit && hasBegun
                              ? judge(death)
                              : u"ended by itself: "_s + standardError;
    if (!fault.isEmpty()) {
        m_tally.faults.append(u"kill %1: %2"_s.arg(QString::number(m_tally.kills), fault));
        m_home.reset(); // one fault is one, not the first of many
    }
    start();
}

/** @return what is wrong with the file that the kill left; empty when it holds what is owed. */
QString Victim::judge(qint64 death)
{
    const qint64 limit = death - GraceMs - m_record.longestRest(death - 3LL * GraceMs);
    m_tally.owing += m_record.changes(limit) > 0 ? 1 : 0;
    const QByteArray bytes = Test::contents(m_home->dataFile());
    const Logbook found = Logbook::read(bytes);
    const bool isWhole = Recovery::examine(StorageFolder(m_home->logbook())).kind == FileState::Whole;
    if (isWhole != found.whole)
        return u"whole or not: the program and the test differ"_s;
    if (found.whole)
        return judgeWhole(found);
    if (const QStringList deed = m_record.unfinishedDeed(); !deed.isEmpty())
        return u"broken by "_s + deed.constFirst();
    ++m_tally.broken;
    return recover(bytes, limit);
}

/** The last save is complete: there is no excuse for anything. */
QString Victim::judgeWhole(const Logbook &found) const
{
    QStringList problems = m_record.missing(found);
    const QStringList measured = measuredBeside(StorageFolder(m_home->logbook()));
    if (!m_record.mayTellOf(measured))
        problems.append(u"measured: "_s + measured.join(u"; "));
    problems.append(judgeConflict(found));
    problems.removeAll(QString());
    return problems.join(u", ");
}

/** The other version waits for its merge, or was merged and is kept. */
QString Victim::judgeConflict(const Logbook &found) const
{
    if (!m_hasConflict || QFile::exists(conflictFile()))
        return QString();
    const QStringList kept = StorageFolder(m_home->logbook()).mergedVersions();
    const bool isKept = std::any_of(kept.cbegin(), kept.cend(), [this](const QString &path) {
        return Test::contents(path) == StormBook::theirs(m_conflicts);
    });
    if (!isKept)
        return u"the other version is gone"_s;
    const QList<Event> &events = m_record.events();
    const bool isMerged = std::any_of(events.cbegin(), events.cend(), [](const Event &event) {
        return event.isDone() && event.words.value(0) == u"merge";
    });
    return isMerged || found.locations.contains(StormBook::theirPlace(m_conflicts))
               ? QString()
               : u"the other version is put aside, and not merged"_s;
}

/** Puts the newest whole copy in the place of a broken file, as the program does when somebody agrees. */
QString Victim::recover(const QByteArray &damaged, qint64 limit)
{
    const QString problem = refusal(damaged);
    if (!problem.isEmpty())
        return problem;
    const StorageFolder folder(m_home->logbook());
    Recovery::finishInterrupted(folder);
    QByteArray copy;
    if (!Backups::newestWhole(folder, &copy))
        return u"broken, and without a copy"_s;
    const QStringList missing = m_record.missing(Logbook::read(copy), limit);
    if (!missing.isEmpty())
        return u"not in the newest copy: "_s + missing.join(u", ");
    QString aside;
    const QString reason = Recovery::replace(folder, copy, QDateTime::currentDateTimeUtc(), &aside);
    if (!reason.isEmpty())
        return u"not restored: "_s + reason;
    if (Test::contents(aside) != damaged)
        return u"the broken file was not kept"_s;
    ++m_tally.recoveries;
    return QString();
}

/** What is wrong with the answer of a program without a screen to a broken file. */
QString Victim::refusal(const QByteArray &damaged) const
{
    QProcess program;
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PROGRAM), {u"--data"_s, m_home->logbook()});
    if (!program.waitForFinished() || program.exitCode() != 1)
        return u"a broken file was opened"_s;
    if (Harness::complaints(program.readAllStandardError()).size() != 1)
        return u"a broken file was not called so in one line"_s;
    return Test::contents(m_home->dataFile()) == damaged ? QString() : u"a broken file was overwritten"_s;
}

class KilledProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingThatWasAcknowledgedIsLostByAKill();
};

void KilledProgramTest::nothingThatWasAcknowledgedIsLostByAKill()
{
    const quint32 seed = qEnvironmentVariableIsSet("VOLTBOK_SEED")
                             ? static_cast<quint32>(qEnvironmentVariableIntValue("VOLTBOK_SEED"))
                             : QRandomGenerator::global()->generate();
    qInfo("VOLTBOK_SEED=%u", seed);
    QRandomGenerator random(seed);
    const QStringList leftBefore = Harness::sharedLeftovers();
    QElapsedTimer clock;
    clock.start();

    Tally tally;
    {
        QEventLoop loop;
        int running = AtOnce;
        std::vector<std::unique_ptr<Victim>> victims;
        for (int i = 0; i < AtOnce; ++i) {
            victims.push_back(std::make_unique<Victim>(tally, random));
            connect(victims.back().get(), &Victim::over, &loop, [&] {
                if (--running == 0)
                    loop.quit();
            });
        }
        for (const auto &victim : victims)
            victim->start();
        loop.exec();
    }
    qInfo(
        "%d kills in %lld s, %d with something owed; %d acknowledged changes; %d broken files, %d recoveries",
        tally.kills, static_cast<long long>(clock.elapsed() / 1000), tally.owing, tally.saves, tally.broken,
        tally.recoveries);
    QStringList deeds;
    for (auto deed = tally.deeds.cbegin(); deed != tally.deeds.cend(); ++deed)
        deeds.append(deed.key() + u' ' + QString::number(deed.value()));
    qInfo("%d kills in a change of the whole logbook; these were acknowledged: %s", tally.inDeed,
          qPrintable(deeds.join(u", ")));
    for (const QString &problem : std::as_const(tally.faults))
        qWarning("%s", qPrintable(problem)); // all of them: a failure's own text is cut
    QVERIFY(tally.faults.isEmpty());
    QCOMPARE(tally.kills, Kills);
    QVERIFY(tally.owing >= Kills / 2);
    QVERIFY(tally.saves >= 10 * Kills);
    for (const QString &deed : {u"edit"_s, u"import"_s, u"merge"_s, u"redo"_s, u"restore"_s, u"undo"_s})
        QVERIFY2(tally.deeds.value(deed) >= Kills / 25, qPrintable(deed));
    QVERIFY(tally.inDeed >= Kills / 20);
    QVERIFY(tally.broken >= Kills / 20);
    QCOMPARE(tally.recoveries, tally.broken);
    QTRY_VERIFY_WITH_TIMEOUT(Harness::sharedLeftovers(leftBefore).isEmpty(), 10'000);
}

QTEST_GUILESS_MAIN(KilledProgramTest)
#include "tst_killedprogram.moc"
