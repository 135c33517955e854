// SPDX-License-Identifier: GPL-3.0-or-later
#include "bare.h"
#include "measure.h"

#include "storage/datafile.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QTime>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>

namespace Key = DataFile::Key;

namespace {

using Measure::keep;

void sort(Bare::Texts &texts, QStringView name, const QString &text)
{
    const auto isOneOf = [name](std::initializer_list<QStringView> keys) {
        return std::find(keys.begin(), keys.end(), name) != keys.end();
    };
    if (isOneOf({Key::Capacity, Key::ChargeRate, Key::DischargeRate, Key::Cycles, Key::Charged, Key::Weight,
                 Key::Size, Key::Flights, Key::Discharged, Key::Current, Key::Temperature}))
        texts.numbers.append(text);
    else if (isOneOf({Key::Purchase}))
        texts.dates.append(text);
    else if (isOneOf({Key::LastUse, Key::LastUpdate, Key::Date}))
        texts.dateTimes.append(text);
    else if (isOneOf({Key::Duration}))
        texts.times.append(text);
}

} // namespace

void Bare::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        reader.readNext();
}

void Bare::Texts::convert() const
{
    for (const QString &text : numbers)
        keep(text.toUInt());
    for (const QString &text : dates)
        keep(QDate::fromString(text, u"yyyy/MM/dd"));
    for (const QString &text : dateTimes)
        keep(QDateTime::fromString(text, Qt::TextDate));
    for (const QString &text : times)
        keep(QTime::fromString(text, Qt::TextDate));
}

Bare::Texts Bare::textsOf(const QString &path)
{
    Texts texts;
    for (const Element &element : elementsOf(path)) {
        if (element.kind == Element::Text)
            sort(texts, element.name, element.text);
        for (const auto &[name, value] : element.attributes)
            sort(texts, name, value);
    }
    return texts;
}

QList<Bare::Element> Bare::elementsOf(const QString &path)
{
    QList<Element> elements;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return elements;
    QXmlStreamReader reader(&file);
    for (reader.readNext(); !reader.atEnd(); reader.readNext()) {
        if (reader.isStartElement()) {
            Element element{Element::Start, reader.name().toString(), QString(), {}};
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                element.attributes.append({attribute.name().toString(), attribute.value().toString()});
            elements.append(element);
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            elements.last().text += reader.text();
        } else if (reader.isEndElement()) {
            if (elements.constLast().kind != Element::Start || elements.constLast().name != reader.name())
                elements.append({Element::End, {}, {}, {}});
            else if (elements.constLast().attributes.isEmpty())
                elements.last().kind = Element::Text;
            else
                elements.last().kind = Element::Empty;
        }
    }
    return elements;
}

void Bare::write(const QString &path, const QList<Element> &elements)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeDTD(QStringLiteral("<!DOCTYPE Voltbok>"));
    for (const Element &element : elements) {
        switch (element.kind) {
        case Element::Start:
            writer.writeStartElement(element.name);
            break;
        case Element::End:
            writer.writeEndElement();
            break;
        case Element::Empty:
            writer.writeEmptyElement(element.name);
            for (const auto &[name, value] : element.attributes)
                writer.writeAttribute(name, value);
            break;
        case Element::Text:
            writer.writeTextElement(element.name, element.text);
            break;
        }
    }
    writer.writeEndDocument();
}
