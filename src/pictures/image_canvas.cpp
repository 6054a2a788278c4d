#include "pictures/image_canvas.h"

#include <memory>

#include "pictures/picture_file.h"
#include "pictures/text_painter.h"

namespace zerimo {

ImageCanvas::ImageCanvas() : PixelCanvas(std::make_unique<TextPainter>(), std::make_unique<QtPictureFiles>()) {}

}  // namespace zerimo
