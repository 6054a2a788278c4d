#pragma once

#include <string>
#include <string_view>

#include "interpreter/arithmetic.h"

/// Comparisons. Behaviour: docs/interpreter.md, "Relations".
namespace zerimo {

/// Decides a condition with at most one comparison ("<", ">", "<=", ">=", "!", "!=", "="). Without one, any value but 0
/// is true, and the caller's text comes back with its brackets replaced. Fails as its sides do.
bool RelationEvaluator(std::string& expression, const Arithmetic& arithmetic);

/// Whether two numbers compare in some way ("<", ">", "<=", ">=", "!", "!=", "=").
using Comparison = bool (*)(double left, double right);

/// The comparison that an operator makes. That of anything else, also of "==", is never true.
Comparison ComparisonOf(std::string_view text) noexcept;

}  // namespace zerimo
