#include "reference/pixels/raster_operation.h"

#include "pixels/rgb.h"

namespace zerimo::reference {

namespace {

constexpr QRgb ColourBits = 0x00FFFFFF;
constexpr QRgb Opaque = 0xFF000000;

}  // namespace

RasterOperation MakeRasterOperation(DrawingMode drawMode, Colour pen) {
  // The modes number all truth tables: bit 2 * pen + pixel of the mode minus one is the result.
  const auto table = static_cast<unsigned>(drawMode) - 1;
  const auto resultWhere = [table](unsigned penBit, unsigned pixelBit) {
    return (table >> (2 * penBit + pixelBit) & 1U) != 0 ? ColourBits : 0U;
  };
  const QRgb set = ToRgb(pen) & ColourBits;
  const QRgb clear = ~set & ColourBits;
  const QRgb overClear = (set & resultWhere(1, 0)) | (clear & resultWhere(0, 0));
  const QRgb overSet = (set & resultWhere(1, 1)) | (clear & resultWhere(0, 1));
  return {overClear ^ overSet, overClear | Opaque};
}

}  // namespace zerimo::reference
