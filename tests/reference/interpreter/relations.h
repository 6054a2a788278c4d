#pragma once

#include <string>

#include "reference/interpreter/arithmetic.h"

namespace zerimo::reference {

/// Behaviour: docs/interpreter.md, "Relations".
/// Decides a condition with at most one comparison ("<", ">", "<=", ">=", "!", "!=", "="). Without one, any value but 0
/// is true, and the caller's text comes back with its brackets replaced. Fails as its sides do.
bool RelationEvaluator(std::string& expression, const Arithmetic& arithmetic);

}  // namespace zerimo::reference
