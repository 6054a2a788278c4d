#include "interpreter/conditionals.h"

#include <string>

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/relations.h"

namespace zerimo {

std::string_view NameOfLabel(std::string_view jump) { return From(jump, 6); }  // Never fails.

std::int16_t Conditionals::Ifprocessor(int lineNumber) {
  store_.FileDataCount = static_cast<std::int16_t>(store_.FirstEmptyLine() - 1);
  const Branches branches = BranchesOf(lineNumber);
  const int next = Holds(lineNumber)        ? lineNumber + 1
                   : branches.ElseLine != 0 ? branches.ElseLine + 1
                                            : branches.EndIfLine;
  return static_cast<std::int16_t>(next);
}

[[gnu::noinline]] bool Conditionals::HoldsAsText(std::string_view text) const {
  std::string condition(text);
  condition = variables_.ReplaceXcorAndYcor(condition);
  condition = variables_.VarValReplacer(condition);
  condition = variables_.GlobalVariableReplacer(condition);
  return RelationEvaluator(condition, arithmetic_);
}

int Conditionals::FindElse(int lineNumber) const {
  int open = 1;
  int close = 0;
  bool innerIf = false;
  for (int number = lineNumber + 1; store_.ClassOf(number) != StmtEnd && open != close; ++number) {
    switch (store_.ClassOf(number)) {
      case StmtIf:
        ++open;
        innerIf = true;
        break;
      case StmtEndIf:
        ++close;
        // A flag, not a depth: an inner ENDIF clears it even if another inner IF is still open.
        innerIf = false;
        break;
      case StmtElse:
        if (!innerIf) return number;
        break;
      default:
        break;
    }
  }
  return 0;
}

int Conditionals::FindEndIf(int lineNumber) const {
  int open = 0;
  int close = 0;
  for (int number = lineNumber; store_.ClassOf(number) != StmtEnd; ++number) {
    if (store_.ClassOf(number) == StmtIf) ++open;
    if (store_.ClassOf(number) == StmtEndIf) ++close;
    if (open == close) return number;
  }
  return 0;
}

std::int16_t Conditionals::LabelPos(std::string_view labelName) const {
  const std::string wanted = "LABEL " + std::string(labelName);
  int found = 0;
  // There is no early exit: of several labels the last one wins.
  for (int number = 1; !store_.Line(number).empty(); ++number) {
    if (store_.Line(number) == wanted) found = number;
  }
  return static_cast<std::int16_t>(found);
}

}  // namespace zerimo
