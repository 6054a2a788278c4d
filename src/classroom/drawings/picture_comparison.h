#pragma once

#include <QImage>
#include <optional>

#include "classroom/drawings/comparison.h"

namespace zerimo::classroom {

struct PixelComparison {
  /// The pixels that are drawn in both pictures, in per cent of those that are drawn in one of them.
  double Percent = 0;
  /// White; grey where both are drawn, blue where only the goal is, orange where only the other picture is.
  QImage Difference;
};

/// Whether all pixels of a picture have the same colour, or there is none.
bool IsBlank(const QImage& image);

/// A pixel counts as drawn if it does not have the commonest colour of its picture, and as drawn in both if it has a
/// partner within `near` pixels; with `colour`, the two must have the same colour. The second picture is scaled to the
/// size of the first.
PixelComparison ComparePixels(const QImage& goal, const QImage& picture, int near, bool colour);

/// How the goal has to be mirrored, turned by quarters, scaled or shifted so that `enough` per cent of it and the
/// picture overlap; only what is drawn counts, not its colour. One that is not mirrored, turned or scaled is shifted.
/// Nothing if there is no way.
std::optional<Placement> PlacementOfPicture(const QImage& goal, const QImage& picture, int near, double enough);

}  // namespace zerimo::classroom
