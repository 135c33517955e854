// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/**
 * What a data file holds, read without the library: one line for each location, battery, discharge, model,
 * assigned battery and flight; first the locations, then the batteries, each with its discharges, then the
 * models.
 *
 * Nothing for a document that is not in the shape the library writes: broken, or with anything that the
 * format does not know. What is to be made of those is not for this reader to say.
 */
std::optional<QStringList> linesOfPlainDocument(const QByteArray &document);

/** How the lines above are put, for those who read a catalogue in another way. */
namespace Line {
QString location(const QString &name);
QString battery(const QString &name);
QString discharge(unsigned int discharged, unsigned int current);
QString model(const QString &name);
QString assigned(const QString &battery);
QString flight(const QString &location, const QString &notes);
} // namespace Line
