#pragma once

#include <string>

#include "reference/interpreter/arithmetic.h"
#include "reference/interpreter/variables.h"

namespace zerimo::reference {

/// How a primitive gets its numbers: each argument's text passes through four stages, and each stage is a statement of
/// its own under the skip rule.
class Arguments {
 public:
  Arguments(const Variables& variables, const Arithmetic& arithmetic)
      : variables_(variables), arithmetic_(arithmetic) {}

  /// The value of a text: XCOR and YCOR, locals, globals, arithmetic. What fails is skipped; a value that could not be
  /// computed is 0.
  double Number(std::string text) const;

  /// The value of the n-th word of the caller's text, which `GiveWord` changes.
  double WordNumber(std::string& rest, int nthWord) const;

  /// The first three stages alone, in place.
  void ReplaceNames(std::string& text) const;

  /// The last stage alone: the value, or 0 if it fails.
  double Evaluate(std::string text) const;

 private:
  const Variables& variables_;
  const Arithmetic& arithmetic_;
};

}  // namespace zerimo::reference
