#pragma once

#include <string>
#include <string_view>

#include "interpreter/arithmetic.h"

/// Comparisons. Behaviour: docs/interpreter.md, "Relations".
namespace zerimo {

/// Decides a condition with at most one comparison ("<", ">", "<=", ">=", "!", "!=", "="). Without one, any value but 0
/// is true, and the caller's text comes back with its brackets replaced. Fails as its sides do.
bool RelationEvaluator(std::string& expression, const Arithmetic& arithmetic);

/// Whether a comparison ("<", ">", "<=", ">=", "!", "!=", "=") holds; "==" never does.
bool Compare(double left, std::string_view comparison, double right) noexcept;

}  // namespace zerimo
