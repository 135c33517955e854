// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/versionsmodel.h"

#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"

#include <QFileInfo>
#include <QLocale>

namespace Host {
namespace {
enum Column { Title, Size, Batteries, Models, Flights, Discharges, Count };
}

VersionsModel::VersionsModel(const StorageFolder &folder, QObject *parent)
    : QAbstractTableModel(parent)
{
    const std::optional<QList<Copy>> listed = Backups::listed(folder);
    m_isComplete = listed.has_value();
    const QList<Copy> copies = listed.value_or(QList<Copy>());
    for (const Copy &copy : copies) {
        m_versions.append({tr("Copy of %1").arg(copy.time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss")),
                           folder.backups().filePath(copy.name),
                           {},
                           copy.size,
                           {}});
        ++m_copies;
    }
    const QStringList asides = folder.asides();
    for (const QString &path : asides) {
        const QFileInfo file(path);
        m_versions.append({file.fileName(), path, {}, file.size(), {}});
    }
}

void VersionsModel::add(const QString &title, const QByteArray &document)
{
    const Contents contents = WholeFile::inspect(document);
    if (!contents.problem.isEmpty())
        return;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_versions.append({title, {}, document, document.size(), contents});
    endInsertRows();
}

int VersionsModel::firstWhole() const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (contents(row).problem.isEmpty())
            return row;
    }
    return -1;
}

QByteArray VersionsModel::document(int row) const
{
    const Version &version = m_versions.at(row);
    return version.path.isEmpty() ? version.document : WholeFile::read(version.path).bytes;
}

const Contents &VersionsModel::contents(int row) const
{
    const Version &version = m_versions.at(row);
    if (version.contents)
        return *version.contents;
    const WholeFile::Reading reading =
        version.path.isEmpty() ? WholeFile::Reading{version.document, {}} : WholeFile::read(version.path);
    version.isReadable = reading.problem.isEmpty();
    version.contents = version.isReadable ? WholeFile::inspect(reading.bytes) : Contents{reading.problem};
    return *version.contents;
}

int VersionsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_versions.size());
}

int VersionsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Column::Count;
}

QVariant VersionsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && index.column() != Title)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole)
        return contents(index.row()).problem;
    return QVariant();
}

QString VersionsModel::title(int row) const
{
    const Version &version = m_versions.at(row);
    if (contents(row).problem.isEmpty())
        return version.title;
    return version.isReadable ? tr("%1 (damaged)").arg(version.title)
                              : tr("%1 (cannot be read)").arg(version.title);
}

QString VersionsModel::text(int row, int column) const
{
    const QLocale locale;
    if (column == Title)
        return title(row);
    if (column == Size)
        return locale.formattedDataSize(m_versions.at(row).size, 1, QLocale::DataSizeSIFormat);
    const Contents &held = contents(row);
    if (!held.problem.isEmpty())
        return QString(); // what was counted up to the damage is no figure
    switch (column) {
    case Batteries:
        return locale.toString(held.batteries);
    case Models:
        return locale.toString(held.models);
    case Flights:
        return locale.toString(held.flights);
    case Discharges:
        return locale.toString(held.discharges);
    default:
        return QString();
    }
}

QVariant VersionsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= Count)
        return QVariant();
    const QString titles[] = {tr("Version"), tr("Size"),    tr("Batteries"),
                              tr("Models"),  tr("Flights"), tr("Discharges")};
    return titles[section];
}

Qt::ItemFlags VersionsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) // a view asks for what is between the rows, too
        return Qt::NoItemFlags;
    return contents(index.row()).problem.isEmpty() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                                   : Qt::NoItemFlags;
}

} // namespace Host
