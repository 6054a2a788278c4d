#include "desktop/arguments.h"

namespace zerimo {

std::string RefusalOf(const std::vector<std::string>& arguments) {
  for (const std::string& argument : arguments) {
    if (argument.empty()) return "the name of the file is empty";
    if (argument.front() == '-') return argument + ": there are no options; the name of one file can be given";
  }
  return arguments.size() > 1 ? "only one file can be opened" : std::string();
}

}  // namespace zerimo
