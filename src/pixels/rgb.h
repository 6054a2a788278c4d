#pragma once

#include <cstdint>

#include "controls/control_kinds.h"

namespace zerimo {

/// Red, green and blue from the third byte down; the highest byte is 255.
using Pixel = std::uint32_t;

/// The opaque pixel of a colour value; bits above the three bytes are ignored.
constexpr Pixel ToRgb(Colour colour) noexcept {
  const auto bits = static_cast<std::uint32_t>(colour);
  return 0xFF000000U | (bits & 0xFFU) << 16U | (bits & 0xFF00U) | (bits >> 16U & 0xFFU);
}

/// The colour value of a pixel.
constexpr Colour ToColour(Pixel pixel) noexcept {
  return static_cast<Colour>((pixel >> 16U & 0xFFU) | (pixel & 0xFF00U) | (pixel & 0xFFU) << 16U);
}

}  // namespace zerimo
