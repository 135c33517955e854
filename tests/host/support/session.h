// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/harness.h"
#include "tests/host/support/record.h"

#include <QProcess>

/** The program on its own, offscreen, with somebody who clicks and waits until each click is done. */
class Session
{
public:
    explicit Session(const Home &home, const QProcessEnvironment &additions = QProcessEnvironment());
    ~Session();

    QProcess &process() { return m_process; }
    const Record &record() const { return m_record; }

    /** Sends a command, without waiting for anything. */
    void send(const QStringList &words);
    /** Sends a command and waits until it is done or has failed. @return what was reported. */
    Event run(const QStringList &words);
    /** Reads what was reported meanwhile. */
    void readReports();

private:
    QProcess m_process;
    Record m_record;
};
