#include <gtest/gtest.h>

#include <string>

#include "interpreter/variables.h"
#include "support/failure_of.h"

namespace zerimo {
namespace {

std::string NameIn(std::string expression) { return VariableFinder(expression); }

TEST(VariableFinder, TakesNoDigitForPartOfAName) {
  EXPECT_EQ(NameIn("A1"), "A");
  EXPECT_EQ(NameIn("1A2B"), "A");
}

TEST(VariableFinder, EndsANameAtEachOtherCharacter) {
  for (const char end : std::string("()0123456789.+-*/%<>=! []")) {
    EXPECT_EQ(NameIn(std::string(1, end) + "AB" + end + "C"), "AB") << end;
  }
  for (const char inside : std::string("\\\"#$:,;_{}&'\r\t")) {
    EXPECT_EQ(NameIn(std::string("A") + inside + "B"), std::string("A") + inside + "B") << inside;
  }
}

TEST(VariablePresent, KnowsTheExpressionAlphabet) {
  EXPECT_FALSE(VariablePresent(")(0123456789.+-*/%<>=![]"));
  EXPECT_FALSE(VariablePresent(""));
  for (const char other : std::string("A:#$\\\"\r")) EXPECT_TRUE(VariablePresent(std::string("1") + other)) << other;
}

std::string Replaced(std::string text, const char* find, const char* replacement) {
  return Textreplace(text, find, replacement);
}

TEST(Textreplace, ReplacesBetweenDelimiters) {
  for (const char mark : std::string("\r+-*/\\%><= ()[]!")) {
    const std::string text = std::string("1") + mark + "X" + mark + "2";
    EXPECT_EQ(Replaced(text, "X", "9"), std::string(" 1") + mark + "9" + mark + "2 ") << static_cast<int>(mark);
  }
  for (const char other : std::string("A1.:\"#,{}&\t")) {
    EXPECT_EQ(Replaced(std::string("1+X") + other, "X", "9"), std::string(" 1+X") + other + " ") << other;
    EXPECT_EQ(Replaced(other + std::string("X+1"), "X", "9"), std::string(" ") + other + "X+1 ") << other;
  }
}

TEST(Textreplace, ReturnsThePaddedTextWithoutAnOccurrence) {
  EXPECT_EQ(Replaced("A+B", "C", "1"), " A+B ");
  EXPECT_EQ(Replaced("", "C", "1"), "  ");
}

TEST(Textreplace, TheEmptyTextHasNoCharacterBeforeIt) {
  EXPECT_EQ(FailureOf([] { Replaced("A", "", "5"); }), FailureKind::InvalidArgument);
}

}  // namespace
}  // namespace zerimo
