#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "interpreter/arithmetic.h"
#include "interpreter/context.h"
#include "interpreter/since_change.h"
#include "interpreter/store.h"
#include "interpreter/variables.h"

namespace zerimo {

/// `IF`, `ELSE`, `ENDIF` and labels, by scanning the neighbouring lines. Results are kept until a line changes.
/// Behaviour: docs/interpreter.md, "IF, ELSE, ENDIF, GOTO, LABEL".
class Conditionals {
 public:
  explicit Conditionals(const ProgramContext& context)
      : store_(context.store), variables_(context.variables), arithmetic_(context.arithmetic) {}

  /// The number of the next line to run for the `IF` on a line; 0 for a false `IF` without `ENDIF`. Fails as its
  /// condition does.
  std::int16_t Ifprocessor(int lineNumber);

  /// The number of the last line that is exactly "LABEL " and the name, or 0.
  std::int16_t LabelPos(std::string_view labelName);

 private:
  struct Branches {
    int ElseLine;
    int EndIfLine;
  };

  bool Holds(int lineNumber) const;
  Branches BranchesOf(int lineNumber);
  std::int16_t FindLabel(std::string_view labelName) const;
  /// The line of the `ELSE` that counts as this `IF`'s, or 0.
  int FindElse(int lineNumber) const;
  /// The line of the `ENDIF` of this `IF`, or 0.
  int FindEndIf(int lineNumber) const;

  Store& store_;
  const Variables& variables_;
  const Arithmetic& arithmetic_;
  SinceChange<std::unordered_map<int, Branches>> branches_;
  SinceChange<TextMap<std::int16_t>> labels_;
};

}  // namespace zerimo
