// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/radiolog.h"

#include <QDialog>

#include <array>

class QComboBox;
class QLabel;
class QPushButton;

namespace Host {

/** Lets the user say which columns of a log tell of the battery, beside some of its values. */
class ColumnsDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ColumnsDialog)

public:
    /** @param name of the log. @param others how many more logs have the same columns. */
    ColumnsDialog(const RadioLog &log, const QString &name, int others, QWidget *parent = nullptr);

    ColumnMapping mapping() const;

private:
    QComboBox *makeChoice(const RadioLog &log, size_t kind, const QString &present);
    QWidget *makeSamples(const RadioLog &log);
    QString chosen(size_t kind) const;
    void refresh();

    std::array<QComboBox *, 3> m_choices{}; ///< for the kinds of columns, in their order
    QLabel *m_hint;
    QPushButton *m_use = nullptr;
};

} // namespace Host
