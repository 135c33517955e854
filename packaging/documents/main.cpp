// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the manual page and the completion: voltbok_documents VERSION PAGE COMPLETION
#include "packaging/documents/documents.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr qsizetype Expected = 4;
    if (arguments.size() == Expected && write(arguments.at(2), Documents::manualPage(arguments.at(1))) &&
        write(arguments.at(3), Documents::bashCompletion()))
        return EXIT_SUCCESS;
    std::fputs("usage: voltbok_documents VERSION PAGE COMPLETION\n", stderr);
    return EXIT_FAILURE;
}
