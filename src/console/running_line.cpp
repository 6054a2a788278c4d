#include "console/running_line.h"

#include "base/failure.h"

namespace zerimo {

void RunningLine::Step() {
  int told = 0;
  SkipOnFailure([&] { told = EndValExtractor(interpreter_.controlPath.CtrlStr()); });
  // After an ENDIF the control string is one ahead of the walk. Never fails: no walk goes on past the store.
  const bool isAhead = number_ > 0 && told == number_ + 2 && interpreter_.store.ClassOf(number_) == StmtEndIf;
  number_ = isAhead ? told - 1 : told;
}

std::string RunningLine::Words() const {
  if (number_ < 1 || number_ > Store::LineCount) return {};
  return Procedure() + ", line " + std::to_string(number_) + ": " + interpreter_.store.Line(number_);
}

std::string RunningLine::Procedure() const {
  const Store& store = interpreter_.store;
  for (int number = number_; number > 0; --number) {
    if (store.ClassOf(number) != StmtTo) continue;
    const std::string& line = store.Line(number);
    const std::string name = line.substr(3, line.find(' ', 3) - 3);
    return name.starts_with('#') ? "Your line" : name;
  }
  return {};
}

}  // namespace zerimo
