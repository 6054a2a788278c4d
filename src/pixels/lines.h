#pragma once

#include <optional>

#include "graphics/canvas.h"
#include "pixels/span_painter.h"

namespace zerimo {

/// The ends of a line in whole pixels.
struct WholeLine {
  int X1;
  int Y1;
  int X2;
  int Y2;
};

/// The greatest distance of a clipped line's ends from the origin. Lines within it are not changed.
inline constexpr int ClipReach = 1 << 24;

/// The widest stroke that makes a difference.
inline constexpr int WidestStroke = 1 << 22;

/// Cuts off what is beyond the reach before the ends become whole numbers. Nothing is left of a line that comes nowhere
/// near a canvas.
std::optional<WholeLine> ClipLine(PixelPoint from, PixelPoint to);

/// A line one pixel wide, both ends included. It has the same pixels in either direction, so that a pen going back over
/// its path erases all of it.
void PaintThinLine(SpanPainter& painter, const WholeLine& line);

}  // namespace zerimo
