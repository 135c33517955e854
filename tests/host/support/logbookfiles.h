// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "tests/support/zone.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

inline mode_t modeOf(const QString &path)
{
    struct stat status = {};
    stat(QFile::encodeName(path), &status);
    return status.st_mode & 07777;
}

/** While it lives, files that this process makes lack these rights. */
class Umask
{
    Q_DISABLE_COPY_MOVE(Umask)

public:
    explicit Umask(mode_t mask)
        : m_before(umask(mask))
    {
    }
    ~Umask() { umask(m_before); }

private:
    const mode_t m_before;
};

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

/** A whole logbook, a different one for each number. */
inline QByteArray logbook(int number, qsizetype padding = 0)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok>\n<Locations><Location "
           "Name=\"" +
           QByteArray::number(number) + "\"/></Locations>" + QByteArray(padding, ' ') + "\n</Voltbok>\n";
}

inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/** Written in place, as the window does. */
inline void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QFile::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

/** Of everything in the folder of the copies, sorted. */
inline QStringList namesIn(const Host::StorageFolder &folder)
{
    return folder.backups().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
}
