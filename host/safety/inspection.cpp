// SPDX-License-Identifier: GPL-3.0-or-later
// What a document holds, and whether it is whole.
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("WholeFile", text);
}

QString withoutFullStop(QString text)
{
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

/** Whether the document is in UTF-16, by its mark or by its first character: zero bytes are then part of it.
 */
bool isUtf16(const QByteArray &document)
{
    const QByteArray start = document.left(2);
    return start == "\xFF\xFE"_ba || start == "\xFE\xFF"_ba || start == QByteArray("<\0", 2) ||
           start == QByteArray("\0<", 2);
}

/** Whether a character of the document is zero; an XML reader takes it for a part of a name. */
bool hasZero(const QByteArray &document)
{
    if (!isUtf16(document))
        return document.contains('\0');
    for (qsizetype i = 0; i + 1 < document.size(); i += 2) {
        if (document.at(i) == 0 && document.at(i + 1) == 0)
            return true;
    }
    return false;
}

/** Counts an element that begins on this level; the root is on level 1. */
void count(Contents &contents, QStringView name, int level)
{
    if (level == 2 && name == u"Battery")
        ++contents.batteries;
    else if (level == 2 && name == u"Model")
        ++contents.models;
    else if (level == 3 && name == u"Location")
        ++contents.locations;
    else if (level == 4 && name == u"Cycle")
        ++contents.discharges;
    else if (level == 4 && name == u"LogData")
        ++contents.flights;
}

/** Whether a document may be XML, by its first byte: a bracket, white space, or the mark of an encoding. */
bool mayBeXml(const QByteArray &document)
{
    static const QByteArray Starts("< \t\r\n\0\xEF\xFE\xFF", 9);
    return !document.isEmpty() && Starts.contains(document.front());
}

bool isLogbookName(QStringView root)
{
    return root.contains(u"Voltbok");
}

/** Looks at the token that was just read. */
void look(Contents &contents, const QXmlStreamReader &reader, int level)
{
    if (reader.isDTD() && reader.text().contains(u'[')) {
        contents.declaresEntities = true;
        contents.problem = translated(QT_TRANSLATE_NOOP("WholeFile", "it brings a document type of its own"));
    }
    if (!reader.isStartElement())
        return;
    count(contents, reader.name(), level);
    if (level == 1 && !isLogbookName(reader.name()))
        contents.problem =
            translated(QT_TRANSLATE_NOOP("WholeFile", "it is not a logbook: its root element is “%1”"))
                .arg(reader.name().left(100));
}

} // namespace

Contents WholeFile::inspect(const QByteArray &document)
{
    Contents contents;
    if (document.isEmpty()) {
        contents.problem = translated(QT_TRANSLATE_NOOP("WholeFile", "it is empty"));
        return contents;
    }
    QXmlStreamReader reader(document);
    int level = 0;
    while (!reader.atEnd() && contents.problem.isEmpty()) {
        reader.readNext();
        level += reader.isStartElement() ? 1 : 0;
        look(contents, reader, level);
        level -= reader.isEndElement() ? 1 : 0;
    }
    if (!contents.declaresEntities && hasZero(document)) // looked for last: entities are the graver matter
        contents.problem = translated(QT_TRANSLATE_NOOP("WholeFile", "it contains zero bytes"));
    if (contents.problem.isEmpty() && reader.hasError())
        contents.problem =
            translated(QT_TRANSLATE_NOOP("WholeFile", "line %1 cannot be understood (%2)"))
                .arg(QString::number(reader.lineNumber()), withoutFullStop(reader.errorString()));
    return contents;
}

bool WholeFile::isLogbook(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly) || !mayBeXml(file.peek(1)))
        return false;
    QXmlStreamReader reader(&file);
    return reader.readNextStartElement() && isLogbookName(reader.name());
}

bool WholeFile::isWhole(const QByteArray &document)
{
    return inspect(document).problem.isEmpty();
}

} // namespace Host
