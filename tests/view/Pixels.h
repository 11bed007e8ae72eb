#pragma once

#include <QColor>
#include <QImage>

#include <cstdlib>

/* How many pixels of a picture are about of a colour. */
inline int count(const QImage& image, const QColor& color)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            pixels += std::abs(pixel.red() - color.red()) < 40 && std::abs(pixel.green() - color.green()) < 40 &&
                      std::abs(pixel.blue() - color.blue()) < 40;
        }
    }
    return pixels;
}
