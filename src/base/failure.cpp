#include "base/failure.h"

#include <array>

namespace zerimo {

namespace {

/// In the order of `FailureKind`. Transcripts hold them, so they stay as they are.
constexpr std::array Sentences = {
    "Subscript out of range", "Overflow",        "Division by zero",
    "Invalid argument",       "Type mismatch",   "File not found",
    "File access error",      "Invalid picture", "The control can not take the focus",
};
static_assert(Sentences.size() == static_cast<std::size_t>(FailureKind::FocusRefused) + 1);

}  // namespace

const char* Failure::what() const noexcept { return Sentences[static_cast<std::size_t>(Kind)]; }

}  // namespace zerimo
