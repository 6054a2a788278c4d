#pragma once

#include <QImage>
#include <QRect>

#include "pixels/pixel_buffer.h"

namespace zerimo {

/// An image of that size with the resolution that text is measured by: 96 dots to the inch.
QImage MakeTextImage(int width, int height, QImage::Format format);

/// Images over the memory of a buffer, without a copy and with that resolution. They are valid as long as the buffer
/// keeps its size.
QImage ImageOver(PixelBuffer& pixels);
QImage ImageOver(const PixelBuffer& pixels);

inline QRect ToQRect(const PixelRect& rect) { return {QPoint(rect.Left, rect.Top), QPoint(rect.Right, rect.Bottom)}; }

}  // namespace zerimo
