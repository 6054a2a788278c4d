#pragma once

namespace zerimo {

/// Marks the upper halves of the processor's wide registers as free. A toolkit's painting may leave them in use, and
/// from then on each call of a function like `sin` costs some hundred nanoseconds more, without end. Does nothing on
/// processors that have no such registers.
void FreeWideRegisters() noexcept;

}  // namespace zerimo
