#include "console/running_line.h"

namespace zerimo {

std::string RunningLine::Words() const {
  if (number_ < 1) return {};
  return Procedure() + ", line " + std::to_string(number_) + ": " + interpreter_.store.Line(number_);
}

std::string RunningLine::Procedure() const {
  const int header = interpreter_.store.HeaderOf(number_);
  if (header == 0) return {};
  const std::string& line = interpreter_.store.Line(header);
  const std::string name = line.substr(3, line.find(' ', 3) - 3);
  return name.starts_with('#') ? "Your line" : name;
}

}  // namespace zerimo
