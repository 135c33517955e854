// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/demo/demo.h"

#include "host/safety/backups.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Puts the sample in the place of what is there, which is kept. @return why it was not put there, a clause.
 */
QString put(const StorageFolder &folder, const FileState &state)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QString aside;
    if (state.kind == FileState::Unreadable)
        return state.problem;
    if (state.kind == FileState::Damaged)
        return Recovery::replace(folder, sampleLogbook(), now, &aside);
    const QString problem =
        state.kind == FileState::Whole ? Backups::add(folder, state.bytes, now) : QString();
    return problem.isEmpty() ? WholeFile::write(folder.dataFileTarget(), sampleLogbook()) : problem;
}

} // namespace

QByteArray sampleLogbook()
{
    QFile sample(u":/demo/voltbok.xml"_s);
    return sample.open(QFile::ReadOnly) ? sample.readAll() : QByteArray();
}

QString prepareDemo(const StorageFolder &folder, bool reset)
{
    const FileState state = Recovery::examine(folder);
    if (state.kind != FileState::New && !reset)
        return QString(); // where it is missing or damaged, its copies are offered as for any logbook
    const QString problem = put(folder, state);
    if (problem.isEmpty())
        return QString();
    return QCoreApplication::translate(
               "Demo", "The sample logbook “%1” cannot be written: %2. Free some space, or check "
                       "the rights of its folder.")
        .arg(folder.dataFile(), problem);
}

} // namespace Host
