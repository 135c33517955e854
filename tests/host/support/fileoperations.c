// SPDX-License-Identifier: GPL-3.0-or-later
// The functions of the C library that filefaults.c counts. Each stands before the library's own, which is
// found when it is first called.
#define _GNU_SOURCE
#include "filefaults.h"

#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#define REAL(result, name, ...)                                                                              \
    static result (*real)(__VA_ARGS__);                                                                      \
    if (!real)                                                                                               \
    real = (result(*)(__VA_ARGS__))dlsym(RTLD_NEXT, #name)

// Carries "call" out, or not, as it is judged.
#define JUDGED(failure, operation, flags, path, call)                                                        \
    const int verdict = judge(operation, flags, path);                                                       \
    if (failsBy(verdict))                                                                                    \
        return failure;                                                                                      \
    const __typeof__(call) done = call;                                                                      \
    diesAfterwardsBy(verdict);                                                                               \
    return done

// Carries "call" out unseen when the path is somewhere else.
#define PATH(directory, path, failure, operation, flags, call)                                               \
    char buffer[PATH_MAX];                                                                                   \
    const char *name = pathBelow(directory, path, buffer);                                                   \
    if (!name)                                                                                               \
        return call;                                                                                         \
    JUDGED(failure, operation, flags, name, call)

// The same for a file that is open.
#define FILE_OF(file, operation, flags, call)                                                                \
    const char *name = nameOfFile(file);                                                                     \
    if (!name)                                                                                               \
        return call;                                                                                         \
    JUDGED(-1, operation, flags, name, call)

static int openAny(int directory, const char *path, int flags, mode_t mode)
{
    REAL(int, openat64, int, const char *, int, ...);
    char buffer[PATH_MAX];
    const char *name = pathBelow(directory, path, buffer);
    if (!name)
        return real(directory, path, flags, mode);
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool makes = unnamed || ((flags & O_CREAT) && access(buffer, F_OK) != 0);
    const int verdict = judge("open", makes ? "scp" : (flags & O_TRUNC) ? "cp" : "p", name);
    if (failsBy(verdict))
        return -1;
    const int file = real(directory, path, flags, mode);
    diesAfterwardsBy(verdict);
    if (unnamed || !(flags & O_DIRECTORY))
        rememberFile(file, name, (flags & O_ACCMODE) != O_RDONLY);
    return file;
}

// Only who makes a file tells its mode.
#define OPEN(directory, path, flags)                                                                         \
    mode_t mode = 0;                                                                                         \
    if ((flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE) {                                             \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        mode = va_arg(arguments, mode_t);                                                                    \
        va_end(arguments);                                                                                   \
    }                                                                                                        \
    return openAny(directory, path, flags, mode)

int open(const char *path, int flags, ...)
{
    OPEN(AT_FDCWD, path, flags);
}

int open64(const char *path, int flags, ...)
{
    OPEN(AT_FDCWD, path, flags);
}

int openat(int directory, const char *path, int flags, ...)
{
    OPEN(directory, path, flags);
}

int openat64(int directory, const char *path, int flags, ...)
{
    OPEN(directory, path, flags);
}

// What the fortified headers make of an open without a mode.
int __open_2(const char *path, int flags)
{
    return openAny(AT_FDCWD, path, flags, 0);
}

int __open64_2(const char *path, int flags)
{
    return openAny(AT_FDCWD, path, flags, 0);
}

int __openat_2(int directory, const char *path, int flags)
{
    return openAny(directory, path, flags, 0);
}

int __openat64_2(int directory, const char *path, int flags)
{
    return openAny(directory, path, flags, 0);
}

int creat(const char *path, mode_t mode)
{
    return openAny(AT_FDCWD, path, O_CREAT | O_WRONLY | O_TRUNC, mode);
}

int creat64(const char *path, mode_t mode)
{
    return openAny(AT_FDCWD, path, O_CREAT | O_WRONLY | O_TRUNC, mode);
}

DIR *opendir(const char *path)
{
    REAL(DIR *, opendir, const char *);
    PATH(AT_FDCWD, path, NULL, "opendir", "p", real(path));
}

ssize_t read(int file, void *bytes, size_t size)
{
    REAL(ssize_t, read, int, void *, size_t);
    FILE_OF(file, "read", "", real(file, bytes, size));
}

ssize_t __read_chk(int file, void *bytes, size_t size, size_t room)
{
    REAL(ssize_t, __read_chk, int, void *, size_t, size_t);
    FILE_OF(file, "read", "", real(file, bytes, size, room));
}

ssize_t write(int file, const void *bytes, size_t size)
{
    REAL(ssize_t, write, int, const void *, size_t);
    const char *name = nameOfFile(file);
    if (!name)
        return real(file, bytes, size);
    const int verdict = judge("write", "scw", name);
    if (failsBy(verdict))
        return -1;
    const ssize_t done = real(file, bytes, diesInTheMiddleBy(verdict) ? size / 2 : size);
    diesAfterwardsBy(verdict);
    return done;
}

ssize_t pwrite(int file, const void *bytes, size_t size, off_t offset)
{
    REAL(ssize_t, pwrite, int, const void *, size_t, off_t);
    FILE_OF(file, "pwrite", "scw", real(file, bytes, size, offset));
}

ssize_t pwrite64(int file, const void *bytes, size_t size, off64_t offset)
{
    REAL(ssize_t, pwrite64, int, const void *, size_t, off64_t);
    FILE_OF(file, "pwrite", "scw", real(file, bytes, size, offset));
}

ssize_t writev(int file, const struct iovec *parts, int count)
{
    REAL(ssize_t, writev, int, const struct iovec *, int);
    FILE_OF(file, "writev", "scw", real(file, parts, count));
}

int fsync(int file)
{
    REAL(int, fsync, int);
    FILE_OF(file, "fsync", "s", real(file));
}

int fdatasync(int file)
{
    REAL(int, fdatasync, int);
    FILE_OF(file, "fdatasync", "s", real(file));
}

int ftruncate(int file, off_t size)
{
    REAL(int, ftruncate, int, off_t);
    FILE_OF(file, "ftruncate", "c", real(file, size));
}

int ftruncate64(int file, off64_t size)
{
    REAL(int, ftruncate64, int, off64_t);
    FILE_OF(file, "ftruncate", "c", real(file, size));
}

int fchmod(int file, mode_t mode)
{
    REAL(int, fchmod, int, mode_t);
    FILE_OF(file, "fchmod", "c", real(file, mode));
}

int close(int file)
{
    REAL(int, close, int);
    const char *name = nameOfFile(file);
    const int verdict = name && isWritten(file) ? judge("close", "s", name) : NoFault;
    forgetFile(file); // one that could not be closed in order is closed nevertheless
    const int reason = errno;
    const int done = real(file);
    diesAfterwardsBy(verdict);
    if (failsBy(verdict))
        errno = reason;
    return failsBy(verdict) ? -1 : done;
}

int chmod(const char *path, mode_t mode)
{
    REAL(int, chmod, const char *, mode_t);
    PATH(AT_FDCWD, path, -1, "chmod", "cp", real(path, mode));
}

int fchmodat(int directory, const char *path, mode_t mode, int flags)
{
    REAL(int, fchmodat, int, const char *, mode_t, int);
    PATH(directory, path, -1, "chmod", "cp", real(directory, path, mode, flags));
}

int mkdir(const char *path, mode_t mode)
{
    REAL(int, mkdir, const char *, mode_t);
    PATH(AT_FDCWD, path, -1, "mkdir", "scp", real(path, mode));
}

int mkdirat(int directory, const char *path, mode_t mode)
{
    REAL(int, mkdirat, int, const char *, mode_t);
    PATH(directory, path, -1, "mkdir", "scp", real(directory, path, mode));
}

int unlink(const char *path)
{
    REAL(int, unlink, const char *);
    PATH(AT_FDCWD, path, -1, "unlink", "cp", real(path));
}

int unlinkat(int directory, const char *path, int flags)
{
    REAL(int, unlinkat, int, const char *, int);
    PATH(directory, path, -1, "unlink", "cp", real(directory, path, flags));
}

int rename(const char *from, const char *to)
{
    REAL(int, rename, const char *, const char *);
    PATH(AT_FDCWD, to, -1, "rename", "cp", real(from, to));
}

int renameat(int fromDirectory, const char *from, int toDirectory, const char *to)
{
    REAL(int, renameat, int, const char *, int, const char *);
    PATH(toDirectory, to, -1, "rename", "cp", real(fromDirectory, from, toDirectory, to));
}

int renameat2(int fromDirectory, const char *from, int toDirectory, const char *to, unsigned int flags)
{
    REAL(int, renameat2, int, const char *, int, const char *, unsigned int);
    PATH(toDirectory, to, -1, "rename", "cp", real(fromDirectory, from, toDirectory, to, flags));
}

int link(const char *from, const char *to)
{
    REAL(int, link, const char *, const char *);
    PATH(AT_FDCWD, to, -1, "link", "scp", real(from, to));
}

int linkat(int fromDirectory, const char *from, int toDirectory, const char *to, int flags)
{
    REAL(int, linkat, int, const char *, int, const char *, int);
    PATH(toDirectory, to, -1, "link", "scp", real(fromDirectory, from, toDirectory, to, flags));
}
