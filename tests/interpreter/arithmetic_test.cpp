#include "interpreter/arithmetic.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "base/failure.h"
#include "support/limited_watch.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

class ArithmeticTest : public testing::Test {
 protected:
  double Value(std::string expression) { return arithmetic.ArithmeticEvaluator(expression); }

  void ExpectFailure(const std::string& expression, FailureKind kind) {
    try {
      const double value = Value(expression);
      FAIL() << expression << " gave " << value;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Kind, kind) << expression;
    }
  }

  LimitedWatch watch{1000, 10000};
  Arithmetic arithmetic{watch};
};

struct Expression {
  const char* Text;
  double Value;
};

void PrintTo(const Expression& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << one.Value; }

class ExpressionOf : public ArithmeticTest, public testing::WithParamInterface<Expression> {};

TEST_P(ExpressionOf, HasItsValue) { EXPECT_EQ(Value(GetParam().Text), GetParam().Value) << GetParam().Text; }

INSTANTIATE_TEST_SUITE_P(Precedence, ExpressionOf,
                         testing::Values(Expression{"", 0}, Expression{" ", 0}, Expression{"*5", 0},
                                         Expression{"/5", 0}, Expression{" *5", 0}, Expression{"(*3)+1", 1},
                                         Expression{"2+3*4", 14}, Expression{"2-3*4", -10}, Expression{"8/2*3", 12},
                                         Expression{"2*3/4", 1.5}, Expression{"7%4*2", 6}, Expression{"2*7%4", 6},
                                         Expression{"1+2*3%2", 3}, Expression{"10-2-3", 5}, Expression{"100/5/2", 10},
                                         Expression{"1/3*3", .999999999999999}));

INSTANTIATE_TEST_SUITE_P(Minus, ExpressionOf,
                         testing::Values(Expression{"-3*2", -6}, Expression{"2*-3", -6}, Expression{"6/-2", -3},
                                         Expression{"2%-3", 2}, Expression{"-7%3", -1}, Expression{"-7.5%2", 0},
                                         Expression{"7.9%3.9", 1}, Expression{"3+-4", -1}, Expression{"--3", -3},
                                         Expression{"3--4", -1}, Expression{"3-(1-5)", -1}, Expression{"-3", -3},
                                         Expression{"+3", 3}, Expression{"2*+3", 3}, Expression{"3*-4", -12}));

INSTANTIATE_TEST_SUITE_P(Rubbish, ExpressionOf,
                         testing::Values(Expression{"5*", 0}, Expression{"5+", 5}, Expression{"5-", 5},
                                         Expression{"3ABC", 3}, Expression{"ABC+2", 2}, Expression{"3)+4", 7},
                                         Expression{"1E2", 100}, Expression{"1E+2", 3}, Expression{"3 4", 34},
                                         Expression{"3 + 4", 7}, Expression{"10 20", 1020},
                                         Expression{"(1000000*1000000*1000000)+1", 20}, Expression{"2(3+4)", 27},
                                         Expression{"(3+4)2", 72}, Expression{"&H10+1", 17}, Expression{"3+4\r+5", 7},
                                         Expression{"\r5", 0}, Expression{"5<3", 5}));

INSTANTIATE_TEST_SUITE_P(Bracketed, ExpressionOf,
                         testing::Values(Expression{"(2+3)*(4-1)", 15}, Expression{"((2))", 2},
                                         Expression{"(1+(2*(3+4)))", 15}, Expression{"( 2 + 3 ) * 2", 10},
                                         Expression{"()", 0}, Expression{"5)", 5}, Expression{"(1)(2", 10}));

TEST_F(ArithmeticTest, DivisionByZeroFails) {
  for (const char* expression : {"5/0", "5/", "5/X", "5%", "5%.5", "5%0"}) {
    ExpectFailure(expression, FailureKind::DivisionByZero);
  }
}

TEST_F(ArithmeticTest, OverflowFails) {
  for (const char* expression : {"0/0", "0/", "1E200*1E200", "3000000000%7", "7%3000000000", "1E999"}) {
    ExpectFailure(expression, FailureKind::Overflow);
  }
  ExpectFailure("1E308+1E308", FailureKind::Overflow);
}

TEST_F(ArithmeticTest, UnmatchedBracketsFail) {
  for (const char* expression : {"(3", ")3(", "3+(", "((1)"}) ExpectFailure(expression, FailureKind::InvalidArgument);
}

