// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/plotpictures.h"

#include "host/window/plotview.h"

#include <QBuffer>
#include <QPainter>
#include <QPrinter>
#include <QSvgGenerator>

namespace Host {

QImage PlotPictures::image(PlotView &plot)
{
    constexpr int Scale = 2; // sharp on any screen, and in a document
    QImage image(plot.pictureSize() * Scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    plot.paintOn(painter, QRectF(image.rect()));
    return image;
}

QByteArray PlotPictures::png(PlotView &plot)
{
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    image(plot).save(&buffer, "PNG");
    return buffer.data();
}

QByteArray PlotPictures::svg(PlotView &plot)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(plot.logicalDpiX()); // else its texts would have another size than its marks
    generator.setSize(plot.pictureSize());
    generator.setViewBox(QRect(QPoint(), plot.pictureSize()));
    generator.setTitle(plot.accessibleName());
    generator.setDescription(plot.accessibleDescription());
    QPainter painter(&generator);
    plot.paintOn(painter, QRectF(QPointF(), plot.pictureSize()));
    painter.end();
    return buffer.data();
}

bool PlotPictures::print(PlotView &plot, QPrinter &printer)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    plot.paintOn(painter, QRectF(painter.viewport()));
    return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace Host
