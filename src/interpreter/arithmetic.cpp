#include "interpreter/arithmetic.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

constexpr std::string_view Operators = "%-+*/";

bool CutsTokens(char character) noexcept {
  return character == '\r' || Operators.find(character) != std::string_view::npos;
}

/// The innermost pair of brackets, leftmost first; a place keeps its value when nothing is found.
struct BracketPlaces {
  int Open = 0;
  int Close = 0;

  void Find(std::string_view expression) {
    if (const int close = PositionOf(expression, ")"); close != 0) Close = close;
    for (int position = Close; position >= 1; --position) {
      if (CharacterAt(expression, position) != "(") continue;
      Open = position;
      break;
    }
  }
};

TokenArray CutIntoTokens(std::string_view expression) {
  TokenArray tokens;
  int number = 1;
  for (std::size_t at = 0; at < expression.size(); ++at) {
    const char character = expression[at];
    // A sign at the first place sticks to its operand.
    if (at == 0 || !CutsTokens(character)) {
      tokens.Append(number, character);
      continue;
    }
    if (!CutsTokens(expression[at - 1])) ++number;
    tokens.Set(number, std::string(1, character));
    ++number;
  }
  return tokens;
}

/// Performs the leftmost operation `op`, if there is one after the first token.
template <typename Operation>
void PerformLeftmost(TokenArray& tokens, std::string_view op, Operation&& operation) {
  for (int index = 2; !tokens.IsEnd(index); ++index) {
    if (tokens.At(index) == op) {
      const double result = operation(Val(tokens.At(index - 1)), Val(tokens.At(index + 1)));
      tokens.Set(index - 1, " ");
      tokens.Set(index, Str(result));
      tokens.Set(index + 1, " ");
      SpaceRemover(tokens);
      return;
    }
    SpaceRemover(tokens);
  }
}

std::int64_t WholeOperand(double value) { return ToInt32(std::floor(value)); }

/// Whether a text is one token that no pass changes, so that its value is that of the token.
bool IsOneToken(std::string_view expression) noexcept {
  if (expression == "%") return false;
  for (std::size_t at = 1; at < expression.size(); ++at) {
    if (CutsTokens(expression[at])) return false;
  }
  return true;
}

}  // namespace

const std::string& TokenArray::At(int index) const {
  if (index < 0 || index > LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
  return Ar[static_cast<std::size_t>(index)];
}

void TokenArray::Set(int index, std::string token) {
  if (index < 0 || index > LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
  Ar[static_cast<std::size_t>(index)] = std::move(token);
}

void TokenArray::Append(int index, char character) {
  if (index < 0 || index > LastIndex) throw Failure(FailureKind::SubscriptOutOfRange);
  Ar[static_cast<std::size_t>(index)] += character;
}

bool TokenArray::IsEnd(int index) const { return At(index).empty() || At(index) == "\r"; }

double Arithmetic::ArithmeticEvaluator(std::string& expression) const { return Evaluator(BracketRemover(expression)); }

std::string Arithmetic::BracketRemover(std::string& expression) const {
  BracketPlaces places;
  while (Brackets(expression) >= 1) {
    watch_.Tick();
    const int length = Length(expression);
    places.Find(expression);
    const std::string left(Left(expression, places.Open - 1));
    const std::string inner(Mid(expression, places.Open + 1, places.Close - places.Open - 1));
    const std::string right(Mid(expression, places.Close + 1, length - places.Close));
    // Nothing goes between the parts: 2(3+4) becomes 27.
    const std::string value = Str(Evaluator(inner));
    expression = std::string(Trimmed(left)) + std::string(Trimmed(value)) + std::string(Trimmed(right));
  }
  return expression;
}

double Arithmetic::Evaluator(std::string_view expression) const {
  const std::string_view trimmed = Trimmed(expression);
  if (trimmed.starts_with('/') || trimmed.starts_with('*')) return 0;
  // Added to 0 like any sum, so that the result is never minus zero.
  if (IsOneToken(expression)) return 0 + Val(expression);
  TokenArray tokens = CutIntoTokens(expression);
  SpaceRemover(tokens);
  UnaryMinusProcessor(tokens);
  // The order of these is the precedence. An operator alone in the first token is counted but never performed: such an
  // expression never returns.
  while (OperatorCounter(tokens, "%") >= 1) {
    watch_.Tick();
    Remainder(tokens);
  }
  while (OperatorCounter(tokens, "/") >= 1) {
    watch_.Tick();
    Divider(tokens);
  }
  while (OperatorCounter(tokens, "*") >= 1) {
    watch_.Tick();
    Multiplier(tokens);
  }
  return AddandSub(tokens);
}

std::int16_t Brackets(std::string_view expression) {
  std::int16_t count = 0;
  for (const char character : expression) {
    if (character == '(') count = AddInt16(count, 1);
  }
  return count;
}

void SpaceRemover(TokenArray& tokens) {
  for (int index = 1; !tokens.IsEnd(index); ++index) {
    if (tokens.At(index) != " ") continue;
    for (int move = index; !tokens.IsEnd(move); ++move) tokens.Set(move, tokens.At(move + 1));
  }
}

void UnaryMinusProcessor(TokenArray& tokens) {
  for (int index = 2; !tokens.IsEnd(index); ++index) {
    const std::string& before = tokens.At(index - 1);
    if (tokens.At(index) == "-" && (before == "/" || before == "*" || before == "%")) {
      tokens.Set(index, tokens.At(index) + tokens.At(index + 1));
      tokens.Set(index + 1, " ");
    }
    SpaceRemover(tokens);
  }
}

void Remainder(TokenArray& tokens) {
  PerformLeftmost(tokens, "%", [](double left, double right) {
    const std::int64_t dividend = WholeOperand(left);
    const std::int64_t divisor = WholeOperand(right);
    if (divisor == 0) throw Failure(FailureKind::DivisionByZero);
    return static_cast<double>(dividend % divisor);
  });
}

void Divider(TokenArray& tokens) {
  PerformLeftmost(tokens, "/", [](double left, double right) { return Divide(left, right); });
}

void Multiplier(TokenArray& tokens) {
  PerformLeftmost(tokens, "*", [](double left, double right) { return Finite(left * right); });
}

std::int16_t OperatorCounter(const TokenArray& tokens, std::string_view op) {
  std::int16_t count = 0;
  for (int index = 1; !tokens.IsEnd(index); ++index) {
    if (tokens.At(index) == op) ++count;
  }
  return count;
}

double AddandSub(TokenArray& tokens) {
  double total = 0;
  for (int index = 1; !tokens.IsEnd(index); ++index) {
    const double value = Val(tokens.At(index));
    // Only one token back is looked at: a double minus subtracts once.
    const bool subtracts = index != 1 && tokens.At(index - 1) == "-";
    total = Finite(subtracts ? total - value : total + value);
  }
  SpaceRemover(tokens);
  return total;
}

double ExpressionEvaluator(std::string_view expression) { return Val(expression); }

}  // namespace zerimo
