// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafile.h"

#include <QDir>

QString DataFile::pathIn(const QString &basePath)
{
    return QDir(basePath).absoluteFilePath(QStringLiteral("voltbok.xml"));
}
