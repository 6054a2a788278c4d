#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "interpreter/statement_class.h"
#include "interpreter/word_table.h"
#include "interpreter/words.h"

namespace zerimo {

/// What is derived from the text of one line of the store. It is made when it is first asked for, and dropped when the
/// line changes.
struct LineForm {
  explicit LineForm(std::string_view line);

  StatementClass Class;
  /// Of a primitive: its action, or `Action::None`.
  Action Primitive = Action::None;
  /// Of a `MAKE`: the name as the slots hold it, and the text of the value.
  std::string Name;
  std::string Value;
  /// Of an `IF`: the condition.
  std::string Condition;
  /// Of a call and of a header (after its `TO`): the words, unless there are too many.
  std::optional<Words> Call;
  std::optional<Words> Header;
};

/// The words of a `MAKE` line: the name as the slots hold it, and the text of the value.
struct MakeWords {
  explicit MakeWords(std::string_view line);

  std::string Name;
  std::string Value;
};

}  // namespace zerimo
