// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host {

class StorageFolder;

/**
 * Absolute path of the program's folder for what lives only as long as the program: in the user's run-time
 * folder, else among the user's caches. Never in a folder that users share: there anybody could take the
 * names first. Nothing is made.
 */
QString runtimeFolder();

/** The one path of the file that the folder's data file stands for, whether it exists yet or not: two folders
 * whose data file is one have the same. */
QString canonicalDataFile(const StorageFolder &folder);

/** A name for this data file in runtimeFolder(), the same for each path that leads to it. */
QString runtimeName(const StorageFolder &folder);

/** Makes the folder with its parents. @return the reason why it cannot be made, empty when it is there. */
QString makeFolder(const QString &path);

/** Makes runtimeFolder(), for this user alone. @return as above. */
QString makeRuntimeFolder();

} // namespace Host
