#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "controls/controls.h"
#include "graphics/graphics.h"
#include "graphics/operation_texts.h"
#include "graphics/spy_canvas.h"
#include "graphics/surface.h"
#include "interpreter/interpreter.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

using Texts = std::vector<std::string>;

/// The drawing primitives with a surface that records its operations. `Screen`, `Form1` and `Picture1` have different
/// sizes, so that a result shows which of them it was worked out from; the turtle is at 1000, 2000.
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
    graphics.Bind();
    dispatch.TurtlePos = [this] { turtleFigure.TurtlePos(turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir); };
    dispatch.RefreshSurface = [this] { ++Refreshes; };
    Picture1.AddRecorder(Recorder);
  }

  /// Carries out primitive lines and returns the surface's operations.
  template <typename... Lines>
  Texts Do(Lines... lines) {
    Recorder.Operations.clear();
    (dispatch.Execute(lines), ...);
    return Recorder.Operations;
  }

  void FenceIn() { turtle.FenceMode = TurtleBounds::Fence; }

  ScreenSize Size{15360, 11520};
  Controls controls{Size};
  FakeServices services;
  LimitedWatch watch;
  SpyCanvas Pixels;
  OperationTexts Recorder;
  Surface Picture1{"Picture1", Pixels};
  Turtle turtle;
  Interpreter interpreter{{services, watch, controls, turtle}};
  Store& store = interpreter.store;
  Variables& variables = interpreter.variables;
  Arguments& arguments = interpreter.arguments;
  Dispatch& dispatch = interpreter.dispatch;
  DrawingContext drawing{{services, watch, controls, turtle}, Picture1, arguments, dispatch};
  Graphics graphics{drawing};
  TurtleFigure& turtleFigure = graphics.turtleFigure;
  Colours& colours = graphics.colours;
  FloodFills& floodFills = graphics.floodFills;
  Palette& palette = graphics.palette;
  int Refreshes = 0;
};

inline const Texts Nothing;
inline const char* const FenceText = "The Zerimo Turtle can not move outside of the Fence";
inline const char* const MissingText = "Required Paramiter Missing After ";

}  // namespace zerimo
