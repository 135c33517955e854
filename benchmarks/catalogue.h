// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** Makes data files of any size with the texts, dates and figures a pilot would have entered. */
class Catalogue
{
public:
    int batteries = 100;
    int models = 20;
    int batteriesOfAModel = 10;
    int history = 0;   ///< discharges of each battery
    int flights = 0;   ///< flights of each model
    bool texts = true; ///< whether flights have a location and notes

    /** 100 batteries and 20 models with this many discharges and flights together, half of each. */
    static Catalogue withEntries(int entries);

    /** Writes the data file in @p folder. */
    void writeTo(const QString &folder) const;
};
