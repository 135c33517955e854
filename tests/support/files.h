// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QXmlStreamReader>

/** Files as a test reads and writes them, and the catalogues that stand in them (tests/support/datafile.h).
 */
namespace Test {

using namespace Qt::Literals::StringLiterals;

/** The path of the data file in a folder. */
inline QString dataFile(const QString &folder)
{
    return QDir(folder).filePath(u"voltbok.xml"_s);
}

/** The bytes of a file; what no file of ours holds when it cannot be read, so that two of those differ. */
inline QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/** Puts these bytes in place of whatever a file held; says whether that went well. */
[[nodiscard]] inline bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline bool isWellFormed(const QByteArray &document)
{
    QXmlStreamReader xml(document);
    while (!xml.atEnd())
        xml.readNext();
    return !xml.hasError();
}

} // namespace Test
