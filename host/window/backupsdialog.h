// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"

#include <QDialog>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

namespace Host {

class CopiesModel;
class CopyReader;
class DifferencesModel;
class OpenLogbook;
struct Catalogue;

/** Lets the user restore a copy of the logbook. @return what came of it, to be told; empty where nothing was
 * restored. */
QString restoreByDialog(OpenLogbook &logbook, const StorageFolder &folder, QWidget *parent);

/** Shows the copies of the logbook, what differs between the chosen one and the logbook now, and restores it.
 */
class BackupsDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BackupsDialog)

public:
    /** @param logbook of the folder, outlives the dialog. */
    BackupsDialog(OpenLogbook &logbook, const StorageFolder &folder, QWidget *parent = nullptr);
    ~BackupsDialog() override;

    /** What was done, in whole sentences. */
    QString report() const { return m_report; }

    /** Restores the chosen copy. */
    void accept() override;

private:
    QWidget *copiesPart();
    QWidget *previewPart();
    QWidget *progressPart();
    void list();
    void take(const Copy &copy, const Backups::Held &held);
    void compare(const Copy &copy, const Backups::Held &held);
    void choose(int row);
    void refresh();
    void showProgress();
    void stop();
    void say(const QString &text);

    OpenLogbook &m_logbook;
    const StorageFolder m_folder;
    std::shared_ptr<const Catalogue> m_present;
    CopiesModel *m_copies;
    DifferencesModel *m_differences;
    CopyReader *m_reader;
    QTableView *m_table;
    QLabel *m_holds;
    QTableView *m_preview;
    QLabel *m_message;
    QWidget *m_work = nullptr; ///< the progress, and what stops it
    QProgressBar *m_progress;
    QPushButton *m_restore;
    QString m_shown; ///< the name of the copy in the preview
    bool m_isRestoring = false;
    bool m_isStopped = false;
    QString m_report;
};

} // namespace Host
