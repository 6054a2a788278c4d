#pragma once

#include "reference/interpreter/arguments.h"
#include "reference/interpreter/arithmetic.h"
#include "reference/interpreter/conditionals.h"
#include "reference/interpreter/context.h"
#include "reference/interpreter/control_path.h"
#include "reference/interpreter/dispatch.h"
#include "reference/interpreter/inputs.h"
#include "reference/interpreter/lowering.h"
#include "reference/interpreter/runner.h"
#include "reference/interpreter/store.h"
#include "reference/interpreter/typed_lines.h"
#include "reference/interpreter/variables.h"

namespace zerimo::reference {

/// The interpreter: owns the program, the variables and the control string, and lends its parts to the rooms that bind
/// primitives and handle keys. What it is built from must outlive it.
class Interpreter {
  ProgramContext program_;

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

}  // namespace zerimo::reference
