// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"
#include "tests/host/support/faultrun.h"

#include <QMap>

#include <functional>
#include <memory>

/** A logbook, the measured values beside it, and a command that puts others in their place. */
class CommandHome : public Home
{
public:
    struct State
    {
        QByteArray document;
        QByteArray beside;

        bool operator==(const State &other) const
        {
            return document == other.document && beside == other.beside;
        }
    };
    struct Result
    {
        bool isKilled = false;
        int status = -1;
        QString errors;
        QList<Operation> operations;
    };

    Host::StorageFolder folder() const { return Host::StorageFolder(logbook()); }
    State state() const;
    void put(const State &state) const;
    static void write(const QString &path, const QByteArray &bytes);

    /** All that is in the folder now must be there afterwards. */
    void begin();
    Result run(const Fault &fault = {}) const;
    /** What is lost or half of what was there at first; empty when nothing is. */
    QStringList lost() const;
    /** What is wrong after a fault; nothing when every promise is kept. */
    QStringList judge(const Result &result) const;

    QStringList arguments; ///< of the command, without the folder
    State before;
    State after;

private:
    QStringList judgeKilled() const;
    QMap<QString, QByteArray> filesBelow() const;

    QMap<QString, QByteArray> m_files;
};

/** Kills the command at each of its file operations, and lets each of them fail. */
void tryEveryFault(const std::function<std::unique_ptr<CommandHome>()> &makeHome);
