// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>

/** A screen that nobody sees, for tests of what only a real platform does. Made before the application. */
class Xvfb
{
    Q_DISABLE_COPY_MOVE(Xvfb)

public:
    explicit Xvfb(const QString &screen = QStringLiteral("800x600x24"))
    {
        m_server.setStandardErrorFile(QProcess::nullDevice());
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), screen, QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        QByteArray number;
        while (!number.endsWith('\n') && m_server.waitForReadyRead(20000))
            number += m_server.readAllStandardOutput();
        if (!number.endsWith('\n'))
            qFatal("no Xvfb: is the package xvfb installed?");
        qputenv("DISPLAY", ':' + number.trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }

    ~Xvfb()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

private:
    QProcess m_server;
};
