// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

class QPrinter;

namespace Host {

class PlotView;

/** Plots outside of the window. They are painted as on paper. */
namespace PlotPictures {

QImage image(PlotView &plot);
QByteArray png(PlotView &plot);
QByteArray svg(PlotView &plot);

/** Prints on one page. @return whether the printer took it. */
bool print(PlotView &plot, QPrinter &printer);

} // namespace PlotPictures
} // namespace Host
