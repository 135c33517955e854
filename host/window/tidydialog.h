// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/edits.h"

#include <QDialog>

class QListWidget;

namespace Host {

/** Shows the flights that stand twice, and lets the user choose which of the second ones are removed. */
class TidyDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TidyDialog)

public:
    TidyDialog(const Catalogue &catalogue, const QList<Edits::Double> &doubles, QWidget *parent = nullptr);

    QList<FlightPlace> chosen() const;

private:
    const QList<Edits::Double> m_doubles;
    QListWidget *m_list; ///< an entry for each
};

} // namespace Host
