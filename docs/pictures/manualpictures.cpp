// SPDX-License-Identifier: GPL-3.0-or-later
#include "docs/pictures/manualpictures.h"

#include <QCoreApplication>
#include <QHash>
#include <QImageWriter>
#include <QPixmap>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype PaletteSize = 256;
constexpr qsizetype MostColours = 2048; // the background of a chart has more, and would get stripes

/** The colours of a picture, those first that cover the most. */
QList<QRgb> colours(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QList<QRgb> all = counts.keys();
    std::sort(all.begin(), all.end(), [&counts](QRgb a, QRgb b) {
        return std::pair(counts.value(b), b) < std::pair(counts.value(a), a);
    });
    return all;
}

bool areAlike(QRgb a, QRgb b, int difference)
{
    return std::abs(qRed(a) - qRed(b)) <= difference && std::abs(qGreen(a) - qGreen(b)) <= difference &&
           std::abs(qBlue(a) - qBlue(b)) <= difference;
}

/** One of each group of colours between which nobody sees a difference. */
QList<QRgb> unlike(const QList<QRgb> &colours, int difference)
{
    QList<QRgb> chosen;
    for (const QRgb colour : colours) {
        const auto isLikeIt = [=](QRgb other) { return areAlike(colour, other, difference); };
        if (std::none_of(chosen.cbegin(), chosen.cend(), isLikeIt))
            chosen.append(colour);
    }
    return chosen;
}

/** A page has some hundred colours, most of them at the edges of its letters; with a palette it takes a third
 * of the room. */
QImage small(const QImage &image)
{
    QList<QRgb> palette = colours(image);
    if (palette.size() > MostColours)
        return image;
    for (int difference = 1; palette.size() > PaletteSize; ++difference)
        palette = unlike(palette, difference);
    return image.convertToFormat(QImage::Format_Indexed8, palette, Qt::ThresholdDither);
}

} // namespace

ManualPictures::ManualPictures()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: %s SAMPLE DIRECTORY", qPrintable(arguments.value(0)));
    m_sample = arguments.at(1);
    m_folder.setPath(arguments.at(2));
    m_languages.speakChosen();
    if (m_languages.spoken() == "de"_L1)
        m_suffix = u"_de"_s;
}

QString ManualPictures::written(const QString &english, const QString &german) const
{
    return m_suffix.isEmpty() ? english : german;
}

void ManualPictures::save(const QPixmap &picture, const QString &name) const
{
    QImageWriter writer(m_folder.filePath(name + m_suffix + u".png"_s), "png");
    writer.setQuality(0); // the smallest file
    if (!writer.write(small(picture.toImage().convertToFormat(QImage::Format_RGB32))))
        qFatal("Cannot write %s: %s.", qPrintable(writer.fileName()), qPrintable(writer.errorString()));
}
