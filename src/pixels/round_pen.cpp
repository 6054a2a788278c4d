#include "pixels/round_pen.h"

#include <cmath>

namespace zerimo {

RoundPen::RoundPen(int width) : width_(width), kept_{} {
  if (width > WidestKept) return;
  for (int row = 0; row < width; ++row) kept_[static_cast<std::size_t>(row)] = WorkOut(row);
}

ColumnSpan RoundPen::WorkOut(int row) const noexcept {
  const double radius = width_ / 2.0;
  const double shift = width_ % 2 == 0 ? 0.5 : 0;
  const double distance = row - Above() + shift;
  const double half = std::sqrt((radius - distance) * (radius + distance));
  return {static_cast<int>(std::ceil(-shift - half)), static_cast<int>(std::floor(-shift + half))};
}

}  // namespace zerimo
