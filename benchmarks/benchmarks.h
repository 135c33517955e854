// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class Report;

/** What is measured; each function adds its rows and curves to the report. */
namespace Benchmarks {

/** How thoroughly. */
class Plan
{
public:
    bool quick = false;

    /** Numbers of entries in the catalogues. */
    QList<int> sizes() const;
    /** How often a piece of work on this many entries is run. */
    int rounds(int entries) const;
    /** How often something is repeated that must not let the heap grow. */
    int repetitions() const;
};

/** The loaders and the save against bare passes over the same bytes. */
void storage(Report &report, const Plan &plan);
/** Cards, the window itself, reloads, the model switch, the log book. */
void window(Report &report, const Plan &plan);
/** Drawing charts, and keeping them. */
void charts(Report &report, const Plan &plan);
/** Bytes for each record, and growth over many reloads, switches and charts. */
void memory(Report &report, const Plan &plan);
/** A program with the window against one with an empty main window, from start to first painted frame. */
void startup(Report &report, const Plan &plan);
/** What the program's care for the file costs the window's thread, against the window's own save and reload.
 */
void care(Report &report, const Plan &plan);
/** Opening, sorting and filtering the table of all flights, against the window's own reload. */
void flights(Report &report, const Plan &plan);
/** Figures and plots of a large logbook, against the window's own reload. */
void figures(Report &report, const Plan &plan);
/** CSV, JSON and workbooks against the least that writes the same; built where libxlsxwriter is. */
void exports(Report &report, const Plan &plan);
/** Reading the logs of a radio, against reading their lines. */
void radioLogs(Report &report, const Plan &plan);

} // namespace Benchmarks
