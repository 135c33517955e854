// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QDateTimeEdit;
class QKeyEvent;

/**
 * Lets a date or a time be typed as it is written. The edit steps to the next section by itself once a
 * section is full: a separator that is typed there is the one just passed, not a second step. A digit typed
 * over the whole text begins at the first section.
 *
 * One object serves all edits; it is to be installed on the edits themselves.
 */
class SectionTyping : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SectionTyping)

public:
    explicit SectionTyping(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isPassed(const QDateTimeEdit *edit, const QString &typed) const;

    const QObject *m_typedInto = nullptr; // the edit whose last key was a digit
};
