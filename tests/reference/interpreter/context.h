#pragma once

#include "base/services.h"
#include "base/watch.h"
#include "controls/controls.h"
#include "reference/interpreter/turtle.h"

namespace zerimo::reference {

class Arithmetic;
class ControlPath;
class Store;
class Variables;

/// What the interpreter works in.
struct InterpreterContext {
  Services& services;
  Watch& watch;
  Controls& controls;
  Turtle& turtle;
};

/// What the parts share that walk the program or rewrite it.
struct ProgramContext {
  InterpreterContext around;
  Store& store;
  ControlPath& controlPath;
  Variables& variables;
  const Arithmetic& arithmetic;
};

}  // namespace zerimo::reference
