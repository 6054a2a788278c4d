#pragma once

#include <string>
#include <string_view>

#include "interpreter/control_path.h"
#include "interpreter/program_store.h"
#include "interpreter/variables.h"

namespace zerimo {

/// The inputs of procedures: entries PROCEDURE.NAME=text among the variables. There are no frames: nothing tells one
/// activation's entries from another's.
class Inputs {
 public:
  Inputs(ProgramStore& programStore, ControlPath& controlPath, Variables& allVariables)
      : store_(programStore), path_(controlPath), variables_(allVariables) {}

  /// Pairs the words of a call with the words of the procedure's header. Fails (subscript) at more than 50 words or
  /// with no free slot.
  void CreateLocalVariable(std::string_view commandLine);

  /// Turns every entry of a procedure into a deleted slot. The caller's text is trimmed.
  void DeleteLocalVariable(std::string& procedureName);

 private:
  ProgramStore& store_;
  ControlPath& path_;
  Variables& variables_;
};

}  // namespace zerimo
