#pragma once

#include <cstddef>
#include <vector>

namespace zerimo {

/// Rows of an ellipse that fills a box of 2 * A + 1 by 2 * B + 1 pixels, with an outline of some width inside it. A
/// pixel belongs to the ellipse if its centre is inside it; it belongs to the outline if a pixel outside the ellipse is
/// no farther from it than the width, so that the outline has no gaps and the same width everywhere. Reuses its memory
/// from one ellipse to the next.
class EllipseSpans {
 public:
  /// Half-axes are in whole pixels, of any size. Works out `count` rows, from the one that is `firstRow` away from the
  /// middle row outwards.
  void WorkOut(double wholeA, double wholeB, int outlineWidth, double firstRow, int count);

  /// How far a row of the ellipse extends to each side of its middle column; negative for no pixel.
  double Outer(int index) const noexcept { return outer_[static_cast<std::size_t>(index)]; }
  /// The same for what the outline encloses.
  double Inner(int index) const noexcept { return inner_[static_cast<std::size_t>(index)]; }

 private:
  /// A pixel that is as far from the middle of a round pen as the outline is wide.
  struct PenPixel {
    int Row;
    double Column;
  };
  void TakePen(int outlineWidth);

  /// More rows than asked for: as far as the pen reaches beyond them.
  std::vector<double> outer_;
  std::vector<double> inner_;
  int penWidth_ = 0;
  std::vector<PenPixel> pen_;
};

}  // namespace zerimo
