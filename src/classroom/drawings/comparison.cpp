#include "classroom/drawings/comparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "classroom/drawings/cover.h"
#include "classroom/drawings/placement.h"

namespace zerimo::classroom {

namespace {

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

/// Whether each line goes over one that was drawn the same way.
bool HaveDirection(const std::vector<Line>& lines, const std::vector<Line>& others, double tolerance) {
  return std::ranges::all_of(lines, [&](const Line& line) {
    std::vector<Line> alike;
    std::ranges::copy_if(others, std::back_inserter(alike), [&line](const Line& other) {
      const Point along{line.To.X - line.From.X, line.To.Y - line.From.Y};
      return along.X * (other.To.X - other.From.X) + along.Y * (other.To.Y - other.From.Y) > 0;
    });
    return Uncovered(line, alike, tolerance).empty();
  });
}

/// Whether the order, direction and splitting are those of the goal, as far as they count.
bool AreDrawnAlike(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules) {
  const std::vector<Line> wanted = rules.Splitting ? goal.Lines : Joined(goal.Lines);
  const std::vector<Line> drawn = rules.Splitting ? drawing.Lines : Joined(drawing.Lines);
  if (!rules.Order && !rules.Splitting)
    return !rules.Direction ||
           (HaveDirection(wanted, drawn, rules.Tolerance) && HaveDirection(drawn, wanted, rules.Tolerance));
  if (wanted.size() != drawn.size()) return false;
  if (!rules.Order) return WithoutPartner(wanted, drawn, rules).empty();
  return std::ranges::equal(wanted, drawn,
                            [&rules](const Line& one, const Line& other) { return AreAlike(one, other, rules); });
}

constexpr std::array<std::pair<StrokeRule, bool ShapeRules::*>, 3> WaysOfDrawing = {
    {{StrokeRule::Order, &ShapeRules::Order},
     {StrokeRule::Direction, &ShapeRules::Direction},
     {StrokeRule::Splitting, &ShapeRules::Splitting}}};

/// The rules about order, direction and splitting that a drawing with all shapes of the goal breaks.
std::vector<StrokeRule> BrokenRules(const Drawing& goal, const Drawing& drawing, ShapeRules rules) {
  rules.Colour = false;
  std::vector<StrokeRule> all;
  std::vector<StrokeRule> broken;
  for (const auto& [rule, counts] : WaysOfDrawing) {
    if (!(rules.*counts)) continue;
    all.push_back(rule);
    ShapeRules alone{.Tolerance = rules.Tolerance};
    alone.*counts = true;
    if (!AreDrawnAlike(goal, drawing, alone)) broken.push_back(rule);
  }
  return broken.empty() && !AreDrawnAlike(goal, drawing, rules) ? all : broken;
}

/// What one drawing has and the other one lacks.
Drawing Left(const Drawing& drawing, const Drawing& other, const ShapeRules& rules) {
  return {NotCovered(drawing.Lines, other.Lines, rules), WithoutPartner(drawing.Figures, other.Figures, rules), false};
}

}  // namespace

ShapeComparison Compare(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules) {
  ShapeComparison result;
  const Drawing wanted{Joined(goal.Lines), goal.Figures, false};
  const Drawing drawn{Joined(drawing.Lines), drawing.Figures, false};
  result.Missing = Left(wanted, drawn, rules);
  result.Extra = Left(drawn, wanted, rules);
  result.Percent = PercentOf(LengthOf(goal) + LengthOf(drawing), LengthOf(result.Missing) + LengthOf(result.Extra));
  const bool hasSameShapes = result.Missing.IsEmpty() && result.Extra.IsEmpty();
  const ShapeRules colourless{.Tolerance = rules.Tolerance};
  const bool hasOtherColours = !hasSameShapes && rules.Colour && Left(wanted, drawn, colourless).IsEmpty() &&
                               Left(drawn, wanted, colourless).IsEmpty();
  const bool isWhole = !goal.IsCut && !drawing.IsCut;
  if (isWhole && (hasSameShapes || hasOtherColours)) result.Broken = BrokenRules(goal, drawing, rules);
  if (isWhole && hasOtherColours) result.Broken.push_back(StrokeRule::Colour);
  result.Same = isWhole && hasSameShapes && result.Broken.empty();
  if (!hasSameShapes && !hasOtherColours) result.Placed = PlacementOf(wanted, drawn, rules);
  return result;
}

}  // namespace zerimo::classroom
