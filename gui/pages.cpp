// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/pages.h"

bool Page::opensMenu(int page)
{
    switch (page) {
    case Overview:
    case Mode:
    case Chart:
    case AddBattery:
    case AddModel:
    case DeleteBattery:
    case DeleteModel:
    case LogBook:
    case ModifyBattery:
    case ModifyModel:
        return true;
    // Intentional: the edit page, both location pages and the discharge page skip the menu.
    default:
        return false;
    }
}
