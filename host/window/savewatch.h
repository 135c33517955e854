// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QPointer>
#include <QScrollArea>

class QAbstractButton;
class QComboBox;

namespace Host {

/**
 * Notices each save of the logbook window, and whether the data file has changed with it.
 *
 * The window saves in silence. It is watched from outside: a card tells of its change, and an edit that was
 * saved is followed by a reload, which gives the overview a new content widget. Only the file's time and size
 * are looked at here; what it holds is for others to read.
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
    /** Tells at once what would be told as soon as the program is idle. */
    void catchUp();
    /** Whether the file is not as it was when it was last looked at. */
    bool isChanged() const;
    /** Whether the last save came so soon after the one before that the file's clock may not tell them apart.
     */
    bool wasTooFastForTheClock() const { return m_tooFast; }
    /** Whether the window has as many batteries and models as a document of the library's. */
    bool shows(const QByteArray &document) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The window has saved, and the file has changed. @param reloaded the window has read it back since. */
    void saved(bool reloaded);
    /** The window has saved, and the file seems to be as it was before. */
    void unchanged(bool reloaded);
    /** Somebody else has written or removed the file; told before the window overwrites it. */
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
    bool isInOneTickWithKnown() const;
    void watchButtons(const QWidget *logbook);
    void watchCards(const QObject *content);
    void watchButton(const QAbstractButton *button);
    void beforeClick();
    void editClicked();
    void attempted(bool reloaded);
    void fileNoticed();
    void renewWatcher();

    const StorageFolder m_folder;
    QScrollArea *m_overview;
    QAbstractButton *m_chartButton;
    QComboBox *m_batteries;
    QComboBox *m_models;
    QPointer<QWidget> m_contentBeforeClick;
    Stamp m_known;
    bool m_savePending = false;
    bool m_tooFast = false;
    QFileSystemWatcher m_watcher;
};

} // namespace Host
