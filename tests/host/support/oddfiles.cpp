// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/oddfiles.h"

#include "tests/host/support/logbook.h"
#include "tests/support/files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uid_t Nobody = 65534;
constexpr qint64 Large = qint64(10) * 1024 * 1024 * 1024;

bool makeSocket(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    if (name.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, name.constData(), static_cast<size_t>(name.size()));
    const int file = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound = ::bind(file, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(file);
    return bound;
}

bool makeLarge(const QString &path)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.resize(Large); // sparse
}

} // namespace

bool OddFiles::make(Kind kind, const QString &path)
{
    const QByteArray document = smallLogbook();
    switch (kind) {
    case Html:
        return Test::write(path, "<html/>\n");
    case Cut:
        return Test::write(path, document.left(document.size() / 2));
    case ZeroByte:
        return Test::write(path, QByteArray(document).replace("Capacity", QByteArray("Capa\0ity", 8)));
    case Declarations:
        return Test::write(path, QByteArray(document).replace("<!DOCTYPE Voltbok>",
                                                              "<!DOCTYPE Voltbok [<!ENTITY a \"b\">]>"));
    case Unreadable:
        return Test::write(path, document) && QFile::setPermissions(path, QFile::WriteOther);
    case Pipe:
        return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
    case Folder:
        return QDir().mkdir(path);
    case DanglingLink:
        return QFile::link(u"/nowhere/voltbok.xml"_s, path);
    case TenGigabytes:
        return makeLarge(path);
    case Zeros:
        return QFile::link(u"/dev/zero"_s, path);
    case Full:
        return QFile::link(u"/dev/full"_s, path);
    case Socket:
        return makeSocket(path);
    }
    return false;
}

QStringList OddFiles::listing(const QString &folder)
{
    constexpr qint64 ShortFile = 1'000'000;
    QStringList lines;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        struct stat status = {};
        ::lstat(QFile::encodeName(path).constData(), &status);
        const bool isShort = S_ISREG(status.st_mode) && status.st_size < ShortFile;
        lines.append(u"%1 %2 %3 %4 %5"_s.arg(
            path, QString::number(status.st_mode, 8), QString::number(status.st_size),
            QFile::symLinkTarget(path), isShort ? QString::fromLatin1(Test::contents(path)) : QString()));
    }
    lines.sort();
    return lines;
}

void OddFiles::giveAway(const QString &folder)
{
    if (::geteuid() != 0)
        return;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        static_cast<void>(::lchown(QFile::encodeName(it.next()).constData(), Nobody, Nobody));
    static_cast<void>(::lchown(QFile::encodeName(folder).constData(), Nobody, Nobody));
}

bool OddFiles::giveProgram(const QString &folder)
{
    const QFileInfo library(QStringLiteral(LIBRARY));
    return QFile::setPermissions(folder, QFile::Permissions(0x7755)) &&
           QFile::copy(QStringLiteral(PROGRAM), QDir(folder).filePath(u"voltbok"_s)) &&
           QFile::copy(library.filePath(), QDir(folder).filePath(library.fileName()));
}

void OddFiles::becomeNobody()
{
    if (::geteuid() == 0 && (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0))
        ::_exit(127);
}
