#include "classroom/findings/known_words.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

TEST(KnownWords, AreThoseOfTheLanguage) {
  for (const char* word : {"FD", "FORWARD", "(SUM", "REPEAT", "TO", "ENDIF", "LINEWIDTH"})
    EXPECT_TRUE(IsKnownWord(word));
  for (const char* word : {"FORWRD", "fd", "", "AEXP"}) EXPECT_FALSE(IsKnownWord(word)) << word;
}

TEST(KnownWords, NeedTheirInputs) {
  EXPECT_EQ(NeededInputsOf("FD"), 1);
  EXPECT_EQ(NeededInputsOf("SETXY"), 2);
  EXPECT_EQ(NeededInputsOf("CS"), 0);
  EXPECT_EQ(NeededInputsOf("HELP"), 0);
  EXPECT_EQ(NeededInputsOf("PRINT"), 0);
}

TEST(KnownWords, ASlipIsOneLetter) {
  EXPECT_EQ(LettersBetween("FORWRD", "FORWARD"), 1);
  EXPECT_EQ(LettersBetween("FROWARD", "FORWARD"), 1);
  EXPECT_EQ(LettersBetween("", "FD"), 2);
  EXPECT_EQ(LettersBetween("RIGTH", "RIGHT"), 1);
}

TEST(KnownWords, SuggestWhatIsSpeltMostAlike) {
  EXPECT_EQ(SuggestionFor("FORWRD", {}), "FORWARD");
  EXPECT_EQ(SuggestionFor("REPAET", {}), "REPEAT");
  EXPECT_EQ(SuggestionFor("HUOSE", {"HOUSE"}), "HOUSE");
  EXPECT_EQ(SuggestionFor("XYLOPHONE", {}), "");
}

}  // namespace
}  // namespace zerimo::classroom
