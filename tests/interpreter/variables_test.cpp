#include "interpreter/variables.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "base/failure.h"
#include "support/interpreter.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class VariablesTest : public testing::Test, protected BareInterpreter {
 protected:
  void FillSlots(std::initializer_list<const char*> slots) {
    int number = 1;
    for (const char* slot : slots) variables.SetSlot(number++, slot);
  }
  Texts Slots() const {
    Texts slots;
    for (int number = 1; !variables.Slot(number).empty(); ++number) slots.push_back(variables.Slot(number));
    return slots;
  }
  std::string Globals(std::string text) { return variables.GlobalVariableReplacer(text); }
  std::string Locals(std::string text) { return variables.VarValReplacer(text); }
  std::string Coordinates(std::string text) { return variables.ReplaceXcorAndYcor(text); }
  /// Carries out a MAKE in a procedure A; a failure that leaves it is skipped, as the runner does.
  void Make(const char* line) {
    Fill({"TO A", line, "END"});
    SkipOnFailure([&] { variables.VariableUpdate(2); });
  }
};

TEST_F(VariablesTest, SlotsOutsideTheTableFail) {
  EXPECT_THROW(variables.Slot(0), Failure);
  EXPECT_THROW(variables.Slot(501), Failure);
  EXPECT_THROW(variables.SetSlot(501, "X"), Failure);
}

TEST_F(VariablesTest, FinderTakesTheFirstNameWithoutDigits) {
  std::string text = "  12+AB1-C ";
  EXPECT_EQ(VariableFinder(text), "AB");
  EXPECT_EQ(text, "12+AB1-C");
  for (const char* none : {"", "12", "(1+2)*3%4/5", "1<2>3=4!5", "[1] 2"}) {
    std::string expression = none;
    EXPECT_EQ(VariableFinder(expression), "") << none;
  }
  text = "5*:N+1";
  EXPECT_EQ(VariableFinder(text), ":N");
  text = "##<=2";
  EXPECT_EQ(VariableFinder(text), "##");
}

TEST_F(VariablesTest, PresenceCountsABlank) {
  EXPECT_FALSE(VariablePresent("(1+2)*3<=4!5>6%7/8.9[0]-1"));
  EXPECT_TRUE(VariablePresent("1 2"));
  EXPECT_TRUE(VariablePresent("1+A"));
}

TEST_F(VariablesTest, TextreplacePadsItsCallersText) {
  std::string text = "  A+1 ";
  EXPECT_EQ(Textreplace(text, "A", "7"), " 7+1 ");
  EXPECT_EQ(text, " A+1 ");
  EXPECT_EQ(Textreplace(text, "B", "7"), " A+1 ");
}

class DelimiterOf : public VariablesTest, public testing::WithParamInterface<char> {};

TEST_P(DelimiterOf, EndsAName) {
  const std::string mark(1, GetParam());
  std::string text = "1" + mark + "A" + mark + "1";
  EXPECT_EQ(Textreplace(text, "A", "7"), " 1" + mark + "7" + mark + "1 ");
}

INSTANTIATE_TEST_SUITE_P(Delimiters, DelimiterOf,
                         testing::Values('\r', '+', '-', '*', '/', '\\', '%', '>', '<', '=', ' ', '(', ')', '[', ']',
                                         '!'));

TEST_F(VariablesTest, TextreplaceConsidersTheFirstOccurrenceOnly) {
  std::string text = "AB+A";
  EXPECT_EQ(Textreplace(text, "A", "7"), " AB+A ");
  text = "A+A";
  EXPECT_EQ(Textreplace(text, "A", "7"), " 7+A ");
  text = "A.5";
  EXPECT_EQ(Textreplace(text, "A", "7"), " A.5 ");
}

TEST_F(VariablesTest, UndeclaredNamesVanish) {
  EXPECT_EQ(Globals("X"), "");
  EXPECT_EQ(Globals("X+5"), "+5");
  EXPECT_EQ(arguments.Number("X"), 0);
  EXPECT_EQ(arguments.Number("X+5"), 5);
  EXPECT_EQ(Globals("12"), "12");
}

TEST_F(VariablesTest, ZerosVanish) {
  FillSlots({"X=0"});
  EXPECT_EQ(Globals("X"), "");
  EXPECT_EQ(Globals("5*X"), "5*");
  EXPECT_EQ(arguments.Number("5*X"), 0);
  EXPECT_EQ(Globals("5/X"), "5/");
}

TEST_F(VariablesTest, ANegativeValueMakesADoubleMinus) {
  FillSlots({"X=-3"});
  EXPECT_EQ(Globals("5-X"), "5--3");
  EXPECT_EQ(arguments.Number("5-X"), 2);
}

