// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/radiolog.h"

#include <QJsonObject>

namespace Host {

/** All of a session but what joinDischarges() says, to be read back by another import. */
QJsonObject storedSession(const Session &session);
Session sessionFrom(const QJsonObject &stored);

/** Tells a session from all others, for good: "SHA-256:byte". */
QString sessionId(const Session &session);

} // namespace Host
