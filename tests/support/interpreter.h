#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "controls/controls.h"
#include "interpreter/interpreter.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

/// The interpreter without a window: the store, the language and the runner. `Calls` records what the primitives `FD`,
/// `RT` and `PRINT` are given; other primitives only report a missing input.
struct BareInterpreter {
  BareInterpreter() {
    for (const Action action : {Action("FD"), Action("RT")}) {
      dispatch.Bind(action, [this](PrimitiveCall& call) {
        Calls.push_back(std::string(call.Word) + Str(arguments.Number(call.Rest())));
        Paths.push_back(controlPath.CtrlStr());
      });
    }
    dispatch.Bind("PRINT", [this](PrimitiveCall& call) {
      Calls.push_back("PRINT " + call.Rest());
      Paths.push_back(controlPath.CtrlStr());
    });
    turtle.TurtleX = static_cast<double>(controls.Screen.Width / 2);
    turtle.TurtleY = static_cast<double>(controls.Screen.Height / 2);
  }

  /// Writes lines into the store from a line number on.
  void Fill(std::initializer_list<const char*> lines, int first = 1) {
    for (const char* line : lines) store.SetLine(first++, line);
  }

  /// The store's lines up to the first empty one.
  std::vector<std::string> Program() const {
    std::vector<std::string> lines;
    for (int number = 1; !store.Line(number).empty(); ++number) lines.push_back(store.Line(number));
    return lines;
  }

  /// Runs a filtered line as a row's Enter key does; returns whether it succeeded.
  bool Type(std::string line) {
    return SkipOnFailure([&] { typedLines.ComplexExecutor(line); });
  }

  Controls controls{ScreenSize{}};
  FakeServices services;
  LimitedWatch watch;
  Turtle turtle;
  Interpreter interpreter{{services, watch, controls, turtle}};

  // The parts, so that a test reads as the system does.
  ControlPath& controlPath = interpreter.controlPath;
  Store& store = interpreter.store;
  Arithmetic& arithmetic = interpreter.arithmetic;
  Variables& variables = interpreter.variables;
  Arguments& arguments = interpreter.arguments;
  Inputs& inputs = interpreter.inputs;
  Lowering& lowering = interpreter.lowering;
  Conditionals& conditionals = interpreter.conditionals;
  Dispatch& dispatch = interpreter.dispatch;
  Runner& runner = interpreter.runner;
  TypedLines& typedLines = interpreter.typedLines;

  std::vector<std::string> Calls;
  /// The control string at each of those calls.
  std::vector<std::string> Paths;
};

}  // namespace zerimo
