#pragma once

#include <filesystem>
#include <functional>
#include <utility>

#include "graphics/surface.h"
#include "pictures/image_canvas.h"
#include "pictures/svg_picture.h"

namespace zerimo::batch {

/// The pixels of a session, and its pictures as files.
class PictureOutput {
 public:
  /// `startToolkit` is called each time before the toolkit is needed.
  explicit PictureOutput(std::function<void()> startToolkit = [] {})
      : startToolkit_(std::move(startToolkit)), canvas_(startToolkit_) {}

  ImageCanvas& Pixels() { return canvas_; }

  /// Keeps the operations of the surface from now on, for a picture made of shapes. Each costs memory.
  void KeepOperations(Surface& surface) { surface.AddRecorder(operations_); }

  /// Writes the surface as large as it is now; the file's ending decides the format. Fails (file access).
  void Write(const Surface& surface, const std::filesystem::path& file) const;

 private:
  std::function<void()> startToolkit_;
  ImageCanvas canvas_;
  SvgRecorder operations_{canvas_};
};

}  // namespace zerimo::batch
