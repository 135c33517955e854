// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/instanceserver.h"

#include "host/safety/runtimefolder.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int PatienceMs = 2000;
constexpr qint64 LongestToken = 256; // bytes
constexpr char TokenVariable[] = "XDG_ACTIVATION_TOKEN";
constexpr char Answer[] = "raised\n";

/** Short, for the name of a socket may have a hundred characters in all. */
QString serverName(const StorageFolder &folder)
{
    const QString name = runtimeName(folder).left(16);
#ifdef Q_OS_WIN
    return u"voltbok-"_s + name;
#else
    return runtimeFolder() + u'/' + name;
#endif
}

} // namespace

InstanceServer::InstanceServer(const StorageFolder &folder, QObject *parent)
    : QObject(parent)
{
    makeRuntimeFolder();
    const QString name = serverName(folder);
    QLocalServer::removeServer(name); // of an instance that was killed
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceServer::answer);
    m_server.listen(name);
}

InstanceServer::~InstanceServer() = default;

void InstanceServer::answer()
{
    while (QLocalSocket *second = m_server.nextPendingConnection()) {
        connect(second, &QLocalSocket::disconnected, second, &QObject::deleteLater);
        connect(second, &QLocalSocket::readyRead, this, [this, second] {
            if (!second->canReadLine())
                return;
            const QByteArray token = second->readLine(LongestToken).trimmed();
            if (!token.isEmpty()) // by which a Wayland compositor lets a window come to the front
                qputenv(TokenVariable, token);
            Q_EMIT raiseRequested();
            second->write(Answer);
            second->disconnectFromServer();
        });
    }
}

bool InstanceServer::raiseFirst(const StorageFolder &folder)
{
    QDeadlineTimer deadline(PatienceMs);
    QLocalSocket first;
    first.connectToServer(serverName(folder));
    if (!first.waitForConnected(PatienceMs))
        return false;
    first.write(qgetenv(TokenVariable).left(LongestToken - 1) + '\n');
    while (!first.canReadLine()) {
        if (deadline.hasExpired() || !first.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    return first.readLine() == Answer;
}

} // namespace Host
