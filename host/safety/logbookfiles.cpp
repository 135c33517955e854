// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/logbookfiles.h"

#include "host/safety/measuredstore.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"

#include <QDateTime>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Puts the data file back that was moved aside. */
QString putBack(const StorageFolder &folder, const QString &aside)
{
    std::error_code error;
    const auto path = QFileInfo(folder.dataFileTarget()).filesystemFilePath();
    if (aside.isEmpty())
        std::filesystem::remove(path, error);
    else
        std::filesystem::rename(QFileInfo(aside).filesystemFilePath(), path, error);
    return error ? WholeFile::clause(qt_error_string(error.value())) : QString();
}

} // namespace

QString LogbookFiles::put(const StorageFolder &folder, const Contents &contents,
                          const QByteArray &besideBefore, QString *aside)
{
    QString problem = Recovery::replace(folder, contents.document, QDateTime::currentDateTimeUtc(), aside);
    if (problem.isEmpty() && contents.beside != besideBefore) {
        problem = MeasuredStore::put(folder, contents.beside);
        const QString lasting = problem.isEmpty() ? QString() : putBack(folder, *aside);
        if (!lasting.isEmpty())
            problem += u"; "_s + lasting;
    }
    return problem;
}

} // namespace Host
