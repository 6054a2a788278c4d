#include "base/failure.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/quoted.h"

namespace zerimo {
namespace {

struct Told {
  FailureKind Kind;
  const char* Words;
};

void PrintTo(const Told& one, std::ostream* out) { *out << Quoted(one.Words); }

class FailureWords : public testing::TestWithParam<Told> {};

TEST_P(FailureWords, AreReportedAtTheEndOfTheProgram) {
  EXPECT_STREQ(Failure(GetParam().Kind).what(), GetParam().Words);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FailureWords,
                         testing::Values(Told{FailureKind::SubscriptOutOfRange, "Subscript out of range"},
                                         Told{FailureKind::Overflow, "Overflow"},
                                         Told{FailureKind::DivisionByZero, "Division by zero"},
                                         Told{FailureKind::InvalidArgument, "Invalid argument"},
                                         Told{FailureKind::TypeMismatch, "Type mismatch"},
                                         Told{FailureKind::FileNotFound, "File not found"},
                                         Told{FailureKind::FileAccess, "File access error"},
                                         Told{FailureKind::InvalidPicture, "Invalid picture"},
                                         Told{FailureKind::FocusRefused, "The control can not take the focus"}));

TEST(SkipOnFailureTest, TellsThatAStatementWentThrough) {
  int statements = 0;
  EXPECT_TRUE(SkipOnFailure([&] { ++statements; }));
  EXPECT_EQ(statements, 1);
}

TEST(SkipOnFailureTest, SkipsAFailure) {
  EXPECT_FALSE(SkipOnFailure([] { throw Failure(FailureKind::Overflow); }));
}

TEST(SkipOnFailureTest, LetsTheEndOfTheSystemAndALimitThrough) {
  EXPECT_THROW(SkipOnFailure([] { throw Ended{"BYE"}; }), Ended);
  EXPECT_THROW(SkipOnFailure([] { throw Stopped{"steps"}; }), Stopped);
}

}  // namespace
}  // namespace zerimo
