#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "graphics/canvas.h"

namespace zerimo {

/// Eight rows of eight pixels, repeated from the canvas's top left corner; bit n of a row is column n. A pixel whose
/// bit is not set is left as it is.
using HatchPattern = std::array<std::uint8_t, 8>;

/// The row of the horizontal lines and the column of the vertical ones in each eight.
inline constexpr int HatchRow = 4;
inline constexpr int HatchColumn = 4;

/// Indexed by fill pattern.
inline constexpr std::array<HatchPattern, 8> HatchPatterns{{
    {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},  // solid
    {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00},  // none
    {0x00, 0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00},  // horizontal
    {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10},  // vertical
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},  // upward diagonal
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},  // downward diagonal
    {0x10, 0x10, 0x10, 0x10, 0xFF, 0x10, 0x10, 0x10},  // cross
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},  // diagonal cross
}};

inline const HatchPattern& HatchOf(FillPattern fillStyle) noexcept {
  return HatchPatterns[static_cast<std::size_t>(fillStyle)];
}

}  // namespace zerimo
