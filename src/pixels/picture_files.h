#pragma once

#include <filesystem>

#include "pixels/pixel_buffer.h"

namespace zerimo {

/// Reads and writes picture files. A toolkit or a page supplies one.
class PictureFiles {
 public:
  virtual ~PictureFiles() = default;

  /// The upper left part of a picture, at most that large, on a background that shows where the picture is not opaque.
  /// The content decides the format: BMP, CUR, GIF, ICO, JPEG or PNG. Fails (file not found, invalid picture).
  virtual PixelBuffer Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) = 0;

  /// Writes the upper left part of a buffer, at most that large; the file's ending decides the format (.bmp, .png,
  /// .jpg, .jpeg, any case). Fails (invalid argument for another ending, file access), and then leaves an existing file
  /// as it was.
  virtual void Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) = 0;
};

}  // namespace zerimo
