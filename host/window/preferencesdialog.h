// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>

class QSpinBox;

namespace Host {

/** What the user may change of how the program works. Nothing is kept before OK is pressed. */
class PreferencesDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PreferencesDialog)

public:
    explicit PreferencesDialog(QWidget *parent = nullptr);

    void accept() override;

private:
    void restoreDefaults();

    QList<QSpinBox *> m_limits; ///< parallel to limitFields()
};

} // namespace Host
