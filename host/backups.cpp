// SPDX-License-Identifier: GPL-3.0-or-later
#include "backups.h"

#include "storagefolder.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView NamePattern = u"'voltbok-'yyyyMMdd-HHmmss-zzz'.xml'";
constexpr int DailyDays = 31;

QDir backupFolder(const QString &storagePath)
{
    return QDir(QDir(storagePath).absoluteFilePath(u"backups"_s));
}

/** The copies' names, newest first. */
QStringList copies(const QDir &folder)
{
    QStringList names = folder.entryList({u"voltbok-*.xml"_s}, QDir::Files, QDir::Name | QDir::Reversed);
    names.removeIf([](const QString &name) { return !Backups::timeOf(name).isValid(); });
    return names;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void thinOut(QDir &folder, QDate today)
{
    const QStringList unneeded = Backups::superfluous(copies(folder), today);
    for (const QString &name : unneeded)
        folder.remove(name);
}

} // namespace

bool Backups::isWhole(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

QDateTime Backups::timeOf(const QString &fileName)
{
    return QDateTime::fromString(fileName, NamePattern);
}

QStringList Backups::superfluous(const QStringList &fileNames, QDate today)
{
    QStringList newestFirst = fileNames;
    std::sort(newestFirst.begin(), newestFirst.end(), std::greater<>());
    QSet<QDate> days;
    QSet<QDate> months;
    QStringList result;
    for (const QString &name : std::as_const(newestFirst)) {
        const QDate day = timeOf(name).date();
        if (!day.isValid() || day >= today)
            continue;
        const QDate month(day.year(), day.month(), 1);
        const bool newestOfDay = !days.contains(day);
        const bool newestOfMonth = !months.contains(month);
        days.insert(day);
        months.insert(month);
        const bool recent = day.daysTo(today) <= DailyDays;
        if (!(recent ? newestOfDay : newestOfMonth))
            result.append(name);
    }
    return result;
}

QString Backups::copy(const QString &storagePath, const QDateTime &now)
{
    const QByteArray document = contents(dataFileName(storagePath));
    if (!isWhole(document))
        return QString();
    QDir folder = backupFolder(storagePath);
    const QStringList existing = copies(folder);
    if (!existing.isEmpty() && contents(folder.filePath(existing.first())) == document)
        return QString();

    const QString path = folder.filePath(now.toString(NamePattern));
    QSaveFile file(path);
    if (!folder.mkpath(u"."_s) || !file.open(QFile::WriteOnly) || file.write(document) != document.size() ||
        !file.commit() || contents(path) != document)
        return u"cannot keep a copy of the logbook as %1: %2"_s.arg(path, file.errorString());
    thinOut(folder, now.date());
    return QString();
}

QString Backups::newestWhole(const QString &storagePath)
{
    const QDir folder = backupFolder(storagePath);
    const QStringList names = copies(folder);
    for (const QString &name : names) {
        if (isWhole(contents(folder.filePath(name))))
            return folder.filePath(name);
    }
    return QString();
}
