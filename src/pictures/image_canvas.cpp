#include "pictures/image_canvas.h"

#include <memory>

#include "pictures/picture_file.h"
#include "pictures/text_painter.h"

namespace zerimo {

namespace {

/// 96 dots to the inch.
constexpr int DotsPerMetre = 3780;

QImage WithResolution(QImage image) {
  image.setDotsPerMeterX(DotsPerMetre);
  image.setDotsPerMeterY(DotsPerMetre);
  return image;
}

qsizetype BytesPerRow(const PixelBuffer& pixels) { return qsizetype{pixels.Stride()} * qsizetype{sizeof(Pixel)}; }

}  // namespace

QImage MakeTextImage(int width, int height, QImage::Format format) {
  return WithResolution(QImage(width, height, format));
}

QImage ImageOver(PixelBuffer& pixels) {
  return WithResolution(QImage(reinterpret_cast<uchar*>(pixels.Row(0)), pixels.Columns(), pixels.Rows(),
                               BytesPerRow(pixels), QImage::Format_RGB32));
}

QImage ImageOver(const PixelBuffer& pixels) {
  return WithResolution(QImage(reinterpret_cast<const uchar*>(pixels.Row(0)), pixels.Columns(), pixels.Rows(),
                               BytesPerRow(pixels), QImage::Format_RGB32));
}

ImageCanvas::ImageCanvas(const std::function<void()>& startToolkit)
    : PixelCanvas(std::make_unique<TextPainter>(startToolkit), std::make_unique<QtPictureFiles>(startToolkit)) {}

}  // namespace zerimo
