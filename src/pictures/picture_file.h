#pragma once

#include <QByteArray>
#include <filesystem>
#include <functional>
#include <utility>

#include "pixels/picture_files.h"

namespace zerimo {

/// Reads and writes picture files with Qt. A truncated or very large picture counts as invalid.
/// `startToolkit` is called first.
class QtPictureFiles : public PictureFiles {
 public:
  explicit QtPictureFiles(std::function<void()> startToolkit) : startToolkit_(std::move(startToolkit)) {}

  PixelBuffer Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) override;
  void Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) override;

 private:
  std::function<void()> startToolkit_;
};

/// The picture in the bytes of a file, as `PictureFiles::Read` gives it. Fails (invalid picture).
PixelBuffer PictureIn(QByteArray content, int mostColumns, int mostRows, Pixel background);

}  // namespace zerimo
