#include "reference/interpreter/inputs.h"

#include <array>

#include "base/failure.h"
#include "base/text.h"

namespace zerimo::reference {

namespace {

/// The words of a call or of a header: 50 texts, numbered from 1; the 51st is a subscript failure.
class Words {
 public:
  static constexpr int LastIndex = 50;

  /// Cuts a text at its blanks, up to its end or a carriage return. Two blanks make an empty word.
  explicit Words(std::string_view text) {
    int number = 1;
    for (const char character : text) {
      if (character == '\r') break;
      if (character == ' ') {
        ++number;
      } else {
        Word(number) += character;
      }
    }
  }

  const std::string& At(int number) const { return words_[Index(number)]; }
  bool Ends(int number) const { return At(number).empty() || At(number) == " "; }

 private:
  static std::size_t Index(int number) {
    if (number < 1 || number > LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
    return static_cast<std::size_t>(number - 1);
  }
  std::string& Word(int number) { return words_[Index(number)]; }

  std::array<std::string, LastIndex> words_;
};

}  // namespace

void Inputs::CreateLocalVariable(std::string_view commandLine) {
  const Words call(commandLine);
  const int header = store_.WhereProcedure(Trimmed(call.At(1)));
  // From the third character on: the blank after TO makes an empty first word.
  const Words names(From(Trimmed(store_.Line(header)), 3));

  int slot = 1;
  while (!variables_.Slot(slot).empty() && variables_.Slot(slot) != " ") ++slot;
  for (int word = 2; !call.Ends(word) && !names.Ends(word + 1); ++word) {
    std::string value = call.At(word);
    value = variables_.VarValReplacer(value);
    value = variables_.GlobalVariableReplacer(value);
    // The slots are filled one after the other, whatever they hold.
    variables_.SetSlot(slot++, call.At(1) + "." + names.At(word + 1) + "=" + value);
  }
  variables_.RebuildList2();
  controlPath_.CurProcName = call.At(1);
}

void Inputs::DeleteLocalVariable(std::string& procedureName) {
  Trim(procedureName);
  const std::string key = procedureName + ".";
  for (int slot = 1; !variables_.Slot(slot).empty(); ++slot) {
    const std::string_view entry = Trimmed(variables_.Slot(slot));
    if (!entry.starts_with(key) && !Contains(entry, "#" + key)) continue;
    variables_.SetSlot(slot, " ");
    variables_.RebuildList2();
  }
}

}  // namespace zerimo::reference
