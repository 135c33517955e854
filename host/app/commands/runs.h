// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

struct Invocation;

/** What each command does, in a file of its own. Each returns the program's exit status. */
namespace Run {

int list(const Invocation &invocation);
int exportTo(const Invocation &invocation);
int statistics(const Invocation &invocation);
int due(const Invocation &invocation);
int report(const Invocation &invocation);
int import(const Invocation &invocation);
int check(const Invocation &invocation);
int backups(const Invocation &invocation);
int merge(const Invocation &invocation);

} // namespace Run
} // namespace Host
