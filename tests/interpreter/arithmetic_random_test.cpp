#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/arithmetic.h"
#include "support/limited_watch.h"

// Random expressions, computed a second time with a plain vector of tokens.

namespace zerimo {
namespace {

struct Endless {};

using TokenList = std::vector<std::string>;

bool IsOperator(const std::string& token) { return token.size() == 1 && Contains("+-*/%", token); }

TokenList CutToTokens(const std::string& expression) {
  TokenList tokens(1);
  bool fresh = false;
  for (std::size_t at = 0; at < expression.size(); ++at) {
    const std::string character(1, expression[at]);
    const bool cuts = at > 0 && IsOperator(character);
    const bool afterOperator = at > 0 && IsOperator(std::string(1, expression[at - 1]));
    // After an operator a new token has begun, except that a leading sign keeps the first token open.
    if (cuts && !afterOperator) fresh = true;
    if (fresh) tokens.emplace_back();
    if (cuts) {
      tokens.back() = character;
    } else {
      tokens.back() += character;
    }
    fresh = cuts;
  }
  tokens.erase(std::remove(tokens.begin(), tokens.end(), " "), tokens.end());
  return tokens;
}

void JoinMinus(TokenList& tokens) {
  for (std::size_t at = 1; at < tokens.size(); ++at) {
    const std::string& before = tokens[at - 1];
    if (tokens[at] != "-" || (before != "*" && before != "/" && before != "%")) continue;
    if (at + 1 == tokens.size()) continue;
    tokens[at] += tokens[at + 1];
    tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(at) + 1);
  }
}

double Perform(char op, double left, double right) {
  if (op == '*') return Finite(left * right);
  if (op == '/') return Divide(left, right);
  left = std::floor(left);
  right = std::floor(right);
  ToInt32(left);
  ToInt32(right);
  return Finite(std::fmod(left, right == 0 ? throw Failure(FailureKind::DivisionByZero) : right));
}

void PerformAll(TokenList& tokens, char op) {
  const std::string sign(1, op);
  while (std::find(tokens.begin(), tokens.end(), sign) != tokens.end()) {
    const auto found = std::find(tokens.begin() + 1, tokens.end(), sign);
    if (found == tokens.end()) throw Endless{};
    const auto right = found + 1;
    const double rightValue = right == tokens.end() ? 0 : Val(*right);
    *(found - 1) = Str(Perform(op, Val(*(found - 1)), rightValue));
    tokens.erase(found, right == tokens.end() ? right : right + 1);
  }
}

double WithoutBrackets(const std::string& expression) {
  const std::string trimmed(Trimmed(expression));
  if (!trimmed.empty() && (trimmed[0] == '/' || trimmed[0] == '*')) return 0;
  TokenList tokens = CutToTokens(expression);
  JoinMinus(tokens);
  for (const char op : {'%', '/', '*'}) PerformAll(tokens, op);
  double total = 0;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const double value = Val(tokens[at]);
    total = Finite(at > 0 && tokens[at - 1] == "-" ? total - value : total + value);
  }
  return total;
}

/// For balanced brackets only: other tests cover the rest.
double SecondOpinion(std::string expression) {
  for (auto close = expression.find(')'); close != std::string::npos; close = expression.find(')')) {
    const auto open = expression.rfind('(', close);
    const std::string value = StrTrimmed(WithoutBrackets(expression.substr(open + 1, close - open - 1)));
    expression =
        std::string(Trimmed(expression.substr(0, open))) + value + std::string(Trimmed(expression.substr(close + 1)));
  }
  return WithoutBrackets(expression);
}

std::string RandomExpression(std::mt19937& random, int depth) {
  static constexpr std::string_view Characters = "0123456789012345678901234.+-*/%+-*/% EA";
  std::string expression;
  for (auto length = random() % 12; length > 0; --length) {
    if (depth > 0 && random() % 12 == 0) {
      expression += "(" + RandomExpression(random, depth - 1) + ")";
    } else {
      expression += Characters[random() % Characters.size()];
    }
  }
  return expression;
}

/// The value, or a word for a failure and another for an expression that never returns.
template <typename Evaluate>
std::string Outcome(Evaluate&& evaluate) {
  try {
    return Str(evaluate());
  } catch (const Failure& failure) {
    return failure.what();
  } catch (const Stopped&) {
    return "endless";
  } catch (const Endless&) {
    return "endless";
  }
}

TEST(Arithmetic, AgreesWithASecondOpinionOnRandomExpressions) {
  std::mt19937 random(20240229);
  LimitedWatch watch;
  const Arithmetic evaluation(watch);
  for (int round = 0; round < 20000; ++round) {
    const std::string expression = RandomExpression(random, 2);
    // An expression of a few dozen tokens that returns needs fewer rounds than this.
    watch.AllowTicks(200);
    std::string given = expression;
    ASSERT_EQ(Outcome([&] { return evaluation.ArithmeticEvaluator(given); }),
              Outcome([&] { return SecondOpinion(expression); }))
        << expression;
  }
}

}  // namespace
}  // namespace zerimo
