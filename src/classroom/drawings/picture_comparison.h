#pragma once

#include <QImage>

namespace zerimo::classroom {

struct PixelComparison {
  /// The pixels that are drawn in both pictures, in per cent of those that are drawn in one of them.
  double Percent = 0;
  /// White; grey where both are drawn, blue where only the goal is, orange where only the other picture is.
  QImage Difference;
};

/// Drawn is what has not the commonest colour of its picture. A drawn pixel that has a partner within `near` pixels
/// counts as drawn in both. Where `colour` counts, two drawn pixels must have the same. The second picture is brought
/// to the size of the first.
PixelComparison ComparePixels(const QImage& goal, const QImage& picture, int near, bool colour);

}  // namespace zerimo::classroom
