// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

/** A screen that nobody sees, for tests of what only a real platform does. Made before the application. */
class Xvfb
{
    Q_DISABLE_COPY_MOVE(Xvfb)

public:
    explicit Xvfb(const QString &screen = u"800x600x24"_s)
    {
        m_server.setStandardErrorFile(QProcess::nullDevice());
        // Without -noreset it begins anew when its last client leaves, and drops who is just coming.
        m_server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen, u"-nolisten"_s,
                                   u"tcp"_s, u"-noreset"_s});
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
