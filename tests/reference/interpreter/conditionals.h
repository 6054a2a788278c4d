#pragma once

#include <cstdint>
#include <string_view>

#include "reference/interpreter/arithmetic.h"
#include "reference/interpreter/context.h"
#include "reference/interpreter/store.h"
#include "reference/interpreter/variables.h"

namespace zerimo::reference {

/// `IF`, `ELSE`, `ENDIF` and labels, by scanning the neighbouring lines each time.
class Conditionals {
 public:
  explicit Conditionals(const ProgramContext& context)
      : store_(context.store), variables_(context.variables), arithmetic_(context.arithmetic) {}

  /// The number of the next line to run for the `IF` on a line; 0 for a false `IF` without `ENDIF`. Fails as its
  /// condition does.
  std::int16_t Ifprocessor(int lineNumber);

  /// The number of the last line that is exactly "LABEL " and the name, or 0.
  std::int16_t LabelPos(std::string_view labelName) const;

 private:
  /// The line of the `ELSE` that counts as this `IF`'s, or 0.
  int FindElse(int lineNumber) const;
  /// The line of the `ENDIF` of this `IF`, or 0.
  int FindEndIf(int lineNumber) const;

  Store& store_;
  const Variables& variables_;
  const Arithmetic& arithmetic_;
};

}  // namespace zerimo::reference
