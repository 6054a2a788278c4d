#pragma once

#include <optional>
#include <utility>

#include "base/failure.h"

namespace zerimo {

/// The kind of failure with which a statement fails, or nothing if it succeeds.
template <typename Statement>
std::optional<FailureKind> FailureOf(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return std::nullopt;
  } catch (const Failure& failure) {
    return failure.Kind;
  }
}

}  // namespace zerimo
