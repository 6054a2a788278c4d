#pragma once

#include <string_view>

#include "graphics/canvas.h"
#include "pixels/pixel_buffer.h"

namespace zerimo {

/// On a screen with 96 dots to the inch.
constexpr double PixelsPerPoint = 96.0 / 72;

/// Control characters print nothing and take no space.
inline bool IsPrintable(char character) noexcept {
  const auto code = static_cast<unsigned char>(character);
  return (code >= 32 && code < 127) || code >= 160;
}

/// Prints text on pixels. A toolkit or a page supplies one.
class TextDrawer {
 public:
  virtual ~TextDrawer() = default;

  /// Prints a line of single-byte text, not smoothed, with its top left corner at a point that may be anywhere. Returns
  /// the rectangle of the buffer that may have changed.
  virtual PixelRect Print(PixelBuffer& pixels, std::string_view text, PixelPoint at, double pointSize, Pixel color) = 0;
};

}  // namespace zerimo
