#pragma once

#include "pixels/pixel_buffer.h"

namespace zerimo {

/// Gives the pixels that are connected with a point of the buffer over the four neighbours, and have its colour,
/// another colour. The point lies in the upper `rows` rows, and nothing below them counts. Returns the rectangle around
/// what has changed.
PixelRect FloodPixels(PixelBuffer& pixels, int column, int row, Pixel fill, int rows);

}  // namespace zerimo
