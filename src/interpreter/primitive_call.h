#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "interpreter/evaluated_text.h"

namespace zerimo {

/// The locals of one call of `Executor` that the actions share.
/// Behaviour: docs/interpreter.md, "Executor".
class PrimitiveCall {
 public:
  PrimitiveCall(std::string_view word, std::string_view input, const EvaluatedText* kept = nullptr) noexcept
      : Word(word), Input(input), Kept(kept) {}

  /// The first word, and the text after it. Valid as long as the line.
  std::string_view Word;
  std::string_view Input;
  /// The input as a line of the store keeps it, or null if the line is none of the store's. Valid until that line
  /// changes.
  const EvaluatedText* Kept;
  /// If an action sets it, a failing statement of the tail calls it instead of being skipped. It never fails itself,
  /// and outlives the call.
  const std::function<void()>* OnFailure = nullptr;

  bool InputIsMissing() const noexcept { return Input.empty() || Input == " "; }

  /// A copy of the input, which an action may rewrite. It is made when it is first asked for: before the line changes.
  std::string& Rest() {
    if (!rest_) rest_.emplace(Input);
    return *rest_;
  }

 private:
  std::optional<std::string> rest_;
};

}  // namespace zerimo
