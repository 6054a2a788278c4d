#include "pixels/raster_operation.h"

namespace zerimo {

namespace {

constexpr Pixel ColourBits = 0x00FFFFFF;
constexpr Pixel Opaque = 0xFF000000;

}  // namespace

RasterOperation MakeRasterOperation(DrawingMode drawMode, Colour pen) {
  // The modes number all truth tables: bit 2 * pen + pixel of the mode minus one is the result.
  const auto table = static_cast<unsigned>(drawMode) - 1;
  const auto resultWhere = [table](unsigned penBit, unsigned pixelBit) {
    return (table >> (2 * penBit + pixelBit) & 1U) != 0 ? ColourBits : 0U;
  };
  const Pixel set = ToRgb(pen) & ColourBits;
  const Pixel clear = ~set & ColourBits;
  const Pixel overClear = (set & resultWhere(1, 0)) | (clear & resultWhere(0, 0));
  const Pixel overSet = (set & resultWhere(1, 1)) | (clear & resultWhere(0, 1));
  return {overClear ^ overSet, overClear | Opaque};
}

}  // namespace zerimo
