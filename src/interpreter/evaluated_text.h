#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/formula.h"

namespace zerimo {

/// A text that is evaluated, with its formulas: one for each of the latest few procedures and states of the names in
/// which it was read.
/// Behaviour: docs/interpreter.md, "Beside an expression".
class EvaluatedText {
 public:
  EvaluatedText() = default;
  explicit EvaluatedText(std::string_view text) : text_(text) {}

  const std::string& Text() const noexcept { return text_; }

 private:
  friend class Formulas;
  struct Reading {
    std::uint64_t Names;
    std::uint32_t Procedure;
    std::optional<Formula> Form;
  };

  std::string text_;
  mutable std::vector<Reading> readings_;
  mutable std::size_t oldest_ = 0;
};

}  // namespace zerimo
