#include "interpreter/line_form.h"

#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

const std::string NoWord;

std::string_view AfterFirstBlank(std::string_view line) noexcept {
  const auto blank = line.find(' ');
  return blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
}

}  // namespace

LineForm::LineForm(std::string_view line) : Class(WhatIsThis(line)), IsTrimmed(Trimmed(line).size() == line.size()) {
  switch (Class) {
    case StmtPrimitive: {
      const PrimitiveWords words(Trimmed(line));
      Primitive = ActionOf(Trimmed(line));
      Word = words.Word;
      Input = EvaluatedText(words.Input);
      break;
    }
    case StmtMake: {
      MakeWords make(line);
      Name = std::move(make.Name);
      Value = EvaluatedText(make.Value);
      break;
    }
    case StmtIf:
      Condition = EvaluatedText(AfterFirstBlank(line));
      break;
    case StmtCall:
      SkipOnFailure([&] { Call.emplace(line); });
      break;
    case StmtTo:
      SkipOnFailure([&] { Header.emplace(WordsOfHeader(line)); });
      break;
    default:
      break;
  }
}

PrimitiveWords::PrimitiveWords(std::string_view line) noexcept
    : Word(line.substr(0, line.find(' '))), Input(AfterFirstBlank(line)) {}

MakeWords::MakeWords(std::string_view line) {
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

Words::Words(std::string_view text) {
  std::size_t word = 0;
  for (const char character : text) {
    if (character == '\r') break;
    if (character == ' ') {
      ++word;
      continue;
    }
    if (word >= LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
    if (word >= words_.size()) words_.resize(word + 1);
    words_[word] += character;
  }
}

const std::string& Words::At(int number) const {
  if (number < 1 || number > LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
  const auto index = static_cast<std::size_t>(number - 1);
  return index < words_.size() ? words_[index] : NoWord;
}

Words WordsOfHeader(std::string_view line) { return Words(From(Trimmed(line), 3)); }

}  // namespace zerimo
