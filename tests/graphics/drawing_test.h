#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "controls/controls.h"
#include "graphics/colours.h"
#include "graphics/drawing_context.h"
#include "graphics/flood_fill.h"
#include "graphics/motion.h"
#include "graphics/operation_texts.h"
#include "graphics/palette.h"
#include "graphics/shapes.h"
#include "graphics/spy_canvas.h"
#include "graphics/surface.h"
#include "graphics/surface_text.h"
#include "graphics/turtle_figure.h"
#include "graphics/turtle_places.h"
#include "interpreter/arguments.h"
#include "interpreter/arithmetic.h"
#include "interpreter/control_path.h"
#include "interpreter/dispatch.h"
#include "interpreter/store.h"
#include "interpreter/turtle.h"
#include "interpreter/variables.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

using Texts = std::vector<std::string>;

/// The drawing primitives over a surface that writes down its operations. `Screen`, `Form1` and `Picture1` have
/// different sizes, so that a result tells which of them it was reckoned from; the turtle stands at 1000, 2000.
class DrawingTest : public testing::Test {
 protected:
  DrawingTest() {
    controls.Form1.Width = 12000;
    controls.Form1.SetHeight(9000);
    Picture1.CreateCanvas(controls.Screen.Width, controls.Screen.Height);
    Picture1.Width = 10000;
    Picture1.SetHeight(8000);
    Picture1.SetFontSize(12);
    turtle.TurtleX = 1000;
    turtle.TurtleY = 2000;
    turtle.BGColor = Picture1.BackColor();
    turtlePlaces.Bind();
    motion.Bind();
    colours.Bind();
    shapes.Bind();
    floodFills.Bind();
    surfaceText.Bind();
    dispatch.TurtlePos = [this] { turtleFigure.TurtlePos(turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir); };
    dispatch.RefreshSurface = [this] { ++Refreshes; };
    Picture1.AddRecorder(Recorder);
  }

  /// Carries out primitive lines and returns the surface's operations.
  template <typename... Lines>
  Texts Do(typedLines... lines) {
    Recorder.Operations.clear();
    (dispatch.Execute(lines), ...);
    return Recorder.Operations;
  }

  void FenceIn() { turtle.FenceMode = 2; }

  ScreenSize Size{15360, 11520};
  Controls Controls{Size};
  FakeServices services;
  LimitedWatch watch;
  SpyCanvas Pixels;
  OperationTexts Recorder;
  Surface Picture1{"Picture1", Pixels};
  Turtle turtle;
  ControlPath controlPath;
  Store Store{controls.List3};
  Arithmetic Evaluation{watch};
  Variables Names{store, controlPath, turtle, controls.Form1, controls.List2, arithmetic, watch};
  Arguments Stages{variables, arithmetic};
  Dispatch Primitives{services};
  DrawingContext Drawing{turtle, Picture1, controls, arguments, services, dispatch};
  TurtleFigure Figure{controls};
  TurtlePlaces Places{drawing};
  Motion Moves{drawing};
  Colours Colouring{drawing, turtleFigure};
  Shapes Figures{drawing};
  FloodFills Floods{drawing};
  SurfaceText Writing{drawing};
  Palette Mouse{drawing};
  int Refreshes = 0;
};

inline const Texts Nothing;
inline const char* const FenceText = "The Zerimo Turtle can not move outside of the Fence";
inline const char* const MissingText = "Required Paramiter Missing After ";

}  // namespace zerimo
