// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/demo/demo.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/brokendisk.h"

#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class DemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log = std::make_unique<LogbookFolder>(); }
    void theSampleIsPutIntoAnEmptyFolder_data();
    void theSampleIsPutIntoAnEmptyFolder();
    void aChangedDemoStays();
    void aDamagedOrMissingDemoIsLeftToBeAskedAbout();
    void aResetKeepsAChangedDemoAsACopy();
    void aResetOfTheSampleMakesOneCopy();
    void aResetPutsADamagedDemoAside();
    void aResetGoesThroughALink();
    void aResetLeavesWhatCannotBeReadWhereItIs();
    void aResetWithoutRoomForTheCopyChangesNothing();
    void aSampleThatCannotBeWrittenIsAnError();

private:
    QString prepare(bool reset) const { return prepareDemo(m_log->folder(), reset); }
    QStringList copies() const { return m_log->folder().backups().entryList(QDir::Files); }

    std::unique_ptr<LogbookFolder> m_log;
};

void DemoTest::theSampleIsPutIntoAnEmptyFolder_data()
{
    QTest::addColumn<bool>("reset");
    QTest::newRow("demo") << false;
    QTest::newRow("reset") << true;
}

void DemoTest::theSampleIsPutIntoAnEmptyFolder()
{
    QFETCH(bool, reset);
    QCOMPARE(prepare(reset), QString());
    QCOMPARE(Files::snapshot(m_log->path()).keys(), QStringList{u"voltbok.xml"_s});
    QVERIFY(Files::read(m_log->dataFile()) == Files::sample());
}

void DemoTest::aChangedDemoStays()
{
    m_log->save(LogbookFolder::document("mine"));
    const auto before = m_log->snapshot();
    QCOMPARE(prepare(false), QString());
    QCOMPARE(m_log->snapshot(), before);
}

void DemoTest::aDamagedOrMissingDemoIsLeftToBeAskedAbout()
{
    m_log->copy(LogbookFolder::document("mine"));
    auto before = m_log->snapshot();
    QCOMPARE(prepare(false), QString());
    QCOMPARE(m_log->snapshot(), before);
    m_log->save("half");
    before = m_log->snapshot();
    QCOMPARE(prepare(false), QString());
    QCOMPARE(m_log->snapshot(), before);
}

void DemoTest::aResetKeepsAChangedDemoAsACopy()
{
    m_log->save(LogbookFolder::document("mine"));
    QCOMPARE(prepare(true), QString());
    QVERIFY(Files::read(m_log->dataFile()) == Files::sample());
    QCOMPARE(copies().size(), 1);
    QCOMPARE(Files::read(m_log->folder().backups().filePath(copies().constFirst())),
             LogbookFolder::document("mine"));
}

void DemoTest::aResetOfTheSampleMakesOneCopy()
{
    QCOMPARE(prepare(false), QString());
    QCOMPARE(prepare(true), QString());
    QCOMPARE(prepare(true), QString());
    QVERIFY(Files::read(m_log->dataFile()) == Files::sample());
    QCOMPARE(copies().size(), 1);
}

void DemoTest::aResetPutsADamagedDemoAside()
{
    m_log->save("half");
    QCOMPARE(prepare(true), QString());
    QVERIFY(Files::read(m_log->dataFile()) == Files::sample());
    QCOMPARE(m_log->folder().asides().size(), 1);
    QCOMPARE(Files::read(m_log->folder().asides().constFirst()), QByteArray("half"));
    QCOMPARE(copies().size(), 0);
}

void DemoTest::aResetGoesThroughALink()
{
    const QString target = QDir(m_log->root()).filePath(u"flights.xml"_s);
    Files::write(target, LogbookFolder::document("mine"));
    QVERIFY(QFile::link(target, m_log->dataFile()));
    QCOMPARE(prepare(true), QString());
    QCOMPARE(QFileInfo(m_log->dataFile()).symLinkTarget(), target);
    QVERIFY(Files::read(target) == Files::sample());
    QCOMPARE(copies().size(), 1);
}

void DemoTest::aResetLeavesWhatCannotBeReadWhereItIs()
{
    QVERIFY(QFile::link(m_log->file(u"nowhere/voltbok.xml"_s), m_log->dataFile()));
    const QString problem = prepare(true);
    QVERIFY2(problem.contains(u"which does not exist"_s), qPrintable(problem));
    QCOMPARE(QFileInfo(m_log->dataFile()).symLinkTarget(), m_log->file(u"nowhere/voltbok.xml"_s));
    QCOMPARE(m_log->snapshot().size(), 1);
}

void DemoTest::aResetWithoutRoomForTheCopyChangesNothing()
{
    const QByteArray mine = Files::sample().replace("Club field", "My own field");
    m_log->save(mine);
    const FullDisk disk(static_cast<rlim_t>(mine.size() / 2));
    const QString problem = prepare(true);
    QVERIFY2(problem.contains(u"the file would be too large"_s), qPrintable(problem));
    QVERIFY(Files::read(m_log->dataFile()) == mine);
}

void DemoTest::aSampleThatCannotBeWrittenIsAnError()
{
    const FullDisk disk(1000);
    for (const bool reset : {false, true}) {
        const QString problem = prepare(reset);
        QCOMPARE(problem,
                 u"The sample logbook “%1” cannot be written: the file would be too large. Free some "
                 "space, or check the rights of its folder."_s.arg(m_log->dataFile()));
        QCOMPARE(m_log->snapshot().size(), 0);
    }
    m_log->save("half");
    QVERIFY(!prepare(true).isEmpty());
    QCOMPARE(m_log->snapshot(), (QMap<QString, QByteArray>{{u"log/voltbok.xml"_s, "half"}}));
}

QTEST_GUILESS_MAIN(DemoTest)
#include "tst_demo.moc"
