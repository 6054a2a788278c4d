#pragma once

#include <QRgb>
#include <cstdint>

#include "controls/control_kinds.h"

namespace zerimo {

/// The opaque pixel of a colour value; bits above the three bytes count for nothing.
constexpr QRgb ToRgb(Colour colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return 0xFF000000U | (bits & 0xFFU) << 16U | (bits & 0xFF00U) | (bits >> 16U & 0xFFU);
}

/// The colour value of a pixel.
constexpr Colour ToColour(QRgb pixel) {
  return static_cast<Colour>((pixel >> 16U & 0xFFU) | (pixel & 0xFF00U) | (pixel & 0xFFU) << 16U);
}

}  // namespace zerimo