TEST_F(VariablesTest, GlobalsAreReadWithTwoDecimalsHalfToEven) {
  FillSlots({"X=.125", "Y=.375", "Z=3.14159"});
  EXPECT_EQ(Globals("X"), ".12");
  EXPECT_EQ(Globals("Y"), ".38");
  EXPECT_EQ(Globals("Z*2"), "3.14*2");
}

TEST_F(VariablesTest, ANameWithADigitCanNotBeReadAsAGlobal) {
  FillSlots({"A=5", "A1=9"});
  EXPECT_EQ(Globals("A1"), "51");
}

TEST_F(VariablesTest, AnUndeclaredNameTakesTheValueOfTheOneBefore) {
  FillSlots({"A=5"});
  EXPECT_EQ(Globals("A+B"), "5+5");
  EXPECT_EQ(Globals("B+A"), "+5");
}

TEST_F(VariablesTest, NamesAreComparedExactly) {
  FillSlots({"BOX.A=9", "AB=8", "a=7", "A=5"});
  EXPECT_EQ(Globals("A"), "5");
}

TEST_F(VariablesTest, ADeletedSlotIsSkippedInReading) {
  FillSlots({" ", "A=5"});
  EXPECT_EQ(Globals("A"), "5");
}

TEST_F(VariablesTest, AGlobalInExponentFormNeverLeavesTheReplacer) {
  FillSlots({"A=1E+15"});
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(Globals("A"), Stopped);
}

TEST_F(VariablesTest, ScansWithoutAFreeSlotNeverEnd) {
  variables.ForgetAll();
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(Globals("A"), Stopped);
  EXPECT_THROW(Locals("A"), Stopped);
}

TEST_F(VariablesTest, LocalsOfTheRunningProcedureAreReplacedOnce) {
  FillSlots({"BOX.:X=5", "STAR.:X=9"});
  controlPath.SetCtrlStr(".#TEMP$1- 9.BOX- 2");
  EXPECT_EQ(Locals(":X+:X"), "5+:X");
  EXPECT_EQ(Locals(" 1 "), "1");
}

TEST_F(VariablesTest, TheSecondOccurrenceReadsTheGlobal) {
  FillSlots({"BOX.:X=5", ":X=7"});
  controlPath.SetCtrlStr(".BOX- 2");
  EXPECT_EQ(arguments.Number(":X+:X"), 12);
}

TEST_F(VariablesTest, AtTopLevelNoLocalMatches) {
  FillSlots({"BOX.:X=5"});
  EXPECT_EQ(Locals(":X"), ":X");
}

TEST_F(VariablesTest, ALocalWithADigitInItsNameIsRead) {
  FillSlots({"BOX.A1=7"});
  controlPath.SetCtrlStr(".BOX- 2");
  EXPECT_EQ(Locals("A1+1"), "7+1");
}

TEST_F(VariablesTest, AnOccurrenceInALongerWordBlocksALocal) {
  FillSlots({"BOX.A=7", "A=3"});
  controlPath.SetCtrlStr(".BOX- 2");
  EXPECT_EQ(Locals("AB+A"), "AB+A");
  // The "A" at the end is then read as a global.
  EXPECT_EQ(arguments.Number("AB+A"), 3);
}

TEST_F(VariablesTest, EntriesOfTheSameNameTakeOneOccurrenceEach) {
  FillSlots({"R.:N=1", "R.:N=2"});
  controlPath.SetCtrlStr(".R- 2");
  EXPECT_EQ(Locals(":N*:N*:N"), "1*2*:N");
}

TEST_F(VariablesTest, TwentyEntriesAreKept) {
  for (int number = 1; number <= 25; ++number) variables.SetSlot(number, "R.:N=" + std::to_string(number));
  controlPath.SetCtrlStr(".R- 2");
  std::string text = ":N";
  for (int more = 1; more < 22; ++more) text += "+:N";
  const std::string replaced = Locals(text);
  EXPECT_TRUE(replaced.starts_with("1+2+3+"));
  EXPECT_TRUE(replaced.ends_with("+20+:N+:N"));
}

TEST_F(VariablesTest, TwentyEntriesDoNotEndTheWalkOverTheSlots) {
  for (int number = 1; number <= 499; ++number) variables.SetSlot(number, "R.:N=1");
  controlPath.SetCtrlStr(".R- 2");
  EXPECT_EQ(Locals(":N"), "1");
  // Now no slot is free.
  variables.SetSlot(500, "R.:N=1");
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(Locals(":N"), Stopped);
}

