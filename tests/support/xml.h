// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/** Pieces of a data file, to be put together by a test. */
namespace Xml {

inline QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return "<" + name + ">" + content + "</" + name + ">\n";
}

inline QByteArray locations(const QByteArrayList &names)
{
    QByteArray content;
    for (const QByteArray &name : names)
        content += "<Location Name=\"" + name + "\"/>";
    return element("Locations", content);
}

/** A discharged battery, unless told otherwise. */
inline QByteArray battery(const QByteArray &name, bool charged = false, unsigned int capacity = 2200,
                          unsigned int rating = 25)
{
    return element("Battery", element("Name", name) + element("Capacity", QByteArray::number(capacity)) +
                                  element("Dischrgrate", QByteArray::number(rating)) +
                                  element("Cycles", "4") + element("Charged", charged ? "1" : "0"));
}

inline QByteArray model(const QByteArray &name, const QByteArrayList &batteries = {})
{
    QByteArray content = element("Name", name);
    for (const QByteArray &battery : batteries)
        content += element("Battery", battery);
    return element("Model", content);
}

inline QByteArray file(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n" + element("Voltbok", content);
}

} // namespace Xml
