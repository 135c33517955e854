// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

/**
 * From now on SIGTERM, SIGINT and SIGHUP end the application's event loop, and with it each loop of a dialog
 * inside it, as a user does who quits: exec() returns 0 and everything is put away in order. One that comes
 * before exec() ends it as soon as it runs; further ones change nothing. Windows are not asked: nobody may be
 * there to answer.
 *
 * Called once, when there is an application object. On Windows it does nothing.
 */
void endOnSignals();

} // namespace Host