TEST_F(VariablesTest, CoordinatesAreReplacedWithOneDecimal) {
  turtle.TurtleX = 7680 + 125;
  turtle.TurtleY = 5760 + 112.5;
  EXPECT_EQ(Coordinates("XCOR"), " 2.5 ");
  EXPECT_EQ(Coordinates("XCOR+XCOR"), " 2.5+ 2.5 ");
  EXPECT_EQ(Coordinates("YCOR"), " -2.2 ");
  EXPECT_EQ(arguments.Number("XCOR*2+YCOR"), 2.8);
}

TEST_F(VariablesTest, CoordinatesInLongerWordsBlock) {
  EXPECT_EQ(Coordinates("XCORE+XCOR"), " XCORE+XCOR ");
  EXPECT_EQ(Coordinates("12"), " 12 ");
  EXPECT_EQ(Coordinates(""), "");
}

TEST_F(VariablesTest, CoordinatesFailAtAResolutionOf0) {
  turtle.Resolution = 0;
  EXPECT_THROW(Coordinates("1"), Failure);
}

TEST_F(VariablesTest, MakeWithAQuotedNameDefinesTheColonForm) {
  Make("MAKE \"A 2+3");
  EXPECT_EQ(Slots(), (Texts{":A=5"}));
}

TEST_F(VariablesTest, MakeEndsItsValueAtTheThirdBlank) {
  Make("MAKE A 2 + 3");
  EXPECT_EQ(Slots(), (Texts{"A=2"}));
}

TEST_F(VariablesTest, MakeChangesAGlobalInPlace) {
  FillSlots({"A=1", "B=2"});
  Make("MAKE A B+1");
  EXPECT_EQ(Slots(), (Texts{"A=3", "B=2"}));
}

TEST_F(VariablesTest, MakeKeepsMoreDecimalsThanAreRead) {
  Make("MAKE A 1/3");
  EXPECT_EQ(Slots(), (Texts{"A=.333333333333333"}));
}

TEST_F(VariablesTest, MakeOnALocalWritesTheLocalAndTheGlobal) {
  FillSlots({"A.:N=1"});
  Make("MAKE \"N 9");
  EXPECT_EQ(Slots(), (Texts{"A.:N=9", ":N=9"}));
}

TEST_F(VariablesTest, MakeChangesTheOldestEntryOfALocal) {
  FillSlots({"A.:N=1", "A.:N=2", ":N=0"});
  Make("MAKE \"N 9");
  EXPECT_EQ(Slots(), (Texts{"A.:N=9", "A.:N=2", ":N=9"}));
}

TEST_F(VariablesTest, MakeTakesADeletedSlotForTheEndOfTheGlobals) {
  FillSlots({"X=1", " ", "A=5"});
  Make("MAKE A 7");
  // The new slot is filled before the deleted ones are closed.
  EXPECT_EQ(Slots(), (Texts{"X=1", "A=7", "A=5"}));
}

TEST_F(VariablesTest, MakeLeavesANamelessEntry) {
  FillSlots({".A=4"});
  Make("MAKE A 7");
  EXPECT_EQ(Slots(), (Texts{".A=4"}));
}

TEST_F(VariablesTest, MakeShowsTheSlotsAsTheyWereBeforeTheClosing) {
  FillSlots({"X=1", "Y=2", " ", " "});
  Make("MAKE X 5");
  EXPECT_EQ(controls.List2.Items(), (Texts{"X=5", "Y=2", " ", " "}));
  // Each call closes one deleted slot.
  EXPECT_EQ(Slots(), (Texts{"X=5", "Y=2", " "}));
}

TEST_F(VariablesTest, MakeInAFullTableNeverReturns) {
  for (int number = 1; number <= 500; ++number) variables.SetSlot(number, "X=1");
  watch = LimitedWatch(1, 200);
  Fill({"TO A", "MAKE A 7", "END"});
  // The value's scan for locals comes before the search for a slot.
  EXPECT_THROW(variables.VariableUpdate(2), Stopped);
}

TEST_F(VariablesTest, MakeInATableFullOfLocalsNeverReturnsEither) {
  for (int number = 1; number <= 500; ++number) variables.SetSlot(number, "A.:N=1");
  controlPath.SetCtrlStr(".A- 2");
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(Make("MAKE B 7"), Stopped);
  EXPECT_EQ(variables.Slot(500), "A.:N=1");
}

TEST_F(VariablesTest, MakeAfterTheRefreshNeverReturns) {
  variables.ForgetAll();
  watch = LimitedWatch(1, 500);
  Fill({"TO A", "MAKE A 7", "END"});
  EXPECT_THROW(variables.VariableUpdate(2), Stopped);
}

