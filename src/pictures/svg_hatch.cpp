#include "pictures/svg_hatch.h"

#include <algorithm>
#include <cmath>

#include "pixels/hatch.h"

namespace zerimo {

namespace {

constexpr double Period = 8;

/// Parallel lines: a point is on one of them if X * Across.X + Y * Across.Y differs from `First` by a multiple of the
/// period.
struct HatchFamily {
  QPointF Across;
  double First;
};

constexpr HatchFamily Horizontal{{0, 1}, HatchRow + 0.5};
constexpr HatchFamily Vertical{{1, 0}, HatchColumn + 0.5};
constexpr HatchFamily Upward{{1, 1}, 0};
constexpr HatchFamily Downward{{1, -1}, 0};

std::vector<HatchFamily> FamiliesOf(FillPattern pattern) {
  switch (pattern) {
    case FillPattern::Solid:
    case FillPattern::Transparent:
      return {};
    case FillPattern::Horizontal:
      return {Horizontal};
    case FillPattern::Vertical:
      return {Vertical};
    case FillPattern::UpwardDiagonal:
      return {Upward};
    case FillPattern::DownwardDiagonal:
      return {Downward};
    case FillPattern::Cross:
      return {Horizontal, Vertical};
    case FillPattern::DiagonalCross:
      return {Upward, Downward};
  }
  return {};
}

/// A part of an endless line, in multiples of its direction.
struct Part {
  double From = -HUGE_VAL;
  double To = HUGE_VAL;
};

void CutAtEdges(Part& part, double start, double direction, double low, double high) {
  if (direction == 0) {
    if (start < low || start > high) part = {0, -1};
    return;
  }
  const auto [enter, leave] = std::minmax({(low - start) / direction, (high - start) / direction});
  part = {std::max(part.From, enter), std::min(part.To, leave)};
}

Part InRectangle(const QRectF& bounds, QPointF start, QPointF direction) {
  Part part;
  CutAtEdges(part, start.x(), direction.x(), bounds.left(), bounds.right());
  CutAtEdges(part, start.y(), direction.y(), bounds.top(), bounds.bottom());
  return part;
}

/// Where the line meets the ellipse, worked out with everything scaled so that the ellipse is a circle of radius 1.
Part InEllipse(const QRectF& bounds, QPointF start, QPointF direction) {
  const double a = bounds.width() / 2;
  const double b = bounds.height() / 2;
  const QPointF offset((start.x() - bounds.center().x()) / a, (start.y() - bounds.center().y()) / b);
  const QPointF step(direction.x() / a, direction.y() / b);
  const double square = QPointF::dotProduct(step, step);
  const double middle = -QPointF::dotProduct(offset, step) / square;
  const double rest = middle * middle - (QPointF::dotProduct(offset, offset) - 1) / square;
  if (rest < 0) return {0, -1};
  return {middle - std::sqrt(rest), middle + std::sqrt(rest)};
}

void AddFamily(std::vector<QLineF>& lines, const HatchFamily& family, const QRectF& bounds, bool isEllipse,
               const QRectF& seen) {
  const QPointF across = family.Across;
  const double length = QPointF::dotProduct(across, across);
  const QPointF direction(-across.y(), across.x());
  const QPointF farthest(across.x(), std::abs(across.y()));
  const double middle = QPointF::dotProduct(seen.center(), across);
  const double reach = (seen.width() * farthest.x() + seen.height() * farthest.y()) / 2;
  const double first = family.First + Period * std::ceil((middle - reach - family.First) / Period);
  const int count = 1 + static_cast<int>(std::floor((middle + reach - first) / Period));
  for (int n = 0; n < count; ++n) {
    const QPointF start = across * ((first + n * Period) / length);
    Part part = InRectangle(seen, start, direction);
    if (isEllipse) {
      const Part inside = InEllipse(bounds, start, direction);
      part = {std::max(part.From, inside.From), std::min(part.To, inside.To)};
    }
    if (part.From < part.To) lines.emplace_back(start + direction * part.From, start + direction * part.To);
  }
}

}  // namespace

std::vector<QLineF> HatchLines(FillPattern pattern, const QRectF& bounds, bool isEllipse, QSizeF canvas) {
  std::vector<QLineF> lines;
  const QRectF seen = bounds & QRectF(QPointF(0, 0), canvas);
  if (seen.isEmpty()) return lines;
  for (const HatchFamily& family : FamiliesOf(pattern)) AddFamily(lines, family, bounds, isEllipse, seen);
  return lines;
}

}  // namespace zerimo
