#pragma once

#include "reference/pixels/line_clip.h"
#include "reference/pixels/span_painter.h"

namespace zerimo::reference {

/// A line one pixel wide, both ends included. It has the same pixels in either direction, so that a pen going back over
/// its path erases all of it.
void PaintThinLine(SpanPainter& painter, const WholeLine& line);

/// A line with round ends, at least 2 pixels wide. A pixel belongs to it if its centre is no farther from the line than
/// half the width; an even width is half a pixel too far left and up.
void PaintWideLine(SpanPainter& painter, const WholeLine& line, int width);

}  // namespace zerimo::reference
