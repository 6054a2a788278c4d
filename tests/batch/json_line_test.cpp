#include "batch/json_line.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <ostream>

#include "support/quoted.h"

namespace zerimo::batch {
namespace {

TEST(JsonLine, KeysStandInTheOrderGivenWithoutBlanks) {
  EXPECT_EQ(JsonLine("typed").Number("row", 0).Text("text", "FD 10").Finished(),
            R"({"event":"typed","row":0,"text":"FD 10"})");
}

TEST(JsonLine, FlagsAreWords) {
  EXPECT_EQ(JsonLine("e").Flag("a", true).Flag("b", false).Finished(), R"({"event":"e","a":true,"b":false})");
}

struct NumberCase {
  double Value;
  const char* Text;
};

void PrintTo(const NumberCase& one, std::ostream* out) { *out << one.Value << ", " << Quoted(one.Text); }

class JsonNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(JsonNumber, IsTheShortestTextThatReadsBack) {
  EXPECT_EQ(JsonLine("e").Number("n", GetParam().Value).Finished(),
            std::string(R"({"event":"e","n":)") + GetParam().Text + "}");
}

INSTANTIATE_TEST_SUITE_P(
    Values, JsonNumber,
    testing::Values(NumberCase{0, "0"}, NumberCase{-0.0, "0"}, NumberCase{7680, "7680"}, NumberCase{-5, "-5"},
                    NumberCase{100000, "100000"}, NumberCase{1e15, "1000000000000000"}, NumberCase{0.5, "0.5"},
                    NumberCase{-0.25, "-0.25"}, NumberCase{0.1, "0.1"}, NumberCase{1.0 / 3, "0.3333333333333333"},
                    NumberCase{0.1 + 0.2, "0.30000000000000004"}, NumberCase{1e22, "10000000000000000000000"},
                    NumberCase{1.5e-7, "1.5e-07"}, NumberCase{std::numeric_limits<double>::infinity(), "null"}));

TEST(JsonLine, SingleIsTheShortestTextThatReadsBackToTheSingle) {
  EXPECT_EQ(JsonLine("e").Single("x", 0.1F).Single("y", 7427.5127F).Single("z", 5760.F).Finished(),
            R"({"event":"e","x":0.1,"y":7427.5127,"z":5760})");
}

TEST(JsonLine, WholeNumberOfAnyLengthHasNeitherPointNorExponent) {
  EXPECT_EQ(JsonLine("e").Number("n", 1.5e25).Single("s", -0x1.8p80F).Finished(),
            R"({"event":"e","n":15000000000000000285212672,"s":-1813388729421943762059264})");
}

TEST(JsonLine, GreatestNumberHasAllItsDigits) {
  const std::string line = JsonLine("e").Number("n", -std::numeric_limits<double>::max()).Finished();
  EXPECT_TRUE(line.starts_with(R"({"event":"e","n":-17976931348623157081)")) << line;
  EXPECT_EQ(line.find_first_not_of("0123456789", std::string(R"({"event":"e","n":-)").size()), line.size() - 1);
  EXPECT_EQ(line.size(), std::string(R"({"event":"e","n":-})").size() + 309);
}

/// Tells a number where the locale has a decimal comma, if there is such a locale, and ends the process.
[[noreturn]] void TellNumberInAnotherLocale() {
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8"}) std::setlocale(LC_ALL, name);
  std::cerr << JsonLine("e").Number("n", 1234.5).Finished();
  std::exit(0);
}

TEST(JsonLineDeathTest, NumbersDoNotFollowTheLocale) {
  EXPECT_EXIT(TellNumberInAnotherLocale(), testing::ExitedWithCode(0), R"(\{"event":"e","n":1234\.5\})");
}

TEST(JsonLine, QuotesAndBackslashesAreEscaped) {
  EXPECT_EQ(JsonLine("e").Text("t", R"(A"B\C)").Finished(), R"({"event":"e","t":"A\"B\\C"})");
}

TEST(JsonLine, ControlCharactersAreEscaped) {
  EXPECT_EQ(JsonLine("e").Text("t", std::string("\r\n\t\0\x1F\x7F", 6)).Finished(),
            "{\"event\":\"e\",\"t\":\"\\r\\n\\t\\u0000\\u001f\x7F\"}");
}

TEST(JsonLine, LettersAboveCode127LeaveAsUtf8) {
  EXPECT_EQ(JsonLine("e").Text("t", "\xE4\xFF").Finished(), "{\"event\":\"e\",\"t\":\"\xC3\xA4\xC3\xBF\"}");
}

TEST(JsonLine, TextsFormAnArray) {
  EXPECT_EQ(JsonLine("e").Texts("l", {"A", "", "B"}).Finished(), R"({"event":"e","l":["A","","B"]})");
}

TEST(JsonLine, NoTextsFormAnEmptyArray) {
  EXPECT_EQ(JsonLine("e").Texts("l", {}).Finished(), R"({"event":"e","l":[]})");
}

TEST(JsonLine, NumberedTextsFormAnObject) {
  EXPECT_EQ(JsonLine("e").TextsByNumber("l", {{1, "TO A"}, {12, "END"}}).Finished(),
            R"({"event":"e","l":{"1":"TO A","12":"END"}})");
}

}  // namespace
}  // namespace zerimo::batch
