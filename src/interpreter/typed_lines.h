#pragma once

#include <cstdint>
#include <string>

#include "interpreter/context.h"
#include "interpreter/lowering.h"
#include "interpreter/runner.h"

namespace zerimo {

/// Runs a typed line: wraps it as a temporary procedure in the store, lowers it, runs it and removes it again.
/// Behaviour: docs/interpreter.md, "A typed line".
class TypedLines {
 public:
  TypedLines(const ProgramContext& context, Lowering& lowering, Runner& runner)
      : context_(context), lowering_(lowering), runner_(runner) {}

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

  ProgramContext context_;
  Lowering& lowering_;
  Runner& runner_;
};

}  // namespace zerimo
