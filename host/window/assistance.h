// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

/**
 * Lets who has neither mouse nor keyboard use every combo box and radio button, and hear what a box is for.
 * Qt tells assistive technology the value of a box as its name and gives its list no name at all; a choice in
 * that list changes nothing, and a radio button that is toggled was not clicked, which is what windows wait
 * for.
 *
 * They are prepared when they are first asked about, so it costs nothing where nobody does.
 */
void installAssistance();

} // namespace Host
