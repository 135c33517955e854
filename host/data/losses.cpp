// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/losses.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <limits>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("Losses", source);
}

constexpr std::size_t DeepestLevel = 10;      // no logbook has one; what lies deeper counts as content
constexpr qsizetype LongestQuote = 50;        // characters of a value that a line shows
constexpr qsizetype FarthestCounterpart = 50; // elements that may be dropped before one that was kept

/** A document as a tree. */
struct Element
{
    QString name;
    qint64 line = 0;
    bool isContainer = false;
    QXmlStreamAttributes attributes;
    QString content;
    QStringList remarks; // a line for each comment and each other thing that no save writes
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

/** Shows references to entities that nothing declares, which the loaders pass over. */
class ShownReferences final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &name) override
    {
        return u"(%1)"_s.arg(QString(name).remove(QChar::Null));
    }
};

/** Whether this is a container of entries: they may stand in several containers, and a save writes one.
 * @param level of the parent; above the root it is 1. */
bool isContainer(const Element &parent, QStringView name, std::size_t level)
{
    if (level == 2)
        return name == u"Locations";
    return level == 3 && ((parent.name == u"Battery" && name == u"Data") ||
                          (parent.name == u"Model" && name == u"FlightLog"));
}

bool isEmpty(const Element &element)
{
    return element.attributes.isEmpty() && element.remarks.isEmpty() && element.children.empty() &&
           element.content.trimmed().isEmpty();
}

Element *enter(Element *parent, const QXmlStreamReader &reader, std::size_t level)
{
    const bool entersContainer = isContainer(*parent, reader.name(), level);
    if (Element *same = entersContainer ? parent->child(reader.name()) : nullptr) {
        same->attributes += reader.attributes();
        return same;
    }
    auto element = std::make_unique<Element>();
    element->name = reader.name().toString();
    element->line = reader.lineNumber();
    element->isContainer = entersContainer;
    element->attributes = reader.attributes();
    parent->children.push_back(std::move(element));
    return parent->children.back().get();
}

/** What no save writes, wherever it stands; empty for any other token. */
QString remark(const QXmlStreamReader &reader)
{
    const QString line = QString::number(reader.lineNumber());
    if (reader.isComment())
        return text(QT_TRANSLATE_NOOP("Losses", "a comment in line %1")).arg(line);
    if (reader.isProcessingInstruction())
        return text(QT_TRANSLATE_NOOP("Losses", "an instruction to other programs in line %1")).arg(line);
    return QString();
}

/** The tree above the root element. */
std::unique_ptr<Element> parse(const QByteArray &document)
{
    auto top = std::make_unique<Element>();
    std::vector<Element *> open{top.get()};
    ShownReferences references;
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false); // a prefix and its declaration are lost like any name
    reader.setEntityResolver(&references);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            open.push_back(open.size() < DeepestLevel ? enter(open.back(), reader, open.size())
                                                      : open.back());
        else if (reader.isEndElement())
            open.pop_back();
        else if (reader.isCharacters() || reader.isEntityReference())
            open.back()->content += reader.text();
        else if (const QString line = remark(reader); !line.isEmpty())
            open.back()->remarks.append(line);
    }
    if (reader.hasError())
        top->remarks.append(text(QT_TRANSLATE_NOOP("Losses", "everything from line %1 on"))
                                .arg(QString::number(reader.lineNumber())));
    return top;
}

/** Whether two date-times are the same by the clock on the wall, in whatever zone: local time here may not
 * have that hour. */
bool isSameMoment(const QString &value, const QString &saved)
{
    const auto onTheWall = [](const QString &when) {
        return QDateTime::fromString(when + u" GMT"_s, Qt::TextDate);
    };
    const QDateTime moment = onTheWall(value);
    return moment.isValid() && moment == onTheWall(saved);
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
    const QTime time = QTime::fromString(value, Qt::TextDate);
    return (time.isValid() && time == QTime::fromString(saved, Qt::TextDate)) || isSameMoment(value, saved);
}

class Comparison
{
public:
    explicit Comparison(qsizetype enough = std::numeric_limits<qsizetype>::max())
        : m_enough(enough)
    {
    }

    QStringList lines;

    void compare(const Element &element, const Element &saved)
    {
        lines += element.remarks;
        for (const QXmlStreamAttribute &attribute : element.attributes)
            compareAttribute(element, attribute, saved);
        if (!means(element.content, saved.content))
            lines.append(text(QT_TRANSLATE_NOOP("Losses", "the text “%1” of “%2” in line %3"))
                             .arg(quote(element.content), quote(element.name), lineOf(element)));
        if (!element.children.empty())
            compareChildren(element, saved);
    }

private:
    using Elements = QList<const Element *>;

    static QString quote(QStringView value) { return value.toString().simplified().left(LongestQuote); }
    static QString lineOf(const Element &element) { return QString::number(element.line); }

    static bool isKept(const Element &element, const Element &saved)
    {
        Comparison comparison(1);
        comparison.compare(element, saved);
        return comparison.lines.isEmpty();
    }

    void drop(const Element &element)
    {
        if (!element.isContainer || !isEmpty(element))
            lines.append(text(QT_TRANSLATE_NOOP("Losses", "the element “%1” in line %2"))
                             .arg(quote(element.name), lineOf(element)));
    }

    void compareAttribute(const Element &element, const QXmlStreamAttribute &attribute, const Element &saved)
    {
        const QStringView name = attribute.qualifiedName();
        if (saved.attributes.hasAttribute(name.toString()) &&
            means(attribute.value().toString(), saved.attributes.value(name.toString()).toString()))
            return;
        lines.append(text(QT_TRANSLATE_NOOP("Losses", "the attribute “%1” (%2) of “%3” in line %4"))
                         .arg(quote(name), quote(attribute.value()), quote(element.name), lineOf(element)));
    }

    void compareChildren(const Element &element, const Element &saved)
    {
        QHash<QString, Elements> written;
        for (const auto &child : saved.children)
            written[child->name].append(child.get());
        QHash<QString, Elements> read;
        QStringList names; // in the order of the document
        for (const auto &child : element.children) {
            Elements &alike = read[child->name];
            if (alike.isEmpty())
                names.append(child->name);
            alike.append(child.get());
        }
        for (const QString &name : std::as_const(names))
            compareAlike(read.value(name), written.value(name));
    }

    /** Elements of one name keep their order; where some were dropped or added, the others are told from them
     * by what they hold. */
    void compareAlike(const Elements &read, const Elements &written)
    {
        qsizetype next = 0;
        for (qsizetype i = 0; i < written.size() && next < read.size() && lines.size() < m_enough; ++i) {
            const qsizetype dropped = (read.size() - next) - (written.size() - i);
            const qsizetype counterpart = next + countUntil(read, next, dropped, [&](const Element &element) {
                                              return isKept(element, *written.at(i));
                                          });
            while (next < counterpart)
                drop(*read.at(next++));
            i += countUntil(written, i, -dropped,
                            [&](const Element &saved) { return isKept(*read.at(next), saved); });
            compare(*read.at(next++), *written.at(i));
        }
        while (next < read.size() && lines.size() < m_enough)
            drop(*read.at(next++));
    }

    /** How many elements, @p most at most, stand from @p first on before one that matches; 0 where none does.
     */
    template <typename Match>
    static qsizetype countUntil(const Elements &elements, qsizetype first, qsizetype most, Match matches)
    {
        for (qsizetype count = 0; most > 0 && count <= qMin(most, FarthestCounterpart); ++count) {
            if (matches(*elements.at(first + count)))
                return count;
        }
        return 0;
    }

    qsizetype m_enough; // lines
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
