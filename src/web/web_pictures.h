#pragma once

#include "batch/session_pictures.h"
#include "pixels/pixel_canvas.h"

namespace zerimo::web {

/// The pixels of a session and its picture files, without a toolkit. SVG can't be written.
class WebPictures : public batch::SessionPictures {
 public:
  /// Fails (file access) if the font can't be read.
  explicit WebPictures(const std::filesystem::path& fontFile);

  Canvas& Pixels() override { return canvas_; }
  void KeepOperations(Surface&) override {}
  void Write(const Surface& surface, const std::filesystem::path& file) const override { surface.SavePicture(file); }

 private:
  PixelCanvas canvas_;
};

}  // namespace zerimo::web
