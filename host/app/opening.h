// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/folderlock.h"
#include "host/safety/recovery.h"
#include "host/safety/storagefolder.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace Host {

class Questions;

/** What is done about the sample logbook before a folder is opened. */
enum class Demo { None, Make, Reset };

/** A folder whose logbook can be shown. */
struct Opened
{
    StorageFolder folder;
    std::shared_ptr<FolderLock> lock;
    QString lossesMessage; ///< what the next save will drop, in whole sentences; empty when that is nothing
    bool isNew = false;    ///< there was no logbook
};

/** The way into a folder: its lock, the sample, and a file that can be opened. A step that ends it gives the
 * program's exit status. */
class Opening final
{
public:
    /** @param questions outlives this. */
    Opening(const StorageFolder &folder, Questions &questions);

    using Status = std::optional<int>;

    /** Makes the folder ours, and ready to be looked into. @param raises the window that has it already. */
    Status takeFolder(Demo demo, bool raises = true);
    /** Sees that its file can be opened, and keeps what would be lost by that.
     * @param goOn asked CheckSteps times, after steps that take long; false ends it. */
    Status prepareFile(const std::function<bool()> &goOn = [] { return true; });
    static constexpr int CheckSteps = 2;
    /** What came of it, when both have not ended it. */
    Opened opened();

    /** Tells why the logbook is not opened. @return the exit status for that. */
    int refuse(const QString &problem);
    /** What is wrong with the file, in whole sentences with advice. */
    QString describe(const FileState &state) const;

private:
    Status takeOver(const FolderLock::Refusal &refusal, bool raises);
    Status recover(const FileState &state);
    QString keepWhatWouldBeLost(const FileState &state);

    const StorageFolder m_folder;
    Questions &m_questions;
    std::shared_ptr<FolderLock> m_lock = std::make_shared<FolderLock>();
    QString m_lossesMessage;
    bool m_isNew = false;
};

} // namespace Host
