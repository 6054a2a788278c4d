#pragma once

#include <QRect>
#include <algorithm>

namespace zerimo::reference {

/// A column or row that may be anywhere, as a whole number between two limits. Not-a-number gives the lower limit.
inline int Clamped(double place, int least, int greatest) {
  if (!(place > least)) return least;
  return place < greatest ? static_cast<int>(place) : greatest;
}

/// The part of a rectangle (edges included) that is on a canvas of that size; an empty one if there is none.
inline QRect OnCanvas(double left, double top, double right, double bottom, QSize canvas) {
  const int firstColumn = Clamped(left, 0, canvas.width());
  const int firstRow = Clamped(top, 0, canvas.height());
  const int lastColumn = Clamped(right, -1, canvas.width() - 1);
  const int lastRow = Clamped(bottom, -1, canvas.height() - 1);
  return {QPoint(firstColumn, firstRow), QPoint(lastColumn, lastRow)};
}

}  // namespace zerimo::reference
