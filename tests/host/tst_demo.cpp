// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/demo/demo.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"
#include "tests/support/recordlists.h"

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
    void theSampleIsInTheBytesOfTheLibrary();
    void theSampleIsGenerous();

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
    QCOMPARE(Test::snapshot(m_log->path()).keys(), QStringList{u"voltbok.xml"_s});
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
}

void DemoTest::aChangedDemoStays()
{
    m_log->save(LogbookFolder::document(u"mine"_s));
    const auto before = m_log->snapshot();
    QCOMPARE(prepare(false), QString());
    QCOMPARE(m_log->snapshot(), before);
}

void DemoTest::aDamagedOrMissingDemoIsLeftToBeAskedAbout()
{
    m_log->copy(LogbookFolder::document(u"mine"_s));
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
    m_log->save(LogbookFolder::document(u"mine"_s));
    QCOMPARE(prepare(true), QString());
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
    QCOMPARE(copies().size(), 1);
    QCOMPARE(Test::contents(m_log->folder().backups().filePath(copies().constFirst())),
             LogbookFolder::document(u"mine"_s));
}

void DemoTest::aResetOfTheSampleMakesOneCopy()
{
    QCOMPARE(prepare(false), QString());
    QCOMPARE(prepare(true), QString());
    QCOMPARE(prepare(true), QString());
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
    QCOMPARE(copies().size(), 1);
}

void DemoTest::aResetPutsADamagedDemoAside()
{
    m_log->save("half");
    QCOMPARE(prepare(true), QString());
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
    QCOMPARE(m_log->folder().asides().size(), 1);
    QCOMPARE(Test::contents(m_log->folder().asides().constFirst()), QByteArray("half"));
    QCOMPARE(copies().size(), 0);
}

void DemoTest::aResetGoesThroughALink()
{
    const QString target = QDir(m_log->root()).filePath(u"flights.xml"_s);
    QVERIFY(Test::write(target, LogbookFolder::document(u"mine"_s)));
    QVERIFY(QFile::link(target, m_log->dataFile()));
    QCOMPARE(prepare(true), QString());
    QCOMPARE(QFileInfo(m_log->dataFile()).symLinkTarget(), target);
    QVERIFY(Test::contents(target) == Test::sample());
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
    const QByteArray mine = Test::sample().replace("Club field", "My own field");
    m_log->save(mine);
    const FullDisk disk(static_cast<rlim_t>(mine.size() / 2));
    const QString problem = prepare(true);
    QVERIFY2(problem.contains(u"the file would be too large"_s), qPrintable(problem));
    QVERIFY(Test::contents(m_log->dataFile()) == mine);
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

void DemoTest::theSampleIsInTheBytesOfTheLibrary()
{
    m_log->save(Test::sample());
    RecordLists catalogue;
    catalogue.load(m_log->path());
    catalogue.save(m_log->path());
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
}

void DemoTest::theSampleIsGenerous()
{
    const QByteArray sample = Test::sample();
    QVERIFY(sample.count("<Location ") >= 6);
    QVERIFY(sample.count("<Capacity>") >= 12);
    QVERIFY(sample.count("<Type>") >= 4);
    QVERIFY(sample.count("<Cycle ") >= 400);
    QVERIFY(sample.count("<LogData ") >= 300);
    QVERIFY(sample.contains("<Charged>1<") && sample.contains("<Charged>0<"));
}

QTEST_MAIN(DemoTest)
#include "tst_demo.moc"
