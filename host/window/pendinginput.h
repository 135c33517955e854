// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QStackedWidget;

namespace Host {

/** Knows whether the logbook's page on show holds what would be lost if it were left. */
class PendingInput final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PendingInput)

public:
    /** @param pages of the logbook; outlive this. */
    explicit PendingInput(QStackedWidget &pages, QObject *parent = nullptr);

    /** A flight is on the discharge page, and not recorded. */
    bool isFlight() const;
    /** A form was filled in, and not sent off. */
    bool isForm() const;
    bool isAny() const { return isFlight() || isForm(); }
    /**
     * Something is being entered, asked or pointed at, here or elsewhere in the program, that a reload of the
     * logbook would spoil.
     */
    bool isInUse() const;

private:
    void pageShown();
    bool isAsking() const;
    QHash<const QWidget *, QString> inputs() const;

    QStackedWidget &m_pages;
    QHash<const QWidget *, QString> m_shown; ///< what the fields held when the page came on show
};

} // namespace Host
