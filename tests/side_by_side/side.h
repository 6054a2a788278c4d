#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/watch.h"
#include "controls/controls.h"
#include "graphics/surface.h"
#include "side_by_side/kinds.h"
#include "side_by_side/trace.h"
#include "support/fake_services.h"

namespace zerimo {

/// Limits the steps of a typed line, and the rounds of any other loop within one step. Reports each step.
class StepWatch : public Watch {
 public:
  static constexpr int TicksAStep = 1500;

  void LookAtStep() override {
    if (Steps == MostSteps) throw Stopped{"steps"};
    ++Steps;
    ticks_ = 0;
    if (OnStep) OnStep();
  }
  void Tick() override {
    if (++ticks_ > TicksAStep) throw Stopped{"ticks"};
  }
  void Begin(int mostSteps) {
    MostSteps = mostSteps;
    Steps = 0;
    ticks_ = 0;
  }

  int MostSteps = 0;
  int Steps = 0;
  std::function<void()> OnStep;

 private:
  int ticks_ = 0;
};

/// One interpreter with its turtle and surface, and a trace of everything visible.
template <typename Kinds>
class Side : SurfaceRecorder {
 public:
  using PrimitiveCall = typename Kinds::PrimitiveCall;

  Side() {
    controls.Form1.Width = 15360;
    controls.Form1.SetHeight(11520);
    Picture1.CreateCanvas(15360, 11520);
    Picture1.Width = 15360;
    Picture1.SetHeight(9600);
    Picture1.AddRecorder(*this);
    turtle.TurtleX = 7680;
    turtle.TurtleY = 5760;
    places.Bind();
    motion.Bind();
    colours.Bind();
    shapes.Bind();
    interpreter.dispatch.TurtlePos = [this] { figure.TurtlePos(turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir); };
    interpreter.dispatch.Bind("PRINT", [this](PrimitiveCall& call) {
      trace.Note("PRINT" + std::string(call.Word) + Str(interpreter.arguments.Number(RestOf(call))));
    });
    interpreter.dispatch.Bind("SUM", [this](PrimitiveCall& call) {
      const double first = interpreter.arguments.WordNumber(RestOf(call), 1);
      trace.Note("SUM" + Str(first) + Str(interpreter.arguments.WordNumber(RestOf(call), 2)) + RestOf(call));
    });
    interpreter.dispatch.Bind(
        "AEXP", [this](PrimitiveCall& call) { trace.Note("AEXP" + Str(interpreter.arguments.Number(RestOf(call)))); });
    interpreter.dispatch.Bind("REXP", [this](PrimitiveCall& call) {
      interpreter.arguments.ReplaceNames(RestOf(call));
      trace.Note("REXP" + RestOf(call));
    });
    interpreter.dispatch.Bind("LOAD", [this](PrimitiveCall&) {
      for (int number = 1; const std::string& line : ProgramToLoad) interpreter.store.SetLine(number++, line);
    });
  }

  void WatchEachStep() {
    watch.OnStep = [this] { NoteStep(); };
  }

  /// Runs a filtered line as a row's Enter key does.
  void Type(std::string line, int mostSteps) {
    watch.Begin(mostSteps);
    try {
      const bool through = SkipOnFailure([&] { interpreter.typedLines.ComplexExecutor(line); });
      trace.Note(through ? "through" : "failed");
    } catch (const Stopped& stopped) {
      trace.Note("stopped by " + stopped.By);
    }
    NoteAll();
  }

  Controls controls{ScreenSize{}};
  FakeServices services;
  StepWatch watch;
  EmptyCanvas pixels;
  Surface Picture1{"Picture1", pixels};
  typename Kinds::Turtle turtle;
  typename Kinds::Interpreter interpreter{{services, watch, controls, turtle}};
  typename Kinds::DrawingContext drawing{
      {services, watch, controls, turtle}, Picture1, interpreter.arguments, interpreter.dispatch};
  typename Kinds::TurtleFigure figure{controls};
  typename Kinds::TurtlePlaces places{drawing};
  typename Kinds::Motion motion{drawing};
  typename Kinds::Colours colours{drawing, figure};
  typename Kinds::Shapes shapes{drawing};
  std::vector<std::string> ProgramToLoad;
  Trace trace;

 private:
  void Record(const Surface&, const SurfaceOperation& operation) override { trace.Note(operation); }

  void NoteStep() {
    trace.Note(interpreter.controlPath.CtrlStr());
    for (int number = 1; number <= FirstLines && !interpreter.store.Line(number).empty(); ++number) {
      trace.Note(interpreter.store.Line(number));
    }
    for (int number = 1; number <= FirstSlots; ++number) trace.Note(interpreter.variables.Slot(number));
    for (const std::string& item : controls.List2.Items()) trace.Note(item);
    NoteTurtle();
    NoteFigure();
    trace.EndStep();
  }

  void NoteAll() {
    trace.Note(static_cast<double>(watch.Steps));
    trace.Note(interpreter.controlPath.CtrlStr());
    trace.Note(interpreter.controlPath.CurProcName);
    trace.Note(static_cast<double>(interpreter.store.FileDataCount));
    trace.Note(static_cast<double>(interpreter.dispatch.OverflowCount));
    const std::string& label19 = controls.Label19.Caption;
    trace.Note(label19);
    for (const ListBox* list : {&controls.List1, &controls.List2, &controls.List3}) {
      for (const std::string& item : list->Items()) trace.Note(item);
    }
    for (int number = 1; number <= 2000; ++number) trace.Note(interpreter.store.Line(number));
    for (int number = 1; number <= 500; ++number) trace.Note(interpreter.variables.Slot(number));
    for (const ShownBox& box : services.Boxes) trace.Note(box.Text + box.Title);
    services.Boxes.clear();
    NoteTurtle();
    NoteFigure();
    trace.EndStep();
  }

  void NoteTurtle() {
    for (const double number : {turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir, turtle.Resolution}) {
      trace.Note(number);
    }
    trace.Note(static_cast<double>(static_cast<int>(turtle.PenState) * 100 + static_cast<int>(turtle.FenceMode) * 10 +
                                   turtle.PenColor));
  }

  void NoteFigure() {
    for (const LightLine* line : {&controls.Line1, &controls.Line2, &controls.Line3}) {
      for (const float place : {line->X1, line->Y1, line->X2, line->Y2}) trace.Note(static_cast<double>(place));
    }
    for (const float place : {controls.Shape2.Left, controls.Shape2.Top}) trace.Note(static_cast<double>(place));
  }

  static constexpr int FirstLines = 40;
  static constexpr int FirstSlots = 40;
};

}  // namespace zerimo
