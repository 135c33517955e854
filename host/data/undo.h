// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace Host {

/**
 * The versions of the data file that this session has seen, one behind the other, each a step that can be
 * undone.
 *
 * With each version goes what stood in the file beside it; a step that changes that, too, keeps it whole.
 *
 * Two versions that follow each other differ in one small place: a step keeps what stood there before and
 * after, compressed. When all steps take more than MostBytes, the oldest are forgotten.
 */
class UndoHistory
{
public:
    static constexpr qsizetype MostBytes = qsizetype(64) * 1024 * 1024;

    /** Forgets every step: a history begins with this version, and these bytes beside it. */
    void restart(const QByteArray &document, const QByteArray &beside = {});
    /**
     * A new version was written; the steps that were undone are forgotten. The version that is there already
     * is no step.
     *
     * @param name what was done, as a menu shows it; without one it is told from the two versions.
     */
    void add(const QByteArray &document, const QString &name = {});

    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }
    /** What would be undone or done again; empty when there is nothing. Reads both versions where no name was
     * given, so ask where somebody looks. */
    QString undoName() const;
    QString redoName() const;
    /** The version before or behind the present one, which must exist. */
    QByteArray before() const;
    QByteArray behind() const;
    /** What stood beside them. */
    QByteArray besideBefore() const;
    QByteArray besideBehind() const;
    /** Other bytes stand beside the present version: the step to it brings them. */
    void setBeside(const QByteArray &beside);
    const QByteArray &beside() const { return m_beside; }
    /** That version has become the present one. */
    void undone();
    void redone();

    const QByteArray &present() const { return m_present; }

private:
    struct Step
    {
        QString name;
        qsizetype offset = 0; ///< where the versions begin to differ
        QByteArray before;    ///< compressed
        QByteArray after;
        bool changesBeside = false;
        QByteArray besideBefore; ///< compressed, both
        QByteArray besideAfter;
        qsizetype size() const
        {
            return before.size() + after.size() + besideBefore.size() + besideAfter.size();
        }
    };

    void forgetTheOldest();

    QByteArray m_present;
    QByteArray m_beside;
    QList<Step> m_steps;
    qsizetype m_done = 0; ///< so many of the steps are not undone
};

} // namespace Host
