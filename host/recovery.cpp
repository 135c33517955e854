// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery.h"

#include "backups.h"
#include "storagefolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

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
    if (!QFile::rename(path, aside))
        return u"cannot move the damaged %1 aside"_s.arg(path);
    if (!copy.isEmpty() && !QFile::copy(copy, path))
        return u"cannot put %1 in the place of %2"_s.arg(copy, path);
    return QString();
}
