/// The system's own interpreter and the literal one: a program, an empty line, and lines that are typed.

#include "side_by_side/side.h"

#include <sstream>

#include "fuzz.h"

namespace zerimo::fuzz {

namespace {

constexpr int MostTypedLines = 6;
constexpr int MostSteps = 60;

class BothSides {
 public:
  explicit BothSides(bool isWatched) {
    if (!isWatched) return;
    present_.WatchEachStep();
    literal_.WatchEachStep();
  }

  void SetLine(int number, const std::string& line) {
    present_.interpreter.store.SetLine(number, line);
    literal_.interpreter.store.SetLine(number, line);
  }

  void Type(const std::string& line) {
    present_.Type(line, MostSteps);
    literal_.Type(line, MostSteps);
    Require(present_.trace.Steps() == literal_.trace.Steps());
    present_.trace.Clear();
    literal_.trace.Clear();
  }

 private:
  Side<Present> present_;
  Side<Literal> literal_;
};

}  // namespace

void Try(std::string_view input) {
  std::istringstream lines{std::string(input)};
  std::string line;
  // Unwatched, texts that nobody reads are not made for a while.
  BothSides both(std::getline(lines, line) && line == "watched");
  for (int number = 1; number <= Store::LineCount && std::getline(lines, line) && !line.empty(); ++number)
    both.SetLine(number, line);
  for (int typed = 0; typed < MostTypedLines && std::getline(lines, line); ++typed) both.Type(line);
}

}  // namespace zerimo::fuzz
