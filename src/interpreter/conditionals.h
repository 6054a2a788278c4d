#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/arithmetic.h"
#include "interpreter/context.h"
#include "interpreter/since_change.h"
#include "interpreter/store.h"
#include "interpreter/variables.h"

namespace zerimo {

/// What stands after the word of a `GOTO` line. Never fails.
std::string_view NameOfLabel(std::string_view jump);

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
  std::int16_t LabelPos(std::string_view labelName) const;

  /// The same for the label of the `GOTO` on a line.
  std::int16_t LabelOf(int lineNumber) {
    return labels_[static_cast<std::size_t>(lineNumber)].Get(
        store_.Changes(), [&] { return LabelPos(NameOfLabel(store_.Line(lineNumber))); });
  }

 private:
  struct Branches {
    int ElseLine;
    int EndIfLine;
  };

  bool Holds(int lineNumber) const {
    const EvaluatedText& condition = store_.FormOf(lineNumber).Condition;
    const auto holds = variables_.KnownToHold(condition);
    return holds ? *holds : HoldsAsText(condition.Text());
  }
  bool HoldsAsText(std::string_view text) const;
  Branches BranchesOf(int lineNumber) {
    return branches_[static_cast<std::size_t>(lineNumber)].Get(store_.Changes(), [&] {
      return Branches{FindElse(lineNumber), FindEndIf(lineNumber)};
    });
  }
  /// The line of the `ELSE` that counts as this `IF`'s, or 0.
  int FindElse(int lineNumber) const;
  /// The line of the `ENDIF` of this `IF`, or 0.
  int FindEndIf(int lineNumber) const;

  Store& store_;
  const Variables& variables_;
  const Arithmetic& arithmetic_;
  /// By the number of the line.
  std::vector<SinceChange<Branches>> branches_{Store::LineCount + 1};
  std::vector<SinceChange<std::int16_t>> labels_{Store::LineCount + 1};
};

}  // namespace zerimo
