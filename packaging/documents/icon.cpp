// SPDX-License-Identifier: GPL-3.0-or-later
#include "packaging/documents/documents.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

QByteArray Documents::icon(int size)
{
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(u":/icons/voltbok.svg"_s).render(&painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}
