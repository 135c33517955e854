// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery.h"

#include "backups.h"
#include "storagefolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

bool Recovery::isBroken(const QString &storagePath)
{
    QFile file(dataFileName(storagePath));
    return file.exists() && (!file.open(QFile::ReadOnly) || !Backups::isWhole(file.readAll()));
}

QString Recovery::replaceBroken(const QString &storagePath, const QString &copy)
{
    const QString path = dataFileName(storagePath);
    const QString stamp = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss-zzz");
    const QString aside = QDir(storagePath).absoluteFilePath(u"voltbok-broken-%1.xml"_s.arg(stamp));
    // Copied where it can be: were there no file for a moment, a kill in it would let the next start begin
    // empty.
    if ((copy.isEmpty() || !QFile::copy(path, aside)) && !QFile::rename(path, aside))
        return u"cannot keep the damaged %1 as %2"_s.arg(path, aside);
    if (copy.isEmpty())
        return QString();

    QFile whole(copy);
    QSaveFile file(path);
    if (!whole.open(QFile::ReadOnly) || !file.open(QFile::WriteOnly) ||
        file.write(whole.readAll()) != whole.size() || !file.commit())
        return u"cannot put %1 in the place of %2"_s.arg(copy, path);
    return QString();
}
