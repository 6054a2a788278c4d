#include "side_by_side/random_session.h"

#include <span>

namespace zerimo {

namespace {

using Texts = std::span<const char* const>;

constexpr const char* UsualNames[] = {":N", ":A", ":B", "#", "##", "X", ":SIDE"};
constexpr const char* OddNames[] = {"A1",  "XCORE", "XCOR", "YCOR", ":AB", "A.B", "$",   "E",    "D",  "1",   "=",
                                    "A=B", "-",     "\\",   "\"Q",  "é",   "COR", ":NN", "BOX",  "N",  ":",   "[X]",
                                    "(A)", "&H",    "+",    "a",    "\r",  "!",   "#N",  "P.:N", "\"", "\x01"};
constexpr const char* UsualNumbers[] = {"1", "2", "3", "5", "7", "10", "12", "45", "90", "100", "2.5", ".25", "0.125"};
constexpr const char* OddNumbers[] = {"0",
                                      "-1",
                                      "-90",
                                      "1E15",
                                      "999999999999999",
                                      "1E308",
                                      "1E-5",
                                      "0.0",
                                      "32767",
                                      "32768",
                                      "00012",
                                      "5.",
                                      ".",
                                      "1.2.3",
                                      "2E2",
                                      "-.5",
                                      "1000000",
                                      "3.14159265358979",
                                      "0.333333333333333",
                                      "2147483648",
                                      "1D3",
                                      "12 3",
                                      "9999999999999999",
                                      "100000000000000"};
constexpr const char* Procedures[] = {"P", "BOX", "P.Q", "A=1", "F-1", "#T", "STEP", "Q"};
constexpr const char* Operators[] = {"+", "-", "*", "/", "%", "+", "-", "*"};
constexpr const char* OddOperators[] = {"--", "*-", "/-", "+-", "%-", " + ", "\\", "<", ")(", "  "};
constexpr const char* Relations[] = {"<", ">", "<=", ">=", "=", "!=", "!", "<=", "<"};
constexpr const char* OddRelations[] = {"==", "<>", "=<", "<<", " < ", ">==", ""};
constexpr const char* Moves[] = {"FD", "BK", "RT", "LT", "SETX", "SETY", "PRINT", "FORWARD", "RT", "FD"};
constexpr const char* Plain[] = {"PU",    "PD",     "PE",    "PX", "HT",    "ST",          "HOME",  "CS",
                                 "FENCE", "WINDOW", "HOMEX", "FD", "RT 90", "LINEWIDTH 3", "SOUND", "GETX"};
constexpr const char* OddLines[] = {
    "ENDIF",   "ELSE",       "IF",      "GOTO",   "LABEL",   "TO",           "END",           "MAKE",
    "MAKE :N", "REPEAT",     "LOAD X",  "LABEL ", "GOTO $$", "UNKNOWN",      "5+3",           "3<4",
    "END ",    "MAKE A=B 5", "TO P :N", "ENDIF ", "SETPC 4", "RESOLUTION 0", "RESOLUTION 50", "RESOLUTION 1E-300",
    "TO # :A", "P #TO P",    "LOAD Y"};

}  // namespace

std::string RandomSession::Number() {
  if (Chance(wild_ ? 3 : 12)) return OddNumbers[Below(std::size(OddNumbers))];
  return Chance(3) ? std::to_string(Below(1000)) : UsualNumbers[Below(std::size(UsualNumbers))];
}

std::string RandomSession::Name() {
  if (Chance(wild_ ? 3 : 20)) return OddNames[Below(std::size(OddNames))];
  return UsualNames[Below(std::size(UsualNames))];
}

std::string RandomSession::Word() { return Chance(2) ? Number() : Name(); }

std::string RandomSession::Expression(int depth) {
  std::string text;
  if (wild_ && Chance(12)) text = "-";
  const int terms = 1 + Below(4);
  for (int term = 0; term < terms; ++term) {
    if (term > 0) {
      text +=
          wild_ && Chance(9) ? OddOperators[Below(std::size(OddOperators))] : Operators[Below(std::size(Operators))];
    }
    text += depth > 0 && Chance(4) ? "(" + Expression(depth - 1) + ")" : Word();
  }
  return text;
}

std::string RandomSession::Condition() {
  const char* const relation =
      wild_ && Chance(6) ? OddRelations[Below(std::size(OddRelations))] : Relations[Below(std::size(Relations))];
  return Expression(1) + relation + Expression(1);
}

std::string RandomSession::Statement() {
  switch (Below(wild_ ? 11 : 9)) {
    case 0:
    case 1:
      return std::string(Chance(4) ? "MAKE \"" : "MAKE ") + Name() + " " + Expression(2);
    case 2:
    case 3:
    case 4:
      return std::string(Moves[Below(std::size(Moves))]) + " " + Expression(2);
    case 5:
      return Plain[Below(std::size(Plain))];
    case 6:
      return "SETXY " + Expression(1) + " " + Expression(1);
    case 7: {
      std::string call = Procedures[Below(std::size(Procedures))];
      for (int inputs = Below(3); inputs > 0; --inputs) call += " " + (Chance(2) ? Word() : Expression(1));
      return call;
    }
    case 8:
      return "SUM " + Expression(1) + " " + Expression(1);
    case 9:
      return Expression(1);
    default:
      return OddLines[Below(std::size(OddLines))];
  }
}

void RandomSession::Statements(std::vector<std::string>& lines, int count, int depth) {
  for (; count > 0; --count) {
    if (depth == 0 || !Chance(5)) {
      lines.push_back(Statement());
      continue;
    }
    const std::string label = "L" + std::to_string(Below(wild_ ? 3 : 1000));
    const bool loop = Chance(2);
    const std::string counter = Name();
    if (loop) {
      lines.push_back("MAKE " + counter + " 1");
      lines.push_back("LABEL " + label);
      Statements(lines, 1 + Below(2), depth - 1);
      lines.push_back("MAKE " + counter + " " + counter + "+1");
      lines.push_back("IF " + counter + "<=" + std::to_string(Below(20)));
      lines.push_back("GOTO " + label);
    } else {
      lines.push_back("IF " + Condition());
      Statements(lines, Below(3), depth - 1);
      if (Chance(2)) lines.push_back("ELSE");
      Statements(lines, Below(2), depth - 1);
    }
    if (!wild_ || !Chance(8)) lines.push_back("ENDIF");
  }
}

std::vector<std::string> RandomSession::Program() {
  std::vector<std::string> lines;
  if (Chance(3)) lines.push_back("MAKE " + Name() + " " + Number());
  for (int procedures = 1 + Below(3); procedures > 0; --procedures) {
    std::string header = std::string("TO ") + Procedures[Below(std::size(Procedures))];
    for (int inputs = Below(3); inputs > 0; --inputs) header += " " + Name();
    lines.push_back(header);
    Statements(lines, 1 + Below(5), 2);
    if (Chance(3)) lines.push_back(std::string(Procedures[Below(3)]) + " " + Name() + "+1");
    if (!wild_ || !Chance(10)) lines.push_back("END");
  }
  return lines;
}

std::string RandomSession::TypedLine() {
  if (Chance(3)) {
    std::string call = Procedures[Below(3)];
    for (int inputs = Below(3); inputs > 0; --inputs) call += " " + Word();
    return call;
  }
  if (Chance(2)) {
    const std::string inner = Chance(3) ? "REPEAT " + std::to_string(Below(6)) + " [" + Statement() + "]" : Statement();
    return "REPEAT " + (Chance(4) ? Word() : std::to_string(1 + Below(30))) + " [" + Statement() + " " + inner + "]";
  }
  return Statement() + (Chance(2) ? " " + Statement() : std::string());
}

std::string RandomSession::Slot() {
  switch (Below(8)) {
    case 0:
      return " ";
    case 1:
      return "";
    case 2:
      return std::string(Procedures[Below(std::size(Procedures))]) + "." + Name() + "=" + Expression(0);
    case 3:
      return "#" + Name() + "=" + Number();
    case 4:
      return Name() + "=$" + Name() + "=" + Number();
    default:
      return Name() + "=" + Number();
  }
}

std::string RandomSession::Path() {
  constexpr const char* paths[] = {"",          " ",     "1",      ".P",         ".P- 3",     ".P- 2.BOX- 1",
                                   "P-7",       "..",    ".P-3-4", ".P- 3.P- 3", ".P- 3.P-3", " .P- 2",
                                   ".-1",       "-",     ".P- -5", ".P- 1E3",    ".P-007",    ".P- 3.Q- 2 ",
                                   ".P- 40000", "#T- 2", ". 5"};
  return paths[Below(std::size(paths))];
}

}  // namespace zerimo
