#include "pictures/image_canvas.h"

#include <memory>

#include "pictures/picture_file.h"
#include "pictures/text_painter.h"

namespace zerimo {

ImageCanvas::ImageCanvas(const std::function<void()>& startToolkit)
    : PixelCanvas(std::make_unique<TextPainter>(startToolkit), std::make_unique<QtPictureFiles>(startToolkit)) {}

}  // namespace zerimo
