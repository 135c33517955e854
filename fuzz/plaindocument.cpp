// SPDX-License-Identifier: GPL-3.0-or-later
#include "plaindocument.h"

#include <QXmlStreamReader>

namespace {

class PlainDocument
{
public:
    explicit PlainDocument(const QByteArray &document)
        : m_xml(document)
    {
    }

    std::optional<QStringList> lines()
    {
        if (nextChild() && is(u"Voltbok"))
            readRoot();
        else
            m_plain = false;
        if (nextChild() || !m_plain || m_xml.hasError())
            return std::nullopt;
        return m_locations + m_batteries + m_models;
    }

private:
    bool is(QStringView name) const { return m_xml.name() == name; }

    /** Goes on to the start of the next child; false at the end of the parent, or where the shape ends. */
    bool nextChild()
    {
        while (m_plain) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                m_plain = m_xml.name() == m_xml.qualifiedName() && m_xml.namespaceUri().isEmpty();
                return m_plain;
            case QXmlStreamReader::EndElement:
            case QXmlStreamReader::EndDocument:
                return false;
            case QXmlStreamReader::DTD:
                m_plain = m_xml.text().trimmed() == u"<!DOCTYPE Voltbok>";
                break;
            case QXmlStreamReader::Characters:
                m_plain = m_xml.isWhitespace();
                break;
            case QXmlStreamReader::StartDocument:
            case QXmlStreamReader::Comment:
                break;
            default:
                m_plain = false;
            }
        }
        return false;
    }

    /** The text of an element without children. */
    QString text()
    {
        m_plain = m_plain && m_xml.attributes().isEmpty();
        const QString text = m_xml.readElementText();
        m_plain = m_plain && !m_xml.hasError();
        return text;
    }

    /** The value of an attribute; the element must have no others than are known. */
    QString value(QStringView name, const QList<QStringView> &known)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            m_plain = m_plain && known.contains(attribute.qualifiedName());
        return attributes.value(name.toString()).toString();
    }

    void expectEmpty()
    {
        if (nextChild())
            m_plain = false;
    }

    void readRoot()
    {
        while (nextChild()) {
            if (is(u"Locations"))
                readLocations();
            else if (is(u"Battery"))
                readBattery();
            else if (is(u"Model"))
                readModel();
            else
                m_plain = false;
        }
    }

    void readLocations()
    {
        while (nextChild()) {
            m_plain = is(u"Location") && m_xml.attributes().size() == 1;
            m_locations += Line::location(value(u"Name", {u"Name"}));
            expectEmpty();
        }
    }

    void readBattery()
    {
        const QList<QStringView> others = {u"Capacity", u"Chrgrate", u"Dischrgrate", u"Purchase",
                                           u"Cycles",   u"Charged",  u"LastUse"};
        QString name;
        QStringList discharges;
        while (nextChild()) {
            if (is(u"Name"))
                name = text();
            else if (is(u"Data"))
                discharges += dischargesHere();
            else if (others.contains(m_xml.name()))
                text();
            else
                m_plain = false;
        }
        m_batteries += Line::battery(name);
        m_batteries += discharges;
    }

    QStringList dischargesHere()
    {
        const QList<QStringView> known = {u"Discharged", u"Current", u"Date"};
        QStringList discharges;
        while (nextChild()) {
            m_plain = is(u"Cycle");
            discharges +=
                Line::discharge(value(u"Discharged", known).toUInt(), value(u"Current", known).toUInt());
            expectEmpty();
        }
        return discharges;
    }

    void readModel()
    {
        const QList<QStringView> others = {u"Type",    u"Weight", u"Size",      u"Purchase",
                                           u"Flights", u"Notes",  u"LastUpdate"};
        QString name;
        QStringList batteries;
        QStringList flights;
        while (nextChild()) {
            if (is(u"Name"))
                name = text();
            else if (is(u"Battery"))
                batteries += Line::assigned(text());
            else if (is(u"FlightLog"))
                flights += flightsHere();
            else if (others.contains(m_xml.name()))
                text();
            else
                m_plain = false;
        }
        batteries.removeDuplicates();
        m_models += Line::model(name);
        m_models += batteries;
        m_models += flights;
    }

    QStringList flightsHere()
    {
        const QList<QStringView> known = {u"Date", u"Location", u"Duration", u"Temperature", u"Notes"};
        QStringList flights;
        while (nextChild()) {
            m_plain = is(u"LogData");
            flights += Line::flight(value(u"Location", known), value(u"Notes", known));
            expectEmpty();
        }
        return flights;
    }

    QXmlStreamReader m_xml;
    QStringList m_locations;
    QStringList m_batteries;
    QStringList m_models;
    bool m_plain = true;
};

} // namespace

std::optional<QStringList> linesOfPlainDocument(const QByteArray &document)
{
    return PlainDocument(document).lines();
}

QString Line::location(const QString &name)
{
    return QStringLiteral("location ") + name;
}

QString Line::battery(const QString &name)
{
    return QStringLiteral("battery ") + name;
}

QString Line::discharge(unsigned int discharged, unsigned int current)
{
    return QStringLiteral("discharge %1 %2").arg(discharged).arg(current);
}

QString Line::model(const QString &name)
{
    return QStringLiteral("model ") + name;
}

QString Line::assigned(const QString &battery)
{
    return QStringLiteral("assigned ") + battery;
}

QString Line::flight(const QString &location, const QString &notes)
{
    return QStringLiteral("flight ") + location + u'/' + notes;
}
