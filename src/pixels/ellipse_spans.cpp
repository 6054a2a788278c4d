#include "pixels/ellipse_spans.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zerimo {

namespace {

/// Up to here the quick conversion to a whole number works.
constexpr double LargestWhole = 1 << 30;
/// Half-axes beyond this count as this.
constexpr double LargestAxis = 1e100;
/// Up to this width the pen is followed row by row; a wider one is followed in that many steps.
constexpr int ExactPen = 512;

double WholePart(double place) noexcept {
  return place < LargestWhole ? static_cast<double>(static_cast<int>(place)) : std::floor(place);
}

}  // namespace

void EllipseSpans::WorkOut(double wholeA, double wholeB, int outlineWidth, double firstRow, int count) {
  const double a = std::min(wholeA, LargestAxis);
  const double b = std::min(wholeB, LargestAxis);
  const double ratio = (a + 0.5) / (b + 0.5);
  // A pen that is wider than the ellipse leaves no inside.
  const bool hasInside = outlineWidth <= a && outlineWidth <= b;
  const auto rows = static_cast<std::size_t>(count);
  outer_.assign(rows + static_cast<std::size_t>(hasInside ? outlineWidth : 0), -1);
  double row = firstRow;
  for (double& each : outer_) {
    if (row > b) break;
    each = WholePart(ratio * std::sqrt((b + 0.5 - row) * (b + 0.5 + row)));
    ++row;
  }
  inner_.assign(rows, hasInside ? LargestAxis : -1);
  if (!hasInside) return;
  TakePen(outlineWidth);
  for (const PenPixel& pixel : pen_) {
    const double* above = outer_.data() + pixel.Row;
    for (std::size_t n = 0; n < rows; ++n) inner_[n] = std::min(inner_[n], above[n] - pixel.Column);
  }
}

void EllipseSpans::TakePen(int outlineWidth) {
  if (outlineWidth == penWidth_) return;
  const int steps = std::min(outlineWidth, ExactPen);
  const double width = outlineWidth;
  pen_.clear();
  for (int step = 0; step <= steps; ++step) {
    const double angle = std::numbers::pi / 2 * step / steps;
    const int row = steps == outlineWidth ? step : static_cast<int>(std::lround(width * std::sin(angle)));
    pen_.push_back({row, WholePart(std::sqrt((width - row) * (width + row)))});
  }
  penWidth_ = outlineWidth;
}

}  // namespace zerimo
