// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdbool.h>

enum { NoFault = -1 };

/**
 * The path below the watched folder, "." for the folder itself, or null when it is somewhere else.
 *
 * @param buffer of PATH_MAX characters; receives the absolute path that the answer is a part of.
 */
const char *pathBelow(int directory, const char *path, char *buffer);

/**
 * Counts an operation, and dies before it where that is its fate.
 *
 * @return NoFault to carry it out, else what strikes it; errno is set where it is to fail.
 */
int judge(const char *operation, const char *flags, const char *path);
/** For a program that knows what it is about to do: it dies after so many more operations that change what is
 * on the disk. */
void voltbokDieSoon(int operations);
bool failsBy(int verdict);
bool diesInTheMiddleBy(int verdict);
/** Dies, where that is the fate of the operation that was just carried out. */
void diesAfterwardsBy(int verdict);

/** Which descriptors belong to files below the folder. */
void rememberFile(int file, const char *name, bool writing);
void forgetFile(int file);
/** Null for any other file. */
const char *nameOfFile(int file);
bool isWritten(int file);
