// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/logbookfolder.h"
#include "tests/host/support/started.h"
#include "tests/support/files.h"

#include <QTemporaryDir>

#include <memory>

/** What the tests of the program's start share: a folder that it starts in, and who answers it. */
class StartTest : public QObject
{
protected:
    StartTest()
    {
        QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
    }

    /** Before each test. */
    void prepare()
    {
        m_log = std::make_unique<LogbookFolder>();
        m_answers.reset();
    }

    Host::CommandLine commandLine() const
    {
        Host::CommandLine result;
        result.storagePath = m_log->path();
        return result;
    }
    Started run() { return Started::run(commandLine(), m_answers); }
    QByteArray data() const { return Test::contents(m_log->dataFile()); }
    /** What the files hold that were put aside. */
    QByteArrayList asides() const
    {
        QByteArrayList contents;
        const QStringList paths = m_log->folder().asides();
        for (const QString &path : paths)
            contents.append(Test::contents(path));
        return contents;
    }

    std::unique_ptr<LogbookFolder> m_log;
    Answers m_answers;

private:
    QTemporaryDir m_runtime;
};
