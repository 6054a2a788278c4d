#include "console/running_line.h"

namespace zerimo {

std::string RunningLine::Words() const {
  if (number_ < 1) return {};
  const std::string procedure = Procedure();
  const std::string& line = interpreter_.store.Line(number_);
  if (procedure.starts_with('#')) return "Your line: " + line;
  return procedure + ", line " + std::to_string(number_) + ": " + line;
}

bool RunningLine::IsWritten() const {
  if (number_ < 1 || !Procedure().starts_with('#')) return true;
  return interpreter_.store.ClassOf(number_) != StmtTo && interpreter_.store.ClassOf(number_) != StmtEnd;
}

std::string RunningLine::Procedure() const {
  const int header = interpreter_.store.HeaderOf(number_);
  if (header == 0) return {};
  const std::string& line = interpreter_.store.Line(header);
  return line.substr(3, line.find(' ', 3) - 3);
}

}  // namespace zerimo
