#pragma once

#include <cstddef>
#include <vector>

namespace zerimo {

/// Rows of an ellipse that fills a box of 2 * A + 1 by 2 * B + 1 pixels, with an outline of some width inside it.
/// A pixel belongs to the ellipse if its centre lies in it; it belongs to the outline if a pixel outside the ellipse is
/// not farther from it than the width, so the outline has no gaps and is as wide everywhere. Works out one ellipse
/// after the other in the same memory.
class EllipseSpans {
 public:
  /// Half-axes in whole pixels, which may be of any size. Gives `count` rows, from the one that is `firstRow` off the
  /// middle row away from it.
  void WorkOut(double wholeA, double wholeB, int outlineWidth, double firstRow, int count);

  /// How far a row of the ellipse goes to each side of its middle column; negative for no pixel.
  double Outer(int index) const { return outer_[static_cast<std::size_t>(index)]; }
  /// The same for what the outline encloses.
  double Inner(int index) const { return inner_[static_cast<std::size_t>(index)]; }

 private:
  /// Pixels that are as far from the middle of a round pen as the outline is wide.
  struct Place {
    int Row;
    double Column;
  };
  void TakePen(int outlineWidth);

  /// More rows than asked for: as far as the pen reaches beyond them.
  std::vector<double> outer_;
  std::vector<double> inner_;
  int penWidth_ = 0;
  std::vector<Place> pen_;
};

}  // namespace zerimo
