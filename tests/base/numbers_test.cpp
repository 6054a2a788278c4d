#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <ostream>

#include "base/failure.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

struct ReadNumber {
  const char* Text;
  double Value;
};

void PrintTo(const ReadNumber& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << one.Value; }

class ValOf : public testing::TestWithParam<ReadNumber> {};

TEST_P(ValOf, IsTheLeadingNumber) { EXPECT_EQ(Val(GetParam().Text), GetParam().Value) << GetParam().Text; }

INSTANTIATE_TEST_SUITE_P(
    Val, ValOf,
    testing::Values(ReadNumber{"", 0}, ReadNumber{"ABC", 0}, ReadNumber{"12", 12}, ReadNumber{" 3 4", 34},
                    ReadNumber{"1\t2\n3", 123}, ReadNumber{"1\r2", 1}, ReadNumber{"-5", -5}, ReadNumber{"+5", 5},
                    ReadNumber{"--3", 0}, ReadNumber{"- 5", -5}, ReadNumber{".5", .5}, ReadNumber{"5.", 5},
                    ReadNumber{"1.2.3", 1.2}, ReadNumber{".", 0}, ReadNumber{"-", 0}, ReadNumber{"3ABC", 3},
                    ReadNumber{"3)", 3}, ReadNumber{"1E2", 100}, ReadNumber{"1e2", 100}, ReadNumber{"1D2", 100},
                    ReadNumber{"1d-2", .01}, ReadNumber{"1E", 1}, ReadNumber{"1E+", 1}, ReadNumber{"1E+2", 100},
                    ReadNumber{"E5", 0}, ReadNumber{".E5", 0}, ReadNumber{"&H1F", 31}, ReadNumber{"&hff", 255},
                    ReadNumber{"&O17", 15}, ReadNumber{"&o17", 15}, ReadNumber{"&O18", 1}, ReadNumber{"&H1FG", 31},
                    ReadNumber{"&H1f@", 31}, ReadNumber{"&h1Fg", 31}, ReadNumber{"&h1f`", 31}, ReadNumber{"&X1", 0},
                    ReadNumber{"5%3", 5}, ReadNumber{"1E-400", 0}, ReadNumber{"-.25", -.25}, ReadNumber{"0E999", 0}));

TEST(Val, BeyondTheRangeOfNumbersFails) {
  EXPECT_THROW(Val("1E309"), Failure);
  EXPECT_THROW(Val("-1E999"), Failure);
  EXPECT_THROW(Val(std::string(400, '9')), Failure);
  EXPECT_THROW(Val(std::string(400, '9') + "E-10"), Failure);
  EXPECT_THROW(Val("1E" + std::string(400, '9')), Failure);
  EXPECT_THROW(Val("." + std::string(400, '0') + "1E+800"), Failure);
}

