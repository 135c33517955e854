// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/** The lock of another machine. */
inline constexpr char Stranger[] = "123\nvoltbok\nlaptop\n00000000000000000000000000000001\nboot\n";

/** A process number that was given to somebody, and is free again. */
inline QByteArray deadProcess()
{
    QProcess process;
    process.start(u"true"_s, {});
    process.waitForStarted();
    const QByteArray number = QByteArray::number(process.processId());
    process.waitForFinished();
    return number;
}

/** A lock of this machine, as a program leaves it. */
inline QByteArray lockOf(const QByteArray &process, const QByteArray &program = "lockholder",
                         const QByteArray &boot = QSysInfo::bootUniqueId())
{
    return process + '\n' + program + '\n' + QSysInfo::machineHostName().toUtf8() + '\n' +
           QSysInfo::machineUniqueId() + '\n' + boot + '\n';
}

/** An instance of the program, as far as its locks go. */
class Instance
{
    Q_DISABLE_COPY_MOVE(Instance)

public:
    Instance(const QString &folder, const QProcessEnvironment &environment)
    {
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(LOCKHOLDER), {folder});
        m_process.waitForStarted();
    }

    void order(const char *word)
    {
        m_process.write(QByteArray(word) + '\n');
        m_process.waitForBytesWritten();
    }

    QString answer()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return u"no answer, "_s + QString::fromUtf8(m_process.readAllStandardError());
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }

    QString ask(const char *word)
    {
        order(word);
        return answer();
    }

    QByteArray errors() { return m_process.readAllStandardError(); }
    qint64 process() const { return m_process.processId(); }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    void beginToQuit() { m_process.closeWriteChannel(); }

    bool quit()
    {
        beginToQuit();
        const bool isOver = m_process.state() == QProcess::NotRunning || m_process.waitForFinished();
        return isOver && m_process.exitCode() == 0;
    }

    ~Instance() { quit(); }

private:
    QProcess m_process;
};

/** A temporary folder with everything that the locks of an instance need, and nothing of the developer's. */
class LockPlace
{
public:
    LockPlace()
    {
        for (const QString &name : {u"run"_s, u"tmp"_s, u"cache"_s})
            QDir(m_folder.path()).mkdir(name);
        QFile::setPermissions(path(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, path(u"run"_s));
        environment.insert(u"XDG_CACHE_HOME"_s, path(u"cache"_s));
        environment.insert(u"TMPDIR"_s, path(u"tmp"_s));
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString log() const { return path(u"log"_s); }

    std::unique_ptr<Instance> start(const QString &folder) const
    {
        return std::make_unique<Instance>(folder, environment);
    }

    QStringList files(const QString &folder) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    /** Where the second lock of this folder lies. */
    QString runtimeLock(const QString &folder) const
    {
        const auto instance = start(folder);
        if (instance->ask("take") != QLatin1StringView("taken"))
            return QString();
        const QStringList locks = files(u"run/voltbok"_s);
        return locks.isEmpty() ? QString() : path(u"run/voltbok/"_s + locks.first());
    }

    QProcessEnvironment environment;

private:
    QTemporaryDir m_folder;
};
