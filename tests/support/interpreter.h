#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "controls/form_controls.h"
#include "interpreter/arguments.h"
#include "interpreter/arithmetic.h"
#include "interpreter/conditionals.h"
#include "interpreter/control_path.h"
#include "interpreter/dispatch.h"
#include "interpreter/inputs.h"
#include "interpreter/lowering.h"
#include "interpreter/program_store.h"
#include "interpreter/runner.h"
#include "interpreter/turtle_state.h"
#include "interpreter/typed_lines.h"
#include "interpreter/variables.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

/// The interpreter without a window: the store, the language and the runner. What the primitives `FD`, `RT` and `PRINT`
/// got is written down in `Calls`; no other primitive does anything but tell a missing input.
struct Interpreter {
  Interpreter() {
    for (const Action action : {Action::Forward, Action::Right}) {
      Primitives.Bind(action, [this](PrimitiveCall& call) {
        Calls.push_back(call.Word + Str(Stages.Number(call.Rest)));
        Paths.push_back(Path.CtrlStr());
      });
    }
    Primitives.Bind(Action::Print, [this](PrimitiveCall& call) {
      Calls.push_back("PRINT " + call.Rest);
      Paths.push_back(Path.CtrlStr());
    });
    Turtle.TurtleX = static_cast<double>(Controls.Screen.Width / 2);
    Turtle.TurtleY = static_cast<double>(Controls.Screen.Height / 2);
  }

  /// Writes lines into the store from a line number on.
  void Fill(std::initializer_list<const char*> lines, int first = 1) {
    for (const char* line : lines) Store.SetLine(first++, line);
  }

  /// The store's lines up to the first empty one.
  std::vector<std::string> Program() const {
    std::vector<std::string> lines;
    for (int number = 1; !Store.Line(number).empty(); ++number) lines.push_back(Store.Line(number));
    return lines;
  }

  /// Runs a filtered line as a row's Enter key does; tells whether it went through.
  bool Type(std::string line) {
    return PassOver([&] { Lines.ComplexExecutor(line); });
  }

  FormControls Controls{ScreenSize{}};
  FakeServices Desktop;
  LimitedWatch Watch;
  TurtleState Turtle;
  ControlPath Path;
  ProgramStore Store{Controls.List3};
  Arithmetic Evaluation{Watch};
  Variables Names{Store, Path, Turtle, Controls.Form1, Controls.List2, Evaluation, Watch};
  Arguments Stages{Names, Evaluation};
  Inputs Locals{Store, Path, Names};
  Lowering Repeats{Store, Names, Evaluation, Desktop, Controls.Label17, Controls.Label18};
  Conditionals Conditions{Store, Names, Evaluation};
  Dispatch Primitives{Desktop};
  Runner Run{Store, Path, Primitives, Names, Locals, Conditions, Desktop, Watch, Controls.Label19};
  TypedLines Lines{Store, Repeats, Run, Names, Controls.List1};

  std::vector<std::string> Calls;
  /// The control string at each of the calls.
  std::vector<std::string> Paths;
};

}  // namespace zerimo
