// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qint64 LeastSpace = 16 * 1024; // bytes; a disk with less is full for every logbook

QString clause(const char *text)
{
    return QCoreApplication::translate("WholeFile", text);
}

/** Why this is nothing that can be opened as a file; empty when it is a regular file of a sane size. */
QString kindProblem(const QFileInfo &file)
{
    if (file.isSymLink() && !file.exists())
        return clause(QT_TRANSLATE_NOOP("WholeFile", "it is a link to “%1”, which does not exist"))
            .arg(file.symLinkTarget());
    if (!file.exists())
        return clause(QT_TRANSLATE_NOOP("WholeFile", "there is no such file"));
    if (file.isDir())
        return clause(QT_TRANSLATE_NOOP("WholeFile", "it is a folder"));
    if (!file.isFile())
        return clause(QT_TRANSLATE_NOOP("WholeFile", "it is not a regular file"));
    if (file.size() > WholeFile::MaximumSize)
        return clause(QT_TRANSLATE_NOOP("WholeFile", "it is larger than %1 MB"))
            .arg(WholeFile::MaximumSize / (1024 * 1024));
    return QString();
}

/** Whether the document is in UTF-16, by its mark or by its first character: zero bytes are then part of it.
 */
bool isUtf16(const QByteArray &document)
{
    const QByteArray start = document.left(2);
    return start == "\xFF\xFE"_ba || start == "\xFE\xFF"_ba || start == QByteArray("<\0", 2) ||
           start == QByteArray("\0<", 2);
}

/** Counts an element that begins on this level; the root is on level 1. */
void count(Contents &contents, QStringView name, int level)
{
    if (level == 2 && name == u"Battery")
        ++contents.batteries;
    else if (level == 2 && name == u"Model")
        ++contents.models;
    else if (name == u"Location")
        ++contents.locations;
    else if (name == u"Cycle")
        ++contents.discharges;
    else if (name == u"LogData")
        ++contents.flights;
}

/** Looks at the token that was just read. */
void look(Contents &contents, const QXmlStreamReader &reader, int level)
{
    if (reader.isDTD() && reader.text().contains(u'[')) {
        contents.declaresEntities = true;
        contents.problem = clause(QT_TRANSLATE_NOOP("WholeFile", "it declares entities of its own"));
    }
    if (!reader.isStartElement())
        return;
    count(contents, reader.name(), level);
    if (level == 1 && !reader.name().contains(u"Voltbok"))
        contents.problem =
            clause(QT_TRANSLATE_NOOP("WholeFile", "it is not a logbook: its root element is “%1”"))
                .arg(reader.name().left(100));
}

} // namespace

WholeFile::Reading WholeFile::read(const QString &path)
{
    const QString problem = kindProblem(QFileInfo(path));
    if (!problem.isEmpty())
        return {{}, problem};
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {{}, file.errorString()};
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return {{}, file.errorString()};
    return {std::move(bytes), {}};
}

QString WholeFile::write(const QString &path, const QByteArray &bytes,
                         std::optional<QFileDevice::Permissions> permissions)
{
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly) || (permissions && !file.setPermissions(*permissions)) ||
        file.write(bytes) != bytes.size() || !file.commit())
        return file.errorString();
    const Reading written = read(path); // a disk that lies is found out before anybody relies on it
    if (!written.problem.isEmpty())
        return written.problem;
    return written.bytes == bytes
               ? QString()
               : clause(QT_TRANSLATE_NOOP("WholeFile", "it was written, but reads differently"));
}

QString WholeFile::writeProblem(const QString &path)
{
    QFile file(path);
    if (file.exists() && !file.open(QFile::ReadWrite | QFile::ExistingOnly))
        return file.errorString();
    const QString folder = QFileInfo(path).path();
    const QStorageInfo disk(folder);
    if (disk.isValid() && disk.bytesAvailable() < LeastSpace)
        return clause(QT_TRANSLATE_NOOP("WholeFile", "no space is left on the disk"));
    if (!file.exists() && QFileInfo::exists(folder) && !QFileInfo(folder).isWritable())
        return clause(QT_TRANSLATE_NOOP("WholeFile", "there is no permission to write in its folder"));
    return QString();
}

std::optional<QFileDevice::Permissions> WholeFile::permissionsOf(const QString &path)
{
    // Without QFile's "user" bits, which depend on who asks.
    constexpr auto Classes = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup |
                             QFile::ReadOther | QFile::WriteOther;
    const QFileInfo file(path);
    return file.exists() ? std::optional(file.permissions() & Classes) : std::nullopt;
}

Contents WholeFile::inspect(const QByteArray &document)
{
    Contents contents;
    if (document.isEmpty()) {
        contents.problem = clause(QT_TRANSLATE_NOOP("WholeFile", "it is empty"));
        return contents;
    }
    if (document.contains('\0') && !isUtf16(document)) {
        contents.problem = clause(QT_TRANSLATE_NOOP("WholeFile", "it contains zero bytes"));
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
    if (contents.problem.isEmpty() && reader.hasError())
        contents.problem = clause(QT_TRANSLATE_NOOP("WholeFile", "it is damaged at line %1 (%2)"))
                               .arg(QString::number(reader.lineNumber()), reader.errorString());
    return contents;
}

bool WholeFile::isWhole(const QByteArray &document)
{
    return inspect(document).problem.isEmpty();
}

} // namespace Host
