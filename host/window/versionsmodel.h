// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/wholefile.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>

#include <optional>

namespace Host {

class StorageFolder;

/**
 * The versions of a logbook that can be restored: its copies, the newest first, and files that were put
 * aside.
 *
 * A version is read when it is first shown or asked for. One that is not whole is listed, and cannot be
 * chosen.
 */
class VersionsModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VersionsModel)

public:
    explicit VersionsModel(const StorageFolder &folder, QObject *parent = nullptr);

    /** Adds a version that is in no file, at the end, if it is whole. */
    void add(const QString &title, const QByteArray &document);

    /** Whether the copies could be listed. */
    bool isComplete() const { return m_isComplete; }
    /** The first version that is whole; -1 when none is. */
    int firstWhole() const;
    /** Whether a version is one of the copies: the others are what an accident has left. */
    bool isCopy(int row) const { return row < m_copies; }
    /** What a version holds now; empty when it cannot be read. */
    QByteArray document(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Version
    {
        QString title;
        QString path;
        QByteArray document; // of one that is in no file
        qint64 size = 0;
        mutable std::optional<Contents> contents;
        mutable bool isReadable = true;
    };

    const Contents &contents(int row) const;
    QString title(int row) const;
    QString text(int row, int column) const;

    QList<Version> m_versions;
    bool m_isComplete = true;
    qsizetype m_copies = 0;
};

} // namespace Host
