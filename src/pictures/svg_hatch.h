#pragma once

#include <QLineF>
#include <QRectF>
#include <vector>

namespace zerimo {

/// The lines of a hatch (fill styles 2 to 7) inside a rectangle or the ellipse in it, as far as they are on the canvas.
/// They run through the middles of the pixels that the hatch paints.
std::vector<QLineF> HatchLines(int fillStyle, const QRectF& bounds, bool isEllipse, QSizeF canvas);

}  // namespace zerimo
