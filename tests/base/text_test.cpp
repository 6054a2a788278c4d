#include "base/text.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace zerimo {
namespace {

TEST(Text, TrimsOnlyBlanksAtTheEnds) {
  EXPECT_EQ(Trimmed("  A B  "), "A B");
  EXPECT_EQ(Trimmed("\tA\t"), "\tA\t");
  EXPECT_EQ(Trimmed("\r A"), "\r A");
  EXPECT_EQ(Trimmed("   "), "");
  std::string text = " X ";
  Trim(text);
  EXPECT_EQ(text, "X");
}

TEST(Text, CapitalsFollowLatin1) {
  EXPECT_EQ(UpperCase("fd 10 [rt \"z\"]"), "FD 10 [RT \"Z\"]");
  EXPECT_EQ(UpperCase("\xE4\xF6\xFC\xE9"), "\xC4\xD6\xDC\xC9");
  EXPECT_EQ(UpperCase("\xDF\xFF\xF7"), "\xDF\xFF\xF7");
}

TEST(Text, PartsCountFromOne) {
  EXPECT_EQ(Left("ABC", 2), "AB");
  EXPECT_EQ(Left("ABC", 9), "ABC");
  EXPECT_EQ(Mid("ABC", 2, 1), "B");
  EXPECT_EQ(Mid("ABC", 9, 1), "");
  EXPECT_EQ(From("ABC", 3), "C");
  EXPECT_EQ(CharacterAt("ABC", 3), "C");
  EXPECT_EQ(CharacterAt("ABC", 4), "");
}

TEST(Text, NegativeLengthsAndPlacesBelowOneFail) {
  EXPECT_THROW(Left("ABC", -1), Failure);
  EXPECT_THROW(Mid("ABC", 0, 1), Failure);
  EXPECT_THROW(Mid("ABC", 1, -1), Failure);
  EXPECT_THROW(From("ABC", 0), Failure);
}

TEST(Text, PositionsAreZeroWhenNothingIsFound) {
  EXPECT_EQ(PositionOf("ABAB", "B"), 2);
  EXPECT_EQ(PositionOf("ABAB", "X"), 0);
  EXPECT_EQ(PositionOf("", ""), 0);
  EXPECT_EQ(LastPositionOf("ABAB", 'B'), 4);
  EXPECT_EQ(LastPositionOf("ABAB", 'X'), 0);
  EXPECT_TRUE(Contains("PRINT \"TO #\"", "TO #"));
}

TEST(Text, QuotedIsWhatBeginsAndEndsWithAQuote) {
  EXPECT_TRUE(IsQuoted("\"A B\""));
  EXPECT_TRUE(IsQuoted(" \"A\""));
  EXPECT_FALSE(IsQuoted("\"A\" "));
  EXPECT_FALSE(IsQuoted("\"A"));
  EXPECT_FALSE(IsQuoted("A\""));
  EXPECT_FALSE(IsQuoted(""));
}

TEST(Text, WithoutItsEndsATextHasTwoCharactersLess) {
  EXPECT_EQ(WithoutEnds("\"A B\""), "A B");
  EXPECT_EQ(WithoutEnds("\"\""), "");
  EXPECT_THROW(WithoutEnds("\""), Failure);
}

}  // namespace
}  // namespace zerimo
