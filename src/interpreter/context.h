#pragma once

#include "base/services.h"
#include "base/watch.h"
#include "controls/controls.h"
#include "interpreter/turtle.h"

namespace zerimo {

class Arithmetic;
class ControlPath;
class Store;
class Variables;

/// What the interpreter is given to work with.
struct InterpreterContext {
  Services& services;
  Watch& watch;
  Controls& controls;
  Turtle& turtle;
};

/// What the parts that walk or rewrite the program share besides.
/// Behaviour: docs/interpreter.md, a section for each part.
struct ProgramContext : InterpreterContext {
  Store& store;
  ControlPath& controlPath;
  Variables& variables;
  const Arithmetic& arithmetic;
};

}  // namespace zerimo
