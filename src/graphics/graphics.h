#pragma once

#include "graphics/colours.h"
#include "graphics/drawing_context.h"
#include "graphics/flood_fill.h"
#include "graphics/motion.h"
#include "graphics/palette.h"
#include "graphics/shapes.h"
#include "graphics/surface_text.h"
#include "graphics/turtle_figure.h"
#include "graphics/turtle_places.h"

namespace zerimo {

/// The drawing primitives, the turtle's figure, and the mouse on the surface and the palette.
class Graphics {
 public:
  explicit Graphics(const DrawingContext& context)
      : turtleFigure(context.controls),
        turtlePlaces(context),
        motion(context),
        colours(context, turtleFigure),
        shapes(context),
        floodFills(context),
        surfaceText(context),
        palette(context) {}

  /// Binds the primitives of this room to their actions.
  void Bind() {
    turtlePlaces.Bind();
    motion.Bind();
    colours.Bind();
    shapes.Bind();
    floodFills.Bind();
    surfaceText.Bind();
  }

  TurtleFigure turtleFigure;
  TurtlePlaces turtlePlaces;
  Motion motion;
  Colours colours;
  Shapes shapes;
  FloodFills floodFills;
  SurfaceText surfaceText;
  Palette palette;
};

}  // namespace zerimo
