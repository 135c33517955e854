// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/documenttree.h"

#include <QCoreApplication>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr std::size_t DeepestLevel = 10; // no logbook has one; what lies deeper counts as content

QString text(const char *source)
{
    return QCoreApplication::translate("Losses", source);
}

/** Shows references to entities that nothing declares, which the loaders pass over. */
class ShownReferences final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &name) override
    {
        return u"(%1)"_s.arg(QString(name).remove(QChar::Null));
    }
};

bool isRecord(QStringView name)
{
    return name == u"Battery" || name == u"Model";
}

/** Whether this is a container of entries, of which a save writes one.
 * @param level of the parent; above the root it is 1. */
bool isContainer(const Element &parent, QStringView name, std::size_t level)
{
    if (level == 2)
        return name == u"Locations";
    return level == 3 && ((parent.name == u"Battery" && name == u"Data") ||
                          (parent.name == u"Model" && name == u"FlightLog"));
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
    element->isRecord = level == 2 && isRecord(reader.name());
    element->isContainer = entersContainer;
    element->isValue = level == 3 && parent->isRecord && !entersContainer;
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

} // namespace

Element *Element::child(QStringView wanted) const
{
    const auto found = std::find_if(children.cbegin(), children.cend(),
                                    [wanted](const auto &candidate) { return candidate->name == wanted; });
    return found == children.cend() ? nullptr : found->get();
}

QList<const Element *> Element::all(QStringView wanted) const
{
    QList<const Element *> found;
    for (const auto &candidate : children) {
        if (candidate->name == wanted)
            found.append(candidate.get());
    }
    return found;
}

std::unique_ptr<Element> documentTree(const QByteArray &document)
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

} // namespace Host
