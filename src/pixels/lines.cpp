#include "pixels/lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "pixels/pixel_rect.h"

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

  int Offset() const { return direction_ * offset_; }

  /// One step along the long side; returns whether the place across has changed.
  bool Advance() {
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

/// Whether a pen as wide as this stays inside the canvas all along the line.
bool IsInside(const WholeLine& line, int width, const SpanPainter& painter) {
  const auto [left, right] = std::minmax(line.X1, line.X2);
  const auto [top, bottom] = std::minmax(line.Y1, line.Y2);
  return left >= width && top >= width && right < painter.Columns() - width && bottom < painter.Rows() - width;
}

/// The two long sides of a line that goes down, and its ends, square to them.
class Flanks {
 public:
  Flanks(const WholeLine& line, int width, const SpanPainter& painter)
      : columns_(painter.Columns()),
        isInside_(IsInside(line, width, painter)),
        aX_(line.X1 - (width % 2 == 0 ? 0.5 : 0)),
        aY_(line.Y1 - (width % 2 == 0 ? 0.5 : 0)),
        dX_(line.X2 - line.X1),
        dY_(line.Y2 - line.Y1) {
    const double square = dX_ * dX_ + dY_ * dY_;
    if (dY_ != 0) {
      sideSlope_ = dX_ / dY_;
      sideReach_ = width / 2.0 * std::sqrt(square) / dY_;
    }
    if (dX_ != 0) {
      endSlope_ = -dY_ / dX_;
      endReach_ = square / dX_;
    }
  }

  /// The columns in a row that neither end touches, cut at the edges of the canvas.
  ColumnSpan BetweenEnds(int row) const {
    const double middle = aX_ + (row - aY_) * sideSlope_;
    return Columns(middle - sideReach_, middle + sideReach_);
  }

  /// The columns in any row between the two ends; the round ends may add to them.
  ColumnSpan AtRow(int row) const {
    if (dY_ == 0) return NoColumns;
    const double y = row - aY_;
    const double middle = aX_ + y * sideSlope_;
    double from = middle - sideReach_;
    double to = middle + sideReach_;
    if (dX_ != 0) {
      const double end = aX_ + y * endSlope_;
      from = std::max(from, std::min(end, end + endReach_));
      to = std::min(to, std::max(end, end + endReach_));
    } else if (y < 0 || y > dY_) {
      return NoColumns;
    }
    return from <= to ? Columns(from, to) : NoColumns;
  }

  static constexpr ColumnSpan NoColumns{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

 private:
  ColumnSpan Columns(double from, double to) const {
    if (isInside_) return {FirstFrom(from), LastTo(to)};
    return {FirstFrom(from, 0, columns_), LastTo(to, -1, columns_ - 1)};
  }

  int columns_;
  /// Most lines are, and then no place need be cut.
  bool isInside_;
  double aX_;
  double aY_;
  double dX_;
  double dY_;
  /// How far the long sides move sideways per row, and their distance from the middle in a row.
  double sideSlope_ = 0;
  double sideReach_ = 0;
  /// The same for the two ends.
  double endSlope_ = 0;
  double endReach_ = 0;
};

void Unite(ColumnSpan& span, const ColumnSpan& other) {
  span = {std::min(span.First, other.First), std::max(span.Last, other.Last)};
}

/// Adds the pen's columns in a row where the pen is put on the point.
void UniteEnd(ColumnSpan& span, const RoundPen& pen, int x, int y, int row) {
  const int penRow = row - y + pen.Above();
  if (static_cast<unsigned>(penRow) >= static_cast<unsigned>(pen.Width())) return;
  const ColumnSpan end = pen.Row(penRow);
  Unite(span, {x + end.First, x + end.Last});
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

void PaintWideLine(SpanPainter& painter, WholeLine line, const RoundPen& pen) {
  const bool backward = std::pair(line.Y1, line.X1) > std::pair(line.Y2, line.X2);
  if (backward) line = {line.X2, line.Y2, line.X1, line.Y1};
  const Flanks flanks(line, pen.Width(), painter);
  const auto paintEnds = [&](int first, int last) {
    painter.PaintRows(first, last, [&](int row) {
      ColumnSpan span = flanks.AtRow(row);
      UniteEnd(span, pen, line.X1, line.Y1, row);
      UniteEnd(span, pen, line.X2, line.Y2, row);
      return span;
    });
  };
  const int top = std::max(line.Y1 - pen.Above(), 0);
  const int bottom = std::min(line.Y2 - pen.Above() + pen.Width(), painter.Rows()) - 1;
  const int afterUpperEnd = std::clamp(line.Y1 - pen.Above() + pen.Width(), top, std::max(top, bottom + 1));
  const int lowerEnd = std::clamp(line.Y2 - pen.Above(), afterUpperEnd, std::max(afterUpperEnd, bottom + 1));
  paintEnds(top, afterUpperEnd - 1);
  painter.PaintRows(afterUpperEnd, lowerEnd - 1, [&](int row) { return flanks.BetweenEnds(row); });
  paintEnds(lowerEnd, bottom);
}

}  // namespace zerimo
