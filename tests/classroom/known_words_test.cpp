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
  EXPECT_EQ(NeededInputsOf(KnownWord("FD")), 1);
  EXPECT_EQ(NeededInputsOf(KnownWord("SETXY")), 2);
  EXPECT_EQ(NeededInputsOf(KnownWord("CS")), 0);
  EXPECT_EQ(NeededInputsOf(KnownWord("HELP")), 0);
  EXPECT_EQ(NeededInputsOf(KnownWord("PRINT")), 0);
}

TEST(KnownWords, AreToldApartByWhatTheyDo) {
  for (const char* word : {"PU", "PENUP"}) EXPECT_TRUE(IsOneOf<"PU">(KnownWord(word))) << word;
  EXPECT_TRUE((IsOneOf<StmtElse, StmtEndIf>(KnownWord("ENDIF"))));
  EXPECT_TRUE(IsOneOf<inputs::Repeat>(KnownWord("REPEAT")));
  EXPECT_FALSE(IsOneOf<StmtElse>(KnownWord("FD")));
  EXPECT_FALSE(IsOneOf<StmtElse>(KnownWord("NOWHERE")));
}

TEST(KnownWords, SomeDoNothing) {
  QStringList dead;
  for (const WordFacts& word : AllWords()) {
    const QString name = QString::fromLatin1(word.Word.data(), static_cast<qsizetype>(word.Word.size()));
    if (IsKnownWord(name) && IsDead(word)) dead.append(name);
  }
  dead.sort();
  EXPECT_EQ(dead, (QStringList{"CLEARTEXT", "FULLSCREEN", "GETX", "GETY", "SAVE", "SAYDEVELOPERS", "SPLITSCREEN",
                               "TEXTSCREEN"}));
}

TEST(KnownWords, StandInExpressions) {
  EXPECT_EQ(ExpressionOf("^@ (X)", IsOneOf<"(SUM">).pattern(), "^(?:\\(SUM) (X)");
  EXPECT_EQ(ExpressionOf("^& 7", IsOneOf<"SETXY", "LW">).pattern(), "^(?:LW|SETXY \\S+) 7");
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
