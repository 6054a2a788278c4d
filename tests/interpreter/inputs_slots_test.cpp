#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "interpreter/inputs.h"
#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

/// " 1 2 ... n", or with a mark before each number.
std::string Numbered(int count, const std::string& mark = "") {
  std::string words;
  for (int number = 1; number <= count; ++number) words += " " + mark + std::to_string(number);
  return words;
}

class InputsSlotsTest : public SlotsFixture {
 protected:
  InputsSlotsTest() { Fill({"TO BOX :N", "FD :N", "END", "TO TWO :A :B", "END"}); }

  void Call(const std::string& line) { inputs.CreateLocalVariable(line); }
  std::optional<FailureKind> FailureOfCall(const std::string& line) {
    return FailureOf([&] { Call(line); });
  }
  void End(std::string name) { inputs.DeleteLocalVariable(name); }
  /// The value of an expression in a running procedure.
  double ValueIn(const char* path, std::string expression) {
    controlPath.SetCtrlStr(path);
    return arguments.Number(std::move(expression));
  }
};

using CreateLocalVariableTest = InputsSlotsTest;
using DeleteLocalVariableTest = InputsSlotsTest;

TEST_F(CreateLocalVariableTest, AValueIsTextAndIsNotEvaluated) {
  Call("BOX 2+3");
  EXPECT_EQ(variables.Slot(1), "BOX.:N=2+3");
  EXPECT_EQ(ValueIn(".BOX- 2", "3*:N"), 9);
}

TEST_F(CreateLocalVariableTest, OnlyTheFirstOccurrenceIsALocals) {
  Slots({"A.:X=4", ":X=7"});
  controlPath.SetCtrlStr(".A- 2");
  Call("BOX :X+:X");
  EXPECT_EQ(variables.Slot(3), "BOX.:N=4+7");
}

TEST_F(CreateLocalVariableTest, GlobalsArePutInWithTwoDecimals) {
  Slots({"G=1.239"});
  Call("BOX G*2");
  EXPECT_EQ(variables.Slot(2), "BOX.:N=1.24*2");
}

TEST_F(CreateLocalVariableTest, XcorIsNoPositionHere) {
  turtle.TurtleX += 100;
  Call("BOX XCOR+1");
  EXPECT_EQ(variables.Slot(1), "BOX.:N=+1");
}

TEST_F(CreateLocalVariableTest, TwoBlanksEndThePairing) {
  Call("TWO  1 2");
  EXPECT_EQ(variables.Slot(1), "");
  Call("TWO 1  2");
  EXPECT_EQ(FirstSlots(2), (Texts{"TWO.:A=1", ""}));
}

TEST_F(CreateLocalVariableTest, TwoBlanksInTheHeaderEndThePairing) {
  Fill({"TO P :A  :B", "END"}, 6);
  Call("P 1 2");
  EXPECT_EQ(FirstSlots(2), (Texts{"P.:A=1", ""}));
}

TEST_F(CreateLocalVariableTest, ACarriageReturnEndsTheCall) {
  Call("TWO 1\r 2");
  EXPECT_EQ(FirstSlots(2), (Texts{"TWO.:A=1", ""}));
}

TEST_F(CreateLocalVariableTest, ABlankAfterTheCallDoesNoHarm) {
  Call("BOX 5 ");
  EXPECT_EQ(FirstSlots(2), (Texts{"BOX.:N=5", ""}));
}

TEST_F(CreateLocalVariableTest, WritesFromTheFirstDeletedSlotOnWithoutALook) {
  Slots({"X=1", " ", "Y=2", "Z=3"});
  Call("TWO 1 2");
  EXPECT_EQ(FirstSlots(5), (Texts{"X=1", "TWO.:A=1", "TWO.:B=2", "Z=3", ""}));
}

TEST_F(CreateLocalVariableTest, RebuildsList2) {
  Call("BOX 50");
  EXPECT_EQ(controls.List2.Items(), (Texts{"BOX.:N=50"}));
}

TEST_F(CreateLocalVariableTest, PairsTheWordsOf50) {
  store.SetLine(6, "TO P" + Numbered(48, ":"));
  EXPECT_EQ(FailureOfCall("P" + Numbered(48)), std::nullopt);
  EXPECT_EQ(variables.Slot(48), "P.:48=48");
  EXPECT_EQ(variables.Slot(49), "");
}

