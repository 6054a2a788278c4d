#pragma once

#include <string>
#include <string_view>

#include "interpreter/arithmetic.h"

/// Comparisons. Behaviour: docs/interpreter.md, "Relations".
namespace zerimo {

/// Decides a condition with at most one comparison ("<", ">", "<=", ">=", "!", "!=", "="). Without one, any value but 0
/// is true, and the caller's text comes back with its brackets replaced. Fails as its sides do.
bool RelationEvaluator(std::string& expression, const Arithmetic& arithmetic);

/// What an operator asks of two numbers. `Never` is what "==" asks, which is no operator.
enum class Comparison { Less, Greater, NotGreater, NotLess, Unequal, Equal, Never };

/// The comparison that an operator makes ("<", ">", "<=", ">=", "!", "!=", "="); `Never` for anything else.
Comparison ComparisonOf(std::string_view text) noexcept;

inline bool Holds(Comparison comparison, double left, double right) noexcept {
  switch (comparison) {
    case Comparison::Less:
      return left < right;
    case Comparison::Greater:
      return left > right;
    case Comparison::NotGreater:
      return left <= right;
    case Comparison::NotLess:
      return left >= right;
    case Comparison::Unequal:
      return left != right;
    case Comparison::Equal:
      return left == right;
    case Comparison::Never:
      return false;
  }
  return false;
}

}  // namespace zerimo
