// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/exporting.h"

#include <QDialog>

#include <atomic>
#include <memory>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QThread;

namespace Host {

class ExportNames;
class ExportPreview;
class OpenLogbook;
class Questions;

/** Lets the user export the logbook. @return what came of it, to be told; empty where nothing was exported.
 */
QString exportByDialog(OpenLogbook &logbook, Questions &questions, QWidget *parent);

/** Stays open until something was exported; that happens in a thread of its own, and can be stopped. */
class ExportDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExportDialog)

public:
    /** @param questions outlives the dialog. */
    ExportDialog(std::shared_ptr<const Catalogue> catalogue, Questions &questions, QWidget *parent = nullptr);
    ~ExportDialog() override;

    /** What was done, in whole sentences. */
    QString report() const { return m_report; }

    /** Asks where to, and begins. */
    void accept() override;
    /** Stops what is under way; closes the dialog where nothing is. */
    void reject() override;

private:
    QWidget *buildFields();
    void addDate(QFormLayout &form, const QString &caption, QCheckBox *&box, QDateEdit *&edit);
    ExportFormat format() const;
    ExportFilter filter() const;
    void refresh();
    QString choosePath(ExportFormat format);
    bool mayReplace(const QStringList &files);
    void start(const ExportOrder &order);
    void showProgress(qsizetype rows);
    void finish(const ExportOrder &order, const Exported &exported);
    void say(const QString &text);

    const std::shared_ptr<const Catalogue> m_catalogue;
    Questions &m_questions;
    QWidget *m_fields;
    QComboBox *m_format;
    QLabel *m_explanation;
    QCheckBox *m_isFrom = nullptr;
    QDateEdit *m_from = nullptr;
    QCheckBox *m_isTo = nullptr;
    QDateEdit *m_to = nullptr;
    ExportNames *m_batteries;
    ExportNames *m_models;
    ExportPreview *m_preview;
    QLabel *m_message;
    QProgressBar *m_progress;
    QPushButton *m_export;
    std::unique_ptr<QThread> m_thread; ///< while it is at work
    std::atomic<bool> m_isStopped = false;
    QString m_report;
};

} // namespace Host
