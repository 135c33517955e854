// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the files of tests/data/radiolog into a folder.
#include "tests/host/support/makeradiolog.h"

#include <QDir>
#include <QSaveFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: makeradiolog FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const MadeLogs::File &file : MadeLogs::oddFiles()) {
        QSaveFile target(folder.filePath(file.name));
        if (!target.open(QFile::WriteOnly) || target.write(file.bytes) != file.bytes.size() ||
            !target.commit()) {
            std::fprintf(stderr, "makeradiolog: %s\n", qPrintable(target.errorString()));
            return 1;
        }
    }
    return 0;
}
