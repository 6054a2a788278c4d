#pragma once

#include <string>
#include <vector>

namespace zerimo {

/// The words against arguments that the window does not take, or the empty text: it takes the name of one file at
/// most, and no options. `arguments` are those behind the program's name.
std::string RefusalOf(const std::vector<std::string>& arguments);

}  // namespace zerimo
