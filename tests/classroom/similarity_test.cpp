#include "classroom/similarity.h"

#include <gtest/gtest.h>

#include <random>

namespace zerimo::classroom {
namespace {

PupilRun Program(const QStringList& lines) {
  PupilRun run;
  for (const QString& line : lines) run.Outcome.Source.push_back({line});
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
  EXPECT_EQ(Bare("FORWARD 10"), Bare("FD 10"));
  EXPECT_EQ(Bare("REPEAT 4 [FORWARD 10 RIGHT 90]"), Bare("REPEAT 3 [FD :N RT 120]"));
}

TEST(Similarity, AnotherOrderIsAlike) {
  QStringList other = {"TO B", "BK 7", "LT 1", "STAMPCIRCLE 2", "SETPC 1", "RT 2", "FD 5", "END"};
  const std::vector<AlikePair> pairs = PairsOf({Program(Lines), Program(other)});
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Alike.Percent, 100);
  EXPECT_EQ(pairs[0].Alike.Lines, 6U);
}

TEST(Similarity, TheLinesInCommonAreToldAsTheyAreWrittenInBoth) {
  const AlikeSearch search("LT 1");
  EXPECT_EQ(search.SharedLines(Program(Lines), Program({"TO B", "LT 5", "FD :X", "BK  7", "HOME", "FD 10"})),
            (std::vector<SharedLine>{{2, "FD 10", 6, "FD 10"}, {7, "BK 3", 4, "BK  7"}}));
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

/// A drawing of `count` lines, each of one of some words with a number.
PupilRun DrawingOf(const QStringList& words, int seed, int count) {
  std::mt19937 random(static_cast<unsigned>(seed));
  QStringList lines = {"TO A", "CS", "HT"};
  for (int i = 0; i < count; ++i) {
    const auto word = static_cast<qsizetype>(random() % static_cast<unsigned>(words.size()));
    lines.append(words[word] + ' ' + QString::number(5 * (random() % 20)));
  }
  return Program(lines);
}

std::vector<PupilRun> DrawingsOf(const QStringList& words, int count) {
  std::vector<PupilRun> runs;
  for (int seed = 1; seed <= 30; ++seed) runs.push_back(DrawingOf(words, seed, count));
  return runs;
}

TEST(Similarity, DrawingsOfTheSameFewWordsAreNotAlike) {
  const QStringList turtle = {"FD", "RT", "LT"};
  const QStringList more = {"FD", "RT", "LT", "BK", "SETPC", "SETX", "SETY", "STAMPCIRCLE", "FILL", "LW"};
  for (const int count : {20, 40, 150}) {
    EXPECT_TRUE(PairsOf(DrawingsOf(turtle, count)).empty()) << count;
    EXPECT_TRUE(PairsOf(DrawingsOf(more, count)).empty()) << count;
  }
}

TEST(Similarity, ADrawingOfFewWordsIsRecognisedByItsNumbers) {
  PupilRun copy = DrawingOf({"FD", "RT", "LT"}, 7, 20);
  copy.Outcome.Source[4] = {"FD 3"};
  std::vector<PupilRun> runs = DrawingsOf({"FD", "RT", "LT"}, 20);
  runs.push_back(copy);
  const std::vector<AlikePair> pairs = PairsOf(runs);
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(std::pair(pairs[0].One, pairs[0].Other), std::pair(std::size_t{6}, std::size_t{30}));
  EXPECT_EQ(pairs[0].Alike.Lines, 19U);
}

const QStringList Garden = {"TO GARDEN",
                            "CS",
                            "SETBG 3",
                            "PU",
                            "SETXY (-60) 0",
                            "PD",
                            "MAKE \"N 5",
                            "REPEAT :N [FLOWER 20 PU RT 90 FD 30 LT 90 PD]",
                            "END",
                            "TO FLOWER :SIZE",
                            "SETPC 4",
                            "REPEAT 6 [PETAL :SIZE RT 60]",
                            "SETPC 2",
                            "BK 40",
                            "FD 40",
                            "END",
                            "TO PETAL :SIZE",
                            "REPEAT 2 [REPEAT 6 [FD :SIZE/6 RT 10] RT 120]",
                            "END"};

TEST(Similarity, TheUsualSolutionOfASmallTaskIsNoCopy) {
  const QStringList count = {"TO COUNT", "MAKE \"N 5", "LABEL A", "PRINT :N",        "MAKE \"N :N-1",
                             "IF :N>0",  "GOTO A",     "ENDIF",   "PRINT \"START\"", "END"};
  QStringList other = count;
  other.removeAt(4);
  QStringList another = count;
  another[3] = "PRINT \":N\"";
  EXPECT_TRUE(PairsOf({Program(count), Program(other), Program(another)}).empty());
}

TEST(Similarity, ProceduresInAnotherOrderAndOtherWordsForTheSameAreAlike) {
  const QStringList copy = {"TO LEAF :L",    "REPEAT 2 [REPEAT 6 [FORWARD :L/6 RIGHT 10] RIGHT 125]",
                            "END",           "TO MEADOW",
                            "CLEARSCREEN",   "SETBG 11",
                            "PENUP",         "WAIT 1",
                            "SETXY (-50) 0", "PENDOWN",
                            "MAKE \"K 6",    "REPEAT :K [BLOOM 25 PU RIGHT 90 FORWARD 28 LEFT 90 PD]",
                            "END",           "TO BLOOM :L",
                            "SETPC 12",      "REPEAT 5 [LEAF :L RIGHT 72]",
                            "SETPC 2",       "BACK 30",
                            "FORWARD 30",    "END"};
  const std::vector<AlikePair> pairs = PairsOf({Program(Garden), Program(copy)});
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Alike.Lines, 12U);
}

TEST(Similarity, ALongDrawingWithOtherNumbersIsRecognisedByItsOrder) {
  QStringList lines = Garden;
  QStringList copy = Garden;
  for (int i = 0; i < 30; ++i) {
    lines += {QString("FD %1").arg(i), "RT 90"};
    copy += {QString("FD %1").arg(2 * i + 1), "RT 60"};
  }
  EXPECT_EQ(PairsOf({Program(lines), Program(copy)}).size(), 1U);
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
  copy.Outcome.Source.push_back({"HOME"});
  search.Add(copy);
  const std::vector<AlikePair> pairs = search.Pairs();
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(std::pair(pairs[0].One, pairs[0].Other), std::pair(std::size_t{500}, std::size_t{1200}));
  EXPECT_EQ(pairs[0].Alike.Percent, 100);
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
