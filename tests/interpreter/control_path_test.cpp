#include "interpreter/control_path.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace zerimo {
namespace {

TEST(ControlPath, NothingRunsAtFirst) {
  const ControlPath path;
  EXPECT_EQ(path.CtrlStr(), ".");
  EXPECT_EQ(path.CurrentProcedureName(), "");
}

TEST(ControlPath, CurrentProcedureStandsBetweenTheLastDotAndTheLastDash) {
  ControlPath path;
  path.SetCtrlStr(".#TEMP$4- 2.BOX- 17");
  EXPECT_EQ(path.CurrentProcedureName(), "BOX");
  path.SetCtrlStr(".#TEMP$4- 4- 6");
  EXPECT_EQ(path.CurrentProcedureName(), "#TEMP$4- 4");
  path.SetCtrlStr(".A.B");
  EXPECT_THROW(path.CurrentProcedureName(), Failure);
}

TEST(ControlPath, FirstPartEndsWithTheLastDash) {
  EXPECT_EQ(FirstPartExtractor(".#TEMP$7- 5.BOX- 3"), ".#TEMP$7- 5.BOX-");
  EXPECT_EQ(FirstPartExtractor("."), "");
}

TEST(ControlPath, EndValueIsTheNumberAfterTheLastDash) {
  EXPECT_EQ(EndValExtractor(".#TEMP$7- 5"), 5);
  EXPECT_EQ(EndValExtractor(".#TEMP$7-6"), 6);
  EXPECT_EQ(EndValExtractor(".A-B- 9"), 9);
  EXPECT_THROW(EndValExtractor(".A-40000"), Failure);
}

TEST(ControlPath, RemoverCutsTheLastComponent) {
  EXPECT_EQ(CurrentProcedureRemover(".#TEMP$7- 5.BOX- 3"), ".#TEMP$7- 5");
  EXPECT_EQ(CurrentProcedureRemover(".#TEMP$7- 5"), ".");
  EXPECT_EQ(CurrentProcedureRemover("."), ".");
  EXPECT_EQ(CurrentProcedureRemover("X"), ".");
}

TEST(ControlPath, RecursionAtTheSameLineDropsTheInnerComponent) {
  std::string path = ".#TEMP$1- 9.A- 3.A- 3";
  EXPECT_EQ(RecursionChecker(path), ".#TEMP$1- 9.A- 3");
  EXPECT_EQ(path, ".#TEMP$1- 9.A- 3");
}

TEST(ControlPath, RecursionIsTestedOnTheTextWithItsBlank) {
  std::string path = ".#TEMP$1- 9.A- 3.A-3";
  EXPECT_EQ(RecursionChecker(path), ".#TEMP$1- 9.A- 3.A-3");
}

TEST(ControlPath, DifferentComponentsStay) {
  std::string path = ".#TEMP$1- 9.A- 3.B- 3";
  EXPECT_EQ(RecursionChecker(path), ".#TEMP$1- 9.A- 3.B- 3");
  path = ".";
  EXPECT_EQ(RecursionChecker(path), ".");
}

TEST(ControlPath, NameOfACallEndsAtTheFirstBlank) {
  EXPECT_EQ(GetProcNameFromProcedureCall("BOX 10 20"), "BOX");
  EXPECT_EQ(GetProcNameFromProcedureCall("BOX"), "BOX");
}

TEST(ControlPath, KeptHelpers) {
  EXPECT_EQ(RightMostDotPos(".A- 1.B- 2"), 6);
  EXPECT_EQ(ForwardCtrlString(".A- 1.B- 2"), ".A- 1.B-3");
}

/// Paths whose last part is no number as the walk writes it.
class OddPath : public testing::TestWithParam<const char*> {};

TEST_P(OddPath, GetsALineNumberAfterItsFirstPart) {
  const std::string first = FirstPartExtractor(GetParam());
  ControlPath path;
  path.SetCtrlStr(GetParam());
  path.WriteLine(5, ControlPath::Lead::Blank);
  EXPECT_EQ(path.CtrlStr(), first + " 5");
  path.SetCtrlStr(GetParam());
  path.WriteLine(5, ControlPath::Lead::None);
  EXPECT_EQ(path.CtrlStr(), first + "5");
}

INSTANTIATE_TEST_SUITE_P(Paths, OddPath,
                         testing::Values(".A-", ".A- ", ".A-007", ".A-1234567890", ".A-5B", ".A", ".A- 5"));

TEST(ControlPath, ANegativeLineIsText) {
  ControlPath path;
  path.SetCtrlStr(".A- 5");
  path.WriteLine(-1, ControlPath::Lead::Blank);
  EXPECT_EQ(path.CtrlStr(), ".A--1");
}

TEST(ControlPath, ALineBeyondSixteenBitsCannotBeRead) {
  ControlPath path;
  path.SetCtrlStr(".A- 40000");
  EXPECT_THROW(path.LineReached(), Failure);
  path.SetCtrlStr(".A-4E4");
  EXPECT_THROW(path.LineReached(), Failure);
}

TEST(ControlPath, NothingRunsWithAPointABlankOrNoText) {
  for (const char* const text : {".", " ", ""}) {
    ControlPath path;
    path.SetCtrlStr(text);
    EXPECT_TRUE(path.NothingRuns()) << '"' << text << '"';
  }
  ControlPath path;
  path.SetCtrlStr(".A");
  EXPECT_FALSE(path.NothingRuns());
  path.SetCtrlStr(".A- 1");
  EXPECT_FALSE(path.NothingRuns());
}

TEST(ControlPath, TheNextLineOfATextWithoutADashIsItsNumberAndOne) { EXPECT_EQ(ForwardCtrlString("7"), "-8"); }

}  // namespace
}  // namespace zerimo
