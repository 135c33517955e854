// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/logbook.h"

/** The versions of a logbook since it was opened, by what the driver has reported of each change. */
class Steps
{
public:
    struct Version
    {
        Logbook logbook;
        QStringList measured; ///< "6S spare 2026-05-01T14:00:25": what the file beside it tells of

        bool operator==(const Version &other) const
        {
            return logbook == other.logbook && measured == other.measured;
        }
    };

    explicit Steps(const Version &start)
        : m_versions{start}
    {
    }

    /** Whether it changes one thing, which can be told from what others change; or the whole logbook. */
    static bool isChange(const QString &verb);
    static bool isDeed(const QString &verb);

    /** @param words of the command, or of what exactly was done by it. */
    void apply(const QStringList &words);

    const Version &present() const { return m_versions.at(m_present); }
    /** The one that was there before the last step. */
    const Version &before() const { return m_before >= 0 ? m_versions.at(m_before) : present(); }

private:
    void add(const Version &version);

    QList<Version> m_versions;
    qsizetype m_present = 0;
    qsizetype m_before = -1;
};
