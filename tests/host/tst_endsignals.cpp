// SPDX-License-Identifier: GPL-3.0-or-later
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

class EndSignalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalEndsTheLoopInOrder_data();
    void aSignalEndsTheLoopInOrder();
    void aSignalBeforeTheLoopEndsItWhenItRuns();
    void aSignalInADialogEndsTheDialogAndTheLoop();
    void nobodyIsAsked();
    void signalsBehindTheLoopChangeNothing();
    void nohupIsObeyed();

private:
    void start(const QString &place)
    {
        m_process.start(QStringLiteral(ENDINGLOOP), {place});
        QCOMPARE(line(), QByteArray("ready"));
    }
    QByteArray line()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(5000))
                return "nothing was said";
        }
        return m_process.readLine().trimmed();
    }
    void raise(int number)
    {
        const auto process = static_cast<pid_t>(m_process.processId());
        QVERIFY(process > 0); // 0 would be everybody around this test
        ::kill(process, number);
    }
    void goOn()
    {
        m_process.write("\n");
        m_process.waitForBytesWritten();
    }
    bool endsInOrder()
    {
        const bool said = line() == "in order";
        const bool isOver = m_process.waitForFinished(5000);
        m_process.kill();
        m_process.waitForFinished();
        return said && isOver && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

    QProcess m_process;
};

void EndSignalsTest::aSignalEndsTheLoopInOrder_data()
{
    QTest::addColumn<QList<int>>("signalsSent");
    QTest::newRow("TERM") << QList<int>{SIGTERM};
    QTest::newRow("INT") << QList<int>{SIGINT};
    QTest::newRow("HUP") << QList<int>{SIGHUP};
    QTest::newRow("TERM twice") << QList<int>{SIGTERM, SIGTERM};
    QTest::newRow("INT, HUP, TERM") << QList<int>{SIGINT, SIGHUP, SIGTERM};
    QTest::newRow("a storm") << QList<int>(200, SIGINT);
}

void EndSignalsTest::aSignalEndsTheLoopInOrder()
{
    QFETCH(QList<int>, signalsSent);
    start(u"loop"_s);
    for (const int number : signalsSent)
        raise(number);
    QVERIFY(endsInOrder());
}

void EndSignalsTest::aSignalBeforeTheLoopEndsItWhenItRuns()
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        start(u"before"_s);
        raise(number);
        QTest::qWait(50);
        goOn();
        QByteArray said = line();
        if (said == "ready") // which its own timer may say first
            said = line();
        QCOMPARE(said, QByteArray("in order"));
        QVERIFY(m_process.waitForFinished() && m_process.exitCode() == 0);
    }
}

void EndSignalsTest::aSignalInADialogEndsTheDialogAndTheLoop()
{
    start(u"dialog"_s);
    raise(SIGTERM);
    QCOMPARE(line(), QByteArray("dialog over"));
    QVERIFY(endsInOrder());
}

void EndSignalsTest::nobodyIsAsked()
{
    start(u"stubborn"_s);
    raise(SIGTERM);
    QVERIFY(endsInOrder());
}

void EndSignalsTest::signalsBehindTheLoopChangeNothing()
{
    start(u"end"_s);
    raise(SIGTERM);
    QCOMPARE(line(), QByteArray("ready"));
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        raise(number);
    goOn();
    QVERIFY(endsInOrder());
}

void EndSignalsTest::nohupIsObeyed()
{
    m_process.start(u"bash"_s, {u"-c"_s, u"trap '' HUP; exec \"$0\" loop"_s, QStringLiteral(ENDINGLOOP)});
    QCOMPARE(line(), QByteArray("ready"));
    raise(SIGHUP);
    QVERIFY(!m_process.waitForFinished(300));
    raise(SIGTERM);
    QVERIFY(endsInOrder());
}

QTEST_GUILESS_MAIN(EndSignalsTest)
#include "tst_endsignals.moc"
