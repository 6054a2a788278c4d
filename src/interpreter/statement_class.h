#pragma once

#include <cstdint>

namespace zerimo {

/// What a line is; the numbers are those that the system uses.
/// Behaviour: docs/interpreter.md, "WhatIsThis".
enum StatementClass : std::uint8_t {
  StmtPrimitive = 1,
  StmtCall = 2,
  StmtTo = 3,
  StmtEnd = 4,
  StmtGoto = 5,
  StmtLabel = 6,
  StmtIf = 7,
  StmtEndIf = 8,
  StmtElse = 9,
  StmtMake = 10,
  StmtArithmetic = 11,
  StmtRelation = 12,
};

}  // namespace zerimo
