#include "classroom/drawings/cover.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace zerimo::classroom {

namespace {

/// The sine of 15 degrees: lines that differ more in direction only cross.
constexpr double Alike = 0.2588;

/// A stretch of a line, in units from its first point; empty if it ends before it begins.
struct Span {
  double Begin = std::numeric_limits<double>::infinity();
  double End = -std::numeric_limits<double>::infinity();

  void Add(Span other) {
    if (other.Begin > other.End) return;
    Begin = std::min(Begin, other.Begin);
    End = std::max(End, other.End);
  }
  void Cut(Span other) {
    Begin = std::max(Begin, other.Begin);
    End = std::min(End, other.End);
  }
};

/// Where slope * t + start is between two values.
Span WhereBetween(double slope, double start, double least, double most) {
  if (slope == 0) {
    const double all = std::numeric_limits<double>::infinity();
    return start >= least && start <= most ? Span{-all, all} : Span{};
  }
  const double one = (least - start) / slope;
  const double other = (most - start) / slope;
  return {std::min(one, other), std::max(one, other)};
}

/// The part of the axis that is near a point.
Span NearPoint(Point point, double tolerance) {
  if (std::abs(point.Y) > tolerance) return {};
  const double reach = std::sqrt(tolerance * tolerance - point.Y * point.Y);
  return {point.X - reach, point.X + reach};
}

/// A line as the first axis of a coordinate system.
class Frame {
 public:
  explicit Frame(const Line& line)
      : origin_(line.From),
        length_(line.Length()),
        along_{(line.To.X - line.From.X) / length_, (line.To.Y - line.From.Y) / length_} {}

  Point In(Point point) const {
    const Point from{point.X - origin_.X, point.Y - origin_.Y};
    return {from.X * along_.X + from.Y * along_.Y, from.Y * along_.X - from.X * along_.Y};
  }
  Point Out(double along) const { return {origin_.X + along * along_.X, origin_.Y + along * along_.Y}; }
  double Length() const { return length_; }

 private:
  Point origin_;
  double length_;
  Point along_;
};

/// The part of the frame's axis that is near another line. It is one stretch, because the points near a line form a
/// convex shape.
Span Covered(const Frame& frame, const Line& by, double tolerance) {
  const Point from = frame.In(by.From);
  const Point to = frame.In(by.To);
  const double length = by.Length();
  const Point along{(to.X - from.X) / length, (to.Y - from.Y) / length};
  const bool isShort = length <= 2 * tolerance || frame.Length() <= 2 * tolerance;
  if (!isShort && std::abs(along.Y) > Alike) return {};
  // Beside the other line, between its ends.
  Span span = WhereBetween(along.X, -from.X * along.X - from.Y * along.Y, 0, length);
  span.Cut(WhereBetween(along.Y, from.Y * along.X - from.X * along.Y, -tolerance, tolerance));
  if (span.Begin > span.End) span = {};
  span.Add(NearPoint(from, tolerance));
  span.Add(NearPoint(to, tolerance));
  return span;
}

bool AreFarApart(const Line& one, const Line& other, double tolerance) {
  const auto far = [tolerance](double a1, double a2, double b1, double b2) {
    return std::max(a1, a2) + tolerance < std::min(b1, b2) || std::max(b1, b2) + tolerance < std::min(a1, a2);
  };
  return far(one.From.X, one.To.X, other.From.X, other.To.X) || far(one.From.Y, one.To.Y, other.From.Y, other.To.Y);
}

}  // namespace

std::vector<Line> Uncovered(const Line& line, const std::vector<Line>& others, double tolerance) {
  const Frame frame(line);
  std::vector<Span> spans;
  for (const Line& other : others) {
    if (AreFarApart(line, other, tolerance)) continue;
    const Span span = Covered(frame, other, tolerance);
    if (span.Begin <= span.End) spans.push_back(span);
  }
  // A line that nothing touches stays whole, however short it is.
  if (spans.empty()) return {line};
  std::ranges::sort(spans, {}, &Span::Begin);
  spans.push_back({frame.Length(), frame.Length()});
  std::vector<Line> left;
  double reached = 0;
  for (const Span& span : spans) {
    const double begin = std::min(span.Begin, frame.Length());
    if (begin - reached > 2 * tolerance) left.push_back({frame.Out(reached), frame.Out(begin), line.Color});
    reached = std::max(reached, span.End);
  }
  return left;
}

std::vector<Line> Uncovered(const std::vector<Line>& lines, const std::vector<Line>& others, double tolerance) {
  std::vector<Line> left;
  for (const Line& line : lines) {
    const std::vector<Line> pieces = Uncovered(line, others, tolerance);
    left.insert(left.end(), pieces.begin(), pieces.end());
  }
  return left;
}

double LengthOf(const std::vector<Line>& lines) {
  double length = 0;
  for (const Line& line : lines) length += line.Length();
  return length;
}

}  // namespace zerimo::classroom
