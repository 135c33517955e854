// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded into a program: counts the file operations below one folder, and lets one of them go wrong or be
// the program's last.
//
// VOLTBOK_FAULT_FOLDER   the folder, as a canonical path
// VOLTBOK_FAULT_AT       the number of the operation, from 1; the first one of that number or a higher one
//                        that the fault fits is struck
// VOLTBOK_FAULT_KIND     kill-before, kill-after, kill-middle, ENOSPC, EIO or EACCES
// VOLTBOK_FAULT_FOREVER  set: every later operation that the fault fits fails, too
// VOLTBOK_FAULT_LOG      a file, outside the folder, for one line about each operation:
//                        number, operation, flags, path below the folder, and "struck" where it was
//
// The flags say which faults fit: "s" needs space (ENOSPC), "c" changes what is on the disk (kill-before and
// kill-after: a death between two operations that change nothing is the same as one beside them), "p" takes a
// path (EACCES). EIO fits all, kill-middle every write.
#define _GNU_SOURCE
#include "filefaults.h"

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <signal.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <unistd.h>

enum { MaximumFiles = 4096 };

static const struct
{
    const char *name;
    int error; // 0: a death
    char fits; // the flag that an operation needs
} kinds[] = {{"kill-before", 0, 'c'}, {"kill-after", 0, 'c'}, {"kill-middle", 0, 'w'},
             {"ENOSPC", ENOSPC, 's'}, {"EIO", EIO, 0},        {"EACCES", EACCES, 'p'}};
enum { KillBefore, KillAfter, KillMiddle };

static pthread_once_t once = PTHREAD_ONCE_INIT;
static pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
static char folder[PATH_MAX];
static int kind = NoFault;
static int at = 0;
static bool forever = false;
static bool struck = false;
static int spared = 0; // operations that fit, and come before the one that is struck
static int count = 0;
static int logFile = -1;
static char *opened[MaximumFiles]; // names of the files below the folder, by descriptor
static bool written[MaximumFiles];

static void readEnvironment(void)
{
    const char *value = getenv("VOLTBOK_FAULT_FOLDER");
    if (!value || strlen(value) >= sizeof folder)
        return;
    const char *name = getenv("VOLTBOK_FAULT_KIND");
    for (size_t i = 0; name && i < sizeof kinds / sizeof *kinds; ++i)
        kind = strcmp(name, kinds[i].name) == 0 ? (int)i : kind;
    const char *number = getenv("VOLTBOK_FAULT_AT");
    at = number ? atoi(number) : 0;
    forever = getenv("VOLTBOK_FAULT_FOREVER") != NULL;
    const char *path = getenv("VOLTBOK_FAULT_LOG");
    if (path) // by its number: this file's own functions must not meet themselves
        logFile = (int)syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    strcpy(folder, value);
}

const char *pathBelow(int directory, const char *path, char *buffer)
{
    pthread_once(&once, readEnvironment);
    if (!*folder || !path)
        return NULL;
    char place[PATH_MAX] = "";
    if (*path != '/' && directory == AT_FDCWD && !getcwd(place, sizeof place))
        return NULL;
    if (*path != '/' && directory != AT_FDCWD) {
        char link[64];
        snprintf(link, sizeof link, "/proc/self/fd/%d", directory);
        if (readlink(link, place, sizeof place - 1) < 0)
            return NULL;
    }
    if (snprintf(buffer, PATH_MAX, "%s%s%s", place, *place ? "/" : "", path) >= PATH_MAX)
        return NULL;
    const size_t length = strlen(folder);
    if (strncmp(buffer, folder, length) != 0 || (buffer[length] != '/' && buffer[length] != '\0'))
        return NULL;
    const char *rest = buffer + length + strspn(buffer + length, "/");
    return *rest ? rest : ".";
}

static void note(int number, const char *operation, const char *flags, const char *path, bool hit)
{
    if (logFile < 0)
        return;
    char line[PATH_MAX + 64];
    const int length = snprintf(line, sizeof line, "%d\t%s\t%s\t%s%s\n", number, operation, flags, path,
                                hit ? "\tstruck" : "");
    syscall(SYS_write, logFile, line, (size_t)length);
}

static void die(void)
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

int judge(const char *operation, const char *flags, const char *path)
{
    pthread_mutex_lock(&mutex);
    const int number = ++count;
    const bool fits = kind != NoFault && (!kinds[kind].fits || strchr(flags, kinds[kind].fits));
    const bool due = fits && at > 0 && number >= at && (!struck || forever);
    const bool hit = due && spared-- <= 0;
    struck = struck || hit;
    note(number, operation, flags, path, hit);
    if (hit && kind == KillBefore)
        die();
    pthread_mutex_unlock(&mutex);
    if (hit && kinds[kind].error)
        errno = kinds[kind].error;
    return hit ? kind : NoFault;
}

void voltbokDieSoon(int operations)
{
    pthread_mutex_lock(&mutex);
    kind = KillAfter;
    at = count + 1;
    spared = operations;
    pthread_mutex_unlock(&mutex);
}

bool failsBy(int verdict)
{
    return verdict != NoFault && kinds[verdict].error != 0;
}

bool diesInTheMiddleBy(int verdict)
{
    return verdict == KillMiddle;
}

void diesAfterwardsBy(int verdict)
{
    if (verdict == KillAfter || verdict == KillMiddle)
        die();
}

void rememberFile(int file, const char *name, bool writing)
{
    if (file < 0 || file >= MaximumFiles)
        return;
    opened[file] = strdup(name);
    written[file] = writing;
}

void forgetFile(int file)
{
    if (!nameOfFile(file))
        return;
    free(opened[file]);
    opened[file] = NULL;
    written[file] = false;
}

const char *nameOfFile(int file)
{
    return file >= 0 && file < MaximumFiles ? opened[file] : NULL;
}

bool isWritten(int file)
{
    return file >= 0 && file < MaximumFiles && written[file];
}
