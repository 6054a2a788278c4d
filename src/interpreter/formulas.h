#pragma once

#include <optional>
#include <string_view>

#include "interpreter/control_path.h"
#include "interpreter/evaluated_text.h"
#include "interpreter/operands.h"
#include "interpreter/since_change.h"

namespace zerimo {

class Variables;

/// Evaluates texts by their formulas. A text that was not read in the running procedure and the current state of the
/// names is read now.
/// Behaviour: docs/interpreter.md, "Beside an expression".
class Formulas {
 public:
  Formulas(const Variables& variables, const Operands& operands, const ControlPath& controlPath)
      : variables_(variables), operands_(operands), controlPath_(controlPath) {}

  /// The value of an expression, if literal evaluation is known to give the same; otherwise no number.
  /// Never fails.
  double Value(const EvaluatedText& expression) const;
  /// The same for a condition. Never fails.
  std::optional<bool> Holds(const EvaluatedText& condition) const;
  /// The formula itself, or null. Never fails.
  const Formula* Of(const EvaluatedText& text) const;

  /// A text that belongs to no line, with the formulas that it had when it was last evaluated.
  const EvaluatedText& Known(std::string_view text);

 private:
  const Formula* Read(const EvaluatedText& text) const;

  const Variables& variables_;
  const Operands& operands_;
  const ControlPath& controlPath_;
  TextMap<EvaluatedText> texts_;
};

}  // namespace zerimo
