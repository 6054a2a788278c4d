#include "interpreter/variables.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

constexpr int MostLocals = 20;
constexpr int LastCompactedSlot = 100;

// Digits do not belong to names: the name in "A1" is "A".
constexpr std::string_view NotInNames = "()0123456789.+-*/%<>=! []";
// Without the blank: `VariablePresent` finds it.
constexpr std::string_view ExpressionAlphabet = ")(0123456789.+-*/%<>=![]";
constexpr std::string_view Delimiters = "\r+-*/\\%><= ()[]!";

bool IsOneOf(std::string_view characters, char character) noexcept {
  return characters.find(character) != std::string_view::npos;
}

/// Whether a character is a delimiter or the end of the text.
bool IsDelimiter(std::string_view character) noexcept {
  return character.empty() || IsOneOf(Delimiters, character.front());
}

/// Whether a slot, with a mark in front, contains the mark and the key.
bool SlotContains(char mark, const std::string& slot, const std::string& key) {
  return slot.starts_with(key) || Contains(slot, mark + key);
}

std::string ReplaceAll(std::string& text, std::string_view word, double number, Watch& watch) {
  const int times = Length(text);
  if (!Contains(text, word)) {
    // Calls that find nothing only pad the text, and one call does all of that.
    return times == 0 ? text : Textreplace(text, word, {});
  }
  const std::string replacement = Str(number);
  for (int time = 1; time <= times; ++time) {
    watch.Tick();
    std::string replaced = Textreplace(text, word, replacement);
    // If one call replaces nothing, the next ones will not either.
    if (replaced == text) break;
    text = std::move(replaced);
  }
  return text;
}

/// Whether a number's text is the same after being read and written again.
bool KeepsItsText(double number) {
  const double size = std::abs(number);
  return (size < 1E300 && size > 1E-300) || size == 0;
}

}  // namespace

Variables::Variables(const ProgramContext& context)
    : context_(context),
      operands_(slotTable_, context.turtle, context.controls.Form1),
      formulas_(*this, names_, operands_, context.controlPath) {
  context_.controls.List2.Fill = [this] { return ListedSlots(); };
}

void Variables::SetSlot(int number, std::string text) {
  const std::string& slot = Slot(number);
  const auto index = static_cast<std::size_t>(number - 1);
  KeepFormer(number);
  freeSlots_ += static_cast<int>(text.empty()) - static_cast<int>(slot.empty());
  deletedSlots_ += static_cast<int>(text == " ") - static_cast<int>(slot == " ");
  if (text.empty() || text == " ") openFrom_ = std::min(openFrom_, number);
  if (!text.empty()) usedUpTo_ = std::max(usedUpTo_, number);
  if (NamePart(slot) != NamePart(text)) names_.Change(index, NamePart(text));
  slotTable_.SetText(number, std::move(text));
}

void Variables::KeepFormer(int number) {
  const auto index = static_cast<std::size_t>(number - 1);
  // Only the first former text of a slot counts.
  if (isFormer_[index]) return;
  former_[index] = Slot(number);
  isFormer_[index] = true;
  formerSlots_.push_back(index);
}

int Variables::FirstOpenSlot() const {
  while (!Slot(openFrom_).empty() && Slot(openFrom_) != " ") ++openFrom_;
  return openFrom_;
}

const std::vector<int>& Variables::SlotsOfProcedure(const std::string& name) const {
  ProcedureSlots& known = FindOrMake(procedures_, name, [] { return ProcedureSlots{}; });
  if (known.Names != Names()) {
    known.Names = 0;
    known.Slots.clear();
    const std::string key = name + ".";
    for (int slot = 1; slot <= SlotCount && !Slot(slot).empty(); ++slot) {
      const std::string_view entry = Trimmed(Slot(slot));
      if (entry.starts_with(key) || Contains(entry, "#" + key)) known.Slots.push_back(slot);
    }
    // A "=" in the name may match that of a slot, and so depend on its value.
    if (!Contains(name, "=")) known.Names = Names();
  }
  return known.Slots;
}

void Variables::RemoveLocals(const std::vector<std::string>& procedures) {
  std::set<int> removed;
  for (const std::string& procedure : procedures) {
    const std::vector<int>& slots = SlotsOfProcedure(procedure);
    removed.insert(slots.begin(), slots.end());
  }
  int kept = 0;
  int slot = 1;
  for (; slot <= SlotCount && !Slot(slot).empty(); ++slot) {
    if (Slot(slot) != " " && !removed.contains(slot)) SetSlot(++kept, std::string(Slot(slot)));
  }
  while (++kept < slot) SetSlot(kept, "");
  ListSlots();
}

void Variables::RebuildList2() {
  ListSlots();
  // With no free slot all are listed, and then the scan runs past the last one.
  if (freeSlots_ == 0) throw Failure(FailureKind::SubscriptOutOfRange);
}

void Variables::ListSlots() noexcept {
  for (const std::size_t index : formerSlots_) isFormer_[index] = false;
  formerSlots_.clear();
  context_.controls.List2.FillLater();
}

