// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/flightbookpages.h"

#include <QFont>

#include <vector>

class QTextDocument;

/** The measures of a page of the flight book, in its units. */
namespace Host::FlightBookLayout {

inline constexpr double PointsPerInch = 72.0;
inline constexpr double Millimetre = FlightBookPages::UnitsPerInch / 25.4;

inline constexpr double Margin = 15 * Millimetre;
inline constexpr double TitleHeight = 14 * Millimetre;
inline constexpr double FooterHeight = 8 * Millimetre;
inline constexpr double SignatureHeight = 24 * Millimetre;
inline constexpr double Padding = 0.8 * Millimetre;
inline constexpr double Line = 0.2 * Millimetre;

inline constexpr int SumCount = 3; // lines below the flights of each page

inline constexpr double TitleSize = 14; // points
inline constexpr double TextSize = 8.5;

/** Whether one reads from right to left, and the first column stands at the right. */
bool isRightToLeft();
/** A font of this size on every device. */
QFont font(double points, QFont::Weight weight = QFont::Normal);
/** Makes an empty document one for a page of this width. */
void prepare(QTextDocument &document, qreal width);
/** Where the rows of a document's table begin, and where the last one ends; empty without a table. */
std::vector<qreal> topsOfRows(const QTextDocument &document);

} // namespace Host::FlightBookLayout
