#include "reference/interpreter/variables.h"

#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

namespace {

constexpr int MostLocals = 20;
constexpr int LastCompactedSlot = 100;

// Digits do not belong to names: the name in "A1" is "A".
constexpr std::string_view NotInNames = "()0123456789.+-*/%<>=! []";
// Without the blank: `VariablePresent` finds it.
constexpr std::string_view ExpressionAlphabet = ")(0123456789.+-*/%<>=![]";
constexpr std::string_view Delimiters = "\r+-*/\\%><= ()[]!";

bool IsOneOf(std::string_view characters, char character) {
  return characters.find(character) != std::string_view::npos;
}

/// Whether a character is a delimiter or the end of the text.
bool IsDelimiter(std::string_view character) { return character.empty() || IsOneOf(Delimiters, character.front()); }

/// Whether a slot, with a mark in front, contains the mark and the key.
bool SlotContains(char mark, const std::string& slot, const std::string& key) {
  return slot.starts_with(key) || Contains(slot, mark + key);
}

std::string ReplaceAll(std::string& text, std::string_view word, double number) {
  const int times = Length(text);
  if (!Contains(text, word)) {
    // Calls that find nothing only pad the text, and one call does all of that.
    return times == 0 ? text : Textreplace(text, word, {});
  }
  const std::string replacement = Str(number);
  for (int time = 1; time <= times; ++time) text = Textreplace(text, word, replacement);
  return text;
}

/// The words of a `MAKE` line: the name as the table keeps it and the text of the value.
struct MakeWords {
  std::string Name;
  std::string Value;

  explicit MakeWords(std::string_view line) {
    int blanks = 0;
    for (const char character : line) {
      if (character == ' ') {
        ++blanks;
      } else if (blanks == 1) {
        Name += character;
      } else if (blanks == 2) {
        Value += character;
      }
    }
    if (Name.starts_with('"')) Name.front() = ':';
  }
};

}  // namespace

Variables::Variables(const InterpreterContext& context, Store& store, ControlPath& controlPath,
                     const Arithmetic& arithmetic)
    : store_(store),
      controlPath_(controlPath),
      turtle_(context.turtle),
      Form1(context.controls.Form1),
      List2(context.controls.List2),
      arithmetic_(arithmetic),
      watch_(context.watch) {}

const std::string& Variables::Slot(int number) const {
  if (number < 1 || number > SlotCount) throw Failure(FailureKind::SubscriptOutOfRange);
  return VariableArray[static_cast<std::size_t>(number - 1)];
}

void Variables::SetSlot(int number, std::string text) {
  if (number < 1 || number > SlotCount) throw Failure(FailureKind::SubscriptOutOfRange);
  VariableArray[static_cast<std::size_t>(number - 1)] = std::move(text);
}

void Variables::RebuildList2() {
  List2.Clear();
  for (int number = 1; !Slot(number).empty(); ++number) List2.Add(Slot(number));
}

void Variables::ForgetAll() {
  List2.Clear();
  for (int number = 1; number <= SlotCount; ++number) {
    SetSlot(number, " ");
    List2.Add(" ");
  }
}

void Variables::CreateGlobalVariable() {
  std::string value;
  std::string name;
  StatementClass kind{};
  for (int number = 1; kind != StmtTo; ++number) {
    kind = store_.ClassOf(number);
    if (kind == StmtMake) {
      store_.TrimLine(number);
      const std::string& line = store_.Line(number);
      const int lastBlank = LastPositionOf(line, ' ');
      // A double quote stays in the name, unlike in a MAKE that is run.
      name = Mid(line, 6, lastBlank - 6);
      value = From(line, lastBlank + 1);
    }
    const double result = ExpressionEvaluator(Str(arithmetic_.ArithmeticEvaluator(value)));
    // The slot is the line's own number, whatever it held.
    if (kind == StmtMake) SetSlot(number, name + "=" + StrTrimmed(result));
  }
}

void Variables::VariableUpdate(int lineNumber) {
  MakeWords make(store_.Line(lineNumber));
  std::string& value = make.Value;
  value = ReplaceXcorAndYcor(value);
  value = VarValReplacer(value);
  value = GlobalVariableReplacer(value);
  const std::string result = StrTrimmed(arithmetic_.ArithmeticEvaluator(value));

  SetLocal(EnclosingProcedure(lineNumber) + "." + make.Name + "=", result);
  // A local's new value goes to the global of that name too.
  SetGlobal(make.Name, result);
  RebuildList2();
  SpaceRemoverFromVariableArray();
}

std::string Variables::EnclosingProcedure(int lineNumber) const {
  int header = lineNumber;
  while (store_.ClassOf(header) != StmtTo) --header;
  const std::string_view name = From(store_.Line(header), 4);
  return std::string(name.substr(0, name.find(' ')));
}

void Variables::SetLocal(const std::string& key, const std::string& value) {
  for (int slot = 1; !Slot(slot).empty(); ++slot) {
    if (!SlotContains('#', Slot(slot), key)) continue;
    SetSlot(slot, key + value);
    return;
  }
}

