// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/lockplace.h"

#include <QElapsedTimer>
#include <QTest>

#include <sys/stat.h>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

class InstanceServerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFirstIsAskedToRaiseItsWindow();
    void theFirstIsFoundByEachPathToItsFile();
    void nobodyAnswersWhereNobodyIs();
    void aFirstThatHangsIsWaitedForTwoSeconds();
    void whatAKilledFirstLeftIsReplaced();
    void onlyTheUserMayAsk();

private:
    QString socket() const
    {
        const QStringList files = m_place->files(u"run/voltbok"_s);
        return files.size() == 1 ? m_place->path(u"run/voltbok/"_s + files.first()) : QString();
    }

    std::unique_ptr<LockPlace> m_place;
    std::unique_ptr<Instance> m_first;
};

void InstanceServerTest::init()
{
    m_first.reset();
    m_place = std::make_unique<LockPlace>();
    QVERIFY(QDir().mkdir(m_place->log()));
    m_first = m_place->start(m_place->log());
    QCOMPARE(m_first->ask("serve"), u"serving"_s);
}

void InstanceServerTest::theFirstIsAskedToRaiseItsWindow()
{
    const auto second = m_place->start(m_place->log());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(second->ask("raise"), u"answered"_s);
        QCOMPARE(m_first->answer(), u"raised"_s);
    }
}

void InstanceServerTest::theFirstIsFoundByEachPathToItsFile()
{
    QVERIFY(QDir().mkdir(m_place->path(u"other"_s)));
    QVERIFY(QFile::link(m_place->log() + u"/voltbok.xml"_s, m_place->path(u"other/voltbok.xml"_s)));
    QCOMPARE(m_place->start(m_place->path(u"other"_s))->ask("raise"), u"answered"_s);
    QCOMPARE(m_first->answer(), u"raised"_s);
}

void InstanceServerTest::nobodyAnswersWhereNobodyIs()
{
    QCOMPARE(m_place->start(m_place->path(u"elsewhere"_s))->ask("raise"), u"silence"_s);
    QVERIFY(m_first->quit());
    QCOMPARE(m_place->start(m_place->log())->ask("raise"), u"silence"_s);
}

void InstanceServerTest::aFirstThatHangsIsWaitedForTwoSeconds()
{
    QVERIFY(m_first->process() > 0); // 0 would be everybody around this test
    QCOMPARE(kill(static_cast<pid_t>(m_first->process()), SIGSTOP), 0);
    QElapsedTimer time;
    time.start();
    const QString answer = m_place->start(m_place->log())->ask("raise");
    QVERIFY(m_first->process() > 0);
    kill(static_cast<pid_t>(m_first->process()), SIGCONT);
    QCOMPARE(answer, u"silence"_s);
    QVERIFY2(time.elapsed() >= 1500 && time.elapsed() < 4000, qPrintable(QString::number(time.elapsed())));
}

void InstanceServerTest::whatAKilledFirstLeftIsReplaced()
{
    m_first->kill();
    QVERIFY(!socket().isEmpty());
    const auto second = m_place->start(m_place->log());
    QCOMPARE(second->ask("raise"), u"silence"_s);
    QCOMPARE(second->ask("serve"), u"serving"_s);
    QCOMPARE(m_place->start(m_place->log())->ask("raise"), u"answered"_s);
    QCOMPARE(second->answer(), u"raised"_s);
}

void InstanceServerTest::onlyTheUserMayAsk()
{
    struct stat file = {};
    QCOMPARE(stat(qPrintable(socket()), &file), 0);
    QVERIFY(S_ISSOCK(file.st_mode));
    QCOMPARE(file.st_mode & 0077U, 0U);
}

QTEST_MAIN(InstanceServerTest)
#include "tst_instanceserver.moc"
