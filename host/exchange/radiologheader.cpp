// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologheader.h"

#include "host/exchange/radiologrow.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Sticks, knobs, sliders, switches and channels, which the radio names itself. */
bool isOfTheRadio(const QString &column)
{
    static const QRegularExpression own(
        u"^(Rud|Ele|Thr|Ail|ST|TH|LSW|P[0-9]+|S[0-9]|SL[0-9]+|LS|RS|[LR]S[0-9]?|EXT[0-9]|FL[0-9]|S[A-Z]|"
        "SW[0-9]+|6POS|CH[0-9]+\\(us\\)|TxBat\\(V\\))$"_s);
    return own.match(column).hasMatch();
}

/** Sensors that have no unit. */
bool isWithoutUnit(const QString &column)
{
    static const QSet<QString> names{u"Date"_s, u"Time"_s, u"ANT"_s, u"RFMD"_s, u"TQly"_s, u"RQly"_s,
                                     u"GPS"_s,  u"Sats"_s, u"FM"_s,  u"SWR"_s,  u"RSSI"_s};
    return names.contains(column);
}

qsizetype unitBegin(const QString &column)
{
    return column.endsWith(u')') ? column.lastIndexOf(u'(') : -1;
}

} // namespace

LogHeader::LogHeader(QByteArrayView line)
{
    if (line.startsWith("\xEF\xBB\xBF"))
        line = line.sliced(3);
    m_line = line.toByteArray();
    LogFields fields;
    fields.split(line, line.size() + 1);
    m_names.reserve(fields.count());
    for (qsizetype i = 0; i < fields.count(); ++i)
        m_names.append(QString::fromUtf8(fields.at(i)));
}

bool LogHeader::isRadioLog() const
{
    return m_names.size() > 2 && m_names.at(0) == "Date"_L1 && m_names.at(1) == "Time"_L1;
}

QString LogHeader::key() const
{
    return QString::fromLatin1(QCryptographicHash::hash(m_line, QCryptographicHash::Sha256).toHex());
}

bool LogHeader::joinTo(qsizetype count)
{
    QList<QString> joined;
    QList<QString> pieces; // without a unit so far
    for (const QString &name : std::as_const(m_names)) {
        const bool isOneOfItsOwn = isOfTheRadio(name) || isWithoutUnit(name);
        if (isOneOfItsOwn)
            joined += std::exchange(pieces, {});
        if (!isOneOfItsOwn && unitBegin(name) < 0) {
            pieces.append(name);
            continue;
        }
        pieces.append(name);
        joined.append(pieces.join(u','));
        pieces.clear();
    }
    joined += pieces;
    if (joined.size() != count)
        return false;
    m_names = joined;
    return true;
}

QList<qsizetype> LogHeader::sensors() const
{
    QList<qsizetype> found;
    for (qsizetype i = 2; i < m_names.size(); ++i) {
        if (!isOfTheRadio(m_names.at(i)))
            found.append(i);
    }
    return found;
}

QString unitOf(const QString &column)
{
    const qsizetype begin = unitBegin(column);
    return begin < 0 ? QString() : column.sliced(begin + 1, column.size() - begin - 2);
}

QString labelOf(const QString &column)
{
    const qsizetype begin = unitBegin(column);
    return begin < 0 ? column : column.first(begin).trimmed();
}

} // namespace Host
