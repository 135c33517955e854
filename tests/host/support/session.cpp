// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/session.h"

using namespace Qt::Literals::StringLiterals;

Session::Session(const Home &home, const QProcessEnvironment &additions)
    : m_record(Logbook::readFile(home.dataFile()))
{
    QProcessEnvironment environment = home.environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    Harness::drive(&environment);
    environment.insert(additions);
    m_process.setProcessEnvironment(environment);
    m_process.setProgram(QStringLiteral(PROGRAM));
    m_process.setArguments({u"--data"_s, home.logbook()});
}

Session::~Session()
{
    m_process.kill();
    m_process.waitForFinished();
}

void Session::send(const QStringList &words)
{
    if (m_process.state() == QProcess::NotRunning)
        m_process.start();
    m_process.write(Harness::command(words));
}

Event Session::run(const QStringList &words)
{
    constexpr int PatienceMs = 20'000;
    const qsizetype before = m_record.events().size();
    send(words);
    do {
        readReports();
        for (const Event &event : m_record.events().mid(before)) {
            if (event.state != u"begin" && event.state != u"now" &&
                event.words.value(0) == words.constFirst())
                return event;
        }
    } while (m_process.waitForReadyRead(PatienceMs));
    return {};
}

void Session::readReports()
{
    while (m_process.canReadLine())
        m_record.add(Event::parse(m_process.readLine()));
}
