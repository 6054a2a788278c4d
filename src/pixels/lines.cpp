#include "pixels/lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zerimo {

namespace {

constexpr double Reach = ClipReach;

bool IsWithinReach(PixelPoint point) { return std::abs(point.X) <= Reach && std::abs(point.Y) <= Reach; }

double Size(PixelPoint point) { return std::max(std::abs(point.X), std::abs(point.Y)); }

PixelPoint Swapped(PixelPoint point) noexcept { return {point.Y, point.X}; }

struct Ends {
  PixelPoint From;
  PixelPoint To;
};

/// For a line that is not steep: its ends where it enters and leaves the reach sideways.
std::optional<Ends> CutSideways(Ends line) {
  const double slope = (line.To.Y - line.From.Y) / (line.To.X - line.From.X);
  // Worked out from the nearer end, which is the more exact one.
  const PixelPoint nearer = Size(line.From) <= Size(line.To) ? line.From : line.To;
  const double offset = nearer.Y - slope * nearer.X;
  for (PixelPoint* end : {&line.From, &line.To}) {
    if (std::abs(end->X) <= Reach) continue;
    end->X = std::copysign(Reach, end->X);
    end->Y = offset + slope * end->X;
  }
  if (line.From.X == line.To.X) return std::nullopt;
  return line;
}

/// From beyond this, a slope of at most 1 never leads into the reach.
bool IsOutOfSight(const Ends& line) { return std::abs(line.From.Y) > 4 * Reach || std::abs(line.To.Y) > 4 * Reach; }

std::optional<Ends> Cut(Ends line) {
  const bool steep = std::abs(line.To.Y - line.From.Y) > std::abs(line.To.X - line.From.X);
  if (steep) line = {Swapped(line.From), Swapped(line.To)};
  if (line.From.X == line.To.X) return std::nullopt;
  const std::optional<Ends> cut = CutSideways(line);
  if (!cut || IsOutOfSight(*cut)) return std::nullopt;
  return steep ? Ends{Swapped(cut->From), Swapped(cut->To)} : *cut;
}

/// The quick test comes first: most places are whole already.
int Whole(double place) noexcept {
  const int cut = static_cast<int>(place);
  return cut == place ? cut : static_cast<int>(std::nearbyint(place));
}

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

std::optional<WholeLine> ClipLine(PixelPoint from, PixelPoint to) {
  Ends line{from, to};
  if (!IsWithinReach(from) || !IsWithinReach(to)) {
    const std::optional<Ends> cut = Cut(line);
    if (!cut) return std::nullopt;
    line = *cut;
  }
  return WholeLine{Whole(line.From.X), Whole(line.From.Y), Whole(line.To.X), Whole(line.To.Y)};
}

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
