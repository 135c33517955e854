// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/radiolog.h"
#include "tests/host/support/makeradiolog.h"

#include <QBuffer>

namespace MadeLogs {

inline Host::RadioLog readLog(QByteArray bytes, const Host::ReadOptions &options = {},
                              const QString &name = QStringLiteral("Swift-2026-05-01-140000.csv"))
{
    QBuffer device(&bytes);
    device.open(QBuffer::ReadOnly);
    return Host::readRadioLog(device, name, options);
}

/** The only session of a log of these rows; one of nothing when there are more or none. */
inline Host::Session readSession(const Rows &rows, const QByteArray &sensors = UsualSensors)
{
    const Host::RadioLog log = readLog(Text(sensors).add(rows).bytes());
    return log.sessions.size() == 1 ? log.sessions.first() : Host::Session();
}

} // namespace MadeLogs
