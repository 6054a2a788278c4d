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
      : bits_(pixels.Row(0)), columns_(pixels.Columns()), rows_(pixels.Rows()), operation_(operation), hatch_(hatch) {}

  int Columns() const noexcept { return columns_; }
  int Rows() const noexcept { return rows_; }

  /// One pixel, which must be inside the buffer; the hatch is ignored.
  void PaintPixel(int column, int row) noexcept {
    Pixel& pixel = Row(row)[column];
    pixel = operation_.Apply(pixel);
  }

  /// The pixels of a row of the buffer from the first column to the last one, both included.
  void PaintSpan(int row, int first, int last) {
    if (static_cast<unsigned>(row) >= static_cast<unsigned>(rows_)) return;
    first = std::max(first, 0);
    last = std::min(last, columns_ - 1);
    if (first > last) return;
    const unsigned mask = hatch_[static_cast<std::size_t>(row % 8)];
    if (mask == 0xFF) {
      PaintRun(Row(row) + first, last - first + 1);
    } else if (mask != 0) {
      PaintHatched(Row(row), first, last, mask);
    }
  }

  /// The same for each row of the buffer from the first to the last one, both included; `spanOf` gives the columns of a
  /// row.
  template <typename SpanOf>
  void PaintRows(int firstRow, int lastRow, SpanOf&& spanOf) {
    const int lastColumn = columns_ - 1;
    PaintInnerRows(firstRow, lastRow, [&](int row) {
      const auto [first, last] = spanOf(row);
      return std::pair(std::max(first, 0), std::min(last, lastColumn));
    });
  }

  /// The same for columns that are inside the buffer.
  template <typename SpanOf>
  void PaintInnerRows(int firstRow, int lastRow, SpanOf&& spanOf) {
    if (firstRow > lastRow) return;
    if (operation_.IsPlain() && &hatch_ == &HatchPatterns[0]) return FillRows(firstRow, lastRow, spanOf);
    for (int row = firstRow; row <= lastRow; ++row) {
      const auto [first, last] = spanOf(row);
      PaintSpan(row, first, last);
    }
  }

 private:
  /// How many pixels a plain operation writes at once.
  static constexpr int Block = 4;

  Pixel* Row(int row) const noexcept { return bits_ + static_cast<std::ptrdiff_t>(row) * columns_; }

  /// All that a row needs is held in locals, which no pixel written could change.
  template <typename SpanOf>
  void FillRows(int firstRow, int lastRow, SpanOf&& spanOf) const {
    const std::ptrdiff_t rowLength = columns_;
    const Pixel color = operation_.Toggle;
    Pixel* pixels = Row(firstRow);
    for (int row = firstRow; row <= lastRow; ++row, pixels += rowLength) {
      const auto [first, last] = spanOf(row);
      if (first <= last) FillRun(pixels + first, last - first + 1, color);
    }
  }

  void PaintRun(Pixel* pixel, int count) {
    if (operation_.IsPlain()) return FillRun(pixel, count, operation_.Toggle);
    std::for_each(pixel, pixel + count, [this](Pixel& each) { each = operation_.Apply(each); });
  }

  static void FillRun(Pixel* pixel, int count, Pixel color) {
    if (count < Block || count > LongestShort) {
      std::fill_n(pixel, count, color);
    } else {
      FillShort(pixel, count, color);
    }
  }

  /// For the usual run of a pen, a few pixels long: block by block, the last block overlapping the one before it.
  static void FillShort(Pixel* pixel, int count, Pixel color) {
    std::array<Pixel, Block> block;
    block.fill(color);
    Pixel* const lastBlock = pixel + count - Block;
    for (; pixel < lastBlock; pixel += Block) std::memcpy(pixel, block.data(), sizeof block);
    std::memcpy(lastBlock, block.data(), sizeof block);
  }

  void PaintHatched(Pixel* row, int first, int last, unsigned mask) noexcept {
    for (int phase = 0; phase < 8; ++phase) {
      if ((mask >> phase & 1U) == 0) continue;
      for (int column = first + ((phase - first) & 7); column <= last; column += 8) {
        row[column] = operation_.Apply(row[column]);
      }
    }
  }

  static constexpr int LongestShort = 32;

  Pixel* bits_;
  int columns_;
  int rows_;
  RasterOperation operation_;
  const HatchPattern& hatch_;
};

}  // namespace zerimo
