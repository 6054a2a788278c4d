#pragma once

#include "reference/pixels/line_clip.h"
#include "reference/pixels/span_painter.h"

namespace zerimo::reference {

/// A line one pixel wide, both ends included. It has the same pixels in either direction, so that a pen that goes
/// back over its way erases all of it.
void PaintThinLine(SpanPainter& painter, const WholeLine& line);

/// A line with round ends, from 2 pixels wide. A pixel belongs to it if its centre is not farther from the line than
/// half the width; an even width lies by half a pixel to the left and above.
void PaintWideLine(SpanPainter& painter, const WholeLine& line, int width);

}  // namespace zerimo::reference
