#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <ostream>
#include <string>

#include "base/failure.h"
#include "interpreter/arithmetic.h"
#include "support/failure_of.h"
#include "support/limited_watch.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

class ArithmeticLimitsTest : public testing::Test {
 protected:
  double Value(std::string expression) const { return arithmetic.ArithmeticEvaluator(expression); }
  std::optional<FailureKind> FailureOfValue(const std::string& expression) const {
    return FailureOf([&] { Value(expression); });
  }
  std::string WithoutBrackets(std::string expression) const {
    arithmetic.BracketRemover(expression);
    return expression;
  }

  LimitedWatch watch;
  Arithmetic arithmetic{watch};
};

struct ValueOfText {
  const char* Text;
  double Value;
};

void PrintTo(const ValueOfText& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << one.Value; }

class ArithmeticValue : public ArithmeticLimitsTest, public testing::WithParamInterface<ValueOfText> {};

TEST_P(ArithmeticValue, IsThatOfTheTokens) { EXPECT_EQ(Value(GetParam().Text), GetParam().Value) << GetParam().Text; }

INSTANTIATE_TEST_SUITE_P(Nothing, ArithmeticValue,
                         testing::Values(ValueOfText{" ", 0}, ValueOfText{"   ", 0}, ValueOfText{"\r", 0},
                                         ValueOfText{"ABC", 0}, ValueOfText{"-", 0}, ValueOfText{"+", 0},
                                         ValueOfText{")", 0}));

INSTANTIATE_TEST_SUITE_P(LeadingOperator, ArithmeticValue,
                         testing::Values(ValueOfText{"  *5+1", 0}, ValueOfText{"%5", 0}, ValueOfText{"%5+2", 2}));

INSTANTIATE_TEST_SUITE_P(Precedence, ArithmeticValue,
                         testing::Values(ValueOfText{"16/4/2", 2}, ValueOfText{"17%10%4", 3}, ValueOfText{"8/4*2", 4},
                                         ValueOfText{"2*8/4", 4}));

INSTANTIATE_TEST_SUITE_P(UnaryMinus, ArithmeticValue,
                         testing::Values(ValueOfText{"2*-3*-4", 24}, ValueOfText{"5*-", 0}));

INSTANTIATE_TEST_SUITE_P(Remainder, ArithmeticValue,
                         testing::Values(ValueOfText{"7%-3", 1}, ValueOfText{"7%4", 3}, ValueOfText{"2147483647%10", 7},
                                         ValueOfText{"2147483647.9%10", 7}, ValueOfText{"-2147483648%-1", 0}));

INSTANTIATE_TEST_SUITE_P(TwoSigns, ArithmeticValue,
                         testing::Values(ValueOfText{"3-+4", 7}, ValueOfText{"3++4", 7}, ValueOfText{"5--3", 2},
                                         ValueOfText{"-+3", 3}, ValueOfText{"+-3", -3}));

INSTANTIATE_TEST_SUITE_P(MissingOperand, ArithmeticValue,
                         testing::Values(ValueOfText{"5*+", 0}, ValueOfText{"1+5*", 1}));

INSTANTIATE_TEST_SUITE_P(Rubbish, ArithmeticValue,
                         testing::Values(ValueOfText{"3<4", 3}, ValueOfText{"5\\2", 5}, ValueOfText{"1.5.5", 1.5}));

INSTANTIATE_TEST_SUITE_P(Exponents, ArithmeticValue,
                         testing::Values(ValueOfText{"1D2", 100}, ValueOfText{"1e2", 100}, ValueOfText{"1E-2", -1}));

INSTANTIATE_TEST_SUITE_P(Conversions, ArithmeticValue,
                         testing::Values(ValueOfText{" 3 4 * 2 ", 68}, ValueOfText{"1\t2\n+1", 13},
                                         ValueOfText{"&HFF", 255}, ValueOfText{"&O17", 15}, ValueOfText{"&HA+&O7", 17},
                                         ValueOfText{".5+.25", .75}, ValueOfText{"3* -4", -12},
                                         ValueOfText{"3*  4", 12}));

INSTANTIATE_TEST_SUITE_P(Brackets, ArithmeticValue,
                         testing::Values(ValueOfText{"2*(3+(4-1))", 12}, ValueOfText{"(2)(3", 20},
                                         ValueOfText{"10/(4-2)", 5}));

INSTANTIATE_TEST_SUITE_P(CarriageReturn, ArithmeticValue,
                         testing::Values(ValueOfText{"3\r+4", 3}, ValueOfText{"3+4\r5", 7}, ValueOfText{"2*\r3", 3}));

