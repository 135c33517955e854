// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QPointer>
#include <QScrollArea>

namespace Host {

/**
 * Notices each save of the logbook window, and whether the data file took it.
 *
 * The window saves in silence. It is watched from outside: a card tells of its change, and an edit that was
 * saved is followed by a reload, which gives the overview a new content widget. Only the file's time and size
 * are looked at here; what it holds is for the keeper of the copies to read.
 */
class SaveWatch final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SaveWatch)

public:
    /** @param logbook the window, on which the signals of every button are connected already. */
    SaveWatch(QWidget *logbook, const StorageFolder &folder, QObject *parent = nullptr);

    /** The program itself has written the file or led the window to it: what it holds now is known. */
    void accept();
    /** Whether the file is not as it was left by the last save: somebody else has written or removed it. */
    bool isChangedByOthers() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The window has saved, and the file has changed. @param reloaded the window has read it back since. */
    void saved(bool reloaded);
    /** The window has saved, and the file is as it was before: it could not be opened. */
    void notSaved(bool reloaded);
    /** Somebody else has written or removed the file. */
    void changedByOthers();

private Q_SLOTS:
    void cardChanged();

private:
    struct Stamp
    {
        QDateTime modified;
        qint64 size = -1; // of no file
        bool operator!=(const Stamp &other) const { return modified != other.modified || size != other.size; }
    };

    Stamp present() const;
    void watchButtons(QWidget *logbook);
    void watchCards(QObject *content);
    void editClicked();
    void saveAttempted(bool reloaded);
    void fileNoticed();
    void renewWatcher();

    const StorageFolder m_folder;
    QScrollArea *m_overview;
    QPointer<QWidget> m_contentBeforeClick;
    Stamp m_known;
    bool m_savePending = false;
    QFileSystemWatcher m_watcher;
};

} // namespace Host
