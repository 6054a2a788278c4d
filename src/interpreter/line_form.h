#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/evaluated_text.h"
#include "interpreter/statement_class.h"
#include "interpreter/word_table.h"

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

/// What is derived from the text of one line of the store. It is made when it is first asked for, and dropped when the
/// line changes.
/// Behaviour: docs/interpreter.md, "Beside a line of the store".
struct LineForm {
  /// Never fails.
  explicit LineForm(std::string_view line);

  StatementClass Class;
  /// Whether no blank is at either end.
  bool IsTrimmed;
  /// Of a primitive: its action, or `Action::None`.
  Action Primitive = Action::None;
  /// Of a primitive: its word, and everything after it.
  std::string Word;
  EvaluatedText Input;
  /// Of a `MAKE`: the name as the slots hold it, and the text of the value.
  std::string Name;
  EvaluatedText Value;
  /// Of an `IF`: the condition.
  EvaluatedText Condition;
  /// Of a call and of a header (after its `TO`): the words, unless there are too many.
  std::optional<Words> Call;
  std::optional<Words> Header;
};

/// A primitive's trimmed line: the first word, and everything after its blank.
struct PrimitiveWords {
  explicit PrimitiveWords(std::string_view line) noexcept;

  std::string_view Word;
  std::string_view Input;
};

/// The words of a `MAKE` line: the name as the slots hold it, and the text of the value.
struct MakeWords {
  explicit MakeWords(std::string_view line);

  std::string Name;
  std::string Value;
};

}  // namespace zerimo
