// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

/** What can be told apart in a picture, as the accessibility guidelines for the web define it. */
namespace Contrast {

constexpr double OfText = 4.5; ///< at least

inline double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

inline double between(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/** The colour that most of a picture has. */
inline QColor background(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? QColor() : QColor(most.key());
}

/** What is clearest against a colour in a picture. */
inline double farthest(const QImage &picture, const QColor &colour)
{
    double clearest = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            clearest = std::max(clearest, between(colour, picture.pixelColor(x, y)));
    }
    return clearest;
}

/** Of the colours in a picture with nothing but a text on its background, the clearest. */
inline double inside(const QImage &picture)
{
    return farthest(picture, background(picture));
}

/** Whether a colour is there, and not only in the blur between two others. */
inline bool has(const QImage &picture, const QColor &colour)
{
    constexpr int Some = 8;
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y).rgb() == colour.rgb() ? 1 : 0;
    }
    return count >= Some;
}

} // namespace Contrast
