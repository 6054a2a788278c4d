#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class MakeTest : public SlotsFixture {
 protected:
  /// Carries out a `MAKE` in the procedure BOX.
  void Make(const char* line) {
    Fill({"TO BOX :N", line, "END"});
    variables.VariableUpdate(2);
  }
  std::optional<FailureKind> FailureOfMake(const char* line) {
    return FailureOf([&] { Make(line); });
  }
};

using CreateGlobalVariableTest = MakeTest;
using VariableUpdateTest = MakeTest;
using SpaceRemoverFromVariableArrayTest = MakeTest;

TEST_F(CreateGlobalVariableTest, ReadsTheMakeLinesAboveTheFirstTo) {
  Fill({"MAKE A 5", "MAKE B 2+3*4", "TO P", "MAKE C 7", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(FirstSlots(4), (Texts{"A=5", "B=14", "", ""}));
}

TEST_F(CreateGlobalVariableTest, TheNameGoesToTheLastBlank) {
  Fill({"MAKE A B 5", "MAKE C 2 + 3", "TO P", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(FirstSlots(2), (Texts{"A B=5", "C 2 +=3"}));
}

TEST_F(CreateGlobalVariableTest, TrimsTheLineInTheStore) {
  Fill({"MAKE A 5  ", "TO P", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(store.Line(1), "MAKE A 5");
  EXPECT_EQ(variables.Slot(1), "A=5");
}

TEST_F(CreateGlobalVariableTest, TheSlotIsTheLinesNumber) {
  Slots({"X=1", "Y=2", "Z=3"});
  Fill({"FD 1", "MAKE A 5", "TO P", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(FirstSlots(3), (Texts{"X=1", "A=5", "Z=3"}));
}

TEST_F(CreateGlobalVariableTest, AnotherLineLeavesAFreeSlotThatEndsLaterScans) {
  Fill({"FD 1", "MAKE A 5", "TO P", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(FirstSlots(2), (Texts{"", "A=5"}));
  std::string expression = "A";
  EXPECT_EQ(variables.GlobalVariableReplacer(expression), "");
}

TEST_F(CreateGlobalVariableTest, StoresTheTextOfTheNumber) {
  Fill({"MAKE A 1/3", "MAKE B 0-.5", "MAKE C (1+1)*2", "MAKE D 1E15", "TO P", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(FirstSlots(4), (Texts{"A=.333333333333333", "B=-.5", "C=4", "D=1E+15"}));
}

TEST_F(CreateGlobalVariableTest, AValueThatFailsLeavesAtOnce) {
  Fill({"MAKE A 5", "MAKE B 1/0", "MAKE C 6", "TO P", "END"});
  EXPECT_EQ(FailureOf([&] { variables.CreateGlobalVariable(); }), FailureKind::DivisionByZero);
  EXPECT_EQ(FirstSlots(3), (Texts{"A=5", "", ""}));
}

TEST_F(CreateGlobalVariableTest, FailsAtAMakeOnLine501) {
  for (int number = 1; number <= 501; ++number) store.SetLine(number, "MAKE A " + std::to_string(number));
  Fill({"TO P", "END"}, 502);
  EXPECT_EQ(FailureOf([&] { variables.CreateGlobalVariable(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(500), "A=500");
}

TEST_F(VariableUpdateTest, ANewNameBecomesAGlobalAfterTheLastSlot) {
  Slots({"X=1"});
  Make("MAKE A 5");
  EXPECT_EQ(FirstSlots(3), (Texts{"X=1", "A=5", ""}));
}

TEST_F(VariableUpdateTest, TwoBlanksMakeAnEmptyName) {
  Make("MAKE  A 5");
  EXPECT_EQ(variables.Slot(1), "=0");
}

TEST_F(VariableUpdateTest, AGlobalIsChangedInItsSlot) {
  Slots({"X=1", "A=2", "B=3"});
  Make("MAKE A A+X*10");
  EXPECT_EQ(FirstSlots(4), (Texts{"X=1", "A=12", "B=3", ""}));
}

TEST_F(VariableUpdateTest, AValueIsStoredWith15DigitsAndNoBlank) {
  Make("MAKE A 1/3");
  EXPECT_EQ(variables.Slot(1), "A=.333333333333333");
  Make("MAKE A 0-1/4");
  EXPECT_EQ(variables.Slot(1), "A=-.25");
}

TEST_F(VariableUpdateTest, AGlobalIsReadWithTwoDecimals) {
  Slots({"A=.125"});
  Make("MAKE B A");
  EXPECT_EQ(variables.Slot(2), "B=.12");
}

TEST_F(VariableUpdateTest, TheTurtlesPositionIsPutIn) {
  turtle.TurtleX += 100;
  Make("MAKE A XCOR*3");
  EXPECT_EQ(variables.Slot(1), "A=6");
}

TEST_F(VariableUpdateTest, ALocalIsWrittenAndTheGlobalOfItsNameToo) {
  controlPath.SetCtrlStr(".BOX- 2");
  Slots({"BOX.:N=5"});
  Make("MAKE \"N :N+1");
  EXPECT_EQ(FirstSlots(3), (Texts{"BOX.:N=6", ":N=6", ""}));
  std::string expression = ":N+:N";
  expression = variables.VarValReplacer(expression);
  EXPECT_EQ(variables.GlobalVariableReplacer(expression), "6+6");
}

TEST_F(VariableUpdateTest, ALocalOfAnotherProcedureStays) {
  Slots({"OUT.:N=1"});
  Make("MAKE \"N 9");
  EXPECT_EQ(FirstSlots(2), (Texts{"OUT.:N=1", ":N=9"}));
}

TEST_F(VariableUpdateTest, TheEnclosingProcedureIsThatOfTheLine) {
  Fill({"TO A :N", "END", "TO B :N", "MAKE \"N 9", "END"});
  Slots({"A.:N=1", "B.:N=2"});
  variables.VariableUpdate(4);
  EXPECT_EQ(FirstSlots(3), (Texts{"A.:N=1", "B.:N=9", ":N=9"}));
}

TEST_F(VariableUpdateTest, ASlotForWhichBothTestsHoldStays) {
  Slots({".A=$A=1"});
  Make("MAKE A 5");
  EXPECT_EQ(FirstSlots(2), (Texts{".A=$A=1", ""}));
}

TEST_F(VariableUpdateTest, ANewGlobalTakesTheFirstDeletedSlot) {
  Slots({"X=1", " ", "Y=2"});
  EXPECT_EQ(FailureOfMake("MAKE A 5"), std::nullopt);
  EXPECT_EQ(FirstSlots(4), (Texts{"X=1", "A=5", "Y=2", ""}));
}

TEST_F(VariableUpdateTest, AGlobalAfterADeletedSlotIsNotFound) {
  Slots({" ", "A=1"});
  Make("MAKE A 5");
  EXPECT_EQ(FirstSlots(3), (Texts{"A=5", "A=1", ""}));
}

TEST_F(VariableUpdateTest, ALocalAfterADeletedSlotIsFound) {
  Slots({"X=1", " ", "BOX.:N=1"});
  Make("MAKE \"N 5");
  EXPECT_EQ(FirstSlots(3), (Texts{"X=1", ":N=5", "BOX.:N=5"}));
}

TEST_F(VariableUpdateTest, AMakeClosesOneDeletedSlotAndFailsAtItsEnd) {
  Slots({"A=1", " ", " ", "B=2"});
  EXPECT_EQ(FailureOfMake("MAKE A 5"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FirstSlots(4), (Texts{"A=5", " ", "B=2", ""}));
  EXPECT_EQ(FailureOfMake("MAKE A 6"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FirstSlots(3), (Texts{"A=6", "B=2", ""}));
  EXPECT_EQ(FailureOfMake("MAKE A 7"), std::nullopt);
}

TEST_F(VariableUpdateTest, AValueThatFailsWritesNothing) {
  Slots({"A=1"});
  EXPECT_EQ(FailureOfMake("MAKE A 1/0"), FailureKind::DivisionByZero);
  EXPECT_EQ(FirstSlots(2), (Texts{"A=1", ""}));
}

TEST_F(VariableUpdateTest, FailsWithoutAHeaderAboveIt) {
  Fill({"MAKE A 5"});
  EXPECT_EQ(FailureOf([&] { variables.VariableUpdate(1); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(1), "");
}

TEST_F(VariableUpdateTest, TheLastFreeSlotIsFilledBeforeTheFailure) {
  FillAllSlots("X=1");
  variables.SetSlot(500, "");
  EXPECT_EQ(FailureOfMake("MAKE A 5"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(500), "A=5");
}

TEST_F(SpaceRemoverFromVariableArrayTest, TheLastSlotStaysTwice) {
  Slots({" "});
  variables.SetSlot(499, "Y=1");
  variables.SetSlot(500, "Z=1");
  EXPECT_EQ(FailureOf([&] { variables.SpaceRemoverFromVariableArray(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(498), "Y=1");
  EXPECT_EQ(variables.Slot(499), "Z=1");
  EXPECT_EQ(variables.Slot(500), "Z=1");
}

TEST_F(SpaceRemoverFromVariableArrayTest, ReachesSlot100) {
  variables.SetSlot(100, " ");
  EXPECT_EQ(FailureOf([&] { variables.SpaceRemoverFromVariableArray(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_FALSE(variables.SpacePresent());
}

TEST_F(SpaceRemoverFromVariableArrayTest, SpacePresentSeesAllSlots) {
  EXPECT_FALSE(variables.SpacePresent());
  variables.SetSlot(500, " ");
  EXPECT_TRUE(variables.SpacePresent());
  variables.SetSlot(500, " ");
  variables.SetSlot(500, "  ");
  EXPECT_FALSE(variables.SpacePresent());
}

}  // namespace
}  // namespace zerimo
