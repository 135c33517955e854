// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"
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
    QByteArray document = Test::document({{}, {}, {QString::number(number)}});
    return document.insert(document.indexOf("</Voltbok>"), QByteArray(padding, ' '));
}

/** The bytes of the newest whole copy; empty when there is none. */
inline QByteArray newestCopy(const Host::StorageFolder &folder)
{
    QByteArray bytes;
    Host::Backups::newestWhole(folder, &bytes);
    return bytes;
}

/** Of everything in the folder of the copies, sorted. */
inline QStringList namesIn(const Host::StorageFolder &folder)
{
    return folder.backups().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
}
