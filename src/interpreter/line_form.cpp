#include "interpreter/line_form.h"

#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

LineForm::LineForm(std::string_view line) : Class(WhatIsThis(line)) {
  switch (Class) {
    case StmtPrimitive:
      Primitive = ActionOf(Trimmed(line));
      break;
    case StmtMake: {
      MakeWords make(line);
      Name = std::move(make.Name);
      Value = std::move(make.Value);
      break;
    }
    case StmtIf:
      Condition = From(line, PositionOf(line, " ") + 1);
      break;
    case StmtCall:
      PassOver([&] { Call.emplace(line); });
      break;
    case StmtTo:
      PassOver([&] { Header.emplace(WordsOfHeader(line)); });
      break;
    default:
      break;
  }
}

MakeWords::MakeWords(std::string_view line) {
  int blanks = 0;
  for (const char character : line) {
    if (character == ' ') {
      ++blanks;
    } else if (blanks == 1) {
      Name += character;
    } else if (blanks == 2) {
      Value += character;
    }
  }
  if (Name.starts_with('"')) Name.front() = ':';
}

}  // namespace zerimo
