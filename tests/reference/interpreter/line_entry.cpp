#include "reference/interpreter/line_entry.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/word_table.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

namespace {

constexpr std::size_t LongestFilteredText = 32766;
constexpr int WordSlots = 50;

// The two lists are not mirror images: a blank before = or ( is kept, and so is one after ).
constexpr std::string_view DropsBlankBefore = "+.-*/\\%<>!)[]}";
constexpr std::string_view DropsBlankAfter = "+.-*/\\%<>!=([]}";

std::string WithSingleBlanks(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool blankFollows = at + 1 < text.size() && text[at + 1] == ' ';
    if (text[at] != ' ' || !blankFollows) result += text[at];
  }
  return result;
}

std::string WithoutBlanksBeforeMarks(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool markFollows = at + 1 < text.size() && DropsBlankBefore.find(text[at + 1]) != std::string_view::npos;
    if (text[at] != ' ' || !markFollows) result += text[at];
  }
  return result;
}

std::string WithoutBlanksAfterMarks(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    result += text[at];
    const bool blankFollows = at + 1 < text.size() && text[at + 1] == ' ';
    if (blankFollows && DropsBlankAfter.find(text[at]) != std::string_view::npos) ++at;
  }
  return result;
}

/// A keyword line: its word, and the place in the line that the second test looks at.
struct Keyword {
  std::string_view Word;
  enum { BlankAt, NothingAt, NoTail } Test;
  int Position;
  StatementClass Class;
};

constexpr std::array<Keyword, 8> Keywords = {{
    {"TO", Keyword::BlankAt, 3, StmtTo},
    {"END", Keyword::NoTail, 0, StmtEnd},
    {"GOTO", Keyword::BlankAt, 5, StmtGoto},
    {"LABEL", Keyword::BlankAt, 6, StmtLabel},
    {"IF", Keyword::BlankAt, 3, StmtIf},
    {"ENDIF", Keyword::NothingAt, 6, StmtEndIf},
    {"ELSE", Keyword::NothingAt, 5, StmtElse},
    {"MAKE", Keyword::BlankAt, 5, StmtMake},
}};

bool Holds(const Keyword& keyword, std::string_view line, std::string_view tail) {
  switch (keyword.Test) {
    case Keyword::BlankAt:
      return CharacterAt(line, keyword.Position) == " ";
    case Keyword::NothingAt:
      return CharacterAt(line, keyword.Position).empty();
    case Keyword::NoTail:
      break;
  }
  return tail.empty();
}

bool HasAny(std::string_view word, std::string_view characters) {
  return word.find_first_of(characters) != std::string_view::npos;
}

/// The class of a line of one word that is not a keyword.
StatementClass ClassOfWord(std::string_view word, StatementClass soFar) {
  constexpr std::string_view cannotLead = "*/%\\";
  if (cannotLead.find(word.front()) != std::string_view::npos) return soFar;
  // The second test overwrites the first: a word with both kinds of operators is a relation.
  if (HasAny(word, "!=<>")) return StmtRelation;
  return HasAny(word, "%/*-+") ? StmtArithmetic : soFar;
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

std::string SpaceFilter(std::string& text) {
  Trim(text);
  // The passes count positions in 16 bits.
  if (text.size() > LongestFilteredText) throw Failure(FailureKind::Overflow);
  return WithoutBlanksAfterMarks(WithoutBlanksBeforeMarks(WithSingleBlanks(text)));
}

StatementClass WhatIsThis(std::string_view line) {
  const int blank = PositionOf(line, " ");
  const std::string_view head = Trimmed(blank == 0 ? line : Left(line, blank));
  const std::string_view tail = blank == 0 ? std::string_view{} : From(line, blank + 1);

  const auto names = CommandListNames();
  const bool isPrimitive = std::find(names.begin(), names.end(), head) != names.end();
  const StatementClass soFar = isPrimitive ? StmtPrimitive : StmtCall;

  for (const Keyword& keyword : Keywords) {
    if (head == keyword.Word && Holds(keyword, line, tail)) return keyword.Class;
  }
  return !head.empty() && tail.empty() ? ClassOfWord(head, soFar) : soFar;
}

std::string GiveWord(std::string& text, int nthWord) {
  Trim(text);
  text += ' ';
  std::string wanted;
  int slot = 0;
  std::size_t start = 0;
  for (auto blank = text.find(' '); blank != std::string::npos; blank = text.find(' ', start)) {
    if (++slot > WordSlots) throw Failure(FailureKind::SubscriptOutOfRange);
    if (slot == nthWord) wanted = text.substr(start, blank - start);
    start = blank + 1;
  }
  // The empty word after the last blank needs a slot too.
  if (slot + 1 > WordSlots || nthWord < 1 || nthWord > WordSlots) throw Failure(FailureKind::SubscriptOutOfRange);
  return wanted;
}

std::int16_t HowManyInput(std::string_view command, const Store& store) {
  for (const WordFacts& word : AllWords()) {
    if (word.Word == command && word.Inputs != inputs::NotCounted) return word.Inputs;
  }
  const std::string pattern = "TO " + std::string(command) + " ";
  for (int number = 1; !store.Line(number).empty(); ++number) {
    if (Contains(store.Line(number) + " ", pattern)) return InputsOfHeader(store.Line(number));
  }
  return 0;
}

void DefinedStatement(Store& store, ListBox& list3, ListBox& list4) {
  list3.Clear();
  for (int number = 1; !store.Line(number).empty(); ++number) {
    if (store.ClassOf(number) != StmtTo) continue;
    LentLine line(store, number);
    const std::string name = GiveWord(line.Text, 2);
    if (!HasAny(name, "$#")) list4.Add(name + " is Defined");
  }
}

}  // namespace zerimo::reference
