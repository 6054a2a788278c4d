#pragma once

#include "pixels/picture_files.h"

namespace zerimo::web {

/// Picture files without a toolkit: BMP, GIF, JPEG and PNG are read, BMP, JPEG and PNG are written. Icons, cursors and
/// run-length coded BMP files are invalid pictures.
class StbPictureFiles : public PictureFiles {
 public:
  PixelBuffer Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) override;
  void Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) override;
};

}  // namespace zerimo::web
