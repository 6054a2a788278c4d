#pragma once

#include <cstdint>
#include <string>

#include "controls/controls.h"
#include "interpreter/lowering.h"
#include "interpreter/program_store.h"
#include "interpreter/runner.h"
#include "interpreter/variables.h"

namespace zerimo {

/// Runs a typed line: wraps it as a temporary procedure in the store, lowers it, runs it and removes it again.
class TypedLines {
 public:
  TypedLines(ProgramStore& programStore, Lowering& repeatLowering, Runner& procedureRunner, Variables& allVariables,
             ListBox& list1)
      : store_(programStore), lowering_(repeatLowering), runner_(procedureRunner), variables_(allVariables), List1(list1) {}

  /// Runs a filtered line; the caller's text is trimmed. Any failure but one inside the run itself leaves at once.
  void ComplexExecutor(std::string& complexData);

  /// Typed lines so far; gives the number in a temporary procedure's name. At 32767 every typed line fails (overflow).
  std::int16_t TempProcNo = 0;
  /// The last line typed, in capitals and filtered.
  std::string LastTypedLine;

 private:
  int WriteTemporaryProcedure(std::string& complexData);
  void RemoveTemporaryProcedure(int firstLine);
  std::string TemporaryName() const { return "#TEMP$" + std::to_string(TempProcNo); }

  ProgramStore& store_;
  Lowering& lowering_;
  Runner& runner_;
  Variables& variables_;
  ListBox& List1;
};

}  // namespace zerimo
