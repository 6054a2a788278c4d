#pragma once

#include <filesystem>

#include "graphics/surface.h"
#include "pictures/image_canvas.h"
#include "pictures/svg_picture.h"

namespace zerimo::batch {

/// The pixels of a session, and its pictures as files.
class PictureOutput {
 public:
  ImageCanvas& Pixels() { return canvas_; }

  /// Keeps the operations of the surface from now on, for a picture made of shapes. Each costs memory.
  void KeepOperations(Surface& surface) { surface.AddRecorder(operations_); }

  /// Writes the surface as large as it is now; the file's ending decides the format. Fails (file access).
  void Write(const Surface& surface, const std::filesystem::path& file) const;

 private:
  ImageCanvas canvas_;
  SvgRecorder operations_{canvas_};
};

}  // namespace zerimo::batch
