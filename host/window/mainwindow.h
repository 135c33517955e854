// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include <memory>

class VoltbokGui;

namespace Host {

class FolderLock;
class MessageBar;
class Questions;
class SaveCare;
class StorageFolder;

/** The program's window: the logbook of one storage folder, below the messages about it. */
class MainWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    /** @param questions outlives the window. */
    explicit MainWindow(Questions &questions, QWidget *parent = nullptr);
    ~MainWindow() override;

    /**
     * Shows the logbook of a folder and takes care of its file. The folder that was open before is closed.
     *
     * @param lock of the folder, held as long as it is open.
     */
    void open(const StorageFolder &folder, std::shared_ptr<FolderLock> lock);

    /** Tells something that needs no answer; see MessageBar::tell(). */
    void tell(const QString &matter, const QString &text);

    /** Brings the window to the front. */
    void raiseAndActivate();

    /** The logbook's first page, without any of the program around it. */
    static QPixmap picture(const StorageFolder &folder);

Q_SIGNALS:
    /** A message was shown. */
    void told(const QString &text);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void tellAboutSettings();
    void goOnIn(const StorageFolder &folder, std::shared_ptr<FolderLock> lock);

    Questions &m_questions;
    VoltbokGui *m_logbook;
    MessageBar *m_messages;
    std::shared_ptr<FolderLock> m_lock;
    std::unique_ptr<SaveCare> m_care; // before the lock goes, it saves and copies
};

} // namespace Host
