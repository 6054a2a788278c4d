#pragma once

#include <exception>
#include <string>
#include <utility>

namespace zerimo {

/// What went wrong when a statement failed at run time.
enum class FailureKind {
  SubscriptOutOfRange,
  Overflow,
  DivisionByZero,
  InvalidArgument,
  TypeMismatch,
  FileNotFound,
  FileAccess,
  InvalidPicture,
  FocusRefused,
};

/// A statement failed at run time. It travels up to the nearest procedure under the skip rule; with none above it,
/// it ends the system.
class Failure : public std::exception {
 public:
  explicit Failure(FailureKind kind) : Kind(kind) {}

  /// The words that the box at the end of the program shows.
  const char* what() const noexcept override;

  FailureKind Kind;
};

/// The system has ended: `BYE`, `QUIT`, `Abort`. Nothing but a shell catches it.
struct Ended {
  std::string By;
};

/// A limit on steps or seconds has stopped the system ("steps", "seconds"). Nothing but a shell catches it.
struct Stopped {
  std::string By;
};

/// The skip rule for one statement: runs it and, if it fails, goes on without a word. Returns whether it succeeded.
/// Code under the rule wraps each of its statements in a call of this; if the statement heads a loop or a condition, a
/// failure goes on inside it.
/// Behaviour: docs/interpreter.md, "The skip rule".
template <typename Statement>
bool SkipOnFailure(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace zerimo
