#include "reference/pixels/pixel_flood.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zerimo::reference {

namespace {

/// A stretch of a row that is still to be searched; `Direction` leads away from the row that it was reached from.
struct Stretch {
  int Row;
  int First;
  int Last;
  int Direction;
};

/// Pixels that are compared at once.
constexpr int Block = 64;

/// Whether all pixels of a block have a colour. The ends come first, for the short runs of a maze; the loop has no
/// branches, so that the compiler can compare several pixels at a time.
bool IsAll(const QRgb* block, QRgb colour) {
  if (block[0] != colour || block[Block - 1] != colour) return false;
  QRgb difference = 0;
  for (int n = 0; n < Block; ++n) difference |= block[n] ^ colour;
  return difference == 0;
}

class Flood {
 public:
  Flood(QImage& image, QRgb oldColour, QRgb newColour, int floodRows)
      : bits(reinterpret_cast<QRgb*>(image.bits())),
        pixelsPerRow(static_cast<std::ptrdiff_t>(image.bytesPerLine()) / 4),
        columns(image.width()),
        rows(floodRows),
        old(oldColour),
        fill(newColour) {}

  QRect From(QPoint at) {
    top = bottom = at.y();
    left = right = at.x();
    Add({at.y(), at.x(), at.x(), 1});
    FillRuns(Take());
    // The first row was not reached from another, so both its sides are open.
    Add({at.y() - 1, left, right, -1});
    while (!open.empty()) FillRuns(Take());
    return {QPoint(left, top), QPoint(right, bottom)};
  }

 private:
  void Add(const Stretch& stretch) {
    if (stretch.Row >= 0 && stretch.Row < rows && stretch.First <= stretch.Last) open.push_back(stretch);
  }

  /// Runs that are only a pixel apart and lead to one run in the next row become one stretch.
  void AddAhead(const Stretch& stretch) {
    if (stretch.Row < 0 || stretch.Row >= rows) return;
    if (!open.empty() && LeadsToOneRun(open.back(), stretch)) {
      open.back().Last = stretch.Last;
    } else {
      open.push_back(stretch);
    }
  }

  bool LeadsToOneRun(const Stretch& before, const Stretch& stretch) const {
    if (before.Row != stretch.Row || before.Direction != stretch.Direction) return false;
    if (before.Last + 2 != stretch.First) return false;
    const QRgb* gap = bits + stretch.Row * pixelsPerRow + before.Last;
    return gap[0] == old && gap[1] == old && gap[2] == old;
  }

  Stretch Take() {
    const Stretch stretch = open.back();
    open.pop_back();
    return stretch;
  }

  /// Fills the runs of the old colour that touch a stretch, and notes where they lead to.
  void FillRuns(const Stretch& stretch) {
    QRgb* row = bits + stretch.Row * pixelsPerRow;
    for (int column = stretch.First; column <= stretch.Last; ++column) {
      if (row[column] != old) continue;
      const int first = FillLeft(row, column);
      column = FillRight(row, column) - 1;
      Note(stretch, first, column);
    }
  }

  /// Fills the pixels of the old colour before a column; returns the first of them, or the column.
  int FillLeft(QRgb* row, int column) const {
    if (column == 0 || row[column - 1] != old) return column;
    for (; column >= Block && IsAll(row + column - Block, old); column -= Block) {
      std::fill_n(row + column - Block, Block, fill);
    }
    for (; column > 0 && row[column - 1] == old; --column) row[column - 1] = fill;
    return column;
  }

  /// Fills the pixels of the old colour from a column on; returns the column after them.
  int FillRight(QRgb* row, int column) const {
    if (column + 1 == columns || row[column + 1] != old) {
      row[column] = fill;
      return column + 1;
    }
    for (; column + Block <= columns && IsAll(row + column, old); column += Block) {
      std::fill_n(row + column, Block, fill);
    }
    for (; column < columns && row[column] == old; ++column) row[column] = fill;
    return column;
  }

  void Note(const Stretch& stretch, int first, int last) {
    top = std::min(top, stretch.Row);
    bottom = std::max(bottom, stretch.Row);
    left = std::min(left, first);
    right = std::max(right, last);
    AddAhead({stretch.Row + stretch.Direction, first, last, stretch.Direction});
    // Where a run extends beyond the stretch it may lead back around a corner.
    Add({stretch.Row - stretch.Direction, first, stretch.First - 2, -stretch.Direction});
    Add({stretch.Row - stretch.Direction, stretch.Last + 2, last, -stretch.Direction});
  }

  QRgb* bits;
  std::ptrdiff_t pixelsPerRow;
  int columns;
  int rows;
  QRgb old;
  QRgb fill;
  std::vector<Stretch> open;
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

}  // namespace

QRect FloodPixels(QImage& image, QPoint at, QRgb fill, int rows) {
  const QRgb old = image.pixel(at);
  if (old == fill) return {};
  return Flood(image, old, fill, rows).From(at);
}

}  // namespace zerimo::reference
