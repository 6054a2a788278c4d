#pragma once

#include "files/folders.h"
#include "interpreter/interpreter.h"

namespace zerimo {

/// What the parts of this room work on.
struct FilesContext {
  Interpreter& interpreter;
  Controls& controls;
  Services& services;
  const Folders& folders;
};

}  // namespace zerimo
