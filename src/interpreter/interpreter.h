#pragma once

#include "interpreter/arguments.h"
#include "interpreter/arithmetic.h"
#include "interpreter/conditionals.h"
#include "interpreter/context.h"
#include "interpreter/control_path.h"
#include "interpreter/dispatch.h"
#include "interpreter/inputs.h"
#include "interpreter/lowering.h"
#include "interpreter/runner.h"
#include "interpreter/store.h"
#include "interpreter/typed_lines.h"
#include "interpreter/variables.h"

namespace zerimo {

/// The interpreter: owns the program, the variables and the control string, and lends its parts to the rooms that bind
/// primitives and handle keys. What it is built from must outlive it.
/// Behaviour: docs/interpreter.md, a section for each part.
class Interpreter {
  ProgramContext context_;

 public:
  explicit Interpreter(const InterpreterContext& context);

  Store store;
  ControlPath controlPath;
  Arithmetic arithmetic;
  Variables variables;
  Arguments arguments;
  Dispatch dispatch;
  Inputs inputs;
  Lowering lowering;
  Conditionals conditionals;
  Runner runner;
  TypedLines typedLines;
};

}  // namespace zerimo
