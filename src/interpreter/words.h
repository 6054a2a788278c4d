#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zerimo {

/// The words of a call or of a header: 50 texts, numbered from 1; those after the last word are empty.
class Words {
 public:
  static constexpr int LastIndex = 50;

  /// Cuts a text at its blanks, up to its end or a carriage return. Two blanks make an empty word. Fails (subscript)
  /// at more than 50 words.
  explicit Words(std::string_view text);

  /// Fails (subscript) outside 1 to 50.
  const std::string& At(int number) const;
  bool Ends(int number) const { return At(number).empty() || At(number) == " "; }

 private:
  std::vector<std::string> words_;
};

/// The words of a procedure's header: the blank after its `TO` makes an empty first one. Fails like `Words`.
Words WordsOfHeader(std::string_view line);

}  // namespace zerimo
