#include "pixels/line_clip.h"

#include <algorithm>
#include <cmath>

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

}  // namespace zerimo
