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

#include <benchmark/benchmark.h>

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace Key = DataFile::Key;

namespace {

using Bare::Element;

void writeAll(QXmlStreamWriter &writer, const QList<Bare::Element> &elements)
{
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeDTD(u"<!DOCTYPE Voltbok>"_s);
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

void Bare::Texts::add(QStringView name, QStringView text)
{
    const auto isOneOf = [name](std::initializer_list<QStringView> keys) {
        return std::find(keys.begin(), keys.end(), name) != keys.end();
    };
    QList<Span> *kind = nullptr;
    if (isOneOf({Key::Capacity, Key::ChargeRate, Key::DischargeRate, Key::Cycles, Key::Charged, Key::Weight,
                 Key::Size, Key::Flights, Key::Discharged, Key::Current, Key::Temperature}))
        kind = &numbers;
    else if (isOneOf({Key::Purchase}))
        kind = &dates;
    else if (isOneOf({Key::LastUse, Key::LastUpdate, Key::Date}))
        kind = &dateTimes;
    else if (isOneOf({Key::Duration}))
        kind = &times;
    if (!kind)
        return;
    kind->append({characters.size(), text.size()});
    characters.append(text);
}

void Bare::Texts::convert() const
{
    for (const Span span : numbers)
        benchmark::DoNotOptimize(at(span).toUInt());
    for (const Span span : dates)
        benchmark::DoNotOptimize(QDate::fromString(at(span), u"yyyy/MM/dd"));
    for (const Span span : dateTimes)
        benchmark::DoNotOptimize(QDateTime::fromString(at(span), Qt::TextDate));
    for (const Span span : times)
        benchmark::DoNotOptimize(QTime::fromString(at(span), Qt::TextDate));
}

Bare::Texts Bare::textsOf(const QString &path)
{
    Texts texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader reader(&file);
    QString element;
    for (reader.readNext(); !reader.atEnd(); reader.readNext()) {
        if (reader.isStartElement()) {
            element = reader.name().toString();
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                texts.add(attribute.name(), attribute.value());
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            texts.add(element, reader.text());
        }
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
    writeAll(writer, elements);
}

void Bare::composeAndWrite(const QString &path, const QList<Element> &elements)
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writeAll(writer, elements);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(document);
}
