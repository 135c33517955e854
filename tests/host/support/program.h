// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>

/** Runs the program itself, with a home and run-time folder of its own. */
class Program
{
public:
    struct Result
    {
        int status; ///< -1 when it was ended by a signal, or not at all
        QString output;
        QString errors;
    };

    Program()
    {
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
        environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
            environment.remove(QLatin1StringView(variable));
    }

    Result run(const QStringList &arguments) const { return finish(QStringLiteral(HOST), arguments); }

    /** Runs a line of the shell, in which "$0" is the program. */
    Result shell(const QString &line) const
    {
        return finish(QStringLiteral("bash"), {QStringLiteral("-c"), line, QStringLiteral(HOST)});
    }

    QString home(const QString &name = QString()) const { return m_home.filePath(name); }

    QProcessEnvironment environment;

private:
    Result finish(const QString &program, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_home.path());
        process.start(program, arguments);
        const bool isOver = process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit;
        return {isOver ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir m_home;
};
