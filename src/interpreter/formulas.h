#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "interpreter/control_path.h"
#include "interpreter/formula.h"
#include "interpreter/formula_reader.h"
#include "interpreter/since_change.h"

namespace zerimo {

class Variables;

/// The formulas of evaluated texts, each for the procedure and the state of the names in which it was read. In another
/// procedure or state the text is read again.
class Formulas {
 public:
  Formulas(const Variables& variables, const OperandSource& source, const ControlPath& controlPath)
      : variables_(variables), source_(source), controlPath_(controlPath) {}

  /// The value of an expression, if literal evaluation is known to give the same. Never fails.
  std::optional<double> Value(std::string_view expression);
  /// The same for a condition. Never fails.
  std::optional<bool> Holds(std::string_view condition);
  /// The formula itself, or nothing.
  const Formula* Of(std::string_view text);

 private:
  struct Read {
    std::uint64_t Names = 0;
    std::string Procedure;
    std::optional<Formula> Form;
  };
  /// A text may be evaluated in a few procedures in turn.
  struct Readings {
    std::array<Read, 4> Kept;
    std::size_t Oldest = 0;
  };

  const Variables& variables_;
  const OperandSource& source_;
  const ControlPath& controlPath_;
  TextMap<Readings> texts_;
};

}  // namespace zerimo
