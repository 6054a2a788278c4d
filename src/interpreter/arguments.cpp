#include "interpreter/arguments.h"

#include <utility>

#include "base/failure.h"
#include "interpreter/line_entry.h"

namespace zerimo {

double Arguments::NumberOfText(std::string text) const {
  ReplaceNames(text);
  return Evaluate(std::move(text));
}

double Arguments::WordNumber(std::string& rest, int nthWord) const {
  std::string word;
  SkipOnFailure([&] { word = GiveWord(rest, nthWord); });
  return Number(word);
}

void Arguments::ReplaceNames(std::string& text) const {
  SkipOnFailure([&] { text = variables_.ReplaceXcorAndYcor(text); });
  SkipOnFailure([&] { text = variables_.VarValReplacer(text); });
  SkipOnFailure([&] { text = variables_.GlobalVariableReplacer(text); });
}

double Arguments::Evaluate(std::string text) const {
  double value = 0;
  SkipOnFailure([&] { value = arithmetic_.ArithmeticEvaluator(text); });
  return value;
}

}  // namespace zerimo
