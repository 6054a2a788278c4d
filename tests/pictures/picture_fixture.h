#pragma once

#include "pictures/image_canvas.h"
#include "pixels/canvas_fixture.h"

namespace zerimo {

/// A small canvas with the texts and picture files of the desktop.
using PictureTest = CanvasTestOf<ImageCanvas>;

}  // namespace zerimo
