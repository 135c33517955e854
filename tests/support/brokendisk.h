// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

/** While it lives, no file of this process grows beyond @p size bytes: a disk that is full from there on. */
class FullDisk
{
    Q_DISABLE_COPY_MOVE(FullDisk)

public:
    explicit FullDisk(rlim_t size)
    {
        m_action = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit limit{size, m_limit.rlim_max};
        m_works = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_action);
    }

    bool works() const { return m_works; }

private:
    rlimit m_limit{};
    void (*m_action)(int) = nullptr;
    bool m_works = false;
};

inline mode_t modeOf(const QString &path)
{
    struct stat status = {};
    stat(QFile::encodeName(path), &status);
    return status.st_mode & 07777;
}

/**
 * While it lives, a file or folder has these permissions, and they hold for every way to ask for them even
 * when the tests run as root: the process is another user's, who can become root again.
 */
class Refusal
{
    Q_DISABLE_COPY_MOVE(Refusal)

public:
    Refusal(const QString &path, mode_t mode)
        : m_path(QFile::encodeName(path))
        , m_before(modeOf(path))
        , m_works(chmod(m_path, mode) == 0)
    {
        constexpr uid_t Nobody = 65534;
        if (m_user == 0)
            m_works = setresuid(Nobody, Nobody, 0) == 0 && m_works;
    }

    ~Refusal()
    {
        if (m_user == 0 && setresuid(0, 0, 0) != 0)
            qFatal("the tests cannot become root again");
        chmod(m_path, m_before);
    }

    bool works() const { return m_works; }

private:
    const uid_t m_user = getuid();
    const QByteArray m_path;
    const mode_t m_before;
    bool m_works;
};

/** While it lives, a file or folder has these permissions, and they hold even when the tests run as root. */
class Permissions
{
    Q_DISABLE_COPY_MOVE(Permissions)

public:
    Permissions(const QString &path, QFileDevice::Permissions permissions)
        : m_path(path)
        , m_before(QFile::permissions(path))
        , m_works(QFile::setPermissions(path, permissions))
    {
        constexpr uid_t Nobody = 65534;
        if (m_user == 0)
            m_works = seteuid(Nobody) == 0 && m_works;
    }

    ~Permissions()
    {
        if (m_user == 0 && seteuid(m_user) != 0)
            qFatal("the tests cannot become root again");
        QFile::setPermissions(m_path, m_before);
    }

    bool works() const { return m_works; }

private:
    const uid_t m_user = geteuid();
    QString m_path;
    QFileDevice::Permissions m_before;
    bool m_works;
};

/**
 * While it lives, an empty file system of its own lies over a folder; only this process sees it. A machine
 * may allow this to nobody but root, or not at all.
 */
class Mount
{
    Q_DISABLE_COPY_MOVE(Mount)

public:
    static bool allowed()
    {
        static const bool own =
            unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        return own;
    }

    explicit Mount(const QString &folder)
        : m_folder(QFile::encodeName(folder))
        , m_works(allowed() && mount("none", m_folder, "tmpfs", 0, nullptr) == 0)
    {
    }

    ~Mount()
    {
        if (m_works)
            umount2(m_folder, MNT_DETACH);
    }

    bool works() const { return m_works; }
    bool setReadOnly(bool readOnly)
    {
        return mount("none", m_folder, nullptr, MS_REMOUNT | (readOnly ? MS_RDONLY : 0), nullptr) == 0;
    }

private:
    QByteArray m_folder;
    bool m_works;
};
