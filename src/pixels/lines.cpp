#include "pixels/lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zerimo {

namespace {

/// The places across a line's long side, step by step along it: exact, and a half counts as the next pixel.
class Steps {
 public:
  Steps(int longSide, int shortSide, int start)
      : length_(longSide), rise_(std::abs(shortSide)), direction_(shortSide < 0 ? -1 : 1), remainder_(longSide) {
    if (start == 0) return;
    const std::int64_t travelled = 2 * static_cast<std::int64_t>(start) * rise_ + length_;
    offset_ = static_cast<int>(travelled / (2 * static_cast<std::int64_t>(length_)));
    remainder_ = travelled % (2 * static_cast<std::int64_t>(length_));
  }

  int Offset() const noexcept { return direction_ * offset_; }

  /// One step along the long side; returns whether the place across has changed.
  bool Advance() noexcept {
    remainder_ += 2 * static_cast<std::int64_t>(rise_);
    if (remainder_ < 2 * static_cast<std::int64_t>(length_)) return false;
    remainder_ -= 2 * static_cast<std::int64_t>(length_);
    ++offset_;
    return true;
  }

 private:
  int length_;
  int rise_;
  int direction_;
  int offset_ = 0;
  std::int64_t remainder_;
};

void PaintLyingLine(SpanPainter& painter, WholeLine line) {
  if (line.X1 > line.X2) line = {line.X2, line.Y2, line.X1, line.Y1};
  int runStart = std::max(line.X1, 0);
  const int last = std::min(line.X2, painter.Columns() - 1);
  if (runStart > last) return;
  Steps steps(line.X2 - line.X1, line.Y2 - line.Y1, runStart - line.X1);
  int row = line.Y1 + steps.Offset();
  for (int column = runStart; column < last; ++column) {
    if (!steps.Advance()) continue;
    painter.PaintSpan(row, runStart, column);
    runStart = column + 1;
    row = line.Y1 + steps.Offset();
  }
  painter.PaintSpan(row, runStart, last);
}

void PaintSteepLine(SpanPainter& painter, WholeLine line) {
  if (line.Y1 > line.Y2) line = {line.X2, line.Y2, line.X1, line.Y1};
  const int first = std::max(line.Y1, 0);
  const int last = std::min(line.Y2, painter.Rows() - 1);
  if (first > last) return;
  Steps steps(line.Y2 - line.Y1, line.X2 - line.X1, first - line.Y1);
  for (int row = first; row <= last; ++row) {
    const int column = line.X1 + steps.Offset();
    if (column >= 0 && column < painter.Columns()) painter.PaintPixel(column, row);
    steps.Advance();
  }
}

}  // namespace

void PaintThinLine(SpanPainter& painter, const WholeLine& line) {
  if (line.Y1 == line.Y2) {
    painter.PaintSpan(line.Y1, std::min(line.X1, line.X2), std::max(line.X1, line.X2));
  } else if (std::abs(line.X2 - line.X1) >= std::abs(line.Y2 - line.Y1)) {
    PaintLyingLine(painter, line);
  } else {
    PaintSteepLine(painter, line);
  }
}

}  // namespace zerimo
