// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/measured.h"
#include "host/exchange/radiolog.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace Host {

/** A file of an import. */
struct ImportedLog
{
    QString path;         ///< as it was given
    QString sha256;       ///< of its bytes; empty where they could not be read
    bool isKnown = false; ///< an earlier import took it, under whatever name
    /** SHA-256 of the known log, or of another one of this import, that it begins with: only what is behind
     * that was read. Empty where there is none. */
    QString beginsWith;
    RadioLog log; ///< of a known one what the earlier imports read
};

/** Reads the files of an import. The only part of it that touches files. */
namespace LogReading {

struct Options
{
    /** Asked now and then; false ends it, and what is not read yet is refused. */
    std::function<bool()> goOn;
    /** Columns that the user chose for headers, besides those that he chose earlier. */
    QMap<QString, ColumnMapping> mappings;
};

/**
 * The files that are meant: a folder stands for the .csv files below it, in the order of their names. Those
 * that were found so far where the looking was ended.
 */
QStringList paths(const QStringList &given, const Options &options = {});

/**
 * Reads files in the order in which they are given. Which of two is read whole, where one begins with the
 * other's bytes, does not depend on that order.
 */
QList<ImportedLog> read(const QStringList &paths, const Measured &measured, const Options &options = {});

/** Remembers the columns that the user chose. */
void remember(Measured &measured, const QMap<QString, ColumnMapping> &mappings);

} // namespace LogReading
} // namespace Host
