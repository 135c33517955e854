// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backups.h"

#include "host/data/measured.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Hidden files, too, but no links: what a link leads to is not ours. */
constexpr QDir::Filters RegularFiles = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
constexpr quint64 HighestNumber = 999'999'999'999;

bool isNewer(const Copy &a, const Copy &b)
{
    return std::tie(a.number, a.time, a.name) > std::tie(b.number, b.time, b.name);
}

/**
 * The names of everything in the folder of the copies; nothing where it cannot be listed. QDir does not tell
 * that from an empty folder, whose next copy would be number one.
 */
std::optional<QStringList> namesIn(const QDir &folder)
{
    QStringList names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder.filesystemPath(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        names.append(QFile::decodeName(entry->path().filename().string().c_str()));
    const bool isThere = error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory;
    return error && isThere ? std::nullopt : std::optional(names);
}

/** One more than the highest number in any of these names, be it a regular file or not: the name is then
 * free.
 */
quint64 nextNumber(const QStringList &names)
{
    quint64 highest = 0;
    for (const QString &name : names) {
        if (const std::optional<Copy> copy = Backups::parse(name))
            highest = qMax(highest, copy->number);
    }
    return qMin(highest + 1, HighestNumber);
}

/** The rights of a folder whose files have these: who may read may enter, and its owner may do everything. */
QFile::Permissions folderPermissions(QFile::Permissions file)
{
    QFile::Permissions folder = file | QFile::ReadOwner | QFile::WriteOwner;
    for (const auto &[read, enter] :
         {std::pair(QFile::ReadOwner, QFile::ExeOwner), std::pair(QFile::ReadGroup, QFile::ExeGroup),
          std::pair(QFile::ReadOther, QFile::ExeOther)})
        folder.setFlag(enter, folder.testFlag(read));
    return folder;
}

/** Makes the folder of the copies if need be; a clause that says why there is none that can be used. */
QString makeFolder(const QDir &folder, QFile::Permissions permissions)
{
    const QFileInfo info(folder.path());
    if (!info.exists() && !info.isSymLink()) {
        if (!QDir().mkdir(folder.path(), permissions))
            return WholeFile::clause(qt_error_string());
        QFile::setPermissions(folder.path(), permissions); // the process may be stricter by default
        return QString();
    }
    if (!info.exists())
        return QCoreApplication::translate("Backups", "it is a link that leads nowhere");
    if (!info.isDir())
        return QCoreApplication::translate("Backups", "it is not a folder");
    if (!info.isReadable() || !info.isExecutable())
        return WholeFile::clause(qt_error_string(EACCES)); // it would be written to, but never compared
    return QString();
}

QString keep(const StorageFolder &folder, Copy copy)
{
    if (copy.kept)
        return QString();
    const QString before = copy.name;
    copy.kept = true;
    const QString name = Backups::fileName(copy);
    const QDir backups = folder.backups();
    const QString beside = backups.filePath(Backups::measuredName(before));
    const QString besideKept = backups.filePath(Backups::measuredName(name));
    // Whenever this is cut off, the copy has its measured values.
    const WholeFile::Reading values =
        QFileInfo(beside).isSymLink() ? WholeFile::Reading() : WholeFile::read(beside);
    const bool isCopied =
        !values.bytes.isEmpty() &&
        WholeFile::write(besideKept, values.bytes, WholeFile::permissionsOf(beside)).isEmpty();
    QFile file(backups.filePath(before));
    const bool isRenamed = file.rename(backups.filePath(name));
    if (isCopied)
        QFile::remove(isRenamed ? beside : besideKept);
    return isRenamed ? QString() : WholeFile::clause(file.errorString());
}

/** The measured values in a file; none where they cannot be understood, or where a link leads to them. */
QByteArray measuredIn(const QString &path)
{
    if (QFileInfo(path).isSymLink())
        return QByteArray();
    const WholeFile::Reading reading = WholeFile::read(path);
    return reading.problem.isEmpty() && MeasuredFile::load(reading.bytes).problem.isEmpty() ? reading.bytes
                                                                                            : QByteArray();
}

/** Keeps the present measured values with a copy. @return whether other ones are there, which stay. */
bool addMeasured(const StorageFolder &folder, const QString &copyName, QFile::Permissions permissions)
{
    const QByteArray present = measuredIn(folder.measuredFileTarget());
    const QString path = folder.backups().filePath(Backups::measuredName(copyName));
    const QByteArray before = measuredIn(path);
    if (present.isEmpty() || before == present)
        return false;
    if (!before.isEmpty())
        return true;
    const QFileInfo there(path);
    if (!there.isSymLink() && (there.isFile() || !there.exists()))
        WholeFile::write(path, present, permissions);
    return false;
}

void remove(const StorageFolder &folder, const QString &copyName)
{
    QFile::remove(folder.backups().filePath(copyName));
    const QFileInfo measured(folder.backups().filePath(Backups::measuredName(copyName)));
    if (measured.isFile() && !measured.isSymLink())
        QFile::remove(measured.filePath());
}

} // namespace

