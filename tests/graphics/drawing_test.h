#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "controls/form_controls.h"
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
#include "interpreter/program_store.h"
#include "interpreter/turtle_state.h"
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
    Controls.Form1.Width = 12000;
    Controls.Form1.SetHeight(9000);
    Picture1.CreateCanvas(Controls.Screen.Width, Controls.Screen.Height);
    Picture1.Width = 10000;
    Picture1.SetHeight(8000);
    Picture1.SetFontSize(12);
    Turtle.TurtleX = 1000;
    Turtle.TurtleY = 2000;
    Turtle.BGColor = Picture1.BackColor();
    Places.Bind();
    Moves.Bind();
    Colouring.Bind();
    Figures.Bind();
    Floods.Bind();
    Writing.Bind();
    Primitives.TurtlePos = [this] { Figure.TurtlePos(Turtle.TurtleX, Turtle.TurtleY, Turtle.TurtleDir); };
    Primitives.RefreshSurface = [this] { ++Refreshes; };
    Picture1.AddRecorder(Recorder);
  }

  /// Carries out primitive lines and returns the surface's operations.
  template <typename... Lines>
  Texts Do(Lines... lines) {
    Recorder.Operations.clear();
    (Primitives.Execute(lines), ...);
    return Recorder.Operations;
  }

  void FenceIn() { Turtle.FenceMode = 2; }

  ScreenSize Size{15360, 11520};
  FormControls Controls{Size};
  FakeServices Desktop;
  LimitedWatch Watch;
  SpyCanvas Pixels;
  OperationTexts Recorder;
  Surface Picture1{"Picture1", Pixels};
  TurtleState Turtle;
  ControlPath Path;
  ProgramStore Store{Controls.List3};
  Arithmetic Evaluation{Watch};
  Variables Names{Store, Path, Turtle, Controls.Form1, Controls.List2, Evaluation, Watch};
  Arguments Stages{Names, Evaluation};
  Dispatch Primitives{Desktop};
  DrawingContext Drawing{Turtle, Picture1, Controls, Stages, Desktop, Primitives};
  TurtleFigure Figure{Controls};
  TurtlePlaces Places{Drawing};
  Motion Moves{Drawing};
  Colours Colouring{Drawing, Figure};
  Shapes Figures{Drawing};
  FloodFills Floods{Drawing};
  SurfaceText Writing{Drawing};
  Palette Mouse{Drawing};
  int Refreshes = 0;
};

inline const Texts Nothing;
inline const char* const FenceText = "The Zerimo Turtle can not move outside of the Fence";
inline const char* const MissingText = "Required Paramiter Missing After ";

}  // namespace zerimo
