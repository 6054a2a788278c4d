#include "core/failure.h"

namespace zerimo {

const char* Failure::what() const noexcept {
  switch (Kind) {
    case FailureKind::SubscriptOutOfRange:
      return "Subscript out of range";
    case FailureKind::Overflow:
      return "Overflow";
    case FailureKind::DivisionByZero:
      return "Division by zero";
    case FailureKind::InvalidArgument:
      return "Invalid argument";
    case FailureKind::TypeMismatch:
      return "Type mismatch";
    case FailureKind::FileNotFound:
      return "File not found";
    case FailureKind::FileAccess:
      return "File access error";
    case FailureKind::InvalidPicture:
      return "Invalid picture";
    case FailureKind::FocusRefused:
      return "The control can not take the focus";
  }
  return "Failure";
}

}  // namespace zerimo