TEST(Val, TooSmallANumberIsZero) {
  EXPECT_EQ(Val("." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Val("." + std::string(400, '0') + "1E10"), 0);
  EXPECT_EQ(Val("1E-" + std::string(400, '9')), 0);
}

struct WrittenNumber {
  double Value;
  const char* Text;
};

void PrintTo(const WrittenNumber& one, std::ostream* out) {
  *out << std::setprecision(17) << one.Value << ", " << Quoted(one.Text);
}

class StrOf : public testing::TestWithParam<WrittenNumber> {};

TEST_P(StrOf, HasItsForm) { EXPECT_EQ(Str(GetParam().Value), GetParam().Text); }

INSTANTIATE_TEST_SUITE_P(
    Str, StrOf,
    testing::Values(WrittenNumber{0, " 0"}, WrittenNumber{-0.0, " 0"}, WrittenNumber{5, " 5"}, WrittenNumber{-5, "-5"},
                    WrittenNumber{.5, " .5"}, WrittenNumber{-.25, "-.25"}, WrittenNumber{1.25, " 1.25"},
                    WrittenNumber{1.0 / 3, " .333333333333333"}, WrittenNumber{2.0 / 3, " .666666666666667"},
                    WrittenNumber{123456789012345, " 123456789012345"}, WrittenNumber{1E15, " 1E+15"},
                    WrittenNumber{1.5E20, " 1.5E+20"}, WrittenNumber{999999999999999, " 999999999999999"},
                    WrittenNumber{999999999999999.9, " 1E+15"}, WrittenNumber{-1E100, "-1E+100"},
                    WrittenNumber{.0001, " .0001"}, WrittenNumber{.00001, " 1E-05"}, WrittenNumber{.00012, " .00012"},
                    WrittenNumber{-.00001, "-1E-05"}, WrittenNumber{12345.678, " 12345.678"}));

TEST(Str, TrimmedHasNoLeadingBlank) {
  EXPECT_EQ(StrTrimmed(5), "5");
  EXPECT_EQ(StrTrimmed(-5), "-5");
  EXPECT_EQ(StrTrimmed(.5), ".5");
}

TEST(Rounding, TakesTheEvenNeighbourOfAHalf) {
  EXPECT_EQ(RoundHalfEven(.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(2.4999999), 2);
  EXPECT_EQ(RoundHalfEven(-2.6), -3);
  EXPECT_FALSE(std::signbit(RoundHalfEven(-.4)));
  EXPECT_EQ(RoundHalfEven(999999999999999.5), 1E15);
  EXPECT_EQ(RoundHalfEven(2251799813685248.5), 2251799813685248);
  EXPECT_EQ(RoundHalfEven(-4503599627370495.5), -4503599627370496);
}

TEST(Rounding, ToDecimalsRoundsTheScaledNumber) {
  EXPECT_EQ(RoundToDecimals(.125, 2), .12);
  EXPECT_EQ(RoundToDecimals(.375, 2), .38);
  EXPECT_EQ(RoundToDecimals(.25, 1), .2);
  EXPECT_EQ(RoundToDecimals(2.5, 0), 2);
  EXPECT_EQ(RoundToDecimals(-.75, 1), -.8);
  EXPECT_EQ(RoundToDecimals(3.14159, 2), 3.14);
}

TEST(Rounding, ANumberTooLargeForDecimalsStays) {
  EXPECT_EQ(RoundToDecimals(1E308, 2), 1E308);
  EXPECT_EQ(RoundToDecimals(-1.5E300, 1), -1.5E300);
  EXPECT_THROW(RoundToDecimals(std::numeric_limits<double>::infinity(), 2), Failure);
}

TEST(Conversions, FailOutOfRange) {
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_THROW(ToInt16(32767.5), Failure);
  EXPECT_EQ(ToInt16(-32768.5), -32768);
  EXPECT_THROW(ToInt16(-32769), Failure);
  EXPECT_EQ(ToInt32(2147483647), 2147483647);
  EXPECT_THROW(ToInt32(2147483648.0), Failure);
  EXPECT_EQ(ToByte(255.4), 255);
  EXPECT_THROW(ToByte(256), Failure);
  EXPECT_THROW(ToByte(-1), Failure);
  EXPECT_EQ(ToSingle(.5), .5F);
  EXPECT_THROW(ToSingle(1E39), Failure);
  EXPECT_THROW(ToInt16(std::numeric_limits<double>::quiet_NaN()), Failure);
  EXPECT_THROW(AddInt16(32767, 1), Failure);
}

TEST(Conversions, DivisionTellsItsFailures) {
  EXPECT_EQ(Divide(6, -2), -3);
  try {
    Divide(5, 0);
    FAIL() << "5/0 went through";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind, FailureKind::DivisionByZero);
  }
  try {
    Divide(0, 0);
    FAIL() << "0/0 went through";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind, FailureKind::Overflow);
  }
  EXPECT_THROW(Divide(1E300, 1E-300), Failure);
}

}  // namespace
}  // namespace zerimo
