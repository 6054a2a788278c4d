#include "batch/directive_words.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "batch/errors.h"
#include "batch/latin1.h"

namespace zerimo::batch {

bool DirectiveWords::HasMore() const noexcept { return rest_.find_first_not_of(' ') != std::string_view::npos; }

std::string_view DirectiveWords::OptionalWord() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
  const std::string_view word = rest_.substr(0, rest_.find(' '));
  rest_.remove_prefix(word.size());
  return word;
}

std::string_view DirectiveWords::Word(std::string_view wanted) {
  const std::string_view word = OptionalWord();
  if (word.empty()) Fail(std::string(wanted) + " is missing");
  return word;
}

int DirectiveWords::Number(std::string_view wanted, int least, int greatest) {
  const std::string_view word = Word(wanted);
  int number = 0;
  const std::from_chars_result result = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  if (!whole || number < least || number > greatest) {
    Fail(std::string(word) + " is no " + std::string(wanted) + " from " + std::to_string(least) + " to " +
         std::to_string(greatest));
  }
  return number;
}

float DirectiveWords::Units(std::string_view wanted) {
  const std::string_view word = Word(wanted);
  float number = 0;
  const std::from_chars_result result = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  if (!whole || !std::isfinite(number)) Fail(std::string(word) + " is no number for " + std::string(wanted));
  return number;
}

std::string DirectiveWords::Text() {
  if (!rest_.empty()) rest_.remove_prefix(1);
  return std::string(std::exchange(rest_, {}));
}

void DirectiveWords::End() {
  if (HasMore()) Fail("there is too much on the line: " + std::string(OptionalWord()));
}

void DirectiveWords::Fail(const std::string& message) const { throw SessionError(lineNumber_, ToUtf8(message)); }

}  // namespace zerimo::batch
