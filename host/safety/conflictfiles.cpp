// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/conflictfiles.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** @param original a file name with an ending. */
bool isConflictOf(const QString &original, const QString &fileName)
{
    // In brackets stand words and a date, whatever the language; older versions of one of them join both with
    // dashes. A number may follow where there are several of one day.
    static const QRegularExpression mark(QRegularExpression::anchoredPattern(
        u"\\.sync-conflict-[0-9]{8}-[0-9]{6}(-[0-9A-Z]+)?"
        u"|_conflict-[0-9]{8}-[0-9]{6}"
        u"| \\((?=[^()]*\\p{L}).*[0-9]{4}-[0-9]{2}-[0-9]{2}.*\\)( \\([0-9]+\\))?"_s));
    const QFileInfo name(original);
    const QString begin = name.completeBaseName();
    const QString end = u'.' + name.suffix();
    return fileName.size() > begin.size() + end.size() && fileName.startsWith(begin) &&
           fileName.endsWith(end) &&
           mark.match(fileName.mid(begin.size(), fileName.size() - begin.size() - end.size())).hasMatch();
}

/** Beside the file, and beside what it links to. */
QStringList copiesOf(const QString &file, const QString &target)
{
    QStringList paths;
    const QString original = QFileInfo(file).fileName();
    for (const QString &path : {file, target}) {
        const QDir folder = QFileInfo(path).dir();
        const QStringList names = folder.entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
        for (const QString &name : names) {
            if (isConflictOf(original, name) && !paths.contains(folder.filePath(name)))
                paths.append(folder.filePath(name));
        }
        if (folder == QFileInfo(target).dir())
            break;
    }
    return paths;
}

} // namespace

bool ConflictFiles::isConflictName(const QString &fileName)
{
    return isConflictOf(QFileInfo(StorageFolder(QString()).dataFile()).fileName(), fileName);
}

QStringList ConflictFiles::ofLogbook(const StorageFolder &folder)
{
    return copiesOf(folder.dataFile(), folder.dataFileTarget());
}

QStringList ConflictFiles::ofMeasured(const StorageFolder &folder)
{
    return copiesOf(folder.measuredFile(), folder.measuredFileTarget());
}

} // namespace Host
