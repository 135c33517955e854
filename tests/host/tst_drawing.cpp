// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that is drawn instead of opening the window.
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/host/support/started.h"
#include "tests/support/files.h"

#include <QImage>
#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class DrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<LogbookFolder>();
        m_answers.reset();
    }
    void aPictureTakesNoLockAndMakesNothing();
    void aFolderThatMayOnlyBeReadIsDrawn();
    void aFolderThatIsOpenIsDrawn();
    void theDemoIsMadeToBeDrawn();
    void aResetDemoIsMadeAndDrawn();
    void aPictureIsReplacedAndNothingElse();
    void whatIsNoLogbookIsNotDrawn();

private:
    CommandLine commandLine() const
    {
        CommandLine result;
        result.storagePath = m_log->path();
        result.screenshot = picture();
        return result;
    }
    QString picture() const { return QDir(m_log->root()).filePath(u"picture.png"_s); }
    int draw(const CommandLine &line)
    {
        const Started started = Started::run(line, m_answers);
        return started.hasWindow ? -1 : started.status;
    }

    std::unique_ptr<LogbookFolder> m_log;
    Answers m_answers;
};

void DrawingTest::aPictureTakesNoLockAndMakesNothing()
{
    m_log->save(Test::sample() + "<!-- strange -->");
    auto expected = m_log->snapshot();
    QCOMPARE(draw(commandLine()), 0);
    QVERIFY(!QImage(picture()).isNull());
    expected.insert(u"picture.png"_s, Test::contents(picture()));
    QCOMPARE(m_log->snapshot(), expected);
    CommandLine line = commandLine();
    line.storagePath = m_log->file(u"none"_s);
    QCOMPARE(draw(line), 0);
    QVERIFY(!QFile::exists(line.storagePath));
}

void DrawingTest::aFolderThatMayOnlyBeReadIsDrawn()
{
    m_log->save(Test::sample());
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    const Refusal closed(m_log->path(), 0555);
    QVERIFY(closed.works());
    QCOMPARE(draw(commandLine()), 0);
    QVERIFY(!QImage(picture()).isNull());
}

void DrawingTest::aFolderThatIsOpenIsDrawn()
{
    m_log->save(Test::sample());
    QVERIFY(Test::write(m_log->folder().lock(), "123\nvoltbok\nlaptop\n"));
    QCOMPARE(draw(commandLine()), 0);
    QCOMPARE(Test::contents(m_log->folder().lock()), "123\nvoltbok\nlaptop\n"_ba);
    QCOMPARE(m_answers.asked.size(), 0);
}

void DrawingTest::theDemoIsMadeToBeDrawn()
{
    CommandLine line = commandLine();
    QCOMPARE(draw(line), 0);
    const QImage empty(picture());
    line.demo = true;
    QCOMPARE(draw(line), 0);
    QVERIFY(!empty.isNull() && empty != QImage(picture()));
    QCOMPARE(Test::contents(StorageFolder(m_log->path()).dataFile()), Test::sample());
}

void DrawingTest::aResetDemoIsMadeAndDrawn()
{
    CommandLine line = commandLine();
    line.demo = line.resetDemo = true;
    QCOMPARE(draw(line), 0);
    QVERIFY(Test::contents(m_log->dataFile()) == Test::sample());
    QVERIFY(!QFile::exists(m_log->folder().lock()));
}

void DrawingTest::aPictureIsReplacedAndNothingElse()
{
    m_log->save(Test::sample());
    const QString copy = m_log->copy(LogbookFolder::document(u"a"_s));
    CommandLine line = commandLine();
    QCOMPARE(draw(line), 0);
    QCOMPARE(draw(line), 0); // over the picture before
    QVERIFY(Test::write(picture(), QByteArray()));
    QCOMPARE(draw(line), 0); // over an empty file
    const auto before = m_log->snapshot();
    for (const QString &path : {m_log->dataFile(), copy}) {
        line.screenshot = path;
        QCOMPARE(draw(line), 1);
        QVERIFY2(m_answers.told.constLast().contains(u"it is no picture. Choose another name."_s),
                 qPrintable(m_answers.told.constLast()));
    }
    line.screenshot = QDir(m_log->root()).filePath(u"none/picture.png"_s);
    QCOMPARE(draw(line), 1);
    QVERIFY(m_answers.told.constLast().contains(u"cannot be written: "_s));
    QCOMPARE(m_log->snapshot(), before);
}

void DrawingTest::whatIsNoLogbookIsNotDrawn()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_answers.pressReturn();
    QCOMPARE(draw(commandLine()), 1); // it is missing
    m_log->save("half");
    const auto before = m_log->snapshot();
    QCOMPARE(draw(commandLine()), 1);
    QCOMPARE(m_answers.asked.size(), 0);
    QCOMPARE(m_log->snapshot(), before);
}

QTEST_MAIN(DrawingTest)
#include "tst_drawing.moc"
