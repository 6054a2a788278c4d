#pragma once

#include "pixels/line_clip.h"
#include "pixels/span_painter.h"

namespace zerimo {

/// A line one pixel wide, both ends included. It has the same pixels in either direction, so that a pen going back over
/// its path erases all of it.
void PaintThinLine(SpanPainter& painter, const WholeLine& line);

}  // namespace zerimo
