// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/moments.h"

#include <QDialog>
#include <QString>

class QComboBox;

namespace Host {

/** Asks where flights are to be moved: to another model, with one discharge to another battery, or both. */
class MoveDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MoveDialog)

public:
    MoveDialog(const Catalogue &catalogue, const QList<FlightPlace> &places, QWidget *parent = nullptr);

    /** Does what was chosen. @param places become where the flights stand then. @return why not, if not. */
    QString apply(Catalogue &catalogue, QList<FlightPlace> &places) const;

private:
    QComboBox *m_model; ///< the first is to stay
    QComboBox *m_from;  ///< the batteries of these flights
    QComboBox *m_to;    ///< the first is to stay
};

} // namespace Host
