#pragma once

#include <cstddef>
#include <string_view>

namespace zerimo {

/// A piece of RTF.
struct RtfToken {
  enum class Kind {
    End,
    GroupStart,
    GroupEnd,
    /// A control word, `Name`, with `Number` if it has one.
    Word,
    /// A control symbol, `Byte`.
    Symbol,
    /// A character of the text, `Byte`, in the code page of its font; including one written as \'hh.
    Character,
    /// Characters of the text that are written literally, `Name`: codes 32 to 126 without braces and backslashes.
    Text,
    /// Bytes that were skipped (\bin).
    Binary,
  };
  Kind Is = Kind::End;
  std::string_view Name;
  bool HasNumber = false;
  /// Limited to 31 bits.
  int Number = 0;
  unsigned char Byte = 0;
};

/// Cuts RTF into tokens. Any bytes can be cut; each token takes at least one.
class RtfScanner {
 public:
  explicit RtfScanner(std::string_view bytes) : rtf_(bytes) {}

  RtfToken Next();

 private:
  RtfToken ControlToken();
  RtfToken WordToken();
  RtfToken HexToken() noexcept;
  RtfToken TextToken() noexcept;

  std::string_view rtf_;
  std::size_t at_ = 0;
};

}  // namespace zerimo
