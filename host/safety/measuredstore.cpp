// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/measuredstore.h"

#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

namespace Host {
namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("MeasuredStore", text);
}

QString sentence(const StorageFolder &folder, const MeasuredFile::Loaded &loaded)
{
    const char *const text =
        loaded.isNewer
            ? QT_TRANSLATE_NOOP("MeasuredStore",
                                "The measured values in “%1” are not used: %2. The file is left as it is.")
            : QT_TRANSLATE_NOOP("MeasuredStore", "The measured values in “%1” cannot be read: %2. The "
                                                 "logbook itself is not concerned.");
    return tr(text).arg(folder.measuredFile(), loaded.problem);
}

/** The rights of the logbook, which are those that its user chose. */
QString write(const StorageFolder &folder, const QByteArray &bytes)
{
    return WholeFile::write(folder.measuredFileTarget(), bytes, WholeFile::permissionsOf(folder.dataFile()));
}

void putBack(const StorageFolder &folder, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        QFile::remove(folder.measuredFileTarget());
    else
        write(folder, bytes);
}

} // namespace

MeasuredStore::Stored MeasuredStore::load(const StorageFolder &folder)
{
    const WholeFile::Reading reading = WholeFile::read(folder.measuredFile());
    Stored stored;
    if (reading.isMissing)
        return stored;
    if (!reading.problem.isEmpty()) {
        stored.reason = reading.problem;
        stored.problem = sentence(folder, {{}, reading.problem, false});
        stored.mayWrite = false; // what cannot be read cannot be kept
        return stored;
    }
    const MeasuredFile::Loaded loaded = MeasuredFile::load(reading.bytes);
    stored.measured = loaded.measured;
    stored.bytes = reading.bytes;
    stored.mayWrite = !loaded.isNewer;
    stored.reason = loaded.problem;
    if (!loaded.problem.isEmpty())
        stored.problem = sentence(folder, loaded);
    return stored;
}

QString MeasuredStore::save(const StorageFolder &folder, const Measured &measured)
{
    return put(folder, measured.isEmpty() && load(folder).bytes.isEmpty() ? QByteArray()
                                                                          : MeasuredFile::save(measured));
}

QString MeasuredStore::put(const StorageFolder &folder, const QByteArray &bytes)
{
    const Stored before = load(folder);
    if (before.reason.isEmpty() && bytes == before.bytes)
        return QString();
    if (!before.mayWrite)
        return before.reason;
    if (!before.reason.isEmpty()) {
        const QString aside = folder.asideOfMeasured(QDateTime::currentDateTimeUtc());
        const QString problem =
            WholeFile::write(aside, before.bytes, WholeFile::permissionsOf(folder.measuredFile()));
        if (!problem.isEmpty())
            return problem;
    }
    if (!bytes.isEmpty()) {
        const QString problem = write(folder, bytes);
        if (!problem.isEmpty() && WholeFile::read(folder.measuredFile()).bytes != before.bytes)
            putBack(folder, before.bytes); // it was written, and cannot be read
        return problem;
    }
    QFile file(folder.measuredFileTarget());
    return !file.exists() || file.remove() ? QString() : WholeFile::clause(file.errorString());
}

} // namespace Host
