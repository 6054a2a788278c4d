#pragma once

#include <QImage>

#include "pictures/pixel_image.h"
#include "pixels/pixel_canvas.h"

namespace zerimo {

/// The canvas with Qt's text and picture files. Printing text needs a QGuiApplication.
class ImageCanvas : public PixelCanvas {
 public:
  ImageCanvas();

  /// The pixels as they are at any time, without a copy (Format_RGB32).
  QImage Image() const { return ImageOver(Pixels()); }
};

}  // namespace zerimo
