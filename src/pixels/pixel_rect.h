#pragma once

#include <algorithm>

namespace zerimo {

/// A rectangle of pixels, edges included; empty if the right edge is before the left one or the bottom above the top.
struct PixelRect {
  int Left = 0;
  int Top = 0;
  int Right = -1;
  int Bottom = -1;

  bool operator==(const PixelRect&) const = default;

  bool IsEmpty() const noexcept { return Left > Right || Top > Bottom; }
  bool Contains(const PixelRect& other) const noexcept {
    return Left <= other.Left && Top <= other.Top && Right >= other.Right && Bottom >= other.Bottom;
  }
  int Columns() const noexcept { return Right - Left + 1; }
  int Rows() const noexcept { return Bottom - Top + 1; }
};

/// The smallest rectangle around two; an empty one adds nothing.
inline PixelRect United(const PixelRect& one, const PixelRect& other) {
  if (one.IsEmpty()) return other;
  if (other.IsEmpty()) return one;
  return {std::min(one.Left, other.Left), std::min(one.Top, other.Top), std::max(one.Right, other.Right),
          std::max(one.Bottom, other.Bottom)};
}

/// A column or row that may be anywhere, as a whole number between two limits. Not-a-number gives the lower limit.
inline int Clamped(double place, int least, int greatest) noexcept {
  if (!(place > least)) return least;
  return place < greatest ? static_cast<int>(place) : greatest;
}

/// The first whole number at or after a place that may be anywhere, between two limits.
inline int FirstFrom(double place, int least, int greatest) noexcept {
  const int cut = Clamped(place, least, greatest);
  return cut < place && cut < greatest ? cut + 1 : cut;
}

/// The last whole number at or before a place that may be anywhere, between two limits.
inline int LastTo(double place, int least, int greatest) noexcept {
  const int cut = Clamped(place, least, greatest);
  return cut > place && cut > least ? cut - 1 : cut;
}

/// The same for places between 0 and the greatest `int`.
inline int FirstFrom(double place) noexcept {
  const int cut = static_cast<int>(place);
  return cut + static_cast<int>(cut < place);
}
inline int LastTo(double place) noexcept { return static_cast<int>(place); }

/// The part of a rectangle (edges included) that is on a canvas of that size; an empty one if there is none.
inline PixelRect OnCanvas(double left, double top, double right, double bottom, int columns, int rows) noexcept {
  return {Clamped(left, 0, columns), Clamped(top, 0, rows), Clamped(right, -1, columns - 1),
          Clamped(bottom, -1, rows - 1)};
}

}  // namespace zerimo
