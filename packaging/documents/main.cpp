// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the manual page, the completion and the icons: voltbok_documents VERSION FOLDER
#include "packaging/documents/documents.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool writeAll(const QString &version, const QDir &folder)
{
    return write(folder.filePath(u"voltbok.1"_s), Documents::manualPage(version)) &&
           write(folder.filePath(u"voltbok.bash"_s), Documents::bashCompletion()) &&
           std::all_of(Documents::IconSizes.cbegin(), Documents::IconSizes.cend(), [&folder](int size) {
               return write(folder.filePath(u"voltbok-%1.png"_s.arg(size)), Documents::icon(size));
           });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr qsizetype Expected = 3;
    if (arguments.size() == Expected && writeAll(arguments.at(1), QDir(arguments.at(2))))
        return EXIT_SUCCESS;
    std::fputs("usage: voltbok_documents VERSION FOLDER\n", stderr);
    return EXIT_FAILURE;
}
