#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "pixels/pixel_canvas.h"

namespace zerimo {

inline constexpr Colour Black = 0;
inline constexpr Colour Ground = 0x402010;

using enum DrawingMode;
using enum FillPattern;

/// The rows of the small canvas.
inline constexpr int Rows = 96;

/// The rectangle from one corner to the other, both included.
inline PixelRect Between(int left, int top, int right, int bottom) { return {left, top, right, bottom}; }

inline PixelRect Sized(int left, int top, int columns, int rows) {
  return {left, top, left + columns - 1, top + rows - 1};
}

inline bool Holds(const PixelRect& outer, const PixelRect& inner) { return United(outer, inner) == outer; }

/// A copy of all pixels, row after row.
inline std::vector<Pixel> PixelsOf(const PixelBuffer& pixels) {
  std::vector<Pixel> copy;
  for (int row = 0; row < pixels.Rows(); ++row) {
    copy.insert(copy.end(), pixels.Row(row), pixels.Row(row) + pixels.Columns());
  }
  return copy;
}
inline std::vector<Pixel> PixelsOf(const PixelCanvas& canvas) { return PixelsOf(canvas.Pixels()); }

/// A canvas of 96 by 96 pixels in one colour.
template <typename Kind>
class CanvasTestOf : public ::testing::Test {
 protected:
  CanvasTestOf() { canvas.Create(96, 96, Ground); }

  Colour At(int x, int y) const { return *canvas.ColourAt({1.0 * x, 1.0 * y}); }

  /// How many pixels have the colour.
  int Count(Colour colour) const {
    int count = 0;
    for (int y = 0; y < canvas.Pixels().Rows(); ++y) {
      for (int x = 0; x < canvas.Pixels().Columns(); ++x) count += At(x, y) == colour ? 1 : 0;
    }
    return count;
  }

  /// The rectangle around the pixels that do not have the colour of the ground.
  PixelRect Drawn() const {
    PixelRect drawn;
    for (int y = 0; y < canvas.Pixels().Rows(); ++y) {
      for (int x = 0; x < canvas.Pixels().Columns(); ++x) {
        if (At(x, y) != Ground) drawn = United(drawn, {x, y, x, y});
      }
    }
    return drawn;
  }

  static Stroke Pen(Colour colour, int width = 1, DrawingMode drawMode = CopyPen) { return {colour, width, drawMode}; }

  Kind canvas;
};

/// A canvas that prints no text and knows no picture files.
struct BareCanvas : PixelCanvas {
  BareCanvas() : PixelCanvas(nullptr, nullptr) {}
};

using CanvasTest = CanvasTestOf<BareCanvas>;

}  // namespace zerimo
