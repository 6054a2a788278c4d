#include "reference/pixels/lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "reference/pixels/pixel_range.h"

namespace zerimo::reference {

namespace {

/// The places across a line's long side, step by step along it: exact, and the half counts as the next pixel.
class Steps {
 public:
  Steps(int longSide, int shortSide, int start)
      : length(longSide), rise(std::abs(shortSide)), direction(shortSide < 0 ? -1 : 1) {
    const std::int64_t travelled = 2 * static_cast<std::int64_t>(start) * rise + length;
    offset = static_cast<int>(travelled / (2 * static_cast<std::int64_t>(length)));
    remainder = travelled % (2 * static_cast<std::int64_t>(length));
  }

  int Offset() const { return direction * offset; }

  /// One step along the long side; returns whether the place across has changed.
  bool Advance() {
    remainder += 2 * static_cast<std::int64_t>(rise);
    if (remainder < 2 * static_cast<std::int64_t>(length)) return false;
    remainder -= 2 * static_cast<std::int64_t>(length);
    ++offset;
    return true;
  }

 private:
  int length;
  int rise;
  int direction;
  int offset;
  std::int64_t remainder;
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

/// A stretch of a row, in fractions of pixels; empty if it ends before it begins.
struct Stretch {
  double From = HUGE_VAL;
  double To = -HUGE_VAL;

  void Unite(double from, double to) {
    From = std::min(From, from);
    To = std::max(To, to);
  }
  void Intersect(double a, double b) {
    From = std::max(From, std::min(a, b));
    To = std::min(To, std::max(a, b));
  }
};

/// All points that are no farther than half the width from a line.
class Capsule {
 public:
  Capsule(const WholeLine& line, int width)
      : radius(width / 2.0),
        shift(width % 2 == 0 ? 0.5 : 0),
        aX(line.X1 - shift),
        aY(line.Y1 - shift),
        bX(line.X2 - shift),
        bY(line.Y2 - shift),
        dX(bX - aX),
        dY(bY - aY) {
    const double square = dX * dX + dY * dY;
    if (dY != 0) {
      sideSlope = dX / dY;
      sideReach = radius * std::sqrt(square) / std::abs(dY);
    }
    if (dX != 0) {
      endSlope = -dY / dX;
      endReach = square / dX;
    }
  }

  double Top() const { return std::min(aY, bY) - radius; }
  double Bottom() const { return std::max(aY, bY) + radius; }

  Stretch AtRow(double y) const {
    Stretch stretch;
    AddEnd(stretch, aX, y - aY);
    AddEnd(stretch, bX, y - bY);
    AddBody(stretch, y - aY);
    return stretch;
  }

 private:
  void AddEnd(Stretch& stretch, double centre, double distance) const {
    const double square = (radius - distance) * (radius + distance);
    if (square < 0) return;
    const double half = std::sqrt(square);
    stretch.Unite(centre - half, centre + half);
  }

  /// The rectangle between the round ends; a level one adds nothing to them.
  void AddBody(Stretch& stretch, double y) const {
    if (dY == 0) return;
    const double middle = aX + y * sideSlope;
    Stretch body{middle - sideReach, middle + sideReach};
    if (dX != 0) {
      const double end = aX + y * endSlope;
      body.Intersect(end, end + endReach);
    } else if (y * dY < 0 || std::abs(y) > std::abs(dY)) {
      return;
    }
    if (body.From <= body.To) stretch.Unite(body.From, body.To);
  }

  double radius;
  double shift;
  double aX;
  double aY;
  double bX;
  double bY;
  double dX;
  double dY;
  /// How far the long sides move sideways per row, and their distance from the middle in a row.
  double sideSlope = 0;
  double sideReach = 0;
  /// The same for the two ends.
  double endSlope = 0;
  double endReach = 0;
};

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

void PaintWideLine(SpanPainter& painter, const WholeLine& line, int width) {
  const bool backward = std::pair(line.Y1, line.X1) > std::pair(line.Y2, line.X2);
  const Capsule capsule(backward ? WholeLine{line.X2, line.Y2, line.X1, line.Y1} : line, width);
  const int top = Clamped(std::ceil(capsule.Top()), 0, painter.Rows());
  const int bottom = Clamped(std::floor(capsule.Bottom()), -1, painter.Rows() - 1);
  for (int row = top; row <= bottom; ++row) {
    const Stretch stretch = capsule.AtRow(row);
    painter.PaintSpan(row, Clamped(std::ceil(stretch.From), 0, painter.Columns()),
                      Clamped(std::floor(stretch.To), -1, painter.Columns() - 1));
  }
}

}  // namespace zerimo::reference
