#include "interpreter/inputs.h"

#include <gtest/gtest.h>

#include <string>

#include "base/failure.h"
#include "support/interpreter.h"

namespace zerimo {
namespace {

class InputsTest : public testing::Test, protected BareInterpreter {};

TEST_F(InputsTest, ACallPairsItsWordsWithTheHeader) {
  Fill({"TO BOX :N :M", "END"});
  inputs.CreateLocalVariable("BOX 50 7");
  EXPECT_EQ(variables.Slot(1), "BOX.:N=50");
  EXPECT_EQ(variables.Slot(2), "BOX.:M=7");
  EXPECT_EQ(controlPath.CurProcName, "BOX");
  EXPECT_EQ(controls.List2.Items().size(), 2U);
}

TEST_F(InputsTest, TheEndDeletesTheEntries) {
  Fill({"TO BOX :N", "END"});
  inputs.CreateLocalVariable("BOX 50");
  std::string name = " BOX ";
  inputs.DeleteLocalVariable(name);
  EXPECT_EQ(name, "BOX");
  EXPECT_EQ(variables.Slot(1), " ");
}

TEST_F(InputsTest, DeletingTakesAllActivationsOfThatNameOnly) {
  variables.SetSlot(1, "BOX.:N=1");
  variables.SetSlot(2, "BOXES.:N=1");
  variables.SetSlot(3, "BOX.:N=2");
  variables.SetSlot(4, ":N=3");
  std::string name = "BOX";
  inputs.DeleteLocalVariable(name);
  EXPECT_EQ(variables.Slot(1), " ");
  EXPECT_EQ(variables.Slot(2), "BOXES.:N=1");
  EXPECT_EQ(variables.Slot(3), " ");
  EXPECT_EQ(variables.Slot(4), ":N=3");
}

TEST_F(InputsTest, AnArgumentIsTextAndNotEvaluated) {
  Fill({"TO BOX :N", "END"});
  inputs.CreateLocalVariable("BOX 1+1");
  EXPECT_EQ(variables.Slot(1), "BOX.:N=1+1");
  controlPath.SetCtrlStr(".BOX- 2");
  EXPECT_EQ(arguments.Number("2*:N"), 3);
}

TEST_F(InputsTest, AnArgumentIsReadInTheCallersScope) {
  Fill({"TO A :X", "B :X+1", "END", "TO B :Y", "END"});
  variables.SetSlot(1, "A.:X=5");
  controlPath.SetCtrlStr(".A- 2");
  inputs.CreateLocalVariable("B :X+1");
  EXPECT_EQ(variables.Slot(2), "B.:Y=5+1");
}

TEST_F(InputsTest, AGlobalZeroLeavesAnEmptyValue) {
  Fill({"TO BOX :N", "END"});
  variables.SetSlot(1, "Z=0");
  inputs.CreateLocalVariable("BOX Z");
  EXPECT_EQ(variables.Slot(2), "BOX.:N=");
}

TEST_F(InputsTest, TooFewArgumentsLeaveInputsUndefinedAndSurplusOnesAreIgnored) {
  Fill({"TO BOX :N :M", "END"});
  inputs.CreateLocalVariable("BOX 1");
  EXPECT_EQ(variables.Slot(2), "");
  inputs.CreateLocalVariable("BOX 1 2 3");
  EXPECT_EQ(variables.Slot(4), "");
}

TEST_F(InputsTest, TwoBlanksEndThePairing) {
  Fill({"TO BOX :N :M", "END"});
  inputs.CreateLocalVariable("BOX  1 2");
  EXPECT_EQ(variables.Slot(1), "");
  EXPECT_EQ(controlPath.CurProcName, "BOX");
}

TEST_F(InputsTest, AnInputNeedsNoColon) {
  Fill({"TO BOX N", "END"});
  inputs.CreateLocalVariable("BOX 4");
  EXPECT_EQ(variables.Slot(1), "BOX.N=4");
}

TEST_F(InputsTest, ADeletedSlotIsFilledAndWhatFollowsIsOverwritten) {
  Fill({"TO BOX :N :M", "END"});
  variables.SetSlot(1, " ");
  variables.SetSlot(2, "G=1");
  inputs.CreateLocalVariable("BOX 5 6");
  EXPECT_EQ(variables.Slot(1), "BOX.:N=5");
  EXPECT_EQ(variables.Slot(2), "BOX.:M=6");
}

TEST_F(InputsTest, RecursionReadsTheOutermostActivation) {
  Fill({"TO R :N", "END"});
  inputs.CreateLocalVariable("R 1");
  controlPath.SetCtrlStr(".R- 2");
  inputs.CreateLocalVariable("R 2");
  EXPECT_EQ(variables.Slot(2), "R.:N=2");
  EXPECT_EQ(arguments.Number(":N"), 1);
}

std::string ManyWords(int count) {
  std::string text = "BOX";
  for (int word = 1; word < count; ++word) text += " 1";
  return text;
}

TEST_F(InputsTest, FiftyWordsAreTheMost) {
  Fill({"TO BOX :N", "END"});
  EXPECT_NO_THROW(inputs.CreateLocalVariable(ManyWords(50)));
  EXPECT_THROW(inputs.CreateLocalVariable(ManyWords(51)), Failure);
}

TEST_F(InputsTest, AFullTableFails) {
  Fill({"TO BOX :N", "END"});
  for (int number = 1; number <= 500; ++number) variables.SetSlot(number, "X=1");
  EXPECT_THROW(inputs.CreateLocalVariable("BOX 1"), Failure);
}

TEST_F(InputsTest, ATableThatFillsUpOnTheWayNeverReturns) {
  Fill({"TO BOX :N :M", "END"});
  for (int number = 1; number <= 499; ++number) variables.SetSlot(number, "X=1");
  watch = LimitedWatch(1, 200);
  // By the second argument, the scan for locals finds no free slot.
  EXPECT_THROW(inputs.CreateLocalVariable("BOX 1 2"), Stopped);
  EXPECT_EQ(variables.Slot(500), "BOX.:N=1");
}

TEST_F(InputsTest, ARecursionThatFillsTheTableNeverReturns) {
  Fill({"TO R :N", "FD 1", "R 1", "END"});
  watch = LimitedWatch(1'000'000, 2000);
  // The call that takes the last slot hangs in its first expression.
  EXPECT_THROW(Type("R 1"), Stopped);
  EXPECT_EQ(Calls.size(), 499U);
  EXPECT_EQ(variables.Slot(500), "R.:N=1");
}

TEST_F(InputsTest, ASecondCallTakesTheDeletedSlotAgain) {
  Fill({"TO BOX :N", "FD :N", "END"});
  Type("BOX 5");
  EXPECT_EQ(variables.Slot(1), " ");
  Type("BOX 6");
  EXPECT_EQ(variables.Slot(2), "");
  EXPECT_EQ(Calls.back(), "FD 6");
}

TEST(WordsOfACall, AreNumberedFrom1To50) {
  const Words words("BOX 10");
  EXPECT_EQ(words.At(1), "BOX");
  EXPECT_EQ(words.At(50), "");
  EXPECT_THROW(words.At(0), Failure);
  EXPECT_THROW(words.At(51), Failure);
}

}  // namespace
}  // namespace zerimo