std::string Sum(int terms) {
  std::string text = "1";
  for (int term = 1; term < terms; ++term) text += "+1";
  return text;
}

TEST_F(ArithmeticTest, HundredTokensAreTooMany) {
  EXPECT_EQ(Value(Sum(50)), 50);  // 99 tokens
  EXPECT_EQ(Value("-" + Sum(50)), 48);
  ExpectFailure(Sum(50) + "+", FailureKind::SubscriptOutOfRange);  // 100 tokens
  ExpectFailure(Sum(51), FailureKind::SubscriptOutOfRange);        // 101 tokens
}

TEST_F(ArithmeticTest, TheCallersBracketsAreReplaced) {
  std::string expression = "2 * (3+4) ";
  EXPECT_EQ(arithmetic.ArithmeticEvaluator(expression), 14);
  EXPECT_EQ(expression, "2 *7");
}

TEST_F(ArithmeticTest, ABracketsValueIsText) {
  std::string expression = "1-(2-5)";
  EXPECT_EQ(arithmetic.BracketRemover(expression), "1--3");
  expression = "(1/4)";
  EXPECT_EQ(arithmetic.BracketRemover(expression), ".25");
}

class NeverReturns : public ArithmeticTest, public testing::WithParamInterface<const char*> {};

TEST_P(NeverReturns, AndIsStoppedByTheWatch) { EXPECT_THROW(Value(GetParam()), Stopped); }

INSTANTIATE_TEST_SUITE_P(LoneOperators, NeverReturns, testing::Values("%", "-/3", "-*3", "+/3", "-%3"));

TEST(Brackets, CountsTheOpeningOnes) {
  EXPECT_EQ(Brackets("(1+(2))"), 2);
  EXPECT_EQ(Brackets("1)"), 0);
}

TokenArray Tokens(std::initializer_list<const char*> texts) {
  TokenArray tokens;
  int index = 1;
  for (const char* text : texts) tokens.Set(index++, text);
  return tokens;
}

std::string Joined(const TokenArray& tokens) {
  std::string text;
  for (int index = 1; !tokens.IsEnd(index); ++index) text += "[" + tokens.At(index) + "]";
  return text;
}

TEST(Tokens, SpaceRemoverClosesHolesButNotTheSecondOfTwo) {
  TokenArray tokens = Tokens({" ", "1", " ", "2"});
  SpaceRemover(tokens);
  EXPECT_EQ(Joined(tokens), "[1][2]");
  tokens = Tokens({"1", " ", " ", "2"});
  SpaceRemover(tokens);
  EXPECT_EQ(Joined(tokens), "[1][ ][2]");
  tokens = Tokens({"1", "  ", "2"});
  SpaceRemover(tokens);
  EXPECT_EQ(Joined(tokens), "[1][  ][2]");
}

TEST(Tokens, UnaryMinusJoinsAfterOperatorsOfProducts) {
  TokenArray tokens = Tokens({"2", "*", "-", "3", "+", "-", "4"});
  UnaryMinusProcessor(tokens);
  EXPECT_EQ(Joined(tokens), "[2][*][-3][+][-][4]");
}

TEST(Tokens, EachOperationPerformsTheLeftmostOnly) {
  TokenArray tokens = Tokens({"8", "/", "4", "/", "2"});
  Divider(tokens);
  EXPECT_EQ(Joined(tokens), "[ 2][/][2]");
  tokens = Tokens({"8", "*", "4", "*", "2"});
  Multiplier(tokens);
  EXPECT_EQ(Joined(tokens), "[ 32][*][2]");
  tokens = Tokens({"8", "%", "5", "%", "2"});
  Remainder(tokens);
  EXPECT_EQ(Joined(tokens), "[ 3][%][2]");
}

TEST(Tokens, OperatorsAreCountedFromTheFirst) {
  EXPECT_EQ(OperatorCounter(Tokens({"%", "1", "%"}), "%"), 2);
  EXPECT_EQ(OperatorCounter(Tokens({"1", "%", "\r", "%"}), "%"), 1);
}

TEST(Tokens, OutsideTheArrayFails) {
  TokenArray tokens;
  tokens.Set(100, "1");
  EXPECT_THROW(tokens.Set(101, "1"), Failure);
  EXPECT_THROW(tokens.At(101), Failure);
}

TEST(ExpressionEvaluator, DoesNoArithmetic) { EXPECT_EQ(ExpressionEvaluator("2+3"), 2); }

}  // namespace
}  // namespace zerimo
