#include "interpreter/lowering.h"

#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/arithmetic.h"
#include "interpreter/line_entry.h"
#include "interpreter/variables.h"
#include "interpreter/word_table.h"

namespace zerimo {

namespace {

constexpr int LinesAfter = 1000;

std::size_t Checked(int index, int last) {
  if (index < 1 || index > last) throw Failure(FailureKind::SubscriptOutOfRange);
  return static_cast<std::size_t>(index - 1);
}

bool IsRepeatLine(const std::string& line) noexcept {
  return line.starts_with("REPEAT ") || Contains(line, "#REPEAT ");
}

/// What one round of splitting found.
struct Cut {
  /// The characters of the body that the statement takes, blanks at its ends included.
  int StatementEnd = 0;
  /// The message that ends the splitting, or null.
  const char* Message = nullptr;
};

/// A nested REPEAT: up to its closing bracket. The character right after the first bracket is never tested.
Cut CutRepeat(std::string_view body) {
  const int open = PositionOf(body, "[");
  if (open == 0) return {0, "Missing ["};
  int opening = 1;
  int closing = 0;
  int position = open + 1;
  while (opening != closing) {
    ++position;
    const std::string_view character = CharacterAt(body, position);
    if (character.empty()) return {0, "] Absent"};
    if (character == "[") ++opening;
    if (character == "]") ++closing;
  }
  return {position, nullptr};
}

/// Up to the second double quote, or all of it.
Cut CutQuoted(std::string_view body) {
  int quotes = 0;
  int position = 0;
  while (quotes < 2 && position < Length(body)) {
    ++position;
    if (CharacterAt(body, position) == "\"") ++quotes;
  }
  return {position, nullptr};
}

/// A number of words, each ended by a blank, a "]" or the end.
Cut CutWords(std::string_view body, int words) {
  int position = 0;
  while (words > 0) {
    ++position;
    const std::string_view character = CharacterAt(body, position);
    if (character.empty()) return {Length(body), nullptr};
    if (character == " " || character == "]") --words;
  }
  return {position - 1, nullptr};
}

Cut CutStatement(std::string_view body, std::int16_t inputCount) {
  switch (inputCount) {
    case inputs::Repeat:
      return CutRepeat(body);
    case inputs::Print:
    case inputs::Write:
    case inputs::Message:
      return CutQuoted(body);
    case inputs::BracketSum:
    case inputs::BracketProduct:
      return {Length(body), nullptr};
    default:
      return CutWords(body, inputCount + 1);
  }
}

/// Counts the inputs of a procedure from the blanks of its header; the count is a byte.
std::int16_t InputsOfHeader(std::string_view header) {
  std::uint8_t blanks = 0;
  for (const char character : Trimmed(header)) {
    if (character == ' ') blanks = ToByte(blanks + 1.0);
  }
  return ToByte(blanks - 1.0);
}

}  // namespace

bool SetsRepeatCounter(std::string_view line) noexcept { return line.starts_with("MAKE #"); }

bool IsRepeatLabel(std::string_view line) noexcept { return line.starts_with("LABEL $"); }

bool IsRepeatJump(std::string_view line) noexcept { return line.starts_with("GOTO $"); }

const std::string& BodyArray::At(int index) const {
  if (dot_) throw Failure(FailureKind::TypeMismatch);
  return statements_[Checked(index, LastIndex)];
}

void BodyArray::Set(int index, std::string statement) { statements_[Checked(index, LastIndex)] = std::move(statement); }

const std::string& LineList::At(int index) const { return lines_[Checked(index, LastIndex)]; }

void LineList::Set(int index, std::string line) { lines_[Checked(index, LastIndex)] = std::move(line); }

void Lowering::RemoveAllRepeats() {
  while (IsRepeatPresent() != 0) {
    context_.watch.Tick();
    RemoveSingleRepeat();
  }
}

std::int16_t Lowering::IsRepeatPresent() const { return SearchRepeatPos() != 0 ? 1 : 0; }

std::int16_t Lowering::SearchRepeatPos() const {
  for (int number = 1; !context_.store.Line(number).empty(); ++number) {
    if (IsRepeatLine(context_.store.Line(number))) return static_cast<std::int16_t>(number);
  }
  return 0;
}

void Lowering::RemoveSingleRepeat() {
  // Only for its messages, which therefore appear twice.
  std::string body = BodyFinder(SearchRepeatPos());
  CreateBodyArray(body);
  RefreshRootArray(AddComponents());
}

std::string Lowering::BodyFinder(int lineNumber) const {
  std::string body;
  int open = 0;
  SkipOnFailure([&] {
    const std::string& line = context_.store.Line(lineNumber);
    open = PositionOf(line, "[");
    if (open == 0) open = Length(line) + 1;
  });
  SkipOnFailure([&] {
    const std::string& line = context_.store.Line(lineNumber);
    // Leaves the body empty. The last character is taken for the closing bracket, whatever it is.
    body = Mid(line, open + 1, Length(line) - open - 1);
  });
  return body;
}

BodyArray Lowering::CreateBodyArray(std::string& body) const {
  BodyArray statements;
  try {
    int index = 1;
    do {
      context_.watch.Tick();
      const Cut cut = CutStatement(body, HowManyInput(Firstpart(body), context_.store));
      if (cut.Message != nullptr) {
        context_.services.MessageBox(cut.Message);
        return statements;
      }
      // A blank at its end stays: "LABEL " is a label with no name.
      statements.Set(index, std::string(Left(body, cut.StatementEnd)));
      body = std::string(From(body, cut.StatementEnd + 1));
      ++index;
      Trim(body);
    } while (!body.empty());
  } catch (const Failure&) {
    statements.BecomeDot();
  }
  return statements;
}

std::string Lowering::RepeatNum(std::string_view line) const {
  const std::string_view after = From(line, 8);
  const std::string_view count = after.substr(0, after.find('['));
  // The value is dropped; a count that can't be evaluated now fails here.
  std::string copy(count);
  copy = context_.variables.VarValReplacer(copy);
  copy = context_.variables.GlobalVariableReplacer(copy);
  ToInt16(context_.arithmetic.ArithmeticEvaluator(copy));
  return std::string(Trimmed(count));
}

LineList Lowering::AddComponents() {
  const int position = SearchRepeatPos();
  if (position != 0) {
    RepeatCounterName += '#';
    RepeatLabelName += '$';
    context_.controls.Label17.Caption = "#-" + Str(static_cast<double>(RepeatCounterName.size()));
    context_.controls.Label18.Caption = "$-" + Str(static_cast<double>(RepeatLabelName.size()));
  }
  const std::string count = RepeatNum(context_.store.Line(position));
  const std::string& counter = RepeatCounterName;
  std::string body = BodyFinder(position);
  const BodyArray statements = CreateBodyArray(body);

  LineList lines;
  int index = 1;
  lines.Set(index++, "MAKE " + counter + " 1");
  lines.Set(index++, "LABEL " + RepeatLabelName);
  for (int number = 1; number <= BodyArray::LastIndex; ++number) {
    if (!statements.At(number).empty()) lines.Set(index++, statements.At(number));
  }
  lines.Set(index++, "MAKE " + counter + " " + counter + "+1");
  lines.Set(index++, "IF " + counter + "<=" + count);
  lines.Set(index++, "GOTO " + RepeatLabelName);
  lines.Set(index++, "ENDIF");
  return lines;
}

void Lowering::RefreshRootArray(const LineList& lines) {
  const int position = SearchRepeatPos();
  std::vector<std::string> after;
  for (int number = position + 1; !context_.store.Line(number).empty(); ++number) {
    if (after.size() == LinesAfter) throw Failure(FailureKind::SubscriptOutOfRange);
    after.push_back(context_.store.Line(number));
  }
  int target = position;
  for (int index = 1; !lines.At(index).empty(); ++index) context_.store.SetLine(target++, lines.At(index));
  for (const std::string& line : after) context_.store.SetLine(target++, line);
}

void Lowering::ForgetNames() noexcept {
  RepeatCounterName.clear();
  RepeatLabelName.clear();
}

std::string Firstpart(std::string_view body) { return std::string(body.substr(0, body.find(' '))); }

std::int16_t HowManyInput(std::string_view command, const Store& store) {
  const WordFacts* const word = FindWord(command);
  if (word != nullptr && word->Inputs != inputs::NotCounted) return word->Inputs;
  const std::string header = "TO " + std::string(command);
  for (int number = 1; !store.Line(number).empty(); ++number) {
    const std::string& line = store.Line(number);
    if (line.ends_with(header) || Contains(line, header + " ")) return InputsOfHeader(line);
  }
  return 0;
}

}  // namespace zerimo
