// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Host {

class OpenLogbook;
class Questions;

/** Lets the user give a battery, a model or a location another name, everywhere at once. */
void renameRecord(OpenLogbook &logbook, Questions &questions, QWidget *parent);

/** Stays open when a name is refused. */
class RenameDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RenameDialog)

public:
    enum Kind { OfBattery, OfModel, OfLocation };

    /** @param logbook @param questions outlive the dialog. */
    RenameDialog(std::shared_ptr<const Catalogue> catalogue, OpenLogbook &logbook, Questions &questions,
                 QWidget *parent = nullptr);

    void accept() override;

private:
    void offerRecords();
    void offerName();
    QStringList names(const Catalogue &catalogue) const;
    QString stepName() const;
    QString rename(Catalogue &catalogue) const;

    const std::shared_ptr<const Catalogue> m_catalogue;
    OpenLogbook &m_logbook;
    Questions &m_questions;
    QComboBox *m_kind;
    QComboBox *m_record;
    QLineEdit *m_name;
    QLabel *m_remark;
    QPushButton *m_do;
};

} // namespace Host
