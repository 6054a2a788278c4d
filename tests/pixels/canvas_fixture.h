#pragma once

#include <gtest/gtest.h>

#include "pictures/image_canvas.h"

namespace zerimo {

inline constexpr Colour Black = 0;
inline constexpr Colour Ground = 0x402010;

inline constexpr int CopyPen = 13;
inline constexpr int Invert = 6;
inline constexpr int Solid = 0;
inline constexpr int Transparent = 1;

/// The rows of the small canvas.
inline constexpr int Rows = 96;

/// A canvas of 96 by 96 pixels in one colour.
class CanvasTest : public ::testing::Test {
 protected:
  CanvasTest() { canvas.Create(96, 96, Ground); }

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
  QRect Drawn() const {
    QRect drawn;
    for (int y = 0; y < canvas.Pixels().Rows(); ++y) {
      for (int x = 0; x < canvas.Pixels().Columns(); ++x) {
        if (At(x, y) != Ground) drawn |= QRect(x, y, 1, 1);
      }
    }
    return drawn;
  }

  static Stroke Pen(Colour colour, int width = 1, int drawMode = CopyPen) { return {colour, width, drawMode}; }

  ImageCanvas canvas;
};

}  // namespace zerimo
