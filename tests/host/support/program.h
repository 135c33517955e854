// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

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
        environment.insert(u"XDG_DATA_HOME"_s, m_home.filePath(u"data"_s));
        environment.insert(u"XDG_CACHE_HOME"_s, m_home.filePath(u"cache"_s));
        environment.remove(u"XDG_RUNTIME_DIR"_s);
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
            environment.remove(QLatin1StringView(variable));
    }

    Result run(const QStringList &arguments) const { return finish(QStringLiteral(HOST), arguments); }

    /** Runs a line of the shell, in which "$0" is the program. */
    Result shell(const QString &line) const
    {
        return finish(u"bash"_s, {u"-c"_s, line, QStringLiteral(HOST)});
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
