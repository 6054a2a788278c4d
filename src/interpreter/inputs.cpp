#include "interpreter/inputs.h"

#include <optional>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/text.h"

namespace zerimo {

void Inputs::CreateLocalVariable(std::string_view commandLine) { CreateLocals(Words(commandLine)); }

void Inputs::CreateLocalVariable(int lineNumber) {
  const LineForm& line = store_.FormOf(lineNumber);
  if (!line.Call) return CreateLocalVariable(store_.Line(lineNumber));
  CreateLocals(*line.Call);
}

void Inputs::CreateLocals(const Words& call) {
  const int header = store_.WhereProcedure(Trimmed(call.At(1)));
  const LineForm& line = store_.FormOf(header);
  // The line that is found as a header may be of another class.
  const std::optional<Words> other = line.Header ? std::nullopt : std::optional(WordsOfHeader(store_.Line(header)));
  const Words& names = other ? *other : *line.Header;

  int slot = variables_.FirstOpenSlot();
  for (int word = 2; !call.Ends(word) && !names.Ends(word + 1); ++word) {
    std::string value = InputText(call.At(word));
    // The slots are filled one after the other, whatever they hold.
    variables_.SetSlot(slot++, call.At(1) + "." + names.At(word + 1) + "=" + value);
  }
  variables_.RebuildList2();
  controlPath_.CurProcName = call.At(1);
}

std::string Inputs::InputText(const std::string& word) const {
  if (const Formula* const formula = variables_.Known().Of(variables_.Known(word))) {
    const Operand* const operand = formula->OnlyOperand();
    if (operand != nullptr && operand->What == Operand::Kind::Constant) return std::string(Trimmed(word));
    if (operand != nullptr && operand->IsName()) {
      if (auto text = variables_.TextOf(*operand)) return std::move(*text);
    }
  }
  std::string text = word;
  text = variables_.VarValReplacer(text);
  return variables_.GlobalVariableReplacer(text);
}

void Inputs::DeleteLocalVariable(std::string& procedureName) {
  Trim(procedureName);
  const std::vector<int> slots = variables_.SlotsOfProcedure(procedureName);
  for (const int slot : slots) {
    variables_.SetSlot(slot, " ");
    variables_.RebuildList2();
  }
  // The search for more runs past the last slot.
  if (!variables_.HasFreeSlot()) throw Failure(FailureKind::SubscriptOutOfRange);
}

}  // namespace zerimo
