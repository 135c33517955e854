// SPDX-License-Identifier: GPL-3.0-or-later
// What is a change of a watched file, with the events of its disk and without.
#include "host/safety/filewatch.h"

#include "tests/support/files.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/** Whole is what ends with a full stop. */
QString problemOf(const QByteArray &bytes)
{
    return bytes.endsWith('.') ? QString() : u"it has no full stop"_s;
}

} // namespace

class FileWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void otherContentsAreTold_data();
    void otherContentsAreTold();
    void theSameContentsAreNoChange_data();
    void theSameContentsAreNoChange();
    void aFileThatIsReplacedAgainAndAgainIsStillWatched();
    void whatComesWithinOneTickOfTheClockIsNoticed();
    void whatIsNotWholeIsWaitedFor();
    void patienceLastsAsLongAsTheFileGrows();
    void whatStaysDamagedIsToldAndStillWatched_data();
    void whatStaysDamagedIsToldAndStillWatched();
    void whatComesBackLeavesNothingBehind();
    void ownWritesAreNotSuspected();
    void bytesCanBeAcceptedThatTheFileHoldsNoMore();
    void aFolderThatComesBackIsWatchedAgain();

private:
    void watch(bool events);
    void shell(const QString &line) const;
    QString path() const { return m_folder->filePath(u"folder/file"_s); }
    void put(const QByteArray &bytes) const { QVERIFY(Test::write(path(), bytes)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileWatch> m_watch;
    std::unique_ptr<QSignalSpy> m_changed;
    std::unique_ptr<QSignalSpy> m_broken;
    std::unique_ptr<QSignalSpy> m_returned;
};

void FileWatchTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    put("Ours.");
}

void FileWatchTest::cleanup()
{
    m_watch.reset();
}

/** With events alone, or with polling alone, as on a disk that sends none. */
void FileWatchTest::watch(bool events)
{
    m_watch = std::make_unique<FileWatch>(path(), &problemOf);
    if (events)
        m_watch->setPace({50ms, 1h, 300ms});
    else {
        m_watch->m_watcher.blockSignals(true);
        m_watch->setPace({50ms, 40ms, 300ms});
    }
    m_changed = std::make_unique<QSignalSpy>(m_watch.get(), &FileWatch::changed);
    m_broken = std::make_unique<QSignalSpy>(m_watch.get(), &FileWatch::broken);
    m_returned = std::make_unique<QSignalSpy>(m_watch.get(), &FileWatch::returned);
}

/** In the folder; "$F" is the file. */
void FileWatchTest::shell(const QString &line) const
{
    QProcess process;
    process.setWorkingDirectory(QFileInfo(path()).path());
    process.start(u"bash"_s, {u"-c"_s, u"F=file; "_s + line});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void FileWatchTest::otherContentsAreTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("events");
    for (const bool events : {true, false}) {
        const auto add = [events](const char *name, const QString &line) {
            QTest::newRow(qPrintable(QLatin1StringView(name) + (events ? u", events"_s : u", polled"_s)))
                << line << events;
        };
        add("in place", u"printf 'Theirs.' > $F"_s);
        add("renamed", u"printf 'Theirs.' > new; mv new $F"_s);
        add("removed and made", u"rm $F; printf 'Theirs.' > $F"_s);
        add("of the same size and time", u"printf 'Them.' > new; touch -r $F new; mv new $F; sync"_s);
        add("with a time long ago", u"printf 'Theirs.' > new; touch -d 1999-01-01 new; mv new $F"_s);
        add("by a link", u"printf 'Theirs.' > target; ln -sf target $F"_s);
    }
}

void FileWatchTest::otherContentsAreTold()
{
    QFETCH(QString, line);
    QFETCH(bool, events);
    watch(events);
    shell(line);
    QTRY_COMPARE(m_changed->size(), 1);
    QCOMPARE(m_changed->constFirst().constFirst().toByteArray(), Test::contents(path()));
    QCOMPARE(m_watch->state(), FileWatch::Other);
    QCOMPARE(m_watch->known(), "Ours."_ba);
    QTest::qWait(200);
    QCOMPARE(m_changed->size(), 1);
    QCOMPARE(m_broken->size(), 0);
}

void FileWatchTest::theSameContentsAreNoChange_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("touched") << u"touch $F"_s;
    QTest::newRow("written again") << u"printf 'Ours.' > $F"_s;
    QTest::newRow("another file") << u"cp $F new; mv new $F"_s;
    QTest::newRow("away and back") << u"mv $F new; mv new $F"_s;
    QTest::newRow("other rights") << u"chmod 600 $F"_s;
    QTest::newRow("a file beside it") << u"touch beside"_s;
}

void FileWatchTest::theSameContentsAreNoChange()
{
    QFETCH(QString, line);
    for (const bool events : {true, false}) {
        watch(events);
        shell(line);
        QTest::qWait(200);
        QCOMPARE(m_changed->size() + m_broken->size(), 0);
        QCOMPARE(m_watch->state(), FileWatch::Known);
    }
}