TEST_F(ArithmeticLimitsTest, AMinusZeroBecomesZero) {
  EXPECT_FALSE(std::signbit(Value("-0")));
  EXPECT_FALSE(std::signbit(Value("-0+0")));
}

TEST_F(ArithmeticLimitsTest, IntermediateResultsHave15Digits) {
  EXPECT_EQ(Value("1/3+0"), .333333333333333);
  EXPECT_EQ(Value("2/3*1"), .666666666666667);
  EXPECT_EQ(Value("(1/3)"), .333333333333333);
}

TEST_F(ArithmeticLimitsTest, TheSumIsNotRounded) { EXPECT_EQ(Value(".1+.2"), .1 + .2); }

TEST_F(ArithmeticLimitsTest, BracketsAreReplacedFromTheInnermostOneOn) {
  EXPECT_EQ(WithoutBrackets("1+(2*(3+4))"), "1+14");
  EXPECT_EQ(WithoutBrackets("2(3+4)"), "27");
  EXPECT_EQ(WithoutBrackets("(3+4)2"), "72");
  EXPECT_EQ(WithoutBrackets("3)+4"), "3)+4");
}

TEST_F(ArithmeticLimitsTest, WhatStandsBesideABracketIsTrimmed) {
  EXPECT_EQ(WithoutBrackets(" 2 + (3) * 4 "), "2 +3* 4");
}

TEST_F(ArithmeticLimitsTest, ABracketsValueIsPutInAsText) {
  EXPECT_EQ(WithoutBrackets("(1/4)"), ".25");
  EXPECT_EQ(WithoutBrackets("3-(1-5)"), "3--4");
  EXPECT_EQ(WithoutBrackets("(1000000*1000000*1000000)+1"), "1E+18+1");
}

TEST_F(ArithmeticLimitsTest, APlaceKeepsItsValueWhenNoFurtherBracketIsFound) {
  // After the first pair there is no ")": its old place, 3, is used again.
  EXPECT_EQ(WithoutBrackets("(2)(3"), "20");
  EXPECT_EQ(FailureOfValue("(2)+(3"), FailureKind::InvalidArgument);
}

TEST_F(ArithmeticLimitsTest, ABracketThatIsNotClosedFails) {
  EXPECT_EQ(FailureOfValue("(3"), FailureKind::InvalidArgument);
  EXPECT_EQ(FailureOfValue("1+(3"), FailureKind::InvalidArgument);
  EXPECT_EQ(FailureOfValue("3)+(4"), FailureKind::InvalidArgument);
}

TEST_F(ArithmeticLimitsTest, AFailureInABracketLeavesTheTextOfThatRound) {
  std::string expression = "(1)+(2/0)";
  EXPECT_EQ(FailureOf([&] { arithmetic.ArithmeticEvaluator(expression); }), FailureKind::DivisionByZero);
  EXPECT_EQ(expression, "1+(2/0)");
}

TEST_F(ArithmeticLimitsTest, CountsOpeningBrackets) {
  EXPECT_EQ(Brackets("((1)+(2"), 3);
  EXPECT_EQ(Brackets("1)"), 0);
  EXPECT_EQ(Brackets(std::string(32767, '(')), 32767);
  EXPECT_EQ(FailureOf([] { Brackets(std::string(32768, '(')); }), FailureKind::Overflow);
}

TEST_F(ArithmeticLimitsTest, AResultBeyondTheRangeOfNumbersFails) {
  EXPECT_EQ(FailureOfValue("1E300*1E300"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("1E300/.0000000001"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("1E308+1E308"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("0-1E308-1E308"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("1E309"), FailureKind::Overflow);
}

TEST_F(ArithmeticLimitsTest, RemainderByLessThanOneFails) {
  EXPECT_EQ(FailureOfValue("5%0"), FailureKind::DivisionByZero);
  EXPECT_EQ(FailureOfValue("5%"), FailureKind::DivisionByZero);
  EXPECT_EQ(FailureOfValue("5%.5"), FailureKind::DivisionByZero);
  EXPECT_EQ(FailureOfValue("5%-.5"), std::nullopt);
}

TEST_F(ArithmeticLimitsTest, RemainderBeyond32BitsFails) {
  EXPECT_EQ(FailureOfValue("2147483648%3"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("3%2147483648"), FailureKind::Overflow);
  EXPECT_EQ(FailureOfValue("-2147483648.5%3"), FailureKind::Overflow);
}

TEST_F(ArithmeticLimitsTest, ALoneOperatorNeverReturns) {
  for (const char* expression : {"%", " %", "-/3", "-*3", "+/3", "-%3", "(%)+1"}) {
    watch.AllowTicks(1000);
    EXPECT_THROW(Value(expression), Stopped) << expression;
  }
}

}  // namespace
}  // namespace zerimo
