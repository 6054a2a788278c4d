#pragma once

#include "graphics/canvas.h"
#include "pixels/rgb.h"

namespace zerimo {

/// A raster operation together with the pen's colour. Whatever the operation, a pixel becomes (pixel and Keep) xor
/// Toggle, and stays opaque.
struct RasterOperation {
  Pixel Keep;
  Pixel Toggle;

  Pixel Apply(Pixel pixel) const noexcept { return (pixel & Keep) ^ Toggle; }
  /// Whether the former pixels make no difference: every pixel becomes Toggle.
  bool IsPlain() const noexcept { return Keep == 0; }
};

RasterOperation MakeRasterOperation(DrawingMode drawMode, Colour pen);

}  // namespace zerimo
