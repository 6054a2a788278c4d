#pragma once

#include <string>
#include <string_view>

#include "interpreter/context.h"
#include "interpreter/control_path.h"
#include "interpreter/store.h"
#include "interpreter/variables.h"

namespace zerimo {

/// The inputs of procedures: entries PROCEDURE.NAME=text among the variables. There are no frames: nothing tells one
/// call's entries from another's.
/// Behaviour: docs/interpreter.md, "Inputs of procedures".
class Inputs {
 public:
  explicit Inputs(const ProgramContext& context)
      : store_(context.store), controlPath_(context.controlPath), variables_(context.variables) {}

  /// Pairs the words of a call with the words of the procedure's header. Fails (subscript) at more than 50 words or
  /// with no free slot.
  void CreateLocalVariable(std::string_view commandLine);
  /// The same for a line of the store.
  void CreateLocalVariable(int lineNumber);

  /// Turns every entry of a procedure into a deleted slot. The caller's text is trimmed.
  void DeleteLocalVariable(std::string& procedureName);

 private:
  void CreateLocals(const Words& call);
  /// A word of a call with its names replaced.
  std::string InputText(const std::string& word) const;

  Store& store_;
  ControlPath& controlPath_;
  Variables& variables_;
};

}  // namespace zerimo
