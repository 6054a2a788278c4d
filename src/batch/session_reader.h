#pragma once

#include <string>
#include <string_view>

#include "batch/session_script.h"
#include "console/form1.h"

namespace zerimo::batch {

/// The words after a directive's name, taken from left to right. One or more blanks separate two words. A free text at
/// the end begins after one blank and is taken exactly as it is.
class DirectiveWords {
 public:
  DirectiveWords(std::string_view text, int line) : rest_(text), lineNumber_(line) {}

  int Line() const noexcept { return lineNumber_; }
  bool HasMore() const noexcept;

  /// The next word. If there is none, fails with a `SessionError` that names what is wanted.
  std::string_view Word(std::string_view wanted);
  /// The next word, or the empty text.
  std::string_view OptionalWord();
  /// The next word as a whole number within limits.
  int Number(std::string_view wanted, int least, int greatest);
  /// The next word as a number of surface units.
  float Units(std::string_view wanted);
  /// The rest of the text.
  std::string Text();
  /// Fails with a `SessionError` if words are left.
  void End();

  [[noreturn]] void Fail(const std::string& message) const;

 private:
  std::string_view rest_;
  int lineNumber_;
};

/// Reads a whole session: UTF-8, one action a line, line ends LF or CRLF, a byte order mark at the start allowed.
/// Controls and timers are looked up in `form1`. Fails with `SessionError` at the first line that is wrong.
Script ReadSession(std::string_view utf8, Form1& form1);

}  // namespace zerimo::batch
