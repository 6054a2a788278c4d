#include "pixels/pixel_flood.h"

#include <algorithm>
#include <vector>

namespace zerimo {

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
bool IsAll(const Pixel* block, Pixel colour) noexcept {
  if (block[0] != colour || block[Block - 1] != colour) return false;
  Pixel difference = 0;
  for (int n = 0; n < Block; ++n) difference |= block[n] ^ colour;
  return difference == 0;
}

class Flood {
 public:
  Flood(PixelBuffer& pixels, Pixel old, Pixel fill, int rows)
      : pixels_(pixels), columns_(pixels.Columns()), rows_(rows), old_(old), fill_(fill) {}

  PixelRect From(int column, int row) {
    changed_ = {column, row, column, row};
    Add({row, column, column, 1});
    FillRuns(Take());
    // The first row was not reached from another, so both its sides are open.
    Add({row - 1, changed_.Left, changed_.Right, -1});
    while (!open_.empty()) FillRuns(Take());
    return changed_;
  }

 private:
  void Add(const Stretch& stretch) {
    if (stretch.Row >= 0 && stretch.Row < rows_ && stretch.First <= stretch.Last) open_.push_back(stretch);
  }

  /// Runs that are only a pixel apart and lead to one run in the next row become one stretch.
  void AddAhead(const Stretch& stretch) {
    if (stretch.Row < 0 || stretch.Row >= rows_) return;
    if (!open_.empty() && LeadsToOneRun(open_.back(), stretch)) {
      open_.back().Last = stretch.Last;
    } else {
      open_.push_back(stretch);
    }
  }

  bool LeadsToOneRun(const Stretch& before, const Stretch& stretch) const noexcept {
    if (before.Row != stretch.Row || before.Direction != stretch.Direction) return false;
    if (before.Last + 2 != stretch.First) return false;
    const Pixel* gap = pixels_.Row(stretch.Row) + before.Last;
    return gap[0] == old_ && gap[1] == old_ && gap[2] == old_;
  }

  Stretch Take() noexcept {
    const Stretch stretch = open_.back();
    open_.pop_back();
    return stretch;
  }

  /// Fills the runs of the old colour that touch a stretch, and notes where they lead to.
  void FillRuns(const Stretch& stretch) {
    Pixel* row = pixels_.Row(stretch.Row);
    for (int column = stretch.First; column <= stretch.Last; ++column) {
      if (row[column] != old_) continue;
      const int first = FillLeft(row, column);
      column = FillRight(row, column) - 1;
      Note(stretch, first, column);
    }
  }

  /// Fills the pixels of the old colour before a column; returns the first of them, or the column.
  int FillLeft(Pixel* row, int column) const {
    if (column == 0 || row[column - 1] != old_) return column;
    for (; column >= Block && IsAll(row + column - Block, old_); column -= Block) {
      std::fill_n(row + column - Block, Block, fill_);
    }
    for (; column > 0 && row[column - 1] == old_; --column) row[column - 1] = fill_;
    return column;
  }

  /// Fills the pixels of the old colour from a column on; returns the column after them.
  int FillRight(Pixel* row, int column) const {
    if (column + 1 == columns_ || row[column + 1] != old_) {
      row[column] = fill_;
      return column + 1;
    }
    for (; column + Block <= columns_ && IsAll(row + column, old_); column += Block) {
      std::fill_n(row + column, Block, fill_);
    }
    for (; column < columns_ && row[column] == old_; ++column) row[column] = fill_;
    return column;
  }

  void Note(const Stretch& stretch, int first, int last) {
    changed_ = United(changed_, {first, stretch.Row, last, stretch.Row});
    AddAhead({stretch.Row + stretch.Direction, first, last, stretch.Direction});
    // Where a run extends beyond the stretch it may lead back around a corner.
    Add({stretch.Row - stretch.Direction, first, stretch.First - 2, -stretch.Direction});
    Add({stretch.Row - stretch.Direction, stretch.Last + 2, last, -stretch.Direction});
  }

  PixelBuffer& pixels_;
  int columns_;
  int rows_;
  Pixel old_;
  Pixel fill_;
  std::vector<Stretch> open_;
  PixelRect changed_;
};

}  // namespace

PixelRect FloodPixels(PixelBuffer& pixels, int column, int row, Pixel fill, int rows) {
  const Pixel old = pixels.Row(row)[column];
  if (old == fill) return {};
  return Flood(pixels, old, fill, rows).From(column, row);
}

}  // namespace zerimo
