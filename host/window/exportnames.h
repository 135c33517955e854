// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QStringList>

#include <optional>

class QListWidget;

namespace Host {

/** A choice of records by their names, for those who do not want all of them. */
class ExportNames final : public QGroupBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExportNames)

public:
    /** @param names of all records; what several have stands here once. */
    ExportNames(const QString &title, QStringList names, QWidget *parent = nullptr);

    /** Those that are ticked; nothing where all records are meant. */
    std::optional<QStringList> chosen() const;

Q_SIGNALS:
    void changed();

private:
    QListWidget *m_list;
};

} // namespace Host
