#include "classroom/language.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

#include "batch/in_memory_session.h"
#include "classroom/words.h"

namespace zerimo::classroom {
namespace {

TEST(Language, HasWordsForEveryMistake) {
  for (const char* code : {"en", "de"}) {
    for (const char* words : FindLanguage(code)->Mistakes) EXPECT_NE(words, nullptr) << code;
    QSet<QString> names;
    for (const MistakeFacts& facts : Mistakes()) names.insert(FindLanguage(code)->NameOf(facts.What));
    EXPECT_EQ(names.size(), static_cast<qsizetype>(Mistake::Count)) << code;
  }
}

TEST(Language, OnesAreNotSeveral) {
  const auto told = [](const Language& language, const char* given) {
    return language.Of(Finding{Mistake::MissingInputs, 2, {"SETXY", "2", given}});
  };
  EXPECT_EQ(told(English, "1"), "SETXY has 1 input where it needs 2.");
  EXPECT_EQ(told(English, "0"), "SETXY has 0 inputs where it needs 2.");
  EXPECT_EQ(told(German, "1"), "SETXY hat 1 Eingabe, braucht aber 2.");
  EXPECT_EQ(Filled(German.Points, {"0", "1"}), "0 von 1 Punkt");
  EXPECT_EQ(Filled(German.Points, {"1", "5"}), "1 von 5 Punkten");
  EXPECT_EQ(Filled(German.ShiftedUp, {"1"}), "um 1 Schritt nach oben verschoben");
  EXPECT_EQ(WordsOfSecondLimit(1, German), "1 Sekunde");
}

TEST(Language, NumbersHaveTheirOwnPoint) {
  EXPECT_EQ(WordsOfSeconds(7.1, German), "7,1 s");
  EXPECT_EQ(WordsOfSecondLimit(2.5, German), "2,5 Sekunden");
  EXPECT_EQ(WordOfNumber(1234567, German), "1234567");
  EXPECT_EQ(WordOfNumber(0.5, English), "0.5");
}

class SessionMessage : public testing::TestWithParam<const char*> {};

TEST_P(SessionMessage, IsGermanToo) {
  batch::InMemorySession session;
  session.Run(std::string(GetParam()) + "\n");
  const QString message = QString::fromStdString(session.Result.Message);
  ASSERT_NE(message, "");
  static const QRegularExpression english("\\b(is|are|no|not|can|has|missing|there|the|a|of|from|to|or|and)\\b");
  EXPECT_FALSE(German.Of(message).contains(english)) << German.Of(message).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Lines, SessionMessage,
                         testing::Values("@frobnicate", "\xE2\x82\xAC", "\xC3(", "@enter 5", "@enter 0 1", "@type",
                                         "@text Text1(0) A", "@text Text9 A", "@key Text1(0) F13", "@key Text1(0)",
                                         "@click", "@mouse up Picture1 0 0", "@mouse", "@mouse move Picture1 0",
                                         "@mouse move Picture1 x 0", "@mouse down Picture1 0 0 both", "@scroll Text3 5",
                                         "@scroll HScroll1(0) 256", "@select List3 X", "@select List4 X", "@tick",
                                         "@tick Timer5", "@tick Timer3 0", "@answer", "@answer help A",
                                         "@answer box Cancel", "@answer box", "@answer box Yes\nMESSAGE \"A\"",
                                         "@trace", "@trace on", "@dump", "@dump everything", "@picture"));

TEST(Language, WhatHasNoWordsStaysAsItIs) {
  EXPECT_EQ(German.Of(QString("another note")), "another note");
  EXPECT_EQ(German.Of(QString("(.*)")), "(.*)");
}

}  // namespace
}  // namespace zerimo::classroom
