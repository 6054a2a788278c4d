#include "classroom/drawings/comparison.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "classroom/drawings/cover.h"
#include "classroom/drawings/placement.h"

namespace zerimo::classroom {

namespace {

bool IsNear(Point one, Point other, double tolerance) {
  return std::hypot(one.X - other.X, one.Y - other.Y) <= tolerance;
}

bool AreAlike(const Figure& one, const Figure& other, const ShapeRules& rules) {
  return IsNear(one.Centre, other.Centre, rules.Tolerance) && std::abs(one.Across - other.Across) <= rules.Tolerance &&
         std::abs(one.Down - other.Down) <= rules.Tolerance && one.Text == other.Text &&
         (!rules.Colour || one.Color == other.Color);
}

bool AreAlike(const Line& one, const Line& other, const ShapeRules& rules) {
  if (rules.Colour && one.Color != other.Color) return false;
  const bool same = IsNear(one.From, other.From, rules.Tolerance) && IsNear(one.To, other.To, rules.Tolerance);
  const bool turned = IsNear(one.From, other.To, rules.Tolerance) && IsNear(one.To, other.From, rules.Tolerance);
  return same || (turned && !rules.Direction);
}

/// The shapes that have no partner of their own among the others.
template <typename Shape>
std::vector<Shape> WithoutPartner(const std::vector<Shape>& shapes, std::vector<Shape> others,
                                  const ShapeRules& rules) {
  std::vector<Shape> alone;
  for (const Shape& shape : shapes) {
    const auto partner =
        std::ranges::find_if(others, [&](const Shape& other) { return AreAlike(shape, other, rules); });
    if (partner == others.end()) {
      alone.push_back(shape);
    } else {
      others.erase(partner);
    }
  }
  return alone;
}

/// The lines that the others do not cover; if colours count, only lines of the same colour cover.
std::vector<Line> NotCovered(const std::vector<Line>& lines, const std::vector<Line>& others, const ShapeRules& rules) {
  if (!rules.Colour) return Uncovered(lines, others, rules.Tolerance);
  std::vector<Line> left;
  for (const Line& line : lines) {
    std::vector<Line> alike;
    std::ranges::copy_if(others, std::back_inserter(alike),
                         [&line](const Line& other) { return other.Color == line.Color; });
    const std::vector<Line> pieces = Uncovered(line, alike, rules.Tolerance);
    left.insert(left.end(), pieces.begin(), pieces.end());
  }
  return left;
}

double Around(const Figure& figure) { return std::max(1.0, std::numbers::pi * (figure.Across + figure.Down)); }

double LengthOf(const Drawing& drawing) {
  double length = LengthOf(drawing.Lines);
  for (const Figure& figure : drawing.Figures) length += Around(figure);
  return length;
}

double PercentOf(double all, double wrong) {
  if (all == 0) return 100;
  const double percent = 100 * std::max(0.0, all - wrong) / all;
  return wrong > 0 ? std::min(percent, 99.9) : percent;
}

/// Whether the order, direction and splitting are those of the goal, as far as they count.
bool AreDrawnAlike(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules) {
  if (!rules.Order && !rules.Direction && !rules.Splitting) return true;
  const std::vector<Line> wanted = rules.Splitting ? goal.Lines : Joined(goal.Lines);
  const std::vector<Line> drawn = rules.Splitting ? drawing.Lines : Joined(drawing.Lines);
  if (wanted.size() != drawn.size()) return false;
  if (!rules.Order) return WithoutPartner(wanted, drawn, rules).empty();
  return std::ranges::equal(wanted, drawn,
                            [&rules](const Line& one, const Line& other) { return AreAlike(one, other, rules); });
}

}  // namespace

ShapeComparison Compare(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules) {
  ShapeComparison result;
  const std::vector<Line> wanted = Joined(goal.Lines);
  const std::vector<Line> drawn = Joined(drawing.Lines);
  result.Missing = {NotCovered(wanted, drawn, rules), WithoutPartner(goal.Figures, drawing.Figures, rules), false};
  result.Extra = {NotCovered(drawn, wanted, rules), WithoutPartner(drawing.Figures, goal.Figures, rules), false};
  result.Percent = PercentOf(LengthOf(goal) + LengthOf(drawing), LengthOf(result.Missing) + LengthOf(result.Extra));
  const bool hasSameShapes = result.Missing.IsEmpty() && result.Extra.IsEmpty();
  result.Same = hasSameShapes && !goal.IsCut && !drawing.IsCut && AreDrawnAlike(goal, drawing, rules);
  if (!hasSameShapes)
    result.Placed = PlacementOf({wanted, goal.Figures, false}, {drawn, drawing.Figures, false}, rules);
  return result;
}

}  // namespace zerimo::classroom
