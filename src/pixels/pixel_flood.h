#pragma once

#include <QImage>
#include <QRect>

namespace zerimo {

/// Gives the pixels that are connected with a point of the image over the four neighbours, and have its colour, another
/// colour. Returns the rectangle around what has changed.
QRect FloodPixels(QImage& image, QPoint at, QRgb fill);

}  // namespace zerimo
