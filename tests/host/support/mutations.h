// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDomDocument>
#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

/** Changes a document at random: mostly into something that no logbook should be, but well-formed. */
class Mutations
{
public:
    explicit Mutations(quint32 seed)
        : m_random(seed)
    {
    }

    QByteArray mutate(const QByteArray &document)
    {
        QDomDocument dom;
        dom.setContent(document);
        for (int i = 1 + pick(3); i > 0; --i)
            mutateOnce(dom);
        return dom.toByteArray(pick(5) - 1);
    }

private:
    int pick(qsizetype count) { return static_cast<int>(m_random.bounded(static_cast<quint32>(count))); }
    QString pick(const QStringList &list) { return list.at(pick(list.size())); }

    QString name()
    {
        return pick({u"Battery"_s, u"Model"_s, u"Data"_s, u"Cycle"_s, u"Name"_s, u"Locations"_s,
                     u"Location"_s, u"FlightLog"_s, u"LogData"_s, u"Notes"_s, u"Chemistry"_s,
                     u"BatteryPack"_s, u"DataSet"_s, u"Voltbok"_s});
    }

    QString value()
    {
        return pick({QString(), u" "_s, u"0"_s, u"1"_s, u"007"_s, u"abc"_s, u"true"_s, u"-5"_s,
                     u"4294967296"_s, u"Sun Nov 15 12:04:22 2026"_s, u"Sun Feb 30 12:00:00 2026"_s,
                     u"2025/03/14"_s, u"2025/13/14"_s, u"00:05:12"_s, u"5:12"_s, u"25:61:00"_s,
                     u"x & <y>"_s});
    }

    static void collect(const QDomElement &element, QList<QDomElement> &all)
    {
        all.append(element);
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            collect(child, all);
    }

    QDomElement element(QDomDocument &dom)
    {
        QList<QDomElement> all;
        collect(dom.documentElement(), all);
        return all.at(pick(all.size()));
    }

    QDomElement elementBelowRoot(QDomDocument &dom)
    {
        QDomElement result = element(dom);
        return result == dom.documentElement() ? dom.documentElement().firstChildElement() : result;
    }

    void setAttribute(QDomElement element)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        const bool known = attributes.count() > 0 && pick(3) > 0;
        element.setAttribute(known ? attributes.item(pick(attributes.count())).nodeName() : name(), value());
    }

    void setText(QDomDocument &dom, QDomElement element)
    {
        if (element.firstChild().isText())
            element.firstChild().setNodeValue(value());
        else
            element.appendChild(dom.createTextNode(value()));
    }

    void move(QDomDocument &dom, const QDomElement &moved)
    {
        QDomElement parent = element(dom);
        for (QDomNode above = parent; !above.isNull(); above = above.parentNode()) {
            if (above == moved)
                return;
        }
        parent.appendChild(moved);
    }

    void mutateOnce(QDomDocument &dom)
    {
        QDomElement one = elementBelowRoot(dom);
        if (one.isNull())
            return;
        QDomNode parent = one.parentNode();
        switch (pick(11)) {
        case 0:
            parent.removeChild(one);
            break;
        case 1:
            parent.insertAfter(one.cloneNode(), one);
            break;
        case 2:
            one.setTagName(name());
            break;
        case 3:
            setAttribute(one);
            break;
        case 4:
            if (one.attributes().count() > 0)
                one.removeAttribute(one.attributes().item(0).nodeName());
            break;
        case 5:
        case 6:
            setText(dom, one);
            break;
        case 7:
            parent.insertBefore(dom.createComment(u"why"_s), one);
            break;
        case 8:
            parent.insertBefore(dom.createElement(name()), one);
            break;
        case 9:
            move(dom, one);
            break;
        default:
            if (!one.nextSiblingElement().isNull())
                parent.insertAfter(one, one.nextSiblingElement());
        }
    }

    QRandomGenerator m_random;
};