std::vector<std::string> Variables::ListedSlots() const {
  std::vector<std::string> items;
  for (int number = 1; number <= SlotCount; ++number) {
    const auto index = static_cast<std::size_t>(number - 1);
    const std::string& slot = isFormer_[index] ? former_[index] : Slot(number);
    if (slot.empty()) break;
    items.push_back(slot);
  }
  return items;
}

void Variables::ForgetAll() {
  for (int number = 1; number <= SlotCount; ++number) SetSlot(number, " ");
  ListSlots();
}

void Variables::CreateGlobalVariable() {
  std::string value;
  std::string name;
  StatementClass kind{};
  for (int number = 1; kind != StmtTo; ++number) {
    // With no MAKE so far, an empty line leaves nothing to evaluate. With no header at all, the walk goes past the last
    // line and fails.
    if (value.empty() && context_.store.Line(number).empty()) continue;
    kind = context_.store.ClassOf(number);
    if (kind == StmtMake) {
      context_.store.TrimLine(number);
      const std::string& line = context_.store.Line(number);
      const int lastBlank = LastPositionOf(line, ' ');
      // A double quote stays in the name, unlike in a MAKE that is run.
      name = Mid(line, 6, lastBlank - 6);
      value = From(line, lastBlank + 1);
    }
    const double result = ExpressionEvaluator(Str(context_.arithmetic.ArithmeticEvaluator(value)));
    // The slot is the line's own number, whatever it held.
    if (kind == StmtMake) SetSlot(number, name + "=" + StrTrimmed(result));
  }
}

void Variables::VariableUpdate(int lineNumber) {
  if (!Make(lineNumber)) throw Failure(FailureKind::SubscriptOutOfRange);
}

bool Variables::Make(int lineNumber) {
  const LineForm& make = context_.store.FormOf(lineNumber);
  const double known = KnownValue(make.Value);
  const double value = IsNumber(known) ? known : ValueAsText(make.Value.Text());
  const MakeSlots* const slots = freeSlots_ != 0 && KeepsItsText(value) ? SlotsOf(lineNumber, make.Name) : nullptr;
  if (slots != nullptr) {
    // `List2` is made anew below: what it showed before need not be kept.
    if (slots->Local != 0) slotTable_.SetNumber(slots->Local, value);
    if (slots->Global != 0) slotTable_.SetNumber(slots->Global, value);
  } else {
    SetByName(lineNumber, make.Name, value);
  }
  ListSlots();
  return freeSlots_ != 0 && CloseDeletedSlots();
}

[[gnu::noinline]] void Variables::SetByName(int lineNumber, const std::string& name, double value) {
  const std::string result = StrTrimmed(value);
  const std::string key = EnclosingProcedure(lineNumber) + "." + name + "=";
  if (const int slot = FindLocal(key); slot != 0) SetSlot(slot, key + result);
  // A local's new value goes to the global of that name too.
  if (const int slot = FindGlobal(name); slot != 0) SetSlot(slot, name + "=" + StrTrimmed(Val(result)));
}

[[gnu::noinline]] double Variables::ValueAsText(std::string_view expression) const {
  std::string value(expression);
  value = ReplaceXcorAndYcor(value);
  value = VarValReplacer(value);
  value = GlobalVariableReplacer(value);
  return context_.arithmetic.ArithmeticEvaluator(value);
}

[[gnu::noinline]] const Variables::MakeSlots* Variables::FindSlots(int lineNumber, const std::string& name) {
  MakeSlots& slots = makes_[static_cast<std::size_t>(lineNumber)];
  slots.Names = 0;
  const std::string key = EnclosingProcedure(lineNumber) + "." + name + "=";
  const int local = FindLocal(key);
  const int global = FindGlobal(name);
  // A name with a "=" of its own ends elsewhere than where the value is replaced.
  const auto keeps = [this](int slot, std::string_view start) {
    return slot == 0 || (NamePart(Slot(slot)) == start && slotTable_.FormOf(slot).KeyLength == start.size());
  };
  if (!keeps(local, key) || !keeps(global, name + "=")) return nullptr;
  slots = {context_.store.Changes(), Names(), local, global};
  return &slots;
}

std::string Variables::EnclosingProcedure(int lineNumber) const {
  const std::string_view name = From(context_.store.Line(context_.store.HeaderOf(lineNumber)), 4);
  return std::string(name.substr(0, name.find(' ')));
}

int Variables::FindLocal(const std::string& key) const {
  for (int slot = 1; !Slot(slot).empty(); ++slot) {
    if (SlotContains('#', Slot(slot), key)) return slot;
  }
  return 0;
}

int Variables::FindGlobal(const std::string& name) const {
  const std::string key = name + "=";
  int slot = 1;
  for (; !Slot(slot).empty() && Slot(slot) != " "; ++slot) {
    if (SlotContains('#', Slot(slot), "." + key)) return 0;
    if (SlotContains('$', Slot(slot), key)) return slot;
  }
  return slot;
}

void Variables::SpaceRemoverFromVariableArray() {
  if (!CloseDeletedSlots()) throw Failure(FailureKind::SubscriptOutOfRange);
}

