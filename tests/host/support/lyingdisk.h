// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <set>
#include <vector>

/** A disk that lies or fails under the process; the functions below stand before those of the system.
 * Included by one source file of a test. */
namespace LyingDisk {

inline std::atomic<bool> corrupts = false; ///< what is written to files loses a bit
inline std::atomic<int> syncError = 0;     ///< what waiting for the disk fails with
inline std::mutex mutex;
inline std::set<ino_t> synced; ///< files that somebody waited for

inline ino_t fileOf(const char *path)
{
    struct stat status = {};
    stat(path, &status);
    return status.st_ino;
}

inline bool wasSynced(const char *path)
{
    const std::lock_guard lock(mutex);
    return synced.count(fileOf(path)) > 0;
}

inline bool isFile(int fd)
{
    struct stat status = {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace LyingDisk

extern "C" ssize_t write(int fd, const void *data, size_t size)
{
    using Write = ssize_t (*)(int, const void *, size_t);
    static const auto original = reinterpret_cast<Write>(dlsym(RTLD_NEXT, "write"));
    if (!LyingDisk::corrupts || size == 0 || !LyingDisk::isFile(fd))
        return original(fd, data, size);
    const char *bytes = static_cast<const char *>(data);
    std::vector<char> changed(bytes, bytes + size);
    changed[size / 2] = static_cast<char>(changed[size / 2] ^ 1);
    return original(fd, changed.data(), size);
}

extern "C" int fsync(int fd)
{
    using Sync = int (*)(int);
    static const auto original = reinterpret_cast<Sync>(dlsym(RTLD_NEXT, "fsync"));
    struct stat status = {};
    if (fstat(fd, &status) == 0) {
        const std::lock_guard lock(LyingDisk::mutex);
        LyingDisk::synced.insert(status.st_ino);
    }
    if (LyingDisk::syncError != 0) {
        errno = LyingDisk::syncError;
        return -1;
    }
    return original(fd);
}
