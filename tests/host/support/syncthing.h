// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

/** A synchroniser of folders that speaks to nobody but its like on this machine. */
class Syncthing
{
public:
    Syncthing()
        : m_port(freePort())
        , m_interface(freePort())
    {
        QProcess generate;
        generate.start(QStringLiteral(SYNCTHING),
                       {u"generate"_s, u"--no-default-folder"_s, u"--home="_s + m_home.path()});
        if (!generate.waitForFinished(60'000) || generate.exitCode() != 0)
            qFatal("The synchroniser cannot make its keys.");
        static const QRegularExpression device(u"<device id=\"([A-Z0-9-]+)\""_s);
        const QString made = QString::fromUtf8(Test::contents(m_home.filePath(u"config.xml"_s)));
        m_device = device.match(made).captured(1);
        if (m_device.isEmpty())
            qFatal("The synchroniser has no name.");
    }
    ~Syncthing() { cut(); }
    Q_DISABLE_COPY_MOVE(Syncthing)

    /** Keeps a folder as the other one keeps its own. */
    void start(const QString &folder, const Syncthing &other)
    {
        QVERIFY(Test::write(folder + u"/.stignore"_s, "voltbok.lock\n"));
        QVERIFY(QDir().mkpath(folder + u"/.stfolder"_s));
        const QString config =
            u"<configuration version=\"35\">"
            "<folder id=\"log\" path=\"%1\" type=\"sendreceive\" rescanIntervalS=\"1\" "
            "fsWatcherEnabled=\"false\"><device id=\"%2\"/><device id=\"%3\"/>"
            "<maxConflicts>10</maxConflicts></folder>"
            "<device id=\"%2\" name=\"this\"><address>tcp://127.0.0.1:%4</address></device>"
            "<device id=\"%3\" name=\"other\"><address>tcp://127.0.0.1:%5</address></device>"
            "<gui enabled=\"true\" tls=\"false\"><address>127.0.0.1:%6</address><apikey>key</apikey></gui>"
            "<options><listenAddress>tcp://127.0.0.1:%4</listenAddress>"
            "<globalAnnounceEnabled>false</globalAnnounceEnabled>"
            "<localAnnounceEnabled>false</localAnnounceEnabled><relaysEnabled>false</relaysEnabled>"
            "<natEnabled>false</natEnabled><urAccepted>-1</urAccepted><startBrowser>false</startBrowser>"
            "<autoUpgradeIntervalH>0</autoUpgradeIntervalH><reconnectionIntervalS>1</reconnectionIntervalS>"
            "<crashReportingEnabled>false</crashReportingEnabled><stunKeepaliveStartS>0</stunKeepaliveStartS>"
            "<minHomeDiskFree unit=\"%\">0</minHomeDiskFree></options></configuration>"_s
                .arg(folder, m_device, other.m_device)
                .arg(m_port)
                .arg(other.m_port)
                .arg(m_interface);
        m_other = other.m_device;
        QVERIFY(Test::write(m_home.filePath(u"config.xml"_s), config.toUtf8()));
        join();
    }

    /** Is not there for the other one, nor looks at its folder. */
    void cut()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(20'000))
            m_process.kill();
        m_process.waitForFinished();
    }
    /** Is there again, and speaks to the other one at once. */
    void join()
    {
        m_process.setStandardOutputFile(m_home.filePath(u"log"_s), QIODevice::Append);
        m_process.setStandardErrorFile(m_home.filePath(u"log"_s), QIODevice::Append);
        m_process.start(QStringLiteral(SYNCTHING), {u"serve"_s, u"--no-browser"_s, u"--no-restart"_s,
                                                    u"--no-upgrade"_s, u"--home="_s + m_home.path()});
        QVERIFY(m_process.waitForStarted());
    }
    /** Whether it speaks with the other one. */
    bool isConnected()
    {
        return QJsonDocument::fromJson(
                   request(u"system/connections"_s))[u"connections"_s][m_other][u"connected"_s]
            .toBool();
    }
    QByteArray log() const { return Test::contents(m_home.filePath(u"log"_s)); }

private:
    static quint16 freePort()
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        return server.serverPort();
    }

    QByteArray request(const QString &path)
    {
        QNetworkRequest request(QUrl(u"http://127.0.0.1:%1/rest/"_s.arg(m_interface) + path));
        request.setRawHeader("X-API-Key", "key");
        request.setTransferTimeout(5000);
        QNetworkReply *reply = m_network.get(request);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        const QByteArray answer = reply->readAll();
        reply->deleteLater();
        return answer;
    }

    QTemporaryDir m_home;
    const quint16 m_port;
    const quint16 m_interface;
    QString m_device;
    QString m_other;
    QProcess m_process;
    QNetworkAccessManager m_network;
};
