#pragma once

#include <QImage>
#include <QRect>

namespace zerimo::reference {

/// Recolours the pixels that have a point's colour and are connected to it through their four neighbours. The point
/// must be in the upper `rows` rows; nothing below them counts. Returns the rectangle around what has changed.
QRect FloodPixels(QImage& image, QPoint at, QRgb fill, int rows);

}  // namespace zerimo::reference
