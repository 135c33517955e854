// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/exportfilter.h"

#include <QTabWidget>

#include <memory>

class QTableWidget;

namespace Host {

/** The first rows of each table as they would be exported. */
class ExportPreview final : public QTabWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExportPreview)

public:
    static constexpr int MostRows = 20;

    explicit ExportPreview(std::shared_ptr<const Catalogue> whole, QWidget *parent = nullptr);

    void showRows(const ExportFilter &filter);

private:
    const std::shared_ptr<const Catalogue> m_whole;
    QList<QTableWidget *> m_tables;
};

} // namespace Host
