// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/losses.h"

#include "host/data/moments.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QScopedValueRollback>

#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("Losses", source);
}

constexpr qsizetype LongestQuote = 50;        // characters of a value that a line shows
constexpr qsizetype FarthestCounterpart = 50; // elements that may be dropped before one that was kept

bool isEmpty(const Element &element)
{
    return element.attributes.isEmpty() && element.remarks.isEmpty() && element.children.empty() &&
           element.content.trimmed().isEmpty();
}

QString quote(QStringView value)
{
    return value.toString().simplified().left(LongestQuote);
}

QString lineOf(const Element &element)
{
    return QString::number(element.line);
}

/** A date-time by the clock on the wall, in whatever zone: local time here may not have that hour. */
QDateTime onTheWall(const QString &value)
{
    return QDateTime::fromString(value + u" GMT"_s, Qt::TextDate);
}

bool isSameMoment(const QString &value, const QString &saved)
{
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

/** Whether a value is a time that the clocks here never show: it could be read, and is erased by the save. */
bool isSkippedTime(const QString &value)
{
    const QDateTime moment = onTheWall(value);
    return moment.isValid() && !timeOf(moment.date(), moment.time()).isValid();
}

/** In which way the value of a known field is lost. */
Loss::Kind kindOf(const QString &value, const QString &saved)
{
    const bool isNothing = saved.isEmpty() || saved == u"0";
    return isNothing && !isSkippedTime(value) ? Loss::Unread : Loss::Dropped;
}

/** "battery “3S”" */
QString describe(const Element &record)
{
    const Element *name = record.child(u"Name");
    const QString quoted = name ? quote(name->content) : QString();
    return record.name == u"Model" ? text(QT_TRANSLATE_NOOP("Losses", "model “%1”")).arg(quoted)
                                   : text(QT_TRANSLATE_NOOP("Losses", "battery “%1”")).arg(quoted);
}

class Comparison
{
public:
    explicit Comparison(qsizetype enough = std::numeric_limits<qsizetype>::max())
        : m_enough(enough)
    {
    }

    Losses found;

    void compare(const Element &element, const Element &saved)
    {
        const QScopedValueRollback record(m_record, element.isRecord ? &element : m_record);
        if (m_enough > 1)
            found.lines.insert(&saved, element.line);
        for (const QString &remark : element.remarks)
            add(Loss::Dropped, remark);
        for (const QXmlStreamAttribute &attribute : element.attributes)
            compareAttribute(element, attribute, saved);
        if (!means(element.content, saved.content))
            add(element.isValue ? kindOf(element.content, saved.content) : Loss::Dropped,
                text(QT_TRANSLATE_NOOP("Losses", "the text “%1” of “%2” in line %3"))
                    .arg(quote(element.content), quote(element.name), lineOf(element)));
        if (!element.children.empty())
            compareChildren(element, saved);
    }

private:
    using Elements = QList<const Element *>;

    static bool isKept(const Element &element, const Element &saved)
    {
        Comparison comparison(1);
        comparison.compare(element, saved);
        return comparison.found.losses.isEmpty();
    }

    bool isEnough() const { return found.losses.size() >= m_enough; }

    void add(Loss::Kind kind, const QString &what)
    {
        found.losses.append({kind, m_record ? describe(*m_record) : QString(), what});
    }

    void drop(const Element &element)
    {
        const QScopedValueRollback record(m_record, element.isRecord ? &element : m_record);
        if (!element.isContainer || !isEmpty(element))
            add(Loss::Dropped, text(QT_TRANSLATE_NOOP("Losses", "the element “%1” in line %2"))
                                   .arg(quote(element.name), lineOf(element)));
    }

    void compareAttribute(const Element &element, const QXmlStreamAttribute &attribute, const Element &saved)
    {
        const QString name = attribute.qualifiedName().toString();
        const QString value = attribute.value().toString();
        const QString kept = saved.attributes.value(name).toString();
        const bool isKnown = saved.attributes.hasAttribute(name);
        if (isKnown && means(value, kept))
            return;
        add(isKnown ? kindOf(value, kept) : Loss::Dropped,
            text(QT_TRANSLATE_NOOP("Losses", "the attribute “%1” (%2) of “%3” in line %4"))
                .arg(quote(name), quote(value), quote(element.name), lineOf(element)));
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
        for (qsizetype i = 0; i < written.size() && next < read.size() && !isEnough(); ++i) {
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
        while (next < read.size() && !isEnough())
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

    const qsizetype m_enough;          // losses
    const Element *m_record = nullptr; // the battery or model that is being compared
};

} // namespace

Losses compareDocuments(const Element &document, const Element &saved)
{
    Comparison comparison;
    comparison.compare(document, saved);
    return std::move(comparison.found);
}

QStringList losses(const QByteArray &document, const QByteArray &saved)
{
    if (document == saved)
        return {};
    QStringList lines;
    const QList<Loss> found = compareDocuments(*documentTree(document), *documentTree(saved)).losses;
    for (const Loss &loss : found)
        lines.append(loss.what);
    return lines;
}

} // namespace Host
