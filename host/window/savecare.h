// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backupkeeper.h"
#include "host/safety/storagefolder.h"
#include "host/window/messagebar.h"
#include "host/window/savewatch.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

namespace Host {

class FolderLock;
class Progress;
class Questions;

/** What the care for a logbook's file needs of its window. */
struct LogbookAccess
{
    QWidget *widget;              ///< disabled while nothing may be entered
    std::function<void()> save;   ///< writes the file from what the window holds
    std::function<void()> reload; ///< reads the window's content from the file
    /** Whether something is being entered that a reload would spoil; without it nothing is. */
    std::function<bool()> isInUse = {};
    std::function<void()> leave = {}; ///< leads away from what is being entered, if the user wants that
};

/**
 * Sees to it that the file of an open logbook holds what was recorded: after each save of the window it looks
 * whether the file took it, and if not it says so and offers what helps; and it has every version copied.
 * What other programs write is shown, as soon as nothing that was entered here gets lost by that.
 */
class SaveCare final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SaveCare)

public:
    /** The window has just been led to the folder, and everything given here outlives the care. */
    SaveCare(const StorageFolder &folder, const LogbookAccess &logbook, MessageBar &messages,
             Questions &questions);
    /** Saves what is not saved yet, and copies it. */
    ~SaveCare() override;

    /** Saves what is not saved yet; asks where it cannot be saved. @return whether the window may be closed.
     */
    bool mayClose();

    /** Whether file and window hold the same, and it is the window's or the program's own. */
    bool isInOrder() const;
    /** Saves what is not saved yet. @return whether all is in order now, so that the file may be written. */
    bool makeFileCurrent();
    /** The program has written this document in the window's stead, and has the window read it. */
    void readWritten(const QByteArray &document);
    /** @return whether the window holds now what was written. */
    bool takeWritten(const QByteArray &document);

Q_SIGNALS:
    /** The file holds a new version of the window's or the program's own. */
    void written(const QByteArray &document);
    /** The file holds or has held a version of somebody else's, and the window shows it or has overwritten
     * it.
     */
    void writtenByOthers(const QByteArray &document);
    /** isInOrder() may have changed. */
    void orderChanged();
    /** The user wants to go on in another folder, which has the logbook already; the receiver takes the lock.
     */
    void keptElsewhere(const Host::StorageFolder &folder, std::shared_ptr<Host::FolderLock> lock);

private:
    /** What window and file have left of the last change. */
    enum class Loss {
        None,       ///< the file holds it
        Foreseen,   ///< nothing was changed yet, and the next change cannot be saved
        File,       ///< the window holds it, the file does not
        Change,     ///< it is lost; file and window are as they were before
        Everything, ///< it is lost, and the window has read back less than was recorded before
    };

    /** What other programs have done to the file that the window has not followed. */
    enum class Others {
        Nothing,
        Waiting, ///< they have written a version that is not on show yet
        Damage,  ///< it is gone, or not whole
    };
    /** Why their version is not on show at once. */
    enum class Hindrance { None, Input, Unsaved };

    bool isOpenedWhole();
    void saved(bool reloaded);
    void unchanged(bool reloaded);
    void fileBroken(const QString &problem);
    void fileWhole();
    void takeForOurs();

    void setOthers(Others others);
    void changedByOthers(const QByteArray &theirs);
    void followOthers();
    Hindrance hindrance() const;
    bool holdsUnsaved() const;
    void tellThatItWaits();
    void askWhich();
    void preferTheirs();
    void preferOurs();
    void takeOver();
    bool isShown(const QByteArray &document, Progress &progress);
    void haveTaken(const QByteArray &theirs, const QString &change);
    void keepWhatIsDropped(const QByteArray &theirs);
    void tellOverwritten(const QByteArray &theirs);
    bool mayOverwrite();
    void aboutToOverwrite();
    void brokenByOthers(const QString &reason, bool isMissing);
    void returned();
    bool hasReadBack(const QByteArray &document);

    void tellLoss(Loss loss, const QString &reason);
    static QString lossText(Loss loss);
    QString reason(const QString &otherwise) const;
    void settle();
    void enable();
    void tryAgain();
    void restoreLastState();
    void keepElsewhere();
    QString keepIn(const StorageFolder &folder, FolderLock &lock) const;
    bool save();
    void flush();
    QByteArray lastState() const;
    QByteArray heldByWindow() const;
    QByteArray heldByFile() const;

    const StorageFolder m_folder;
    const LogbookAccess m_logbook;
    MessageBar &m_messages;
    Questions &m_questions;
    bool m_showsPart = false; // the window: it has read a file that was just being written
    QByteArray m_openedAs;    // what a save would have written when the file was opened or restored
    QByteArray m_unsaved;     // what the window held when a save failed
    Loss m_loss = Loss::None;
    bool m_endsWhenWhole = false; // the loss: nothing but the file itself is in the way
    Others m_others = Others::Nothing;
    QByteArray m_theirs;       // the version of somebody else's that is not on show
    QByteArray m_toldToWait;   // the one that was told of
    bool m_isReading = false;  // their version
    bool m_holdsClick = false; // until their version is on show
    QTimer m_waiting;          // until nothing hinders
    SaveWatch m_watch;
    BackupKeeper m_keeper;
};

} // namespace Host
