// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/losses.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QXmlStreamReader>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("Losses", source);
}

constexpr std::size_t DeepestLevel = 10;

/** A document as a tree, without white space between elements. */
struct Element
{
    QString name;
    qint64 line = 0;
    QXmlStreamAttributes attributes;
    QString content;
    QStringList comments; // and processing instructions
    std::vector<std::unique_ptr<Element>> children;

    Element *child(QStringView wanted) const
    {
        for (const auto &candidate : children) {
            if (candidate->name == wanted)
                return candidate.get();
        }
        return nullptr;
    }
};

/** Entries of one kind may stand in several containers; a save writes one. */
bool isContainer(QStringView name)
{
    return name == u"Locations" || name == u"Data" || name == u"FlightLog";
}

bool isEmptyContainer(const Element &element)
{
    return isContainer(element.name) && element.attributes.isEmpty() && element.comments.isEmpty() &&
           element.children.empty() && element.content.trimmed().isEmpty();
}

Element *enter(Element *parent, const QXmlStreamReader &reader)
{
    Element *same = isContainer(reader.name()) ? parent->child(reader.name()) : nullptr;
    if (same)
        return same;
    auto element = std::make_unique<Element>();
    element->name = reader.name().toString();
    element->line = reader.lineNumber();
    element->attributes = reader.attributes();
    parent->children.push_back(std::move(element));
    return parent->children.back().get();
}

/** The tree above the root element, down to a level that no logbook has: what lies deeper counts as content.
 */
std::unique_ptr<Element> parse(const QByteArray &document)
{
    auto top = std::make_unique<Element>();
    std::vector<Element *> open{top.get()};
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            open.push_back(open.size() < DeepestLevel ? enter(open.back(), reader) : open.back());
        else if (reader.isEndElement())
            open.pop_back();
        else if (reader.isCharacters())
            open.back()->content += reader.text();
        else if (reader.isComment() || reader.isProcessingInstruction())
            open.back()->comments.append(QString::number(reader.lineNumber()));
    }
    return top;
}

/** Whether a value that a save writes otherwise is still the same value. */
bool means(const QString &value, const QString &saved)
{
    if (value == saved || value.trimmed().isEmpty())
        return true;
    bool isNumber = false;
    const unsigned int number = value.toUInt(&isNumber);
    if (isNumber && QString::number(number) == saved)
        return true;
    const QDateTime when = QDateTime::fromString(value, Qt::TextDate);
    if (when.isValid() && when.toString(Qt::TextDate) == saved)
        return true;
    const QTime time = QTime::fromString(value, Qt::TextDate);
    return time.isValid() && time.toString(Qt::TextDate) == saved;
}

class Comparison
{
public:
    QStringList lines;

    void compare(const Element &element, const Element &saved)
    {
        for (const QString &line : element.comments)
            lines.append(text(QT_TRANSLATE_NOOP("Losses", "a comment in line %1")).arg(line));
        for (const QXmlStreamAttribute &attribute : element.attributes)
            compareAttribute(element, attribute, saved);
        if (!means(element.content, saved.content))
            lines.append(
                text(QT_TRANSLATE_NOOP("Losses", "the text “%1” of “%2” in line %3"))
                    .arg(element.content.trimmed().left(50), element.name, QString::number(element.line)));
        compareChildren(element, saved);
    }

private:
    void compareAttribute(const Element &element, const QXmlStreamAttribute &attribute, const Element &saved)
    {
        const QString name = attribute.qualifiedName().toString();
        if (means(attribute.value().toString(), saved.attributes.value(name).toString()))
            return;
        lines.append(
            text(QT_TRANSLATE_NOOP("Losses", "the attribute “%1” (%2) of “%3” in line %4"))
                .arg(name.left(50), attribute.value().left(50), element.name, QString::number(element.line)));
    }

    /** The children of one name are compared in their order. */
    void compareChildren(const Element &element, const Element &saved)
    {
        QHash<QString, QList<const Element *>> written;
        for (const auto &child : saved.children)
            written[child->name].append(child.get());
        QHash<QString, qsizetype> seen;
        for (const auto &child : element.children) {
            const QList<const Element *> alike = written.value(child->name);
            const qsizetype index = seen[child->name]++;
            if (index < alike.size())
                compare(*child, *alike.at(index));
            else if (!isEmptyContainer(*child))
                lines.append(text(QT_TRANSLATE_NOOP("Losses", "the element “%1” in line %2"))
                                 .arg(child->name.left(50), QString::number(child->line)));
        }
    }
};

} // namespace

QStringList losses(const QByteArray &document, const QByteArray &saved)
{
    if (document == saved)
        return {};
    Comparison comparison;
    comparison.compare(*parse(document), *parse(saved));
    return comparison.lines;
}

} // namespace Host
