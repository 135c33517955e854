// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/logreading.h"

#include "host/exchange/sessionvalues.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype PieceSize = qsizetype(256) * 1024;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LogReading)
};

QString sentence(const QString &reason)
{
    return Text::tr("It cannot be read: %1.").arg(reason);
}

/** Logs whose bytes have been read already, by their SHA-256. */
using Earlier = QHash<QString, qint64>;

/** SHA-256 of a file and of its beginnings that are as long as one of the earlier logs. */
struct Prints
{
    QString whole; ///< empty where it could not be read
    QString beginsWith;
    qint64 knownBytes = 0;
};

/** Reads the file once, however many logs are known. */
Prints printsOf(QFile &file, const Earlier &earlier, const LogReading::Options &options)
{
    QList<qint64> lengths(earlier.cbegin(), earlier.cend());
    std::sort(lengths.begin(), lengths.end());
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray piece(PieceSize, Qt::Uninitialized);
    Prints prints;
    auto length = std::upper_bound(lengths.cbegin(), lengths.cend(), 0);
    for (qint64 done = 0; !options.goOn || options.goOn();) {
        const qint64 wanted =
            length == lengths.cend() ? PieceSize : std::min<qint64>(PieceSize, *length - done);
        const qint64 count = file.read(piece.data(), wanted);
        if (count < 0)
            return {};
        hash.addData(QByteArrayView(piece.constData(), count));
        done += count;
        if (count == 0) {
            prints.whole = QString::fromLatin1(hash.result().toHex());
            return prints;
        }
        if (length == lengths.cend() || done < *length)
            continue;
        length = std::upper_bound(length, lengths.cend(), done);
        const QString print = QString::fromLatin1(hash.result().toHex());
        if (earlier.value(print, -1) != done)
            continue;
        prints.beginsWith = print;
        prints.knownBytes = done;
    }
    return {};
}

/** What the earlier imports read of a log, and of the shorter ones that it has grown from. */
RadioLog logOf(const Measured &measured, const KnownLog &known)
{
    RadioLog log;
    log.status = LogStatus::Read;
    log.bytes = known.bytes;
    QSet<QString> seen; // in a file that somebody edited they may begin with each other
    for (const KnownLog *part = &known; part && !seen.contains(part->sha256);
         part = measured.logOf(part->beginsWith)) {
        seen.insert(part->sha256);
        log.rows += part->rows;
        log.skippedRows += part->skippedRows;
        QList<Session> sessions;
        for (const QJsonObject &stored : part->sessions)
            sessions.append(sessionFrom(stored));
        log.sessions = sessions + log.sessions;
    }
    log.model = log.sessions.isEmpty() ? QString() : log.sessions.constFirst().model;
    return log;
}

/** The columns that the user chose now and earlier. */
QMap<QString, ColumnMapping> chosenColumns(const Measured &measured, const LogReading::Options &options)
{
    QMap<QString, ColumnMapping> chosen;
    for (auto earlier = measured.columns.cbegin(); earlier != measured.columns.cend(); ++earlier)
        chosen.insert(earlier.key(), {earlier->consumed, earlier->current, earlier->volts});
    chosen.insert(options.mappings);
    return chosen;
}

ImportedLog refused(const QString &path, const QString &reason)
{
    ImportedLog result;
    result.path = path;
    result.log.status = LogStatus::Refused;
    result.log.reason = reason;
    return result;
}

ImportedLog readOne(const QString &path, const Measured &measured, const Earlier &earlier,
                    const LogReading::Options &options)
{
    const QFileInfo info(path);
    if (!info.exists())
        return refused(path, sentence(WholeFile::clause(qt_error_string(ENOENT))));
    if (!info.isFile()) // nothing else is opened: a pipe would be waited for
        return refused(path, Text::tr("It is not a regular file."));
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return refused(path, sentence(WholeFile::clause(file.errorString())));
    const Prints prints = printsOf(file, earlier, options);
    if (prints.whole.isEmpty())
        return refused(path, options.goOn && !options.goOn()
                                 ? Text::tr("The reading was cancelled.")
                                 : sentence(WholeFile::clause(file.errorString())));
    ImportedLog result{path, prints.whole, false, {}, {}};
    if (const KnownLog *known = measured.logOf(prints.whole)) {
        result.isKnown = true;
        result.log = logOf(measured, *known);
        return result;
    }
    result.beginsWith = prints.beginsWith;
    ReadOptions reading;
    reading.sha256 = prints.whole;
    reading.knownBytes = prints.knownBytes;
    reading.mappings = chosenColumns(measured, options);
    if (options.goOn)
        reading.goOn = [&](qint64) { return options.goOn(); };
    result.log = readRadioLog(file, path, reading);
    return result;
}

} // namespace

QStringList LogReading::paths(const QStringList &given, const Options &options)
{
    const auto goesOn = [&options] { return !options.goOn || options.goOn(); };
    QStringList files;
    for (const QString &path : given) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        QStringList below;
        QDirIterator entries(path, {u"*.csv"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (goesOn() && entries.hasNext())
            below.append(entries.next());
        below.sort();
        files += below;
    }
    return files;
}

QList<ImportedLog> LogReading::read(const QStringList &paths, const Measured &measured,
                                    const Options &options)
{
    Earlier earlier;
    for (const KnownLog &log : measured.logs)
        earlier.insert(log.sha256, log.bytes);
    // The shorter ones first: one that has grown goes on behind what it was.
    QList<qsizetype> order(paths.size());
    std::iota(order.begin(), order.end(), 0);
    QList<qint64> sizes;
    for (const QString &path : paths)
        sizes.append(options.goOn && !options.goOn() ? 0 : QFileInfo(path).size());
    std::stable_sort(order.begin(), order.end(),
                     [&](qsizetype left, qsizetype right) { return sizes.at(left) < sizes.at(right); });
    QList<ImportedLog> logs(paths.size());
    for (const qsizetype i : std::as_const(order)) {
        logs[i] = readOne(paths.at(i), measured, earlier, options);
        for (Session &session : logs[i].log.sessions)
            session.file = static_cast<int>(i);
        if (logs.at(i).log.status == LogStatus::Read)
            earlier.insert(logs.at(i).sha256, logs.at(i).log.bytes);
    }
    return logs;
}

void LogReading::remember(Measured &measured, const QMap<QString, ColumnMapping> &mappings)
{
    for (auto chosen = mappings.cbegin(); chosen != mappings.cend(); ++chosen) {
        MeasuredColumns &columns = measured.columns[chosen.key()];
        columns.consumed = chosen->consumed;
        columns.current = chosen->current;
        columns.volts = chosen->volts;
    }
}

} // namespace Host
