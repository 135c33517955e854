// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/merge.h"

#include <QDialog>
#include <QSet>

class QTableWidget;

namespace Host {

/** Says what another version of the logbook brings, and lets the user choose where both have changed the
 * same. */
class MergeDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MergeDialog)

public:
    /** @param name of the other version. @param hasAncestor a version was found that both come from. */
    MergeDialog(const Merge &plan, bool hasAncestor, const QString &name, QWidget *parent = nullptr);

    /** The conflicts, by their place in the plan, in which the other version's value is taken. */
    QSet<qsizetype> chosen() const;

    /** "adds 2 flights, removes 1 battery and changes 3 values", in whole sentences. */
    static QString summary(const Merge &plan);

private:
    void fill(const QList<MergeConflict> &conflicts);

    QTableWidget *m_conflicts;
};

} // namespace Host
