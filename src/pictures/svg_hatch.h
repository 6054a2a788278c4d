#pragma once

#include <QLineF>
#include <QRectF>
#include <vector>

#include "graphics/canvas.h"

namespace zerimo {

/// The lines of a hatch (any pattern but the solid and the transparent one) inside a rectangle or the ellipse in it, as
/// far as they are on the canvas. They run through the middles of the pixels that the hatch paints.
std::vector<QLineF> HatchLines(FillPattern pattern, const QRectF& bounds, bool isEllipse, QSizeF canvas);

}  // namespace zerimo
