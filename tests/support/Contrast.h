#pragma once

#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

/// The share of the light that a channel gives off.
inline double linearChannel(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline double luminance(QRgb color)
{
    return 0.2126 * linearChannel(qRed(color)) + 0.7152 * linearChannel(qGreen(color)) +
           0.0722 * linearChannel(qBlue(color));
}

/// From 1 for the same colour to 21 for black and white.
inline double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The colour of most of a picture against the one that differs from it most: its text.
inline double contrastIn(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    double strongest = 1;
    for (auto color = counts.begin(); color != counts.end(); ++color)
        strongest = std::max(strongest, contrast(most.key(), color.key()));
    return strongest;
}
