#pragma once

#include <cstdint>
#include <string_view>

#include "interpreter/store.h"

namespace zerimo {

/// Adds the statements of a program's text to the store, from line `number` on, after what the lines hold; `number`
/// moves on with the lines. A line ends with a carriage return; several in a row count as one, and one at the very
/// beginning does not count. Of the other characters only the codes 32 to 126 are kept. Fails (subscript) beyond line
/// 2000, and what was filled stays.
void FillStore(Store& store, std::string_view text, std::int16_t& number);

}  // namespace zerimo
