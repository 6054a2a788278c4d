#pragma once

#include <filesystem>

#include "pixels/pixel_buffer.h"

namespace zerimo {

/// What reads and writes picture files. A toolkit or a page brings one.
class PictureFiles {
 public:
  virtual ~PictureFiles() = default;

  /// The upper left part of a picture, at most that large, on a background that shows where the picture is not opaque.
  /// The format follows from the content: BMP, CUR, GIF, ICO, JPEG or PNG. Fails (file not found, invalid picture).
  virtual PixelBuffer Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) = 0;

  /// Writes the upper left part of a buffer, at most as large as that; the format follows from the file's ending (.bmp,
  /// .png, .jpg, .jpeg, any case). Fails (invalid argument for another ending, file access), and then leaves a former
  /// file as it was.
  virtual void Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) = 0;
};

}  // namespace zerimo
