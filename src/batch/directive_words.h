#pragma once

#include <string>
#include <string_view>

namespace zerimo::batch {

/// The words behind a directive's name, taken from left to right. A blank or more divides two words. A free text at
/// the end begins behind one blank and is taken as it stands.
class DirectiveWords {
 public:
  DirectiveWords(std::string_view text, int line) : rest_(text), lineNumber_(line) {}

  int Line() const { return lineNumber_; }
  bool HasMore() const;

  /// The next word; an error of the session, naming what is wanted, if there is none.
  std::string_view Word(std::string_view wanted);
  /// The next word, or the empty text.
  std::string_view OptionalWord();
  /// The next word as a whole number within limits.
  int Number(std::string_view wanted, int least, int greatest);
  /// The next word as a number of surface units.
  float Units(std::string_view wanted);
  /// The text that is left.
  std::string Text();
  /// An error of the session if words are left.
  void End();

  [[noreturn]] void Fail(const std::string& message) const;

 private:
  std::string_view rest_;
  int lineNumber_;
};

}  // namespace zerimo::batch