TEST_F(CreateLocalVariableTest, FailsAtTheCalls51stWord) {
  EXPECT_EQ(FailureOfCall("BOX" + Numbered(49)), std::nullopt);
  EXPECT_EQ(FailureOfCall("BOX" + Numbered(50)), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FirstSlots(2), (Texts{"BOX.:N=1", ""}));
}

TEST_F(CreateLocalVariableTest, FailsAtTheHeaders51stWord) {
  // The header's first word, before its name, is empty.
  store.SetLine(6, "TO P" + Numbered(49, ":"));
  EXPECT_EQ(FailureOfCall("P 1"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(1), "");
}

TEST_F(CreateLocalVariableTest, FailsWithNoFreeSlot) {
  FillAllSlots("X=1");
  EXPECT_EQ(FailureOfCall("BOX 5"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(controlPath.CurProcName, "");
}

TEST_F(CreateLocalVariableTest, AnInputThatFillsTheTableStays) {
  FillAllSlots("X=1");
  variables.SetSlot(500, "");
  EXPECT_EQ(FailureOfCall("BOX 5"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(variables.Slot(500), "BOX.:N=5");
  EXPECT_EQ(controlPath.CurProcName, "");
}

TEST_F(CreateLocalVariableTest, ARecursiveCallsEntriesPileUpInSlotOrder) {
  Call("BOX 1");
  controlPath.SetCtrlStr(".BOX- 2");
  Call("BOX :N+1");
  EXPECT_EQ(FirstSlots(3), (Texts{"BOX.:N=1", "BOX.:N=1+1", ""}));
  // One occurrence reads the value of the outermost call.
  EXPECT_EQ(ValueIn(".BOX- 2.BOX- 2", ":N"), 1);
  EXPECT_EQ(ValueIn(".BOX- 2.BOX- 2", "10*:N+:N"), 12);
}

TEST_F(DeleteLocalVariableTest, LooksAtTheTrimmedSlot) {
  Slots({"  BOX.:N=1"});
  End("BOX");
  EXPECT_EQ(variables.Slot(1), " ");
}

TEST_F(DeleteLocalVariableTest, SkipsDeletedSlotsAndStopsAtAFreeOne) {
  Slots({" ", "BOX.:N=1", "", "BOX.:N=2"});
  End("BOX");
  EXPECT_EQ(FirstSlots(4), (Texts{" ", " ", "", "BOX.:N=2"}));
}

TEST_F(DeleteLocalVariableTest, RebuildsList2) {
  Slots({"BOX.:N=1", "G=2"});
  End("BOX");
  EXPECT_EQ(controls.List2.Items(), (Texts{" ", "G=2"}));
}

TEST_F(DeleteLocalVariableTest, LeavesList2WithNothingToDelete) {
  Slots({"G=2"});
  End("BOX");
  EXPECT_TRUE(controls.List2.Items().empty());
}

TEST_F(DeleteLocalVariableTest, InAFullTableTheFirstRebuildFails) {
  FillAllSlots("BOX.:N=1");
  EXPECT_EQ(FailureOf([&] { End("BOX"); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FirstSlots(2), (Texts{" ", "BOX.:N=1"}));
}

TEST_F(InputsSlotsTest, AfterItsEndASecondCallWritesInTheDeletedSlot) {
  Call("BOX 1");
  End("BOX");
  Call("BOX 2");
  EXPECT_EQ(FirstSlots(2), (Texts{"BOX.:N=2", ""}));
}

TEST_F(InputsSlotsTest, AfterAMakeASecondCallWritesInAFreeSlot) {
  Slots({"G=1"});
  Call("BOX 1");
  End("BOX");
  store.SetLine(2, "MAKE G 2");
  EXPECT_EQ(FailureOf([&] { variables.VariableUpdate(2); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FirstSlots(2), (Texts{"G=2", ""}));
  Call("BOX 2");
  EXPECT_EQ(FirstSlots(3), (Texts{"G=2", "BOX.:N=2", ""}));
}

TEST_F(InputsSlotsTest, AnInnerEndTakesTheOuterActivationsInputsToo) {
  Call("BOX 1");
  Call("BOX 2");
  End("BOX");
  EXPECT_EQ(FirstSlots(3), (Texts{" ", " ", ""}));
  EXPECT_EQ(ValueIn(".BOX- 3", ":N+5"), 5);
}

}  // namespace
}  // namespace zerimo
