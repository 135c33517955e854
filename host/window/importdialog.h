// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/logreading.h"

#include <QDialog>
#include <QMap>
#include <QSet>

#include <atomic>
#include <memory>
#include <optional>

class QCheckBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTableView;
class QThread;

namespace Host {

class ColumnsDialog;
class ImportModel;
class OpenLogbook;
class Questions;

/**
 * Lets the user import logs of radios. @param paths of logs and folders; without any he chooses them first.
 *
 * @return what was done, to be told; empty where nothing was.
 */
QString importByDialog(OpenLogbook &logbook, Questions &questions, const QStringList &paths, QWidget *parent);

/** Shows what an import would do, and does what is ticked. Logs are read in a thread of its own, which can be
 * stopped. */
class ImportDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ImportDialog)

public:
    /** @param logbook @param questions outlive the dialog. */
    ImportDialog(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);
    ~ImportDialog() override;

    /** Reads these logs and folders, besides those that were read before. */
    void add(const QStringList &paths);

    /** What was done, in whole sentences. */
    QString report() const { return m_report; }

    /** Imports what is ticked. */
    void accept() override;
    /** Stops the reading; closes the dialog where nothing is read. */
    void reject() override;

private:
    struct Reading
    {
        QStringList paths;
        std::shared_ptr<const Catalogue> catalogue;
        Measured measured;
        QList<ImportedLog> logs;
        std::optional<qint64> clockOffset;
    };

    void buildLayout();
    void buildTable();
    void start(const QStringList &paths);
    void finish(const Reading &reading);
    void settleColumns(const Reading &reading);
    void askForColumns(const Reading &reading, const ImportedLog &log);
    void showResult(const Reading &reading);
    void offerClock(const std::optional<qint64> &offset);
    void listRefused(const QList<ImportedLog> &logs);
    void readAgain();
    void refresh();
    void say(const QString &text);

    OpenLogbook &m_logbook;
    Questions &m_questions;
    ImportModel *m_model;
    QWidget *m_fields;
    QPushButton *m_chooseFiles;
    QPushButton *m_chooseFolder;
    QTableView *m_table;
    QCheckBox *m_replaces;
    QCheckBox *m_corrects; ///< the radio's clock
    QLabel *m_refusedCaption;
    QListWidget *m_refused;
    QLabel *m_message;
    QProgressBar *m_progress;
    QPushButton *m_import;
    ColumnsDialog *m_columns = nullptr;      ///< while it asks
    QStringList m_paths;                     ///< that were read
    QMap<QString, ColumnMapping> m_mappings; ///< that the user chose, by the key of a header
    QSet<QString> m_declined;                ///< keys of headers for which he did not
    qint64 m_clockOffset = 0;                ///< that is offered, in ms
    std::unique_ptr<QThread> m_thread;       ///< while it is at work
    std::atomic<bool> m_isStopped = false;
    bool m_isImporting = false;
    QString m_report;
};

} // namespace Host
