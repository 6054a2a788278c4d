#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>

#include "pixels/hatch.h"
#include "pixels/pixel_buffer.h"
#include "pixels/raster_operation.h"

namespace zerimo {

/// Paints runs of pixels of one buffer by a raster operation, through a hatch pattern. What is outside the buffer is
/// skipped. A shape must paint each of its pixels once, so that inverting operations come out right.
class SpanPainter {
 public:
  SpanPainter(PixelBuffer& pixels, RasterOperation operation, const HatchPattern& hatch = HatchPatterns[0])
      : bits_(pixels.Row(0)),
        columns_(pixels.Columns()),
        rows_(pixels.Rows()),
        stride_(pixels.Stride()),
        operation_(operation),
        hatch_(hatch) {}

  int Columns() const noexcept { return columns_; }
  int Rows() const noexcept { return rows_; }

  /// One pixel, which must be inside the buffer; the hatch is ignored.
  void PaintPixel(int column, int row) noexcept {
    Pixel& pixel = Row(row)[column];
    pixel = operation_.Apply(pixel);
  }

  /// The pixels of a row of the buffer from the first column to the last one, both included.
  void PaintSpan(int row, std::ptrdiff_t first, std::ptrdiff_t last) {
    if (static_cast<unsigned>(row) >= static_cast<unsigned>(rows_)) return;
    first = std::max<std::ptrdiff_t>(first, 0);
    last = std::min<std::ptrdiff_t>(last, columns_ - 1);
    if (first > last) return;
    const unsigned mask = hatch_[static_cast<std::size_t>(row % 8)];
    if (mask == 0xFF) {
      PaintRun(Row(row), first, last);
    } else if (mask != 0) {
      PaintHatched(Row(row), first, last, mask);
    }
  }

  /// The same for each row of the buffer from the first to the last one, both included; `spanOf` gives the columns of a
  /// row.
  template <typename SpanOf>
  void PaintRows(int firstRow, int lastRow, SpanOf&& spanOf) {
    const std::ptrdiff_t lastColumn = columns_ - 1;
    PaintInnerRows(firstRow, lastRow, [&](int row) {
      const auto [first, last] = spanOf(row);
      return std::pair(std::max<std::ptrdiff_t>(first, 0), std::min<std::ptrdiff_t>(last, lastColumn));
    });
  }

  /// The same for columns that are inside the buffer.
  template <typename SpanOf>
  void PaintInnerRows(int firstRow, int lastRow, SpanOf&& spanOf) {
    PaintInnerRows(firstRow, lastRow, spanOf, FillRun);
  }

  /// The length of a narrow row, from and to.
  static constexpr int LeastNarrow = 4;
  static constexpr int MostNarrow = 2 * LeastNarrow;

  /// The same for rows that are all narrow.
  template <typename SpanOf>
  void PaintNarrowRows(int firstRow, int lastRow, SpanOf&& spanOf) {
    PaintInnerRows(firstRow, lastRow, spanOf, FillNarrow);
  }

 private:
  /// How many pixels a plain operation writes at once.
  static constexpr int Block = LeastNarrow;

  Pixel* Row(int row) const noexcept { return bits_ + static_cast<std::ptrdiff_t>(row) * stride_; }

  template <typename SpanOf, typename Fill>
  void PaintInnerRows(int firstRow, int lastRow, SpanOf&& spanOf, Fill fill) {
    if (firstRow > lastRow) return;
    if (operation_.IsPlain() && &hatch_ == &HatchPatterns[0]) return FillRows(firstRow, lastRow, spanOf, fill);
    for (int row = firstRow; row <= lastRow; ++row) {
      const auto [first, last] = spanOf(row);
      PaintSpan(row, first, last);
    }
  }

  /// All that a row needs is held in locals, which no pixel written could change.
  template <typename SpanOf, typename Fill>
  void FillRows(int firstRow, int lastRow, SpanOf&& spanOf, Fill fill) const {
    const std::ptrdiff_t stride = stride_;
    const Pixel color = operation_.Toggle;
    Pixel* pixels = Row(firstRow);
    for (int row = firstRow; row <= lastRow; ++row, pixels += stride) {
      const auto [first, last] = spanOf(row);
      fill(pixels, first, last, color);
    }
  }

  void PaintRun(Pixel* row, std::ptrdiff_t first, std::ptrdiff_t last) {
    if (operation_.IsPlain()) return FillRun(row, first, last, operation_.Toggle);
    std::for_each(row + first, row + last + 1, [this](Pixel& each) { each = operation_.Apply(each); });
  }

  /// Both columns belong to the run; it is empty if the first is after the last.
  static void FillRun(Pixel* row, std::ptrdiff_t first, std::ptrdiff_t last, Pixel color) {
    if (first > last) return;
    const std::ptrdiff_t count = last - first + 1;
    if (count < Block || count > LongestShort) {
      std::fill_n(row + first, count, color);
    } else {
      FillShort(row + first, row + last, color);
    }
  }

  /// For the usual run of a pen, a few pixels long: block by block, the last block overlapping the one before it.
  static void FillShort(Pixel* pixel, Pixel* last, Pixel color) {
    for (; pixel < last - (Block - 1); pixel += Block) FillBlock(pixel, color);
    FillBlock(last - (Block - 1), color);
  }

  /// One or two blocks, without a look at how many it takes.
  static void FillNarrow(Pixel* row, std::ptrdiff_t first, std::ptrdiff_t last, Pixel color) {
    FillBlock(row + first, color);
    FillBlock(row + last - (Block - 1), color);
  }

  static void FillBlock(Pixel* first, Pixel color) {
    std::array<Pixel, Block> block;
    block.fill(color);
    std::memcpy(first, block.data(), sizeof block);
  }

  void PaintHatched(Pixel* row, std::ptrdiff_t first, std::ptrdiff_t last, unsigned mask) noexcept {
    for (int phase = 0; phase < 8; ++phase) {
      if ((mask >> phase & 1U) == 0) continue;
      for (std::ptrdiff_t column = first + ((phase - first) & 7); column <= last; column += 8) {
        row[column] = operation_.Apply(row[column]);
      }
    }
  }

  static constexpr int LongestShort = 32;

  Pixel* bits_;
  int columns_;
  int rows_;
  int stride_;
  RasterOperation operation_;
  const HatchPattern& hatch_;
};

}  // namespace zerimo
