#pragma once

#include <string>

#include "interpreter/interpreter.h"

namespace zerimo {

/// The line of the store that runs next, in words.
class RunningLine {
 public:
  explicit RunningLine(const Interpreter& interpreter) : interpreter_(interpreter) {}

  /// Must be called before each step of a walk.
  void Step() noexcept { number_ = interpreter_.runner.LineNow(); }
  /// Must be called when the walk is over.
  void Clear() noexcept { number_ = 0; }

  /// As `List1` counts, from 1; 0 if unknown.
  int Number() const noexcept { return number_; }
  /// "BOX, line 12: FD :S", or "Your line: BOX 5" for a typed one; nothing if unknown.
  std::string Words() const;
  /// Whether somebody has written the line: not so the TO and the END around a typed one.
  bool IsWritten() const;

 private:
  std::string Procedure() const;

  const Interpreter& interpreter_;
  int number_ = 0;
};

}  // namespace zerimo
