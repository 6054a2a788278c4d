#pragma once

#include <optional>
#include <string_view>

#include "interpreter/control_path.h"
#include "interpreter/evaluated_text.h"
#include "interpreter/operands.h"
#include "interpreter/since_change.h"
#include "interpreter/slot_forms.h"

namespace zerimo {

class Variables;

/// Evaluates texts by their formulas. A text that was not read in the running procedure and the current state of the
/// names is read now.
/// Behaviour: docs/interpreter.md, "Beside an expression".
class Formulas {
 public:
  Formulas(const Variables& variables, const NameStates& names, const Operands& operands,
           const ControlPath& controlPath)
      : variables_(variables), names_(names), operands_(operands), controlPath_(controlPath) {}

  /// The value of an expression, if literal evaluation is known to give the same; otherwise no number.
  /// Never fails.
  double Value(const EvaluatedText& expression) const {
    const Formula* const formula = Of(expression);
    return formula == nullptr ? NoNumber : formula->Value(operands_);
  }
  /// The same for a condition. Never fails.
  std::optional<bool> Holds(const EvaluatedText& condition) const {
    const Formula* const formula = Of(condition);
    return formula == nullptr ? std::nullopt : formula->Holds(operands_);
  }
  /// The formula itself, or null. Never fails.
  const Formula* Of(const EvaluatedText& text) const {
    for (const EvaluatedText::Reading& reading : text.readings_) {
      if (reading.Names == names_.Now() && reading.Procedure == controlPath_.ProcedureNumber()) {
        return reading.Form ? &*reading.Form : nullptr;
      }
    }
    return Read(text);
  }

  /// A text that belongs to no line, with the formulas that it had when it was last evaluated.
  const EvaluatedText& Known(std::string_view text);

 private:
  const Formula* Read(const EvaluatedText& text) const;

  const Variables& variables_;
  const NameStates& names_;
  const Operands& operands_;
  const ControlPath& controlPath_;
  TextMap<EvaluatedText> texts_;
};

}  // namespace zerimo
