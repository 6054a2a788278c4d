#include <gtest/gtest.h>

#include <string>

#include "interpreter/conditionals.h"
#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class ConditionsTest : public SlotsFixture {
 protected:
  int NextAfterIf(int lineNumber) { return conditionals.Ifprocessor(lineNumber); }
};

using IfprocessorTest = ConditionsTest;
using LabelPosTest = ConditionsTest;

TEST_F(IfprocessorTest, AFalseConditionWithoutEndifGivesLine0) {
  Fill({"TO P", "IF 1>2", "FD 1", "END", "ENDIF"});
  EXPECT_EQ(NextAfterIf(2), 0);
}

TEST_F(IfprocessorTest, ATrueConditionWithoutEndifGoesOnAtTheNextLine) {
  Fill({"TO P", "IF 1", "FD 1", "END"});
  EXPECT_EQ(NextAfterIf(2), 3);
}

TEST_F(IfprocessorTest, TheConditionIsAllTextAfterTheFirstBlank) {
  Fill({"TO P", "IF 2 + 1 = 3", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 3);
  Fill({"TO P", "IF ", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 4);
}

TEST_F(IfprocessorTest, AFalseIfWithoutElseGoesOnAfterItsEndif) {
  Fill({"TO P", "IF 1>2", "FD 1", "ENDIF", "FD 2", "END"});
  Type("P");
  EXPECT_EQ(Calls, (Texts{"FD 2"}));
}

TEST_F(IfprocessorTest, AnArithmeticConditionIsTrueUnless0) {
  Fill({"TO P", "IF 3-3", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 4);
  Fill({"TO P", "IF 3-4", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 3);
}

TEST_F(IfprocessorTest, TheConditionReadsPositionLocalsAndGlobals) {
  turtle.TurtleX += 100;
  controlPath.SetCtrlStr(".P- 2");
  Slots({"P.:A=1", "B=3"});
  Fill({"TO P :A", "IF XCOR+:A=B", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 3);
}

TEST_F(IfprocessorTest, TheLineStays) {
  Slots({"B=3"});
  Fill({"TO P", "IF (B)=3", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(NextAfterIf(2), 3);
  EXPECT_EQ(store.Line(2), "IF (B)=3");
}

TEST_F(IfprocessorTest, SetsFileDataCountToTheLastUsedLine) {
  Fill({"TO P", "IF 1", "FD 1", "ENDIF", "END", "TO Q", "END", "", "STALE"});
  NextAfterIf(2);
  EXPECT_EQ(store.FileDataCount, 7);
}

TEST_F(IfprocessorTest, FailsWhereNoEndStopsTheScan) {
  Fill({"TO P", "IF 1", "FD 1"});
  EXPECT_EQ(FailureOf([&] { NextAfterIf(2); }), FailureKind::SubscriptOutOfRange);
}

TEST_F(IfprocessorTest, FailsInAFullStoreAndLeavesFileDataCount) {
  for (int number = 1; number <= 2000; ++number) store.SetLine(number, "ENDIF");
  Fill({"TO P", "IF 1", "ENDIF", "END"});
  store.FileDataCount = 5;
  EXPECT_EQ(FailureOf([&] { NextAfterIf(2); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(store.FileDataCount, 5);
}

TEST_F(LabelPosTest, TheNameIsComparedWhole) {
  Fill({"TO P", "LABEL XY", "LABEL x", "END"});
  EXPECT_EQ(conditionals.LabelPos("X"), 0);
}

}  // namespace
}  // namespace zerimo
