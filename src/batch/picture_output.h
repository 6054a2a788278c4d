#pragma once

#include <filesystem>
#include <functional>
#include <utility>

#include "batch/session_pictures.h"
#include "pictures/image_canvas.h"
#include "pictures/svg_picture.h"

namespace zerimo::batch {

/// Pixels and picture files by Qt, and SVG.
class PictureOutput : public SessionPictures {
 public:
  /// `startToolkit` is called each time before the toolkit is needed.
  explicit PictureOutput(std::function<void()> startToolkit = [] {})
      : startToolkit_(std::move(startToolkit)), canvas_(startToolkit_) {}

  ImageCanvas& Pixels() override { return canvas_; }

  /// From now on each operation costs memory.
  void KeepOperations(Surface& surface) override { surface.AddRecorder(svgRecorder_); }

  void Write(const Surface& surface, const std::filesystem::path& file) const override;

 private:
  std::function<void()> startToolkit_;
  ImageCanvas canvas_;
  SvgRecorder svgRecorder_{canvas_};
};

}  // namespace zerimo::batch