void FileWatchTest::aFileThatIsReplacedAgainAndAgainIsStillWatched()
{
    watch(true);
    for (int i = 0; i < 5; ++i) {
        shell(u"printf 'Number %1.' > new; mv new $F"_s.arg(i));
        QTRY_COMPARE(m_changed->size(), i + 1);
    }
}

/** As on a disk that counts in seconds: its stamp says nothing about the second contents. */
void FileWatchTest::whatComesWithinOneTickOfTheClockIsNoticed()
{
    watch(false);
    put("Them.");
    m_watch->m_seen = m_watch->stamp();
    QTRY_COMPARE(m_changed->size(), 1);
    QVERIFY(m_watch->m_isSure || m_watch->m_sinceSeen.elapsed() < 2100);
    QTRY_VERIFY(m_watch->m_isSure); // and then no disk is read any more
}

void FileWatchTest::whatIsNotWholeIsWaitedFor()
{
    for (const bool events : {true, false}) {
        put("Ours.");
        watch(events);
        put("Half");
        QTRY_COMPARE(m_watch->state(), FileWatch::Unsettled);
        QTest::qWait(100);
        QCOMPARE(m_changed->size() + m_broken->size(), 0);
        put("Half and half.");
        QTRY_COMPARE(m_changed->size(), 1);
        QTest::qWait(400);
        QCOMPARE(m_broken->size(), 0);
    }
}

void FileWatchTest::patienceLastsAsLongAsTheFileGrows()
{
    watch(true);
    for (int i = 0; i < 8; ++i) {
        put(QByteArray(i + 1, 'x'));
        QTest::qWait(100);
    }
    QCOMPARE(m_broken->size(), 0);
    QTRY_COMPARE(m_broken->size(), 1);
}

void FileWatchTest::whatStaysDamagedIsToldAndStillWatched_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("half") << u"printf 'Half' > $F"_s << false;
    QTest::newRow("empty") << u"truncate -s 0 $F"_s << false;
    QTest::newRow("removed") << u"rm $F"_s << true;
    QTest::newRow("moved") << u"mv $F other"_s << true;
    QTest::newRow("a folder") << u"rm $F; mkdir $F"_s << false;
    QTest::newRow("a link to nowhere") << u"rm $F; ln -s nowhere $F"_s << false;
    QTest::newRow("a pipe") << u"rm $F; mkfifo $F"_s << false;
}

void FileWatchTest::whatStaysDamagedIsToldAndStillWatched()
{
    QFETCH(QString, line);
    QFETCH(bool, isMissing);
    for (const bool events : {true, false}) {
        shell(u"rm -rf $F"_s);
        put("Ours.");
        watch(events);
        shell(line);
        QTRY_COMPARE(m_broken->size(), 1);
        QVERIFY(!m_broken->constFirst().constFirst().toString().isEmpty());
        QCOMPARE(m_broken->constFirst().at(1).toBool(), isMissing);
        QTest::qWait(400);
        QCOMPARE(m_broken->size(), 1);
        shell(u"rm -rf $F; printf 'Theirs.' > $F"_s);
        QTRY_COMPARE(m_changed->size(), 1);
        QCOMPARE(m_watch->state(), FileWatch::Other);
    }
}

void FileWatchTest::whatComesBackLeavesNothingBehind()
{
    watch(true);
    shell(u"mv $F other"_s);
    QTRY_COMPARE(m_broken->size(), 1);
    shell(u"mv other $F"_s);
    QTRY_COMPARE(m_returned->size(), 1);
    QCOMPARE(m_watch->state(), FileWatch::Known);
    QCOMPARE(m_changed->size(), 0);
    put("Theirs.");
    QTRY_COMPARE(m_changed->size(), 1);
    put("Ours.");
    QTRY_COMPARE(m_returned->size(), 2);
}

void FileWatchTest::ownWritesAreNotSuspected()
{
    watch(true);
    m_watch->expect();
    put("Half");
    QTest::qWait(500);
    QCOMPARE(m_watch->state(), FileWatch::Known);
    put("Ours again.");
    m_watch->accept();
    QCOMPARE(m_watch->known(), "Ours again."_ba);
    QTest::qWait(200);
    QCOMPARE(m_changed->size() + m_broken->size(), 0);
}

void FileWatchTest::bytesCanBeAcceptedThatTheFileHoldsNoMore()
{
    watch(true);
    put("Theirs.");
    m_watch->acceptAs("Ours, too.");
    m_watch->look();
    QCOMPARE(m_changed->size(), 1);
    QCOMPARE(m_watch->known(), "Ours, too."_ba);
}

void FileWatchTest::aFolderThatComesBackIsWatchedAgain()
{
    watch(false);
    const QString folder = QFileInfo(path()).path();
    QVERIFY(QDir().rename(folder, folder + u"2"_s));
    QTRY_COMPARE(m_broken->size(), 1);
    QVERIFY(QDir().rename(folder + u"2"_s, folder));
    QTRY_COMPARE(m_returned->size(), 1);
    m_watch->m_watcher.blockSignals(false);
    m_watch->setPace({50ms, 1h, 300ms});
    put("Theirs.");
    QTRY_COMPARE(m_changed->size(), 1);
}

QTEST_GUILESS_MAIN(FileWatchTest)
#include "tst_filewatch.moc"
