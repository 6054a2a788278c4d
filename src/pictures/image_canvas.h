#pragma once

#include <QImage>
#include <QRect>
#include <functional>

#include "pixels/pixel_buffer.h"
#include "pixels/pixel_canvas.h"

namespace zerimo {

/// An image of that size with the resolution that text is measured by: 96 dots to the inch.
QImage MakeTextImage(int width, int height, QImage::Format format);

/// Images over the memory of a buffer, without a copy and with that resolution. They are valid as long as the buffer
/// keeps its size.
QImage ImageOver(PixelBuffer& pixels);
QImage ImageOver(const PixelBuffer& pixels);

inline QRect ToQRect(const PixelRect& rect) { return {QPoint(rect.Left, rect.Top), QPoint(rect.Right, rect.Bottom)}; }

/// The canvas with Qt's text and picture files. Printing text needs a QGuiApplication.
class ImageCanvas : public PixelCanvas {
 public:
  /// `startToolkit` is called each time before text or a picture file needs the toolkit.
  explicit ImageCanvas(const std::function<void()>& startToolkit = [] {});

  /// The pixels as they are at any time, without a copy (Format_RGB32).
  QImage Image() const { return ImageOver(Pixels()); }
};

}  // namespace zerimo
