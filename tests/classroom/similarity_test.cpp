#include "classroom/similarity.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

PupilRun Program(const QStringList& lines) {
  PupilRun run;
  for (const QString& line : lines) run.Went.Source.push_back({line});
  return run;
}

std::vector<AlikePair> PairsOf(const std::vector<PupilRun>& runs, const QString& given = {}) {
  AlikeSearch search(given);
  for (const PupilRun& run : runs) search.Add(run);
  return search.Pairs();
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
  const std::vector<AlikePair> pairs = PairsOf({Program(Lines), Program(other)});
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Percent, 100);
  EXPECT_EQ(pairs[0].Lines, 6U);
}

TEST(Similarity, TheLinesInCommonAreToldAsTheyAreWritten) {
  const AlikeSearch search("LT 1");
  EXPECT_EQ(search.SharedLines(Program(Lines), Program({"TO B", "LT 5", "FD :X", "BK  7", "HOME"})),
            (QStringList{"FD 10", "BK 3"}));
}

TEST(Similarity, ShortProgramsAreAlikeByChance) {
  const QStringList square = {"TO A", "CS", "REPEAT 4 [FD 50 RT 90]", "END"};
  EXPECT_TRUE(PairsOf({Program(square), Program(square)}).empty());
}

TEST(Similarity, WhatEveryoneWasGivenDoesNotCount) {
  EXPECT_TRUE(PairsOf({Program(Lines), Program(Lines)}, Lines.join("\r\n")).empty());
}

TEST(Similarity, OtherProgramsAreNot) {
  const QStringList other = {"TO B", "HT", "CIRCLE 0 0 1", "DOT 1 2", "LW 3", "SETX 5", "SETY 6", "HOME", "END"};
  EXPECT_TRUE(PairsOf({Program(Lines), Program(other)}).empty());
}

/// A program of ten lines, most of which no other number has.
PupilRun ProgramOf(int number) {
  QStringList lines = {"TO A"};
  for (int i = 0; i < 10; ++i) lines.append(QString("PRINT ") + QString((number + 7 * i) % 997 + 1, u'+'));
  return Program(lines);
}

TEST(Similarity, AmongThousandsThoseWithARareLineInCommonAreCompared) {
  AlikeSearch search({});
  for (int i = 0; i < 1200; ++i) search.Add(i % 100 == 0 ? ProgramOf(i) : Program({"TO A", "FD 1", "RT 2", "END"}));
  PupilRun copy = ProgramOf(500);
  copy.Went.Source.push_back({"HOME"});
  search.Add(copy);
  const std::vector<AlikePair> pairs = search.Pairs();
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(std::pair(pairs[0].One, pairs[0].Other), std::pair(std::size_t{500}, std::size_t{1200}));
  EXPECT_EQ(pairs[0].Percent, 100);
}

TEST(Similarity, AmongThousandsThoseWithAllLinesInCommonAreCompared) {
  AlikeSearch search({});
  for (int i = 0; i < 1200; ++i) search.Add(Program(i % 50 == 0 ? Lines : QStringList{"TO A", "END"}));
  // Each of the 24 with the next.
  EXPECT_EQ(search.Pairs().size(), 23U);
}

TEST(Similarity, OnlyTheBestPairsAreReported) {
  AlikeSearch search({});
  for (int i = 0; i < 60; ++i) search.Add(Program(Lines));
  const std::vector<AlikePair> pairs = search.Pairs();
  EXPECT_EQ(pairs.size(), AlikeSearch::MostPairs);
  EXPECT_EQ(std::pair(pairs[0].One, pairs[0].Other), std::pair(std::size_t{0}, std::size_t{1}));
}

}  // namespace
}  // namespace zerimo::classroom
