#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "pixels/pixel_rect.h"
#include "pixels/rgb.h"

namespace zerimo {

/// Rows of opaque 32-bit pixels, from the top. A row takes an odd number of a processor's cache lines: otherwise the
/// rows of a screen would push each other out of the cache, since usual widths are multiples of large powers of 2.
class PixelBuffer {
 public:
  PixelBuffer() = default;
  /// Both sizes are at least 1. Throws the standard library's exception if there is not enough memory.
  PixelBuffer(int columns, int rows, Pixel pixel)
      : columns_(columns),
        rows_(rows),
        stride_(OddLines(columns) * CacheLine),
        pixels_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(rows), pixel) {}

  int Columns() const noexcept { return columns_; }
  int Rows() const noexcept { return rows_; }
  PixelRect Bounds() const noexcept { return {0, 0, columns_ - 1, rows_ - 1}; }

  /// From a pixel to the one below it, in pixels.
  int Stride() const noexcept { return stride_; }

  /// The pixels of a row of the buffer.
  Pixel* Row(int row) noexcept { return pixels_.data() + Offset(row); }
  const Pixel* Row(int row) const noexcept { return pixels_.data() + Offset(row); }

  void Fill(Pixel pixel) { std::fill(pixels_.begin(), pixels_.end(), pixel); }
  /// The area must be inside the buffer.
  void Fill(const PixelRect& area, Pixel pixel) {
    for (int row = area.Top; row <= area.Bottom; ++row) std::fill_n(Row(row) + area.Left, area.Columns(), pixel);
  }

 private:
  /// 64 bytes, in pixels.
  static constexpr int CacheLine = 16;

  /// The least odd number of cache lines that hold so many columns.
  static constexpr int OddLines(int columns) noexcept { return (columns + CacheLine - 1) / CacheLine | 1; }

  std::ptrdiff_t Offset(int row) const noexcept { return static_cast<std::ptrdiff_t>(row) * stride_; }

  int columns_ = 0;
  int rows_ = 0;
  int stride_ = 0;
  std::vector<Pixel> pixels_;
};

}  // namespace zerimo
