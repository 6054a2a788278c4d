#include "interpreter/relations.h"

#include "base/text.h"

namespace zerimo {

namespace {

constexpr std::string_view Comparisons = "><=!";

bool IsComparison(char character) noexcept { return Comparisons.find(character) != std::string_view::npos; }

/// The number of comparison characters before the first carriage return.
int CountComparisons(std::string_view expression) noexcept {
  int count = 0;
  for (const char character : expression) {
    if (character == '\r') break;
    if (IsComparison(character)) ++count;
  }
  return count;
}

}  // namespace

Comparison ComparisonOf(std::string_view text) noexcept {
  if (text == "<") return Comparison::Less;
  if (text == ">") return Comparison::Greater;
  if (text == "<=") return Comparison::NotGreater;
  if (text == ">=") return Comparison::NotLess;
  if (text == "!" || text == "!=") return Comparison::Unequal;
  if (text == "=") return Comparison::Equal;
  return Comparison::Never;
}

bool RelationEvaluator(std::string& expression, const Arithmetic& arithmetic) {
  if (CountComparisons(expression) == 0) return arithmetic.ArithmeticEvaluator(expression) != 0;
  const int length = Length(expression);
  const int position = static_cast<int>(expression.find_first_of(Comparisons)) + 1;
  std::string left(Left(expression, position - 1));
  const bool twoCharacters = CharacterAt(expression, position + 1) == "=";
  const std::string op(Mid(expression, position, twoCharacters ? 2 : 1));
  // A further comparison goes into the right side, where it cuts the number short.
  std::string right(twoCharacters ? Mid(expression, position + 2, length - position - 1)
                                  : Mid(expression, position + 1, length - position));
  const double leftValue = arithmetic.ArithmeticEvaluator(left);
  const double rightValue = arithmetic.ArithmeticEvaluator(right);
  return Holds(ComparisonOf(op), leftValue, rightValue);
}

}  // namespace zerimo
