// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/sessionvalues.h"

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Writes the members of a session into an object. */
class Writer
{
public:
    void value(const QString &key, const QString &text)
    {
        if (!text.isEmpty())
            object[key] = text;
    }
    void value(const QString &key, bool flag)
    {
        if (flag)
            object[key] = true;
    }
    template <typename Number>
    void value(const QString &key, Number number)
    {
        object[key] = number;
    }
    template <typename Value>
    void value(const QString &key, const std::optional<Value> &member)
    {
        if (member)
            object[key] = *member;
    }

    QJsonObject object;
};

/** Reads them back. */
class Reader
{
public:
    explicit Reader(const QJsonObject &object)
        : m_object(object)
    {
    }

    void value(const QString &key, QString &text) { text = m_object.value(key).toString(); }
    void value(const QString &key, bool &flag) { flag = m_object.value(key).toBool(); }
    void value(const QString &key, int &number) { number = m_object.value(key).toInt(); }
    void value(const QString &key, qint64 &number) { number = m_object.value(key).toInteger(); }
    void value(const QString &key, double &number) { number = m_object.value(key).toDouble(); }
    template <typename Value>
    void value(const QString &key, std::optional<Value> &member)
    {
        if (!m_object.contains(key) || m_object.value(key).isNull())
            return;
        Value found{};
        value(key, found);
        member = found;
    }

private:
    const QJsonObject &m_object;
};

/** Each member, once for writing and reading. */
template <typename Visitor, typename Visited>
void visit(Visitor &visitor, Visited &session)
{
    visitor.value(u"model"_s, session.model);
    visitor.value(u"sha256"_s, session.sha256);
    visitor.value(u"first_byte"_s, session.firstByte);
    visitor.value(u"end_byte"_s, session.endByte);
    visitor.value(u"resumed"_s, session.isResumed);
    visitor.value(u"clock_ran_back"_s, session.clockRanBack);
    visitor.value(u"start"_s, session.start);
    visitor.value(u"end"_s, session.end);
    visitor.value(u"rows"_s, session.rows);
    visitor.value(u"first_load"_s, session.firstLoad);
    visitor.value(u"last_load"_s, session.lastLoad);
    visitor.value(u"load_ms"_s, session.loadTime);
    visitor.value(u"counter_first"_s, session.counterFirst);
    visitor.value(u"counter_last"_s, session.counterLast);
    visitor.value(u"integral"_s, session.integral);
    visitor.value(u"doubtful"_s, session.doubtful);
    visitor.value(u"max_current"_s, session.maxCurrent);
    visitor.value(u"rejected_currents"_s, session.rejectedCurrents);
    visitor.value(u"rejected_voltages"_s, session.rejectedVoltages);
    visitor.value(u"min_voltage"_s, session.minVoltage);
    visitor.value(u"max_voltage"_s, session.maxVoltage);
    visitor.value(u"rest_before"_s, session.restBefore);
    visitor.value(u"rest_after"_s, session.restAfter);
    visitor.value(u"charge_at_rest_before"_s, session.chargeAtRestBefore);
    visitor.value(u"charge_at_rest_after"_s, session.chargeAtRestAfter);
    visitor.value(u"cells"_s, session.cells);
    visitor.value(u"resistance"_s, session.resistance);
}

} // namespace

QJsonObject storedSession(const Session &session)
{
    Writer writer;
    visit(writer, session);
    return writer.object;
}

Session sessionFrom(const QJsonObject &stored)
{
    Session session;
    Reader reader(stored);
    visit(reader, session);
    return session;
}

QString sessionId(const Session &session)
{
    return session.sha256 + u':' + QString::number(session.firstByte);
}

} // namespace Host