bool Variables::CloseDeletedSlots() {
  while (SpacePresent()) {
    context_.watch.Tick();
    for (int slot = 1; slot <= LastCompactedSlot; ++slot) {
      if (Slot(slot) != " ") continue;
      CloseSlot(slot);
      // The move reads one slot too far at its end: it fails when everything has been moved, so that each call closes
      // one deleted slot.
      return false;
    }
  }
  return true;
}

void Variables::CloseSlot(int number) {
  const int last = usedUpTo_;
  for (int slot = number; slot < SlotCount && slot <= last; ++slot) {
    if (Slot(slot) != Slot(slot + 1)) SetSlot(slot, Slot(slot + 1));
  }
  if (last < SlotCount) usedUpTo_ = last - 1;
}

bool Variables::SpacePresent() const noexcept { return deletedSlots_ > 0; }

std::string Variables::VarValReplacer(std::string& expression) const {
  std::string name;
  std::string value;
  for (const int slot : LocalsOfProcedure()) {
    context_.watch.Tick();
    const std::string& local = Slot(slot);  // Never fails: it was found.
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

std::vector<int> Variables::LocalsOfProcedure() const {
  const std::string key = context_.controlPath.ProcedureName() + ".";
  std::vector<int> locals;
  // What does not fit is ignored, and the scan goes on: without a free slot it never ends.
  for (int number = 1; SlotGoesOn(number); ++number) {
    if (locals.size() < MostLocals && SlotContains('#', Slot(number), key)) locals.push_back(number);
  }
  return locals;
}

bool Variables::SlotGoesOn(int number) const {
  bool goesOn = true;
  SkipOnFailure([&] { goesOn = !Slot(number).empty(); });
  // With no free slot the scan runs past the last one and never ends.
  while (number > SlotCount) context_.watch.Tick();
  return goesOn;
}

std::string Variables::GlobalVariableReplacer(std::string& expression) const {
  // Not reset between rounds: an undeclared name takes the value of the one before it.
  double value = 0;
  do {
    context_.watch.Tick();
    const std::string name = VariableFinder(expression);
    if (name.empty()) return expression;
    ReadGlobal(name, value);
    std::string text = StrTrimmed(value);
    if (text == "0") text.clear();
    const int position = PositionOf(expression, name);
    // Never fails, since the name stands in the text.
    const std::string after(Trimmed(From(expression, position + Length(name))));
    // Never fails, for the same reason.
    expression = std::string(Trimmed(std::string(Left(expression, position - 1)) + text + after));
  } while (VariablePresent(expression));
  return expression;
}

void Variables::ReadGlobal(const std::string& name, double& value) const {
  const int number = GlobalSlot(name);
  if (number == 0) return;
  const std::string& slot = Slot(number);  // Never fails: it was found.
  SkipOnFailure([&] { value = RoundToDecimals(Val(From(slot, PositionOf(slot, "=") + 1)), 2); });
}

int Variables::GlobalSlot(std::string_view name) const {
  const std::string key = std::string(name) + "=";
  for (int number = 1; SlotGoesOn(number); ++number) {
    if (SlotContains('$', Slot(number), key)) return number;
  }
  return 0;
}

std::optional<NamesInUse> Variables::InUse() const {
  // A "=" in a procedure's name may match that of a slot, and so depend on its value.
  if (freeSlots_ == 0 || Contains(context_.controlPath.ProcedureName(), "=")) return std::nullopt;
  NamesInUse names;
  for (const int slot : LocalsOfProcedure()) {
    const std::string& local = Slot(slot);
    const int dot = PositionOf(local, ".");
    const int equals = PositionOf(local, "=");
    if (equals < dot) return std::nullopt;
    names.Locals.push_back({std::string(Mid(local, dot + 1, equals - dot - 1)), slot});
  }
  names.GlobalSlot = [this](std::string_view name) { return GlobalSlot(name); };
  return names;
}

std::optional<std::string> Variables::TextOf(const Operand& operand) const {
  const double number = operands_.NumberOf(operand);
  if (!IsNumber(number)) return std::nullopt;
  switch (operand.What) {
    case Operand::Kind::Local:
      return Slot(operand.Index).substr(slotTable_.FormOf(operand.Index).KeyLength);
    case Operand::Kind::Global:
      return number == 0 ? std::string() : StrTrimmed(number);
    default:
      return std::nullopt;
  }
}

std::string Variables::ReplaceXcorAndYcor(std::string& text) const {
  const double x = operands_.X();
  const double y = operands_.Y();
  text = ReplaceAll(text, "XCOR", x, context_.watch);
  text = ReplaceAll(text, "YCOR", y, context_.watch);
  return text;
}

std::string VariableFinder(std::string& expression) {
  Trim(expression);
  const auto begin = expression.find_first_not_of(NotInNames);
  if (begin == std::string::npos) return {};
  return expression.substr(begin, expression.find_first_of(NotInNames, begin) - begin);
}

bool VariablePresent(std::string_view expression) noexcept {
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

}  // namespace zerimo
