#pragma once

#include <string>
#include <string_view>

#include "interpreter/arithmetic.h"
#include "interpreter/primitive_call.h"
#include "interpreter/variables.h"

namespace zerimo {

/// How a primitive gets its numbers: each argument's text passes through four stages, and each stage is a statement of
/// its own under the skip rule.
/// Behaviour: docs/interpreter.md, "The four stages of an input".
class Arguments {
 public:
  Arguments(const Variables& variables, const Arithmetic& arithmetic)
      : variables_(variables), arithmetic_(arithmetic) {}

  /// The value of a text: XCOR and YCOR, locals, globals, arithmetic. What fails is skipped; a value that could not
  /// be computed is 0.
  double Number(std::string_view input) const { return Number(variables_.Known(input)); }

  /// The same for the whole input of a call, whatever the action has made of it.
  double Number(const PrimitiveCall& call) const {
    return call.Kept != nullptr ? Number(*call.Kept) : Number(call.Input);
  }

  /// The value of the n-th word of the caller's text, which `GiveWord` changes.
  double WordNumber(std::string& rest, int nthWord) const;

  /// The first three stages alone, in place.
  void ReplaceNames(std::string& text) const;

  /// The last stage alone: the value, or 0 if it fails.
  double Evaluate(std::string text) const;

 private:
  double Number(const EvaluatedText& input) const {
    const double known = variables_.Known().Value(input);
    return IsNumber(known) ? known : NumberOfText(input.Text());
  }
  double NumberOfText(std::string text) const;

  const Variables& variables_;
  const Arithmetic& arithmetic_;
};

}  // namespace zerimo
