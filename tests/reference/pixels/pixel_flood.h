#pragma once

#include <QImage>
#include <QRect>

namespace zerimo::reference {

/// Gives the pixels that are connected with a point of the image over the four neighbours, and have its colour, another
/// colour. The point lies in the upper `rows` rows, and nothing below them counts. Returns the rectangle around what
/// has changed.
QRect FloodPixels(QImage& image, QPoint at, QRgb fill, int rows);

}  // namespace zerimo::reference
