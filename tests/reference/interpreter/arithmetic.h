#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/watch.h"

/// Arithmetic by rewriting text: brackets are replaced by the text of their value, the rest is cut into tokens, and a
/// fixed series of passes rewrites the tokens one operator at a time. The precedence is the order of the passes.
namespace zerimo::reference {

/// The tokens of one expression, indexes 0 to 100; index 0 is never written. Reading or writing outside fails
/// (subscript). The empty text and a single carriage return end the tokens.
class TokenArray {
 public:
  static constexpr int LastIndex = 100;
  const std::string& At(int index) const;
  void Set(int index, std::string token);
  void Append(int index, char character);
  /// Whether the token at an index ends the tokens.
  bool IsEnd(int index) const;

 private:
  std::array<std::string, LastIndex + 1> Ar;
};

class Arithmetic {
 public:
  /// `watch` is told of each round of a loop that may never end.
  explicit Arithmetic(Watch& watch) : watch_(watch) {}

  /// The value of an expression; the caller's text comes back with its brackets replaced. Fails with division by
  /// zero, overflow, invalid argument or subscript; "%", "-/3" and their like never return.
  double ArithmeticEvaluator(std::string& expression) const;

  /// Replaces all bracket pairs in place, and returns the text.
  std::string BracketRemover(std::string& expression) const;

  /// The value of an expression without brackets.
  double Evaluator(std::string_view expression) const;

 private:
  Watch& watch_;
};

/// The number of "(" in an expression.
std::int16_t Brackets(std::string_view expression);

void SpaceRemover(TokenArray& tokens);
void UnaryMinusProcessor(TokenArray& tokens);
/// Each performs the leftmost of its operations.
void Remainder(TokenArray& tokens);
void Divider(TokenArray& tokens);
void Multiplier(TokenArray& tokens);
std::int16_t OperatorCounter(const TokenArray& tokens, std::string_view op);
double AddandSub(TokenArray& tokens);

/// `Val`, in spite of its name.
double ExpressionEvaluator(std::string_view expression);

}  // namespace zerimo::reference
