// SPDX-License-Identifier: GPL-3.0-or-later
// Two computers that share a logbook's folder, and change it while they do not reach each other.
#include "host/data/cataloguefile.h"
#include "host/safety/conflictfiles.h"
#include "host/window/mergedialog.h"
#include "tests/host/support/hostwindow.h"
#include "tests/host/support/importhome.h"
#include "tests/host/support/syncthing.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QTimer>

#include <memory>

using namespace Host;
using namespace PlainLogbook;

// The two compare their folders once a second, and the machine may have much other work.
#define TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 40'000)

class SyncthingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatBothRecordedApartIsInBothAfterAMerge();
    void cleanup();

private:
    /** Another computer's folder. */
    QString there() const { return m_program.home(u"there"_s); }
    QByteArray bytesThere() const { return Test::contents(there() + u"/voltbok.xml"_s); }
    Program::Result command(const QString &folder, const QStringList &arguments) const
    {
        return m_program.run(arguments + QStringList{u"--data"_s, folder});
    }
    void flyThere(int hour);
    void join();
    static qsizetype discharges(const QByteArray &document)
    {
        return CatalogueFile::load(document).catalogue.batteries.at(0).discharges.size();
    }
    static QStringList conflicts(const QString &folder)
    {
        return ConflictFiles::ofLogbook(StorageFolder(folder));
    }

    Program m_program;
    std::unique_ptr<HostWindow> m_window;
    std::unique_ptr<Syncthing> m_first;
    std::unique_ptr<Syncthing> m_second;
};

/** Imports the log of a flight that nobody has clicked, from a terminal. */
void SyncthingTest::flyThere(int hour)
{
    const QString log = m_program.home(u"Skylark-2026-05-03-%10000.csv"_s.arg(hour));
    QVERIFY(Test::write(log, ImportHome::header() + ImportHome::rows(at(hour, 0), 300, 1500)));
    const Program::Result result = command(there(), {u"import"_s, u"--battery"_s, u"A"_s, log});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
}

void SyncthingTest::join()
{
    m_second->join();
    TRY(m_first->isConnected() && m_second->isConnected());
}

void SyncthingTest::whatBothRecordedApartIsInBothAfterAMerge()
{
    m_window = std::make_unique<HostWindow>(CatalogueFile::save(logbook()).document);
    HostWindow &window = *m_window;
    QVERIFY(QDir().mkdir(there()));
    m_first = std::make_unique<Syncthing>();
    m_second = std::make_unique<Syncthing>();
    m_first->start(window.path(), *m_second);
    m_second->start(there(), *m_first);
    TRY(m_first->isConnected() && m_second->isConnected());
    TRY(bytesThere() == window.bytes());

    m_second->cut();
    flyThere(15);
    QTest::qWait(1100); // of two changes the later one keeps its name
    window.addLocation(u"Beach"_s);
    window.settle();
    QVERIFY(CatalogueFile::load(window.bytes()).catalogue.locations.contains(u"Beach"_s));
    join();
    TRY(window.button(u"Merge…"_s));
    QTimer::singleShot(0, &window.window(), [] {
        auto *dialog = qobject_cast<MergeDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->accept();
    });
    window.press(u"Merge…"_s);
    window.settle();
    QCOMPARE(conflicts(window.path()), QStringList());
    QCOMPARE(discharges(window.bytes()), 3);
    QVERIFY(window.logbook().catalogue()->locations.contains(u"Beach"_s));
    QVERIFY(window.logbook().catalogue()->batteries.at(0).discharges.constLast().isMeasured);
    TRY(bytesThere() == window.bytes() && conflicts(there()).isEmpty());

    window.close();
    m_second->cut();
    flyThere(16);
    QTest::qWait(1100);
    Catalogue here = CatalogueFile::load(window.bytes()).catalogue;
    here.batteries[0].discharges.removeFirst();
    here.batteries[0].cycles += 1;
    here.batteries[0].discharges.append({at(20, 0), 1000, 2000});
    window.put(CatalogueFile::save(here).document);
    join();
    TRY(conflicts(window.path()).size() == 1);
    const QString conflict = conflicts(window.path()).constFirst();
    TRY(WholeFile::isWhole(Test::contents(conflict)));
    const Program::Result merged = command(window.path(), {u"merge"_s, u"--json"_s, conflict});
    QCOMPARE(merged.status, 0);
    QCOMPARE(merged.errors, QString());
    QCOMPARE(discharges(window.bytes()), 4); // one was removed, two came
    QCOMPARE(CatalogueFile::load(window.bytes()).catalogue.batteries.at(0).cycles, 13U);
    TRY(bytesThere() == window.bytes());
    TRY(conflicts(there()).size() == 1);
    const QByteArray before = bytesThere();
    const Program::Result again = command(there(), {u"merge"_s, conflicts(there()).constFirst()});
    QCOMPARE(again.output, u"There is nothing to merge.\n"_s);
    QCOMPARE(bytesThere(), before);
    window.restart();
    QVERIFY(!window.button(u"Merge…"_s));
}

void SyncthingTest::cleanup()
{
    if (QTest::currentTestFailed() && m_first && m_second)
        qInfo().noquote() << m_first->log() << "\n--- and the other one ---\n" << m_second->log();
}

QTEST_MAIN(SyncthingTest)
#include "tst_syncthing.moc"
