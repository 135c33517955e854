// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/**
 * Selects what typing is to replace in an input: the text of a field, the number of a spin box, the current
 * section of a date or a time. Other widgets are left alone.
 */
void selectContent(QWidget *input);
