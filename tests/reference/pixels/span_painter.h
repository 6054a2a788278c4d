#pragma once

#include <QImage>
#include <algorithm>
#include <cstddef>

#include "pixels/hatch.h"
#include "reference/pixels/raster_operation.h"

namespace zerimo::reference {

/// Paints runs of pixels of one image (Format_RGB32) by a raster operation, through a hatch pattern. What is outside
/// the image is skipped. A shape must paint each of its pixels once, so that inverting operations come out right.
class SpanPainter {
 public:
  SpanPainter(QImage& image, RasterOperation rasterOperation, const HatchPattern& hatchPattern = HatchPatterns[0])
      : bits(reinterpret_cast<QRgb*>(image.bits())),
        pixelsPerRow(static_cast<std::ptrdiff_t>(image.bytesPerLine()) / 4),
        columns(image.width()),
        rows(image.height()),
        operation(rasterOperation),
        hatch(hatchPattern) {}

  int Columns() const { return columns; }
  int Rows() const { return rows; }

  /// One pixel, which must be inside the image; the hatch is ignored.
  void PaintPixel(int column, int row) {
    QRgb& pixel = Row(row)[column];
    pixel = operation.Apply(pixel);
  }

  /// The pixels of a row from the first column to the last one, both included.
  void PaintSpan(int row, int first, int last) {
    if (row < 0 || row >= rows) return;
    first = std::max(first, 0);
    last = std::min(last, columns - 1);
    if (first > last) return;
    const unsigned mask = hatch[static_cast<std::size_t>(row % 8)];
    if (mask == 0xFF) {
      PaintRun(Row(row) + first, last - first + 1);
    } else if (mask != 0) {
      PaintHatched(Row(row), first, last, mask);
    }
  }

 private:
  QRgb* Row(int row) const { return bits + row * pixelsPerRow; }

  void PaintRun(QRgb* pixel, int count) {
    if (operation.IsPlain()) {
      std::fill_n(pixel, count, operation.Toggle);
    } else {
      std::for_each(pixel, pixel + count, [this](QRgb& each) { each = operation.Apply(each); });
    }
  }

  void PaintHatched(QRgb* row, int first, int last, unsigned mask) {
    for (int phase = 0; phase < 8; ++phase) {
      if ((mask >> phase & 1U) == 0) continue;
      for (int column = first + ((phase - first) & 7); column <= last; column += 8) {
        row[column] = operation.Apply(row[column]);
      }
    }
  }

  QRgb* bits;
  std::ptrdiff_t pixelsPerRow;
  int columns;
  int rows;
  RasterOperation operation;
  const HatchPattern& hatch;
};

}  // namespace zerimo::reference
