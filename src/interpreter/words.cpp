#include "interpreter/words.h"

#include "base/failure.h"
#include "base/text.h"

namespace zerimo {

namespace {

const std::string NoWord;

}  // namespace

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
