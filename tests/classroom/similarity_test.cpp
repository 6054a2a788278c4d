#include "classroom/similarity.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

PupilRun Program(const QStringList& lines) {
  PupilRun run;
  for (const QString& line : lines) run.Went.Source.push_back({line});
  return run;
}

const QStringList Lines = {"TO A", "FD 10", "RT 90", "SETPC 4", "STAMPCIRCLE 8", "LT 45", "BK 3", "END"};

TEST(Similarity, NamesNumbersTextsAndColoursDoNotCount) {
  EXPECT_EQ(Bare("FD 10"), Bare("fd :SIDE"));
  EXPECT_EQ(Bare("MAKE \"A :A+1"), Bare("MAKE \"COUNT :COUNT+2"));
  EXPECT_EQ(Bare("PRINT \"HELLO\""), Bare("PRINT \"BYE NOW\""));
  EXPECT_NE(Bare("FD 10"), Bare("BK 10"));
}

TEST(Similarity, AnotherOrderIsAlike) {
  QStringList other = {"TO B", "BK 7", "LT 1", "STAMPCIRCLE 2", "SETPC 1", "RT 2", "FD 5", "END"};
  const std::vector<AlikePair> pairs = AlikePairs({Program(Lines), Program(other)}, {});
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Percent, 100);
  EXPECT_EQ(pairs[0].Lines.size(), 6);
}

TEST(Similarity, ShortProgramsAreAlikeByChance) {
  const QStringList square = {"TO A", "CS", "REPEAT 4 [FD 50 RT 90]", "END"};
  EXPECT_TRUE(AlikePairs({Program(square), Program(square)}, {}).empty());
}

TEST(Similarity, WhatEveryoneWasGivenDoesNotCount) {
  EXPECT_TRUE(AlikePairs({Program(Lines), Program(Lines)}, Lines.join("\r\n")).empty());
}

TEST(Similarity, OtherProgramsAreNot) {
  const QStringList other = {"TO B", "HT", "CIRCLE 0 0 1", "DOT 1 2", "LW 3", "SETX 5", "SETY 6", "HOME", "END"};
  EXPECT_TRUE(AlikePairs({Program(Lines), Program(other)}, {}).empty());
}

}  // namespace
}  // namespace zerimo::classroom
