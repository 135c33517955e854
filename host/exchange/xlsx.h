// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/cataloguejson.h"
#include "host/exchange/tables.h"

#include <QString>

/** The workbook of spreadsheets, a sheet for each table. */
namespace Host::Xlsx {

/** Whether this build has the format: it takes a library that may be missing. */
bool isAvailable();

/** The longest text that a cell takes, in units of UTF-16. */
inline constexpr qsizetype LongestText = 32'767;

struct Written
{
    QString problem;        ///< why there is no workbook, a clause; empty when there is one
    qsizetype cutTexts = 0; ///< how many were longer than a cell takes
    bool isStopped = false; ///< as @p proceed said
};

/** Writes all tables of @p catalogue, which is a part of @p whole. The memory that it takes does not depend
 * on their length; much of the work is done in temporary files. A sink that refuses has its own reasons,
 * which are no problem of the workbook's. */
Written write(const Catalogue &catalogue, const Catalogue &whole, const ByteSink &sink,
              const Proceed &proceed = {});

} // namespace Host::Xlsx
