#pragma once

#include <string>
#include <string_view>

#include "reference/interpreter/context.h"
#include "reference/interpreter/control_path.h"
#include "reference/interpreter/store.h"
#include "reference/interpreter/variables.h"

namespace zerimo::reference {

/// The inputs of procedures: entries PROCEDURE.NAME=text among the variables. There are no frames: nothing tells one
/// call's entries from another's.
class Inputs {
 public:
  explicit Inputs(const ProgramContext& context)
      : store_(context.store), controlPath_(context.controlPath), variables_(context.variables) {}

  /// Pairs the words of a call with the words of the procedure's header. Fails (subscript) at more than 50 words or
  /// with no free slot.
  void CreateLocalVariable(std::string_view commandLine);

  /// Turns every entry of a procedure into a deleted slot. The caller's text is trimmed.
  void DeleteLocalVariable(std::string& procedureName);

 private:
  Store& store_;
  ControlPath& controlPath_;
  Variables& variables_;
};

}  // namespace zerimo::reference
