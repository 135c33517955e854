// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/recovery.h"

#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/runtimefolder.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("Recovery", text);
}

bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

bool isNoRegularFile(const QString &path)
{
    std::error_code error;
    const auto status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

bool leadsNowhere(const StorageFolder &folder)
{
    const QFileInfo file(folder.dataFile());
    return file.isSymLink() && !file.exists();
}

/** StorageFolder::replacement(), also where the file that it replaces has been moved aside. */
QString replacementFor(const StorageFolder &folder)
{
    return QFileInfo(canonicalDataFile(folder)).dir().filePath(QFileInfo(folder.replacement()).fileName());
}

/**
 * Renames a file; the new name is free. QFile would copy where it cannot rename, and show a part of the file
 * under the new name meanwhile.
 *
 * @return why it has its old name still, a clause.
 */
QString moved(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return error ? WholeFile::clause(qt_error_string(error.value())) : QString();
}

bool holds(const QString &path, const QByteArray &document)
{
    return QFileInfo(path).size() == document.size() && WholeFile::read(path).bytes == document;
}

/** Whether these bytes can be had again: from another file of the folder, or because they say nothing. */
bool isKeptElsewhere(const StorageFolder &folder, const QByteArray &document)
{
    if (document == CatalogueFile::emptyDocument())
        return true;
    QStringList paths{folder.dataFile()};
    paths += folder.asides();
    const QList<Copy> copies = Backups::list(folder);
    for (const Copy &copy : copies)
        paths.append(folder.backups().filePath(copy.name));
    return std::any_of(paths.cbegin(), paths.cend(),
                       [&](const QString &path) { return holds(path, document); });
}

/** Removes replacements that were cut off while they were written: the file that they were for has its place
 * still. */
void removeLeftovers(const QFileInfo &replacement)
{
    static const QRegularExpression letters(QRegularExpression::anchoredPattern(u".*\\.[A-Za-z]{6}"_s));
    const QStringList names = replacement.dir().entryList({replacement.fileName() + u".??????"_s},
                                                          QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        if (letters.match(name).hasMatch())
            QFile::remove(replacement.dir().filePath(name));
    }
}

/** The rights that a new data file gets; nothing where no file tells. */
std::optional<QFile::Permissions> permissionsFor(const StorageFolder &folder)
{
    const auto permissions = WholeFile::permissionsOf(folder.dataFile());
    const QList<Copy> copies = permissions ? QList<Copy>() : Backups::list(folder);
    return copies.isEmpty() ? permissions
                            : WholeFile::permissionsOf(folder.backups().filePath(copies.first().name));
}

} // namespace

void Recovery::finishInterrupted(const StorageFolder &folder)
{
    const QString path = canonicalDataFile(folder);
    const QFileInfo replacement(replacementFor(folder));
    removeLeftovers(replacement);
    const WholeFile::Reading reading = WholeFile::read(replacement.filePath());
    if (!reading.problem.isEmpty() || replacement.isSymLink())
        return; // there is none, or it is nothing of ours
    if (!isThere(path)) {
        if (WholeFile::isWhole(reading.bytes))
            QFile::rename(replacement.filePath(), path);
        return;
    }
    if (isKeptElsewhere(folder, reading.bytes))
        QFile::remove(replacement.filePath());
    else
        QFile::rename(replacement.filePath(), folder.aside(QDateTime::currentDateTimeUtc()));
}

FileState Recovery::examine(const StorageFolder &folder)
{
    WholeFile::Reading reading = WholeFile::read(folder.dataFile());
    if (reading.isMissing) {
        const std::optional<QList<Copy>> copies = Backups::listed(folder);
        if (!copies)
            return {FileState::Unreadable,
                    translated(QT_TRANSLATE_NOOP(
                        "Recovery", "it is missing, and the folder of its copies cannot be read")),
                    {}};
        const bool isNew = copies->isEmpty() && folder.asides().isEmpty();
        return isNew ? FileState()
                     : FileState{FileState::Missing,
                                 translated(QT_TRANSLATE_NOOP("Recovery", "it is missing")),
                                 {}};
    }
    if (!reading.problem.isEmpty())
        return {FileState::Unreadable, reading.problem, {}};
    const Contents contents = WholeFile::inspect(reading.bytes);
    return {contents.problem.isEmpty() ? FileState::Whole : FileState::Damaged, contents.problem,
            std::move(reading.bytes), !contents.declaresEntities};
}

QString Recovery::replace(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                          QString *aside)
{
    if (leadsNowhere(folder))
        return WholeFile::read(folder.dataFile()).problem;
    const QString path = folder.dataFileTarget();
    if (isNoRegularFile(path)) // a device must not be moved, whatever led here
        return translated(QT_TRANSLATE_NOOP("Recovery", "it is not a regular file"));
    const QString replacement = folder.replacement();
    // What has that name already may be the only one of its kind, or a link to anywhere.
    QString problem = isThere(replacement) ? moved(replacement, folder.aside(now)) : QString();
    if (problem.isEmpty())
        problem = WholeFile::write(replacement, document, permissionsFor(folder));
    if (!problem.isEmpty())
        return problem;

    const QString kept = isThere(path) ? folder.aside(now) : QString();
    problem = kept.isEmpty() ? QString() : moved(path, kept);
    const bool movedAside = !kept.isEmpty() && problem.isEmpty();
    if (problem.isEmpty())
        problem = moved(replacement, path);
    if (problem.isEmpty()) {
        *aside = kept;
        return QString();
    }
    if (!movedAside || moved(kept, path).isEmpty())
        QFile::remove(replacement);
    return problem;
}

QString Recovery::keepAside(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                            QString *aside)
{
    const QStringList asides = folder.asides();
    for (const QString &path : asides) {
        if (holds(path, document)) {
            *aside = path;
            return QString();
        }
    }
    const QString path = folder.aside(now);
    const QString problem = WholeFile::write(path, document, WholeFile::permissionsOf(folder.dataFile()));
    if (problem.isEmpty())
        *aside = path;
    return problem;
}

} // namespace Host
