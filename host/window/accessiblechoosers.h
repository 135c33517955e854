// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

/**
 * Lets who has no hands for a mouse or a keyboard choose from every combo box, and hear what it is for. Qt tells
 * assistive technology its value as its name, gives the list no name at all, and lets a choice in the list
 * change nothing. Boxes are prepared when they are first asked about, so it costs nothing else.
 */
void installAccessibleChoosers();

} // namespace Host
