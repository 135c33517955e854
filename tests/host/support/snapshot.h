// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/files.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QString>
#include <QTest>

namespace Test {

/** Every name in a folder, hidden ones and broken links included, with what it holds. */
inline QMap<QString, QByteArray> snapshot(const QString &folder)
{
    QMap<QString, QByteArray> content;
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (entry.isDir() && !entry.isSymLink()) {
            const auto below = snapshot(entry.filePath());
            for (auto it = below.cbegin(); it != below.cend(); ++it)
                content.insert(entry.fileName() + u'/' + it.key(), it.value());
        } else if (entry.isFile())
            content.insert(entry.fileName(), contents(entry.filePath()));
        else
            content.insert(entry.fileName(), "no file");
    }
    return content;
}

inline QByteArray sample()
{
    return contents(QStringLiteral(SAMPLE));
}

} // namespace Test
