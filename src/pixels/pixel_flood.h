#pragma once

#include "pixels/pixel_buffer.h"

namespace zerimo {

/// Recolours the pixels that have a point's colour and are connected to it through their four neighbours. The point
/// must be in the upper `rows` rows; nothing below them counts. Returns the rectangle around what has changed.
PixelRect FloodPixels(PixelBuffer& pixels, int column, int row, Pixel fill, int rows);

}  // namespace zerimo
