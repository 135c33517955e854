// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/safety/storagefolder.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace Host {

class MessageBar;
class OpenLogbook;
class Questions;

/**
 * Notices the copies that synchronisers leave in the folder of an open logbook on a conflict, when it is
 * opened and while it is open, and offers to merge them.
 */
class ConflictOffer final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConflictOffer)

public:
    /** Everything given here outlives the offer. @param window over which the dialog is shown. */
    ConflictOffer(const StorageFolder &folder, OpenLogbook &logbook, MessageBar &messages,
                  Questions &questions, QWidget *window);

    /** Looks for such copies now. */
    void look();

private:
    QStringList offered();
    bool isNew(const QString &path);
    void merge(const QString &path);
    bool searchAncestor(const Catalogue &ours, const Catalogue &theirs, std::optional<Catalogue> &ancestor);

    const StorageFolder m_folder;
    OpenLogbook &m_logbook;
    MessageBar &m_messages;
    Questions &m_questions;
    QWidget *m_window;
    QFileSystemWatcher m_watcher;
    QTimer m_soon;
    QHash<QString, QString>
        m_settled; ///< files that need not be read again, as they were when they were read
};

} // namespace Host
