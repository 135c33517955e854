// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "tests/support/brokendisk.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"
#include "tests/support/zone.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

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
