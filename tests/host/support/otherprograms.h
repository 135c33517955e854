// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/hostwindow.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

/** What other programs do to the folder of an open logbook, by their own commands. */
namespace OtherPrograms {

/** Begins a line of bash in the logbook's folder: "$F" is the file, "$T" one with the contents @p theirs. */
inline std::unique_ptr<QProcess> start(HostWindow &window, const QString &line, const QByteArray &theirs)
{
    const QString other = window.place() + u"/theirs"_s;
    auto process = std::make_unique<QProcess>();
    if (!Test::write(other, theirs))
        return nullptr;
    process->setWorkingDirectory(window.path());
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(u"bash"_s, {u"-ec"_s, u"F=voltbok.xml; T='%1'; export TERM=dumb; "_s.arg(other) + line});
    return process;
}

/** The same, until it is done. The window lives on meanwhile. @return what it complained about. */
inline QByteArray run(HostWindow &window, const QString &line, const QByteArray &theirs)
{
    const std::unique_ptr<QProcess> process = start(window, line, theirs);
    if (!process || !QTest::qWaitFor([&] { return process->state() == QProcess::NotRunning; }, 20000))
        return "it cannot be run";
    return process->exitCode() == 0 ? QByteArray() : process->readAll() + "(it failed)";
}

/** Where somebody waits for a file that does not become whole. */
inline void makeImpatient(HostWindow &window)
{
    using namespace std::chrono_literals;
    window.care().m_watch.file().setPace({50ms, 3s, 300ms});
}

/** As on a share that sends no events. */
inline void takeEventsAway(HostWindow &window)
{
    using namespace std::chrono_literals;
    window.care().m_watch.file().m_watcher.blockSignals(true);
    window.care().m_watch.file().setPace({50ms, 100ms, 300ms});
}

} // namespace OtherPrograms
