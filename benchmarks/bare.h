// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <utility>

/** The least that the same job takes with Qt alone; what the library's work is compared with. */
namespace Bare {

/** One pass of a stream reader over a file that does nothing with what it meets. */
void read(const QString &path);

/**
 * The texts of a data file that stand for numbers, dates and times.
 *
 * They lie in one piece of memory: thousands of strings of their own would stand between the records of a
 * window that is measured beside them, and slow it down.
 */
class Texts
{
public:
    /** Adds the value of an attribute or element with this name, if it is one of those. */
    void add(QStringView name, QStringView text);

    /** Converts each of them once, with Qt's own conversions. */
    void convert() const;

private:
    struct Span
    {
        qsizetype from;
        qsizetype length;
    };

    QStringView at(Span span) const { return QStringView(characters).mid(span.from, span.length); }

    QString characters;
    QList<Span> numbers;
    QList<Span> dates;
    QList<Span> dateTimes;
    QList<Span> times;
};

Texts textsOf(const QString &path);

/** An element of a document, as the stream writer takes it. */
struct Element
{
    enum Kind { Start, End, Empty, Text };
    Kind kind;
    QString name;
    QString text;
    QList<std::pair<QString, QString>> attributes;
};

/** The elements of a data file, to be written again. */
QList<Element> elementsOf(const QString &path);

/** A stream writer straight into the file at @p path. */
void write(const QString &path, const QList<Element> &elements);
/** A stream writer into memory, which is written to the file at once. */
void composeAndWrite(const QString &path, const QList<Element> &elements);

} // namespace Bare
