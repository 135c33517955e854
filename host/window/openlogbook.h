// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/undo.h"
#include "host/safety/backups.h"
#include "host/safety/filewatch.h"
#include "host/safety/measuredstore.h"
#include "host/safety/storagefolder.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace Host {

class Progress;
class Questions;
class SaveCare;

/**
 * The open logbook as the program sees it beside the window: its catalogue as plain values, changes of it,
 * and their undoing. The file is the truth: everything is read from it, and written to it first.
 */
class OpenLogbook final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OpenLogbook)

public:
    /** Changes the catalogue. @return why it cannot be done, in whole sentences; empty when it is. */
    using Change = std::function<QString(Catalogue &)>;
    /** Changes what is known of measured discharges, too. */
    using WholeChange = std::function<QString(Catalogue &, Measured &)>;

    /**
     * @param care of the same folder, which outlives the logbook; without one it is only looked at.
     * @param questions show how far a change is, and outlive the logbook.
     */
    OpenLogbook(const StorageFolder &folder, SaveCare *care, Questions &questions);
    ~OpenLogbook() override;

    /** What the file holds now, read once for each version of it; null when a full or failing disk does not
     * let it be read. */
    std::shared_ptr<const Catalogue> catalogue();
    /** Whether catalogue() has read it already. */
    bool isRead() const { return m_catalogue != nullptr; }

    /** Whether it can be changed now: not while a flight is being entered, nor while the file is in trouble.
     */
    bool mayChange() const { return m_mayChange; }

    /**
     * Changes the catalogue, the file and the window in one step that can be undone.
     *
     * @param name what is done, as a menu shows it.
     * @return why it was not done, in whole sentences; empty when it was. All is then as it was before.
     */
    QString change(const QString &name, const Change &change);
    QString changeWhole(const QString &name, const WholeChange &change);

    /** What restore() came to. */
    struct Restored
    {
        QString problem;      ///< why it was not done, in whole sentences; all is then as it was before
        bool isThere = false; ///< there was nothing to do
    };
    /** Puts a copy in the place of the logbook, which is copied before; one step that can be undone. */
    Restored restore(const Backups::Held &copy);

    /** What radio logs tell of the discharges; their measured ones are marked in the catalogue. */
    const Measured &measured() const { return m_stored.measured; }
    /** Why that is not known, in whole sentences; empty when it is. */
    const QString &measuredProblem() const { return m_stored.problem; }

    bool canUndo() const { return m_mayChange && m_history.canUndo(); }
    bool canRedo() const { return m_mayChange && m_history.canRedo(); }
    QString undoName() const { return m_history.undoName(); }
    QString redoName() const { return m_history.redoName(); }
    /** @return why it was not done, in whole sentences; empty when it was. */
    QString undo();
    QString redo();

    /** The discharge page was opened or left. */
    void setCapturing(bool capturing);

Q_SIGNALS:
    /** The file holds another version: what catalogue() gives has changed. */
    void changed();
    /** Another program has changed what stands beside the logbook; says so in whole sentences. */
    void measuredByOthers(const QString &text);
    /** What can be changed, undone and done again has changed. */
    void possibilitiesChanged();

private:
    void beginHistory();
    bool hasBegun() const;
    QString obstacle();
    void versionWritten(const QByteArray &document);
    void versionOfOthers(const QByteArray &document);
    bool isFileStillThis() const;
    QString prepareRestoring(const Backups::Held &copy, Progress &progress, QByteArray *beside);
    QString move(bool (UndoHistory::*isPossible)() const, QByteArray (UndoHistory::*document)() const,
                 QByteArray (UndoHistory::*beside)() const, void (UndoHistory::*moved)());
    QString put(const QByteArray &document, const QByteArray &beside, Progress &progress);
    QString putBeside(const QByteArray &beside);
    void readMeasured();
    void takeMeasuredOfOthers();
    QString onlyBeside(const QByteArray &beside);
    QString measuredNotWritten(const QString &problem) const;
    void expectFollowing();
    void forgetFollowing();
    void followOthers(const Catalogue &present);
    void forgetStep();
    void updatePossibilities();
    void announce();

    const StorageFolder m_folder;
    SaveCare *m_care;
    Questions &m_questions;
    UndoHistory m_history;
    FileWatch m_measuredWatch;
    MeasuredStore::Stored m_stored;
    QByteArray m_followedDocument; ///< that the measured values fit to, where that is an earlier one
    std::shared_ptr<const Catalogue> m_followed;  ///< the same as values; null where it was not read
    std::shared_ptr<const Catalogue> m_catalogue; ///< null when the file has another version since
    std::shared_ptr<const Catalogue> m_meant;     ///< in the version that is being written, where it is known
    QString m_stepName;                           ///< of the version that is being written
    void (UndoHistory::*m_move)() = nullptr;      ///< that the version that is being written is known by
    bool m_capturing = false;
    bool m_mayChange;
};

} // namespace Host
