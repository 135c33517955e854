// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/moments.h"
#include "host/exchange/radiolog.h"

#include <QCryptographicHash>
#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qint64 MillisecondsOfADay = 86'400'000;
constexpr int FirstYearOfASetClock = 2005;

QDate dayOf(ClockTime time)
{
    return QDate::fromJulianDay(time / MillisecondsOfADay);
}

} // namespace

QDateTime timeOfClock(ClockTime time)
{
    return timeOf(time / 1000);
}

QString clockText(ClockTime time)
{
    const QTime clock = QTime::fromMSecsSinceStartOfDay(static_cast<int>(time % MillisecondsOfADay));
    return dayOf(time).toString(Qt::ISODate) + u'T' + clock.toString(u"HH:mm:ss"_s);
}

bool Session::isClockSet() const
{
    return dayOf(start).year() >= FirstYearOfASetClock;
}

std::optional<LogName> logName(const QString &fileName)
{
    static const QRegularExpression form(
        u"(?:^|[/\\\\])([^/\\\\]+)-(\\d{4}-\\d\\d-\\d\\d)(?:-(\\d{6}))?\\.csv$"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(fileName);
    if (!match.hasMatch())
        return std::nullopt;
    LogName name;
    name.model = match.captured(1);
    name.date = QDate::fromString(match.captured(2), Qt::ISODate);
    if (match.hasCaptured(3))
        name.time = QTime::fromString(match.captured(3), u"HHmmss"_s);
    return name;
}

QString statusKey(LogStatus status)
{
    switch (status) {
    case LogStatus::Read:
        return u"read"_s;
    case LogStatus::Empty:
        return u"empty"_s;
    case LogStatus::NotARadioLog:
        return u"not a radio log"_s;
    case LogStatus::Refused:
        break;
    }
    return u"refused"_s;
}

QString fingerprint(QIODevice &device, qint64 bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray buffer(qsizetype(256) * 1024, Qt::Uninitialized);
    if (!device.seek(0))
        return QString();
    qint64 left = std::min(bytes, device.size());
    if (left < bytes && bytes != std::numeric_limits<qint64>::max())
        return QString();
    while (left > 0) {
        const qint64 count = device.read(buffer.data(), std::min(left, qint64(buffer.size())));
        if (count <= 0)
            return QString();
        hash.addData(QByteArrayView(buffer.constData(), count));
        left -= count;
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace Host
