#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "pixels/lines.h"
#include "pixels/round_pen.h"
#include "pixels/span_painter.h"

namespace zerimo {

/// Lines with round ends, at least 2 pixels wide. A pixel belongs to one if its centre is no farther from the line than
/// half the width; an even width is half a pixel too far left and up.
class WideLines {
 public:
  void Paint(SpanPainter& painter, WholeLine line, const RoundPen& pen);

 private:
  /// The columns of each row that a short line touches, from the top, relative to its upper end; none if the rounding
  /// of its edges depends on where the line is.
  using Mask = std::vector<ColumnSpan>;

  static constexpr int LongestMask = 16;
  static constexpr std::size_t MasksAcross = 2 * LongestMask + 1;
  static constexpr std::size_t MasksDown = LongestMask + 1;
  static constexpr int WidestMask = 32;
  static inline const Mask NoMask;

  static void PaintMask(SpanPainter& painter, int left, int top, const Mask& mask);
  static Mask MakeMask(int right, int down, const RoundPen& pen);
  const Mask& MaskOf(int right, int down, const RoundPen& pen);

  /// For pens of this width: by the columns and rows from the upper end to the lower one.
  int width_ = 0;
  std::vector<std::unique_ptr<Mask>> masks_;
};

}  // namespace zerimo
