#include "interpreter/line_entry.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/word_table.h"

namespace zerimo {

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

/// Whether a line that begins with a word is of the word's own class; `tail` is what follows the first blank.
bool IsOfItsClass(const WordFacts& word, std::string_view line, std::string_view tail) {
  const std::string_view next = CharacterAt(line, Length(word.Word) + 1);
  switch (word.LineClass) {
    case StmtCall:
      return false;
    case StmtEnd:
      return tail.empty();
    case StmtEndIf:
    case StmtElse:
      return next.empty();
    default:
      return next == " ";
  }
}

bool HasAny(std::string_view word, std::string_view characters) noexcept {
  return word.find_first_of(characters) != std::string_view::npos;
}

/// The class of a line of one word that is not a keyword.
StatementClass ClassOfWord(std::string_view word, StatementClass soFar) noexcept {
  constexpr std::string_view cannotLead = "*/%\\";
  if (cannotLead.find(word.front()) != std::string_view::npos) return soFar;
  // The second test overwrites the first: a word with both kinds of operators is a relation.
  if (HasAny(word, "!=<>")) return StmtRelation;
  return HasAny(word, "%/*-+") ? StmtArithmetic : soFar;
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

  const WordFacts* const word = FindWord(head);
  if (word != nullptr && IsOfItsClass(*word, line, tail)) return word->LineClass;
  const bool isPrimitive = word != nullptr && word->Place != 0;
  const StatementClass soFar = isPrimitive ? StmtPrimitive : StmtCall;
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

}  // namespace zerimo
