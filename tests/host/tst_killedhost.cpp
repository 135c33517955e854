// SPDX-License-Identifier: GPL-3.0-or-later
#include "backups.h"
#include "records/batterywidget.h"
#include "recovery.h"
#include "storage/dataprocessor.h"
#include "storagefolder.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

/** The storm over one folder, killed and started again and again. */
struct Lineage
{
    QTemporaryDir folder;
    QProcess process;
    QList<std::pair<qint64, unsigned int>> saved; // time in ms and cycles, as reported since the last start
    unsigned int kept = 0;                        // cycles that the last start found
    qsizetype reports = 0;
    int recoveries = 0;

    void start()
    {
        reports += saved.size();
        saved.clear();
        process.start(QStringLiteral(STORM), {folder.path()});
        QVERIFY(process.waitForStarted());
    }

    void readReports()
    {
        while (process.canReadLine()) {
            const QList<QByteArray> words = process.readLine().trimmed().split(' ');
            QCOMPARE(words.size(), 2);
            saved.append({words.at(0).toLongLong(), words.at(1).toUInt()});
        }
    }

    unsigned int savedBefore(qint64 time) const
    {
        unsigned int cycles = kept;
        for (const auto &[when, count] : saved)
            cycles = when <= time ? qMax(cycles, count) : cycles;
        return cycles;
    }
};

class KilledHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingThatWasSavedASecondBeforeAKillIsLost();
};

namespace {
constexpr int Kills = 500;
constexpr int Lineages = 4;

/** The cycles that the next start will show, from the file or, if that is broken, from the newest whole copy.
 */
unsigned int cyclesAfterRestart(Lineage &lineage)
{
    if (Recovery::isBroken(lineage.folder.path())) {
        ++lineage.recoveries;
        const QString copy = Backups::newestWhole(lineage.folder.path());
        if (copy.isEmpty() || !Recovery::replaceBroken(lineage.folder.path(), copy).isEmpty())
            return 0;
    }
    DataProcessor processor(nullptr);
    processor.setBasePath(lineage.folder.path());
    QList<BatteryWidget *> batteries;
    processor.getBatteryWidgetsFromData(batteries);
    unsigned int cycles = 0;
    for (const BatteryWidget *battery : std::as_const(batteries)) {
        if (battery->getBatteryName() == QStringLiteral(BATTERY))
            cycles = battery->getBatteryCycles();
    }
    qDeleteAll(batteries);
    return cycles;
}
} // namespace

void KilledHostTest::nothingThatWasSavedASecondBeforeAKillIsLost()
{
    const quint32 seed = qEnvironmentVariableIsSet("VOLTBOK_SEED")
                             ? static_cast<quint32>(qEnvironmentVariableIntValue("VOLTBOK_SEED"))
                             : QRandomGenerator::global()->generate();
    qInfo("VOLTBOK_SEED=%u", seed);
    QRandomGenerator random(seed);

    std::vector<std::unique_ptr<Lineage>> lineages;
    for (int i = 0; i < Lineages; ++i) {
        lineages.push_back(std::make_unique<Lineage>());
        QVERIFY(QFile::copy(QStringLiteral(DEMO), dataFileName(lineages.back()->folder.path())));
    }
    for (int round = 0; round < Kills / Lineages; ++round) {
        for (auto &lineage : lineages)
            lineage->start();
        if (round % 10 == 0)
            QTest::qWait(1500); // long enough for a copy to be owed by this very run
        for (auto &lineage : lineages) {
            QTest::qWait(random.bounded(20, 260));
            lineage->process.kill();
            const qint64 killed = QDateTime::currentMSecsSinceEpoch();
            QVERIFY(lineage->process.waitForFinished());
            QCOMPARE(lineage->process.exitStatus(), QProcess::CrashExit);
            lineage->readReports();
            const unsigned int owed = lineage->savedBefore(killed - 1000);
            const unsigned int kept = cyclesAfterRestart(*lineage);
            lineage->kept = kept;
            QVERIFY2(kept >= owed,
                     qPrintable(QStringLiteral("round %1: %2 of %3").arg(round).arg(kept).arg(owed)));
        }
    }
    qsizetype reports = 0;
    int recoveries = 0;
    for (const auto &lineage : lineages) {
        reports += lineage->reports;
        recoveries += lineage->recoveries;
    }
    QVERIFY2(reports > Kills, qPrintable(QString::number(reports)));
    qInfo("%d kills, %lld saves reported, %d broken files replaced by their copies", Kills,
          static_cast<long long>(reports), recoveries);
}

QTEST_MAIN(KilledHostTest)
#include "tst_killedhost.moc"
