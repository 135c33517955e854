// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/**
 * Makes a page that comes on show ready for the keyboard: the focus goes to its first field, with the text
 * selected, so that typing replaces it; without a field, to the first control that changes no record. Names
 * that can only be read show their beginning.
 */
void enterPage(QWidget *page);
