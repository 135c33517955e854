// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** Identifiers of the window's pages; they are not the indices in the page stack. */
namespace Page {
enum Id : int {
    Overview = 0,
    Menu = 1,
    Mode = 2,
    Chart = 3,
    EditData = 4,
    AddBattery = 5,
    AddModel = 6,
    AddLocation = 7,
    DeleteBattery = 8,
    DeleteModel = 9,
    DeleteLocation = 10,
    LogBook = 11,
    Discharge = 12,
    ModifyBattery = 13,
    ModifyModel = 14
};

/**
 * Whether the menu button opens the menu from this page; from every other page, and from a number that is no
 * page, it goes straight to the overview.
 */
bool opensMenu(int page);
} // namespace Page
