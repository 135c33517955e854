// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/cards.h"

#include "host/exchange/logreading.h"
#include "host/exchange/radiolog.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Only where the length is that of a known log, its name decides or, in the end, its bytes. */
bool isKnown(const QFileInfo &info, const Measured &measured)
{
    const auto isAsLong = [&info](const KnownLog &log) { return log.bytes == info.size(); };
    if (std::none_of(measured.logs.cbegin(), measured.logs.cend(), isAsLong))
        return false;
    const QString name = info.fileName();
    const bool isNamed = std::any_of(measured.logs.cbegin(), measured.logs.cend(),
                                     [&](const KnownLog &log) { return isAsLong(log) && log.name == name; });
    if (isNamed)
        return true;
    QFile file(info.filePath());
    return file.open(QFile::ReadOnly) && measured.logOf(fingerprint(file));
}

} // namespace

QList<Volume> Cards::mounted()
{
    QList<Volume> volumes;
    const QList<QStorageInfo> all = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : all) {
        if (!volume.isValid() || !volume.isReady() || volume.isRoot())
            continue;
        const QString id = u"%1\n%2\n%3"_s.arg(QString::fromLocal8Bit(volume.device()), volume.rootPath())
                               .arg(volume.bytesTotal());
        volumes.append({volume.rootPath(), volume.displayName(), id});
    }
    return volumes;
}

QString Cards::logsFolder(const Volume &volume)
{
    const QString folder = QDir(volume.root).filePath(u"LOGS"_s);
    return QDirIterator(folder, {u"*.csv"_s}, QDir::Files, QDirIterator::Subdirectories).hasNext()
               ? folder
               : QString();
}

QSet<QString> Cards::unknownLogs(const QString &folder, const Measured &measured,
                                 const std::function<bool()> &goOn)
{
    QSet<QString> unknown;
    const QStringList paths = LogReading::paths({folder}, {goOn, {}});
    for (const QString &path : paths) {
        if (goOn && !goOn())
            break;
        const QFileInfo info(path);
        if (info.size() > 0 && !isKnown(info, measured))
            unknown.insert(u"%1 %2"_s.arg(path).arg(info.size()));
    }
    return unknown;
}

} // namespace Host