QList<Copy> Backups::list(const StorageFolder &folder)
{
    return listed(folder).value_or(QList<Copy>());
}

std::optional<QList<Copy>> Backups::listed(const StorageFolder &folder)
{
    const std::optional<QStringList> names = namesIn(folder.backups());
    if (!names)
        return std::nullopt;
    QList<Copy> copies;
    for (const QString &name : *names) {
        std::optional<Copy> copy = parse(name);
        const QFileInfo file(folder.backups().filePath(name));
        if (!copy || !file.isFile() || file.isSymLink()) // what a link leads to is not ours
            continue;
        copy->size = file.size();
        copy->beside = QFileInfo(folder.backups().filePath(measuredName(name))).size();
        copies.append(*std::move(copy));
    }
    std::sort(copies.begin(), copies.end(), isNewer);
    QHash<QString, int> called;
    for (const Copy &copy : std::as_const(copies))
        ++called[copy.stamp];
    for (Copy &copy : copies) {
        if (called.value(copy.stamp) > 1)
            copy.stamp = longStamp(copy.name);
    }
    return copies;
}

void Backups::thin(const StorageFolder &folder, const QDateTime &now)
{
    const QStringList names = superfluous(list(folder), now);
    for (const QString &name : names)
        remove(folder, name);
}

std::optional<Copy> Backups::newestWhole(const StorageFolder &folder, QByteArray *bytes)
{
    const QList<Copy> copies = list(folder);
    for (const Copy &copy : copies) {
        WholeFile::Reading reading = WholeFile::read(folder.backups().filePath(copy.name));
        if (!reading.problem.isEmpty() || !WholeFile::isWhole(reading.bytes))
            continue;
        if (bytes)
            *bytes = std::move(reading.bytes);
        return copy;
    }
    return std::nullopt;
}

QString Backups::keepNewestWhole(const StorageFolder &folder)
{
    const std::optional<Copy> copy = newestWhole(folder);
    return copy ? keep(folder, *copy) : QString();
}

QString Backups::add(const StorageFolder &folder, const QByteArray &document, const QDateTime &now)
{
    const QFile::Permissions permissions =
        WholeFile::permissionsOf(folder.dataFile()).value_or(QFile::ReadOwner | QFile::WriteOwner);
    QString problem = makeFolder(folder.backups(), folderPermissions(permissions));
    if (!problem.isEmpty())
        return problem;
    const std::optional<QStringList> names = namesIn(folder.backups());
    if (!names)
        return QCoreApplication::translate("Backups", "the copies that are there cannot be listed");
    QByteArray before;
    const std::optional<Copy> newest = newestWhole(folder, &before);
    if (newest && before == document && !addMeasured(folder, newest->name, permissions))
        return QString();
    if (newest && 2 * document.size() < newest->size)
        problem = keep(folder, *newest);
    if (!problem.isEmpty())
        return problem;
    Copy copy;
    copy.number = nextNumber(*names);
    copy.time = now;
    problem = WholeFile::write(folder.backups().filePath(fileName(copy)), document, permissions);
    if (problem.isEmpty())
        addMeasured(folder, fileName(copy), permissions);
    return problem;
}

QString Backups::ensure(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                        bool forGood)
{
    const QList<Copy> copies = list(folder);
    for (const Copy &copy : copies) {
        if (copy.size == document.size() &&
            WholeFile::read(folder.backups().filePath(copy.name)).bytes == document)
            return forGood ? keep(folder, copy) : QString();
    }
    const QString problem = add(folder, document, now);
    return problem.isEmpty() && forGood ? keepNewestWhole(folder) : problem;
}

void Backups::removeLeftovers(const StorageFolder &folder)
{
    // The name of a copy and six letters. In small letters alone it may be one that a person put aside as
    // "….xml.backup": it goes only where it holds nothing.
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(u"(.*)\\.([A-Za-z]{6})"_s));
    const QStringList names = folder.backups().entryList(RegularFiles);
    for (const QString &name : names) {
        const QRegularExpressionMatch match = pattern.match(name);
        const QString begun = match.captured(1);
        const bool isMeasured = begun.endsWith(".json"_L1);
        if (!match.hasMatch() || !parse(isMeasured ? begun.chopped(5) + u".xml"_s : begun))
            continue;
        const QString path = folder.backups().filePath(name);
        const bool isByHand = match.captured(2) == match.captured(2).toLower();
        if (!isByHand || (!isMeasured && !WholeFile::isWhole(WholeFile::read(path).bytes)))
            QFile::remove(path);
    }
}

} // namespace Host
