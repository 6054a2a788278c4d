#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/formula.h"

namespace zerimo {

/// The names that a text is read with: the locals of the running procedure, in the order in which they are replaced,
/// and the slots of the globals.
struct NamesInUse {
  struct Local {
    std::string Name;
    int Slot;
  };
  std::vector<Local> Locals;
  /// The slot of a global, or 0.
  std::function<int(std::string_view name)> GlobalSlot;
};

/// Whether a name is made of name characters alone, so that no pasted number can contain it.
bool IsOrdinaryName(std::string_view name);

/// The formula of an expression or a condition, read with these names; nothing if it does not consist of numbers,
/// names, operators and brackets in the usual order.
/// Behaviour: docs/interpreter.md, "Beside an expression".
std::optional<Formula> ReadFormula(std::string_view text, const NamesInUse& names);

}  // namespace zerimo
