// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QMainWindow>

#include <memory>

class VoltbokGui;

namespace Host {

class BackupKeeper;
class FolderLock;
class MessageBar;
class Questions;
class SaveWatch;

/** The program's window: the logbook of one storage folder, below the messages about it. */
class MainWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    /** @param questions outlives the window. */
    explicit MainWindow(Questions &questions, QWidget *parent = nullptr);
    ~MainWindow() override;

    /** Shows the logbook of a folder and keeps copies of it. The lock is held as long as the folder is open.
     */
    void open(const StorageFolder &folder, std::unique_ptr<FolderLock> lock);

    /** What a save would have written when the folder was opened, before anything was changed. */
    QByteArray openedAs() const;

    /** The logbook's first page, without any of the program around it. */
    static QPixmap picture(const StorageFolder &folder);

    /** Tells something that needs no answer; see MessageBar::tell(). */
    void tell(const QString &matter, const QString &text);

Q_SIGNALS:
    /** A message was shown. */
    void told(const QString &text);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    /** What the window and its file have left of the last change. */
    enum class Loss {
        None,       ///< the file holds it
        File,       ///< the window holds it, the file does not
        Change,     ///< it is lost; file and window are as they were before
        Everything, ///< the file was cut, and the window has read it back
    };

    static QString lossText(Loss loss);

    void closeFolder();
    void checkWritable();

    void lookAfterSave(bool reloaded);
    void saveRefused(bool reloaded);
    void fileBroken(const QString &reason);
    void fileWhole();
    void changedByOthers();
    void tellLoss(Loss loss, const QString &reason);
    void settle();

    void tryAgain();
    void putBack();
    void keepElsewhere();
    void flush();
    QByteArray lastWholeState() const;
    QByteArray heldByWindow();

    Questions &m_questions;
    VoltbokGui *m_logbook;
    MessageBar *m_messages;
    StorageFolder m_folder{QString()};
    std::unique_ptr<FolderLock> m_lock;
    std::unique_ptr<BackupKeeper> m_keeper;
    std::unique_ptr<SaveWatch> m_watch;
    QByteArray m_openedAs;
    QByteArray m_unsaved;    // what the window held when a save failed
    bool m_reloaded = false; // the window has read the file back after its last save
    bool m_retried = false;  // it has saved since a loss was told
    Loss m_loss = Loss::None;
};

} // namespace Host