void Variables::SetGlobal(const std::string& name, const std::string& value) {
  const std::string key = name + "=";
  bool isGlobal = false;
  bool isNameless = false;
  int slot = 1;
  for (; !Slot(slot).empty() && Slot(slot) != " "; ++slot) {
    isGlobal = SlotContains('$', Slot(slot), key);
    isNameless = SlotContains('#', Slot(slot), "." + key);
    if (isGlobal || isNameless) break;
  }
  if (!isNameless) SetSlot(slot, key + StrTrimmed(Val(value)));
}

void Variables::SpaceRemoverFromVariableArray() {
  while (SpacePresent()) {
    watch_.Tick();
    for (int slot = 1; slot <= LastCompactedSlot; ++slot) {
      if (Slot(slot) != " ") continue;
      // The move reads one slot too far at its end: it fails when everything has been moved, so that each call closes
      // one deleted slot.
      for (int move = slot; move <= SlotCount; ++move) {
        SetSlot(move, Slot(move + 1));
      }
    }
  }
}

bool Variables::SpacePresent() const {
  for (const std::string& slot : VariableArray) {
    if (slot == " ") return true;
  }
  return false;
}

std::string Variables::VarValReplacer(std::string& expression) const {
  std::string name;
  std::string value;
  for (const std::string& local : LocalsOfProcedure()) {
    watch_.Tick();
    SkipOnFailure([&] {
      const int dot = PositionOf(local, ".");
      name = Mid(local, dot + 1, PositionOf(local, "=") - dot - 1);
    });
    SkipOnFailure([&] { value = From(local, PositionOf(local, "=") + 1); });
    SkipOnFailure([&] { expression = Textreplace(expression, name, value); });
  }
  Trim(expression);
  return expression;
}

std::vector<std::string> Variables::LocalsOfProcedure() const {
  std::string name;
  SkipOnFailure([&] { name = controlPath_.CurrentProcedureName(); });
  const std::string key = name + ".";
  std::vector<std::string> locals;
  // What does not fit is ignored, and the scan goes on: without a free slot it never ends.
  for (int number = 1; SlotGoesOn(number); ++number) {
    if (locals.size() < MostLocals && SlotContains('#', Slot(number), key)) locals.push_back(Slot(number));
  }
  return locals;
}

bool Variables::SlotGoesOn(int number) const {
  bool goesOn = true;
  SkipOnFailure([&] { goesOn = !Slot(number).empty(); });
  // With no free slot the scan runs past the last one and never ends.
  while (number > SlotCount) watch_.Tick();
  return goesOn;
}

std::string Variables::GlobalVariableReplacer(std::string& expression) const {
  // Not reset between rounds: an undeclared name takes the value of the one before it.
  double value = 0;
  do {
    watch_.Tick();
    const std::string name = VariableFinder(expression);
    if (name.empty()) return expression;
    ReadGlobal(name, value);
    std::string text = StrTrimmed(value);
    if (text == "0") text.clear();
    const int position = PositionOf(expression, name);
    const std::string after(Trimmed(From(expression, position + Length(name))));
    expression = std::string(Trimmed(std::string(Left(expression, position - 1)) + text + after));
  } while (VariablePresent(expression));
  return expression;
}

void Variables::ReadGlobal(const std::string& name, double& value) const {
  const std::string key = name + "=";
  for (int number = 1; SlotGoesOn(number); ++number) {
    const std::string& slot = Slot(number);
    if (!SlotContains('$', slot, key)) continue;
    SkipOnFailure([&] { value = RoundToDecimals(Val(From(slot, PositionOf(slot, "=") + 1)), 2); });
    return;
  }
}

std::string Variables::ReplaceXcorAndYcor(std::string& text) const {
  const double x = RoundToDecimals(Divide(turtle_.TurtleX - Form1.Width / 2.0, turtle_.Resolution), 1);
  const double y = RoundToDecimals(Divide(Form1.Height() / 2.0 - turtle_.TurtleY, turtle_.Resolution), 1);
  text = ReplaceAll(text, "XCOR", x);
  text = ReplaceAll(text, "YCOR", y);
  return text;
}

std::string VariableFinder(std::string& expression) {
  Trim(expression);
  const auto begin = expression.find_first_not_of(NotInNames);
  if (begin == std::string::npos) return {};
  return expression.substr(begin, expression.find_first_of(NotInNames, begin) - begin);
}

bool VariablePresent(std::string_view expression) {
  return expression.find_first_not_of(ExpressionAlphabet) != std::string_view::npos;
}

std::string Textreplace(std::string& text, std::string_view find, std::string_view replacement) {
  text = " " + std::string(Trimmed(text)) + " ";
  // Only the first occurrence is ever considered: one inside a longer word blocks the real one after it.
  const int position = PositionOf(text, find);
  if (position == 0) return text;
  const int after = position + Length(find);
  if (!IsDelimiter(CharacterAt(text, position - 1)) || !IsDelimiter(CharacterAt(text, after))) return text;
  return std::string(Left(text, position - 1)) + std::string(replacement) + std::string(From(text, after));
}

}  // namespace zerimo::reference
