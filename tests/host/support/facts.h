// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDomDocument>
#include <QMap>
#include <QSet>
#include <QString>
#include <QTime>

using namespace Qt::Literals::StringLiterals;

/**
 * What a data file says, as a heap of single statements ("Voltbok/Battery/Capacity=450") without any order:
 * another way than losses() to find what one document says and another does not.
 */
class Facts
{
public:
    explicit Facts(const QByteArray &document)
    {
        QDomDocument dom;
        dom.setContent(document);
        addChildren(dom, QString());
    }

    /** Something that is said here more often than there; empty when there is nothing. */
    QString missingFrom(const Facts &other) const
    {
        for (auto fact = m_facts.cbegin(); fact != m_facts.cend(); ++fact) {
            if (fact.value() > other.m_facts.value(fact.key()))
                return fact.key();
        }
        return QString();
    }

private:
    static bool isContainer(const QString &path)
    {
        static const QSet<QString> containers{u"/Voltbok/Locations"_s, u"/Voltbok/Battery/Data"_s,
                                              u"/Voltbok/Model/FlightLog"_s};
        return containers.contains(path);
    }

    /** One spelling for all that mean the same in a field of this name. */
    static QString canonical(const QString &field, const QString &value)
    {
        static const QSet<QString> numbers{
            u"Capacity"_s, u"Chrgrate"_s, u"Dischrgrate"_s, u"Cycles"_s,  u"Charged"_s,    u"Weight"_s,
            u"Size"_s,     u"Flights"_s,  u"Temperature"_s, u"Current"_s, u"Discharged"_s,
        };
        bool ok = false;
        const qulonglong number = value.toULongLong(&ok);
        if (numbers.contains(field))
            return ok ? QString::number(number) : u'?' + value;
        if (field == u"Duration"_s) {
            const QStringList parts = value.split(u':');
            const QTime time(parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt());
            return time.isValid() && parts.size() > 1 ? time.toString() : value;
        }
        return value;
    }

    void add(const QString &fact) { ++m_facts[m_record + fact]; }

    void addValue(const QString &path, const QString &field, const QString &value)
    {
        if (!value.trimmed().isEmpty())
            add(path + u'=' + canonical(field, value));
    }

    void addChildren(const QDomNode &node, const QString &path)
    {
        QString text;
        for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
            if (child.isElement() && path == u"/Voltbok"_s)
                addRecord(child.toElement(), path + u'/' + child.nodeName());
            else if (child.isElement())
                addElement(child.toElement(), path + u'/' + child.nodeName());
            else if (child.isComment() || (child.isProcessingInstruction() && !path.isEmpty()))
                add(path + u"/remark"_s);
            else if (child.isText() || child.isCDATASection())
                text += child.nodeValue();
        }
        addValue(path, path.section(u'/', -1), text);
    }

    /** Says with every statement which battery or model it is about. */
    void addRecord(const QDomElement &element, const QString &path)
    {
        for (const auto &kind : {u"Battery"_s, u"Model"_s}) {
            if (element.nodeName().contains(kind))
                m_record = kind + QString::number(++m_records[kind]);
        }
        addElement(element, path);
        m_record.clear();
    }

    void addElement(const QDomElement &element, const QString &path)
    {
        if (!isContainer(path)) // entries may stand in more of them or fewer
            add(path);
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomNode attribute = attributes.item(i);
            add(path + u'@' + attribute.nodeName());
            addValue(path + u'@' + attribute.nodeName(), attribute.nodeName(), attribute.nodeValue());
        }
        addChildren(element, path);
    }

    QMap<QString, int> m_facts;
    QMap<QString, int> m_records;
    QString m_record;
};
