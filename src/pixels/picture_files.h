#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "pixels/pixel_buffer.h"

namespace zerimo {

/// Larger pictures and files are refused before they are decoded.
constexpr std::int64_t MostPicturePixels = 1 << 26;
constexpr std::int64_t MostPictureBytes = 1 << 28;

/// Of written JPEG files, in percent.
constexpr int JpegQuality = 92;

/// Fails unless it is so.
void Require(bool isSo, FailureKind otherwise);

/// The ending of a file name, in small letters and with its point.
std::string EndingOf(const std::filesystem::path& file);

/// The format in which a picture file of that name is written, "bmp", "jpeg" or "png". Fails (invalid argument) if the
/// ending stands for none.
std::string_view FormatToWrite(const std::filesystem::path& file);

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
