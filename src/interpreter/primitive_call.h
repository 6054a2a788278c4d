#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "interpreter/evaluated_text.h"

namespace zerimo {

/// The locals of one call of `Executor` that the actions share.
/// Behaviour: docs/interpreter.md, "Executor".
struct PrimitiveCall {
  /// The first word. Valid as long as the line.
  std::string_view Word;
  /// The text after the first word; an action may rewrite it.
  std::string Rest;
  /// Whether that was the empty text or one blank.
  bool InputIsMissing = false;
  /// The same text as a line of the store keeps it, or null if the line is none of the store's. Valid until that line
  /// changes.
  const EvaluatedText* Input = nullptr;
  /// If an action sets it, a failing statement of the tail calls it instead of being skipped. It never fails itself.
  std::function<void()> OnFailure;
};

}  // namespace zerimo
