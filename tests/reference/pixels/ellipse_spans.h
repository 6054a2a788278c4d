#pragma once

#include <cstddef>
#include <vector>

namespace zerimo::reference {

/// Rows of an ellipse that fills a box of 2 * A + 1 by 2 * B + 1 pixels, with an outline of some width inside it. A
/// pixel belongs to the ellipse if its centre is inside it; it belongs to the outline if a pixel outside the ellipse is
/// no farther from it than the width, so that the outline has no gaps and the same width everywhere.
class EllipseSpans {
 public:
  /// Half-axes are in whole pixels, of any size. Holds `count` rows, from the one that is `firstRow` away from the
  /// middle row outwards.
  EllipseSpans(double wholeA, double wholeB, int outlineWidth, double firstRow, int count);

  int Count() const { return static_cast<int>(inner.size()); }
  /// How far a row of the ellipse extends to each side of its middle column; negative for no pixel.
  double Outer(int index) const { return outer[static_cast<std::size_t>(index)]; }
  /// The same for what the outline encloses.
  double Inner(int index) const { return inner[static_cast<std::size_t>(index)]; }

 private:
  /// A pixel that is as far from the middle of a round pen as the outline is wide.
  struct Place {
    int Row;
    double Column;
  };
  static std::vector<Place> PenOf(int outlineWidth);

  /// More rows than asked for: as far as the pen reaches beyond them.
  std::vector<double> outer;
  std::vector<double> inner;
};

}  // namespace zerimo::reference
