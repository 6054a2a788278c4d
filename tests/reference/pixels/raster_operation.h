#pragma once

#include <QRgb>

#include "controls/control_kinds.h"
#include "graphics/canvas.h"

namespace zerimo::reference {

/// A raster operation together with the pen's colour. Whatever the operation, a pixel becomes (pixel and Keep) xor
/// Toggle, and stays opaque.
struct RasterOperation {
  QRgb Keep;
  QRgb Toggle;

  QRgb Apply(QRgb pixel) const { return (pixel & Keep) ^ Toggle; }
  /// Whether the former pixels make no difference: every pixel becomes Toggle.
  bool IsPlain() const { return Keep == 0; }
};

RasterOperation MakeRasterOperation(DrawingMode drawMode, Colour pen);

}  // namespace zerimo::reference
