// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo.h"

#include "storagefolder.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

QString prepareDemo(const QString &path, bool reset)
{
    const QString fileName = dataFileName(path);
    if (QFile::exists(fileName) && !reset)
        return QString();

    // Written anew rather than copied: a copy of a resource would be read-only.
    QFile sample(u":/demo/voltbok.xml"_s);
    QSaveFile file(fileName);
    if (sample.open(QFile::ReadOnly) && QDir().mkpath(path) && file.open(QFile::WriteOnly) &&
        file.write(sample.readAll()) == sample.size() && file.commit())
        return QString();
    return u"cannot write the sample logbook %1: %2"_s.arg(fileName, file.errorString());
}