TEST_F(VariablesTest, ClosingFailsAfterOneSlotHasGone) {
  FillSlots({"A=1", " ", "B=2", " ", "C=3"});
  EXPECT_THROW(variables.SpaceRemoverFromVariableArray(), Failure);
  EXPECT_EQ(Slots(), (Texts{"A=1", "B=2", " ", "C=3"}));
}

TEST_F(VariablesTest, ClosingNeverReturnsForADeletedSlotAbove100) {
  for (int number = 1; number <= 100; ++number) variables.SetSlot(number, "X=1");
  variables.SetSlot(101, " ");
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(variables.SpaceRemoverFromVariableArray(), Stopped);
}

TEST_F(VariablesTest, ClosingWithoutADeletedSlotDoesNothing) {
  FillSlots({"A=1"});
  EXPECT_FALSE(variables.SpacePresent());
  EXPECT_NO_THROW(variables.SpaceRemoverFromVariableArray());
}

TEST_F(VariablesTest, RemovingTheLocalsOfProceduresClosesAllGaps) {
  FillSlots({":N=5", "A.:S=1", " ", "AB.:S=2", "B.:S=3", "A.:T=4", ":M=6"});
  variables.RemoveLocals({"A", "B"});
  EXPECT_EQ(Slots(), (Texts{":N=5", "AB.:S=2", ":M=6"}));
  EXPECT_EQ(controls.List2.Items(), (Texts{":N=5", "AB.:S=2", ":M=6"}));
}

TEST_F(VariablesTest, RemovingLocalsEndsAtTheFirstFreeSlot) {
  FillSlots({"A.:S=1", "", "A.:S=2"});
  variables.RemoveLocals({"A"});
  EXPECT_EQ(variables.Slot(1), "");
  EXPECT_EQ(variables.Slot(3), "A.:S=2");
}

TEST_F(VariablesTest, RemovingLocalsNeedsNoFreeSlot) {
  for (int number = 1; number <= Variables::SlotCount; ++number) variables.SetSlot(number, "A.:S=1");
  variables.SetSlot(500, ":N=5");
  variables.RemoveLocals({"A"});
  EXPECT_EQ(Slots(), (Texts{":N=5"}));
  EXPECT_TRUE(variables.HasFreeSlot());
}

TEST_F(VariablesTest, RemovingTheLocalsOfNoProcedureStillDropsDeletedSlots) {
  FillSlots({" ", "A.:S=1", " "});
  variables.RemoveLocals({});
  EXPECT_EQ(Slots(), (Texts{"A.:S=1"}));
}

TEST_F(VariablesTest, GlobalsOfTheProgramStandInTheSlotsOfTheirLines) {
  Fill({"MAKE \"A 2+3", "FD 1", "MAKE B (1+1)*2", "TO P", "MAKE C 1", "END"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(variables.Slot(1), "\"A=5");
  EXPECT_EQ(variables.Slot(2), "");
  EXPECT_EQ(variables.Slot(3), "B=4");
  EXPECT_EQ(variables.Slot(5), "");
}

TEST_F(VariablesTest, GlobalsOfTheProgramTakeTheLastWordAsValueAndReplaceNoName) {
  Fill({"MAKE A 1", "MAKE LONG NAME 7", "MAKE B A", "TO P"});
  variables.CreateGlobalVariable();
  EXPECT_EQ(Slots(), (Texts{"A=1", "LONG NAME=7", "B=0"}));
}

TEST_F(VariablesTest, GlobalsOfAProgramWithoutAProcedureFail) {
  Fill({"MAKE A 1"});
  EXPECT_THROW(variables.CreateGlobalVariable(), Failure);
  EXPECT_EQ(variables.Slot(1), "A=1");
}

TEST_F(VariablesTest, ListHoldsWhatTheSlotsHeldWhenItWasMade) {
  FillSlots({"A=1", "B=2"});
  variables.RebuildList2();
  FillSlots({"A=9", "B=9", "C=9"});
  EXPECT_EQ(controls.List2.Items(), (Texts{"A=1", "B=2"}));
  variables.RebuildList2();
  EXPECT_EQ(controls.List2.Items(), (Texts{"A=9", "B=9", "C=9"}));
}

TEST_F(VariablesTest, ListAfterForgettingHas500Blanks) {
  variables.ForgetAll();
  variables.SetSlot(1, "X=1");
  EXPECT_EQ(controls.List2.Items(), Texts(500, " "));
}

}  // namespace
}  // namespace zerimo
