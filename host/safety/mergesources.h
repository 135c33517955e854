// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

/** What a merge needs of the disk. */
namespace Host::MergeSources {

/** How many versions ancestor() reads. */
int versions(const StorageFolder &folder);

/**
 * Looks among the copies of a folder, and the versions that were merged into it, for the common ancestor of
 * two versions of its logbook; @see AncestorSearch.
 *
 * @param step called after each version that was read; false ends it without an ancestor.
 */
std::optional<Catalogue> ancestor(
    const StorageFolder &folder, const Catalogue &ours, const Catalogue &theirs,
    const std::function<bool()> &step = [] { return true; });

/** What the logs of radios tell of another version's discharges: from the file beside it; beside a copy that
 * a synchroniser left in the folder that is the copies that it left of that file, and the file itself, which
 * it may have replaced. */
Measured measuredOf(const StorageFolder &folder, const QString &version);

/** Whether a version with these bytes was merged before. */
bool wasMerged(const StorageFolder &folder, const QByteArray &document);

/**
 * Keeps another version that was merged among the copies: it is the ancestor of what both sides do from here
 * on.
 *
 * @param when the merge began, so that it stands before what came of it.
 * @return why it was not kept, a clause; empty when it was.
 */
QString keepMerged(const StorageFolder &folder, const QByteArray &document, const QDateTime &when);

/** The same with a file, which is moved there, with what lies beside it.
 * @param document that was merged; a file that holds something else since stays where it is. */
QString putAside(const StorageFolder &folder, const QString &path, const QByteArray &document,
                 const QDateTime &when);

} // namespace Host::MergeSources
