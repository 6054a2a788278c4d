#include "classroom/drawings/placement.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

#include "classroom/drawings/cover.h"

namespace zerimo::classroom {

namespace {

/// Drawings with more lines are not tried: nobody would see it either.
constexpr std::size_t MostLines = 400;
constexpr std::size_t MostTries = 200;

/// Tolerances: a drawing with a smaller spread has no shape of its own.
constexpr double LeastSpread = 2;

/// Sizes that differ by a smaller fraction count as equal.
constexpr double SameSize = 0.03;

/// The middle of all shapes, and how far they spread from it.
struct Extent {
  Point Middle;
  double Spread = 0;
};

struct Weighted {
  Point Place;
  double Weight;
};

std::vector<Weighted> WeightsOf(const Drawing& drawing) {
  std::vector<Weighted> all;
  for (const Line& line : drawing.Lines) {
    all.push_back({line.From, line.Length()});
    all.push_back({line.To, line.Length()});
    all.push_back({{(line.From.X + line.To.X) / 2, (line.From.Y + line.To.Y) / 2}, 4 * line.Length()});
  }
  for (const Figure& figure : drawing.Figures) all.push_back({figure.Centre, 1 + 40 * (figure.Across + figure.Down)});
  return all;
}

Extent ExtentOf(const Drawing& drawing) {
  Extent extent;
  double weight = 0;
  const std::vector<Weighted> all = WeightsOf(drawing);
  for (const Weighted& each : all) {
    extent.Middle.X += each.Weight * each.Place.X;
    extent.Middle.Y += each.Weight * each.Place.Y;
    weight += each.Weight;
  }
  extent.Middle = {extent.Middle.X / weight, extent.Middle.Y / weight};
  for (const Weighted& each : all) {
    const double distance = std::hypot(each.Place.X - extent.Middle.X, each.Place.Y - extent.Middle.Y);
    extent.Spread += each.Weight * distance * distance;
  }
  extent.Spread = std::sqrt(extent.Spread / weight);
  return extent;
}

/// Moves points from the goal's place to the drawing's.
class Mover {
 public:
  Mover(const Placement& placement, Point from, Point to)
      : placement_(placement),
        from_(from),
        to_(to),
        sine_(placement.Scale * std::sin(placement.Degrees * std::numbers::pi / 180)),
        cosine_(placement.Scale * std::cos(placement.Degrees * std::numbers::pi / 180)) {}

  Point Moved(Point point) const {
    const double x = (placement_.Mirrored ? -1 : 1) * (point.X - from_.X);
    const double y = point.Y - from_.Y;
    return {to_.X + x * cosine_ - y * sine_, to_.Y + x * sine_ + y * cosine_};
  }

  Drawing Moved(const Drawing& drawing) const {
    Drawing moved = drawing;
    const bool isAcross = std::abs(std::abs(placement_.Degrees) - 90) < 1;
    for (Line& line : moved.Lines) line = {Moved(line.From), Moved(line.To), line.Color};
    for (Figure& figure : moved.Figures) {
      figure.Centre = Moved(figure.Centre);
      if (isAcross) std::swap(figure.Across, figure.Down);
      figure.Across *= placement_.Scale;
      figure.Down *= placement_.Scale;
    }
    return moved;
  }

