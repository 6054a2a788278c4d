#pragma once

#include <QImage>
#include <functional>

#include "pictures/pixel_image.h"
#include "pixels/pixel_canvas.h"

namespace zerimo {

/// The canvas with Qt's text and picture files. Printing text needs a QGuiApplication.
class ImageCanvas : public PixelCanvas {
 public:
  /// `startToolkit` is called each time before text or a picture file needs the toolkit.
  explicit ImageCanvas(const std::function<void()>& startToolkit = [] {});

  /// The pixels as they are at any time, without a copy (Format_RGB32).
  QImage Image() const { return ImageOver(Pixels()); }
};

}  // namespace zerimo
