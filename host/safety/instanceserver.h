// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocalServer>
#include <QObject>

namespace Host {

class StorageFolder;

/** Lets a second start on the same logbook ask the first one to bring its window to the front. */
class InstanceServer final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(InstanceServer)

public:
    /** Listens to this user alone. Only who has the folder's lock may make one. Where it cannot listen, a
     * second start gets no answer, and nothing else is lost. */
    explicit InstanceServer(const StorageFolder &folder, QObject *parent = nullptr);
    ~InstanceServer() override;

    /** Asks the instance that has the folder to raise its window. @return whether it answered, which is known
     * after two seconds at most. */
    static bool raiseFirst(const StorageFolder &folder);

Q_SIGNALS:
    /** Somebody has started the program again. */
    void raiseRequested();

private:
    void answer();

    QLocalServer m_server;
};

} // namespace Host
