// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/preferences/settings.h"
#include "host/safety/storagefolder.h"

#include <QMainWindow>

#include <memory>

class QAction;
class QComboBox;
class QMenu;
class QSplitter;
class QStackedWidget;
class VoltbokGui;

namespace Host {

class CardWatch;
class ConflictOffer;
class FolderLock;
class Languages;
class MessageBar;
class OpenLogbook;
class PendingInput;
class Questions;
class SaveCare;
class SidePanel;

/** The program's window: the logbook of one storage folder, the messages about it, and the panel beside it.
 */
class MainWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    /** @param questions @param languages outlive the window; without the second none can be chosen. */
    explicit MainWindow(Questions &questions, Languages *languages = nullptr, QWidget *parent = nullptr);
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

    /** Shows a page of the logbook or a tab of the side panel; @see pageNames(). */
    void showPage(const QString &name);
    /** What can be shown by its name, the same in every language. */
    static QStringList pageNames();

    /** The window over the logbook of a folder, which is only read. @param page may be empty. */
    static QPixmap picture(const StorageFolder &folder, const QString &page);

Q_SIGNALS:
    /** A message was shown. */
    void told(const QString &text);
    /** The user wants to see the logbook of another folder, which nobody has looked at yet. */
    void folderRequested(const Host::StorageFolder &folder);
    /** A folder was opened. */
    void folderTaken(const Host::StorageFolder &folder);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectLogbook();
    void lookInto(const StorageFolder &folder);
    void buildPanel();
    void buildMenus();
    void buildLogbookMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void buildKeys();
    void buildLanguageMenu(QMenu *view);
    void chooseLanguage(const QString &code);
    QString language() const;
    void retranslate();
    void showTitle();
    void updateActions();
    void nameSteps();
    void listRecentFolders();
    void chooseFolder();
    void requestFolder(const QString &path);
    void undo();
    void redo();
    void rename();
    void importLogs(const QStringList &paths);
    void watchCards();
    void exportLogbook();
    void restoreCopy();
    void showPanel(bool visible);
    void showPreferences();
    void showManual();
    void showAbout();
    void back();
    void leadHome();
    bool mayLoseInput();
    void pageShown();
    void keepChosenModel(const QString &name);
    void restoreLayout();
    void keepLayout();

    void tellAboutSettings();
    void reload();
    void greet();
    void addFirstBattery();
    void closeLogbook();
    void goOnIn(const StorageFolder &folder, std::shared_ptr<FolderLock> lock);

    Questions &m_questions;
    Languages *m_languages;
    Settings m_settings;
    VoltbokGui *m_gui;
    QStackedWidget *m_pages; ///< of the logbook
    QComboBox *m_models;     ///< of its overview
    PendingInput *m_pending;
    MessageBar *m_messages;
    QSplitter *m_splitter;
    QMenu *m_recent = nullptr;
    QAction *m_import = nullptr;
    QAction *m_backups = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_rename = nullptr;
    QAction *m_panelShown = nullptr;
    StorageFolder m_folder;
    std::shared_ptr<FolderLock> m_lock;
    std::unique_ptr<SaveCare> m_care; // before the lock goes, it saves and copies
    std::unique_ptr<OpenLogbook> m_logbook;
    std::unique_ptr<CardWatch> m_cards;
    std::unique_ptr<ConflictOffer> m_conflicts;
    SidePanel *m_panel = nullptr; // in the splitter
};

} // namespace Host