 private:
  Placement placement_;
  Point from_;
  Point to_;
  double sine_;
  double cosine_;
};

bool HasAll(const std::vector<Figure>& figures, const std::vector<Figure>& others, double tolerance) {
  return std::ranges::all_of(figures, [&](const Figure& one) {
    return std::ranges::any_of(others, [&](const Figure& other) {
      return IsNear(one.Centre, other.Centre, tolerance) && std::abs(one.Across - other.Across) <= tolerance &&
             std::abs(one.Down - other.Down) <= tolerance && one.Text == other.Text;
    });
  });
}

bool Fits(const Drawing& moved, const Drawing& drawing, double tolerance) {
  return HasAll(moved.Figures, drawing.Figures, tolerance) && HasAll(drawing.Figures, moved.Figures, tolerance) &&
         Uncovered(moved.Lines, drawing.Lines, tolerance).empty() &&
         Uncovered(drawing.Lines, moved.Lines, tolerance).empty();
}

double DirectionOf(const Line& line) {
  return std::atan2(line.To.Y - line.From.Y, line.To.X - line.From.X) * 180 / std::numbers::pi;
}

double Rounded(double degrees) { return std::remainder(std::round(degrees * 100) / 100, 360); }

/// The turns that bring the goal's longest line onto a line of the drawing, the smallest first, and mirrored ones last.
std::vector<Placement> TriesFor(const Drawing& goal, const Drawing& drawing, double scale) {
  std::vector<Placement> tries = {{0, false, scale, {}}, {0, true, scale, {}}};
  if (!goal.Lines.empty()) {
    const Line& longest = *std::ranges::max_element(goal.Lines, {}, &Line::Length);
    for (const Line& line : drawing.Lines) {
      if (std::abs(line.Length() - scale * longest.Length()) > SameSize * line.Length()) continue;
      for (const double half : {0.0, 180.0}) {
        tries.push_back({Rounded(DirectionOf(line) - DirectionOf(longest) + half), false, scale, {}});
        tries.push_back({Rounded(DirectionOf(line) + DirectionOf(longest) + half), true, scale, {}});
      }
    }
  }
  const auto key = [](const Placement& one) {
    return std::make_tuple(one.Mirrored, std::abs(one.Degrees), one.Degrees);
  };
  std::ranges::sort(tries, {}, key);
  const auto isSame = [&](const Placement& one, const Placement& other) { return key(one) == key(other); };
  tries.erase(std::unique(tries.begin(), tries.end(), isSame), tries.end());
  if (tries.size() > MostTries) tries.resize(MostTries);
  return tries;
}

/// How many of turning, mirroring, scaling and shifting a placement does.
int ChangesOf(const Placement& placement) {
  const bool isShifted = placement.Shift.X != 0 || placement.Shift.Y != 0;
  return (placement.Degrees != 0 ? 1 : 0) + (placement.Mirrored ? 1 : 0) + (placement.Scale != 1 ? 1 : 0) +
         (isShifted ? 1 : 0);
}

}  // namespace

std::optional<Placement> PlacementOf(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules) {
  if (goal.IsEmpty() || drawing.IsEmpty()) return std::nullopt;
  if (goal.Lines.size() > MostLines || drawing.Lines.size() > MostLines) return std::nullopt;
  const Extent from = ExtentOf(goal);
  const Extent to = ExtentOf(drawing);
  const double scale = from.Spread == 0 || to.Spread == 0 ? 1 : to.Spread / from.Spread;
  const double tolerance = 1.5 * rules.Tolerance;
  // Within the tolerance, a dot is like any other.
  if (to.Spread < LeastSpread * tolerance || !IsScale(scale)) return std::nullopt;
  std::vector<Placement> tries = TriesFor(goal, drawing, 1);
  // Another size is reported only if it matters.
  const std::vector<Placement> scaled = TriesFor(goal, drawing, scale);
  tries.insert(tries.end(), scaled.begin(), scaled.end());
  std::optional<Placement> best;
  for (Placement placement : tries) {
    const Mover mover(placement, from.Middle, to.Middle);
    if (!Fits(mover.Moved(goal), drawing, tolerance)) continue;
    const Point start = goal.Lines.empty() ? from.Middle : goal.Lines.front().From;
    const Point moved = mover.Moved(start);
    if (!IsNear(moved, start, tolerance)) placement.Shift = {moved.X - start.X, moved.Y - start.Y};
    // A star that is turned about the middle of the picture is also one that is turned less, but shifted.
    if (!best || ChangesOf(placement) < ChangesOf(*best)) best = placement;
    if (ChangesOf(*best) <= 1) break;
  }
  return best;
}

}  // namespace zerimo::classroom
