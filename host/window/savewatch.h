// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/filewatch.h"
#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QScrollArea>

class QAbstractButton;
class QComboBox;

namespace Host {

/**
 * Notices each save of the logbook window, and whether the data file has changed with it; and keeps a click
 * from saving where it must not.
 *
 * The window saves in silence. It is watched from outside: a card tells of its change, and an edit that was
 * saved is followed by a reload, which gives the overview a new content widget. However a button is pressed,
 * it says "released" before "clicked", which is when the window saves: until then a click can be held.
 */
class SaveWatch final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SaveWatch)

public:
    /** @param logbook the window, on which the signals of every button are connected already. */
    SaveWatch(QWidget *logbook, const StorageFolder &folder, QObject *parent = nullptr);

    /** What is known of the file, and whether other programs have changed it. */
    FileWatch &file() { return m_file; }
    const FileWatch &file() const { return m_file; }

    /** The program itself has written the file or led the window to it: what it holds now is known. */
    void accept();
    /** Tells at once what would be told as soon as the program is idle. */
    void catchUp();
    /** Whether the last save came so soon after the one before that the file's clock may not tell them apart.
     */
    bool wasTooFastForTheClock() const { return m_tooFast; }
    /** Whether another program has put a file in the place of the one that the last save went into. */
    bool wasReplaced() const { return m_wasReplaced; }
    /** Whether the window has as many batteries and models as a document of the library's. */
    bool shows(const QByteArray &document) const;

    /** The click that aboutToOverwrite() tells of does nothing. */
    void hold();
    /**
     * Clicks what was clicked when it was held, on a card that shows the same battery in the same state.
     *
     * @return whether there was one.
     */
    bool repeatHeld();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The window has saved, and the file has changed. @param reloaded the window has read it back since. */
    void saved(bool reloaded);
    /** The window has saved, and the file seems to be as it was before. */
    void unchanged(bool reloaded);
    /** A click may save in a moment, on top of what somebody else has done to the file. */
    void aboutToOverwrite();

private Q_SLOTS:
    void cardChanged();

private:
    /** What a card says: the battery's name and the caption of its button. */
    struct Card
    {
        QString name;
        QString caption;
        bool operator==(const Card &other) const { return name == other.name && caption == other.caption; }
    };

    static Card cardOf(const QAbstractButton *button);
    bool isInOneTickWithKnown() const;
    void watchButtons(const QWidget *logbook);
    void watchCards(const QObject *content);
    void watchButton(const QAbstractButton *button);
    void beforeClick();
    void editClicked();
    void attempted(bool reloaded);
    QByteArray replacedSave();

    const QString m_path;
    QScrollArea *m_overview;
    QAbstractButton *m_chartButton;
    QComboBox *m_batteries;
    QComboBox *m_models;
    QPointer<QWidget> m_contentBeforeClick;
    QPointer<QAbstractButton> m_clicked;
    Card m_held;
    QFile m_before; ///< the file that a click saves in, under whatever name it goes afterwards
    bool m_savePending = false;
    bool m_tooFast = false;
    bool m_wasReplaced = false;
    FileWatch m_file;
};

} // namespace Host
