/// Picture files that the surface loads: the check that they are whole, and what is decoded.

#include "base/failure.h"
#include "fuzz.h"
#include "pictures/picture_file.h"
#include "pixels/picture_check.h"

namespace zerimo::fuzz {

namespace {

constexpr int Columns = 64;
constexpr int Rows = 48;

}  // namespace

void Try(std::string_view input) {
  for (const char* const format : {"bmp", "gif", "jpeg", "png", "ico"}) IsWholePicture(input, format);
  const QByteArray content(input.data(), static_cast<qsizetype>(input.size()));
  SkipOnFailure([&] {
    const PixelBuffer pixels = PictureIn(content, Columns, Rows, 0);
    Require(pixels.Columns() >= 1 && pixels.Columns() <= Columns);
    Require(pixels.Rows() >= 1 && pixels.Rows() <= Rows);
  });
}

}  // namespace zerimo::fuzz
