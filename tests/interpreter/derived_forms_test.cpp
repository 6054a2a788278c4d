#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/failure_of.h"
#include "support/interpreter.h"

namespace zerimo {
namespace {

/// What is derived from a text is kept: here the text changes, and what was kept must be dropped.
class DerivedFormsTest : public testing::Test, protected BareInterpreter {};

TEST_F(DerivedFormsTest, TheClassAndTheActionOfALineFollowTheLine) {
  store.SetLine(1, "PU");
  EXPECT_EQ(store.ClassOf(1), StmtPrimitive);
  EXPECT_EQ(store.FormOf(1).Primitive, Action("PU"));
  store.SetLine(1, "PD");
  EXPECT_EQ(store.FormOf(1).Primitive, Action("PD"));
  store.SetLine(1, "MAKE \"A 5");
  EXPECT_EQ(store.ClassOf(1), StmtMake);
  EXPECT_EQ(store.FormOf(1).Name, ":A");
  store.SetLine(1, "MAKE \"A 6");
  EXPECT_EQ(store.FormOf(1).Value.Text(), "6");
}

TEST_F(DerivedFormsTest, TheFirstEmptyLineFollowsTheLines) {
  Fill({"TO A", "END"});
  EXPECT_EQ(store.FirstEmptyLine(), 3);
  store.SetLine(3, "FD 1");
  EXPECT_EQ(store.FirstEmptyLine(), 4);
  store.SetLine(2, "");
  EXPECT_EQ(store.FirstEmptyLine(), 2);
}

TEST_F(DerivedFormsTest, TheLineOfAProcedureFollowsTheLines) {
  Fill({"TO A", "END", "TO B", "END"});
  EXPECT_EQ(store.WhereProcedure("B"), 3);
  EXPECT_EQ(store.WhereProcedure("C"), 0);
  store.SetLine(3, "TO C");
  EXPECT_EQ(store.WhereProcedure("B"), 0);
  EXPECT_EQ(store.WhereProcedure("C"), 3);
}

TEST_F(DerivedFormsTest, TheLineOfALabelFollowsTheLines) {
  Fill({"TO A", "LABEL X", "END"});
  EXPECT_EQ(conditionals.LabelPos("X"), 2);
  store.SetLine(3, "LABEL X");
  EXPECT_EQ(conditionals.LabelPos("X"), 3);
}

TEST_F(DerivedFormsTest, TheGoalOfAJumpFollowsTheLines) {
  Fill({"TO A", "LABEL X", "GOTO X", "END"});
  EXPECT_EQ(conditionals.LabelOf(3), 2);
  store.SetLine(4, "LABEL X");
  EXPECT_EQ(conditionals.LabelOf(3), 4);
  store.SetLine(3, "GOTO Y");
  EXPECT_EQ(conditionals.LabelOf(3), 0);
}

TEST_F(DerivedFormsTest, AnInputFollowsItsLine) {
  Fill({"TO A", "FD 1+2", "END"});
  dispatch.Bind("FD", [&](PrimitiveCall& call) { Calls.push_back(Str(arguments.Number(call))); });
  runner.Run1("A");
  store.SetLine(2, "FD 3+4");
  runner.Run1("A");
  EXPECT_EQ(Calls, (std::vector<std::string>{" 3", " 7"}));
}

TEST_F(DerivedFormsTest, TheBranchesOfAConditionFollowTheLines) {
  Fill({"TO A", "IF 1>2", "FD 1", "ENDIF", "FD 2", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
  store.SetLine(3, "ELSE");
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
  store.SetLine(4, "FD 3");
  store.SetLine(5, "ENDIF");
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
  store.SetLine(3, "FD 1");
  EXPECT_EQ(conditionals.Ifprocessor(2), 5);
}

TEST_F(DerivedFormsTest, AWordOfACallIsTakenOnceAndAgainAfterAChange) {
  store.SetLine(1, " P  1");
  EXPECT_EQ(store.TakeFirstWord(1), "P");
  EXPECT_EQ(store.Line(1), "P  1 ");
  const auto changes = store.Changes();
  EXPECT_EQ(store.TakeFirstWord(1), "P");
  EXPECT_EQ(store.Changes(), changes);
  store.SetLine(1, "Q 1");
  EXPECT_EQ(store.TakeFirstWord(1), "Q");
}

TEST_F(DerivedFormsTest, AValueFollowsItsSlot) {
  variables.SetSlot(1, "A=5");
  EXPECT_EQ(arguments.Number("A*2"), 10);
  variables.SetSlot(1, "A=7");
  EXPECT_EQ(arguments.Number("A*2"), 14);
  variables.SetSlot(1, "A=0");
  EXPECT_EQ(arguments.Number("3+A"), 3);
  variables.SetSlot(1, "A=-7");
  EXPECT_EQ(arguments.Number("3-A"), -4);
}

TEST_F(DerivedFormsTest, ANumberInASlotIsWrittenWhenTheSlotIsRead) {
  Fill({"TO P", "MAKE A A*2", "MAKE A A/8", "MAKE A A-A", "END"});
  variables.SetSlot(1, "A=5");
  variables.VariableUpdate(2);
  EXPECT_EQ(arguments.Number("A"), 10);
  EXPECT_EQ(variables.Slot(1), "A=10");
  variables.VariableUpdate(2);
  variables.VariableUpdate(3);
  EXPECT_EQ(variables.Slot(1), "A=2.5");
  variables.VariableUpdate(4);
  variables.SetSlot(2, "B=1");
  EXPECT_EQ(variables.Slot(1), "A=0");
  variables.VariableUpdate(2);
  variables.SetSlot(1, "A=7");
  EXPECT_EQ(variables.Slot(1), "A=7");
}

TEST_F(DerivedFormsTest, TheListOfVariablesIsThatOfTheLastMake) {
  Fill({"TO P", "MAKE A A+1", "END"});
  variables.SetSlot(1, "A=5");
  variables.VariableUpdate(2);
  variables.SetSlot(1, "A=9");
  EXPECT_EQ(controls.List2.Items(), std::vector<std::string>{"A=6"});
  variables.VariableUpdate(2);
  EXPECT_EQ(controls.List2.Items(), std::vector<std::string>{"A=10"});
}

TEST_F(DerivedFormsTest, AFormulaOfConstantsIsWorkedOutOnce) {
  EXPECT_EQ(arguments.Number("(2+3)*(4-1)/(7-2)"), 3);
  EXPECT_EQ(arguments.Number("(2+3)*(4-1)/(7-2)"), 3);
  EXPECT_EQ(arguments.Number("1/0"), 0);
  EXPECT_EQ(arguments.Number("1/0"), 0);
}

TEST_F(DerivedFormsTest, ACoordinateFollowsTheTurtle) {
  turtle.Resolution = 50;
  const double x = arguments.Number("XCOR+1");
  turtle.TurtleX += 500;
  EXPECT_EQ(arguments.Number("XCOR+1"), x + 10);
  turtle.Resolution = 0;
  EXPECT_EQ(arguments.Number("XCOR+1"), 1);
}

TEST_F(DerivedFormsTest, AFormulaFollowsTheNames) {
  variables.SetSlot(1, "A=5");
  EXPECT_EQ(arguments.Number("A*2"), 10);
  variables.SetSlot(1, "B=5");
  EXPECT_EQ(arguments.Number("A*2"), 0);
  variables.SetSlot(2, "A=6");
  EXPECT_EQ(arguments.Number("A*2"), 12);
  variables.SetSlot(1, "A=4");
  EXPECT_EQ(arguments.Number("A*2"), 8);
}

TEST_F(DerivedFormsTest, AFormulaFollowsTheRunningProcedure) {
  variables.SetSlot(1, "A=5");
  variables.SetSlot(2, "P.A=6");
  EXPECT_EQ(arguments.Number("A*2"), 10);
  controlPath.SetCtrlStr(".P- 3");
  EXPECT_EQ(arguments.Number("A*2"), 12);
  controlPath.SetCtrlStr(".Q- 3");
  EXPECT_EQ(arguments.Number("A*2"), 10);
}

TEST_F(DerivedFormsTest, TheSlotOfAMakeFollowsTheNames) {
  Fill({"TO P", "MAKE A A+1", "END"});
  variables.SetSlot(1, "A=5");
  variables.VariableUpdate(2);
  variables.VariableUpdate(2);
  EXPECT_EQ(variables.Slot(1), "A=7");
  variables.SetSlot(2, "A=1");
  variables.SetSlot(1, "B=1");
  variables.VariableUpdate(2);
  EXPECT_EQ(variables.Slot(1), "B=1");
  EXPECT_EQ(variables.Slot(2), "A=2");
  store.SetLine(1, "TO Q");
  variables.SetSlot(3, "Q.A=1");
  variables.VariableUpdate(2);
  EXPECT_EQ(variables.Slot(3), "Q.A=3");
}

TEST_F(DerivedFormsTest, AnEqualsSignInTheNameOfAProcedureIsNotThatOfItsInput) {
  Fill({"TO A=1 X", "MAKE X 5", "END"});
  variables.SetSlot(1, "A=1.X=");
  variables.VariableUpdate(2);
  EXPECT_EQ(variables.Slot(1), "A=1.X=5");
}

TEST_F(DerivedFormsTest, TheFirstOpenSlotFollowsTheSlots) {
  variables.SetSlot(1, "A=1");
  variables.SetSlot(2, "B=1");
  EXPECT_EQ(variables.FirstOpenSlot(), 3);
  variables.SetSlot(1, " ");
  EXPECT_EQ(variables.FirstOpenSlot(), 1);
  variables.SetSlot(1, "A=1");
  variables.SetSlot(3, "C=1");
  EXPECT_EQ(variables.FirstOpenSlot(), 4);
}

TEST_F(DerivedFormsTest, TheEntriesOfAProcedureFollowTheNames) {
  variables.SetSlot(1, "P.A=1");
  EXPECT_EQ(variables.SlotsOfProcedure("P"), std::vector<int>{1});
  variables.SetSlot(2, "P.B=1");
  EXPECT_EQ(variables.SlotsOfProcedure("P"), (std::vector<int>{1, 2}));
  variables.SetSlot(1, " ");
  EXPECT_EQ(variables.SlotsOfProcedure("P"), std::vector<int>{2});
}

TEST_F(DerivedFormsTest, NamesThatComeBackAreTheSameState) {
  const auto before = variables.Names();
  variables.SetSlot(1, "P.A=1");
  const auto within = variables.Names();
  EXPECT_NE(within, before);
  variables.SetSlot(1, "P.A=-2.5");
  EXPECT_EQ(variables.Names(), within);
  variables.SetSlot(1, "");
  EXPECT_EQ(variables.Names(), before);
  variables.SetSlot(1, "P.A=B");
  EXPECT_NE(variables.Names(), within);
}

TEST(NameStates, NewNamesNeverGetAStateThatOthersHad) {
  NameStates states;
  std::set<std::uint64_t> seen = {states.Now()};
  // More than are kept at a time.
  for (int name = 0; name < 21'000; ++name) {
    states.Change(1, "N" + std::to_string(name) + "=");
    ASSERT_TRUE(seen.insert(states.Now()).second) << name;
  }
  const std::uint64_t last = states.Now();
  states.Change(1, "A=");
  states.Change(1, "N20999=");
  EXPECT_EQ(states.Now(), last);
}

TEST_F(DerivedFormsTest, TheTextOfThePathFollowsItsLine) {
  controlPath.SetCtrlStr(".P- 5");
  EXPECT_EQ(controlPath.CtrlStr(), ".P- 5");
  controlPath.WriteLine(7, ControlPath::Lead::None);
  EXPECT_EQ(controlPath.CtrlStr(), ".P-7");
  controlPath.WriteLine(8, ControlPath::Lead::Blank);
  EXPECT_EQ(controlPath.CtrlStr(), ".P- 8");
  EXPECT_EQ(controlPath.LineReached(), 8);
}

TEST_F(DerivedFormsTest, ThePathIsShortenedAtTheLineOfTheCallAlone) {
  controlPath.SetCtrlStr(".P- 5.P- 4");
  controlPath.Tidy();
  EXPECT_EQ(controlPath.CtrlStr(), ".P- 5.P- 4");
  controlPath.WriteLine(5, ControlPath::Lead::None);
  controlPath.Tidy();
  EXPECT_EQ(controlPath.CtrlStr(), ".P- 5.P-5");
  controlPath.WriteLine(5, ControlPath::Lead::Blank);
  controlPath.Tidy();
  EXPECT_EQ(controlPath.CtrlStr(), ".P- 5");
}

TEST_F(DerivedFormsTest, TheLabelShowsThePathWhileItRunsAndKeepsTheLast) {
  Fill({"TO P", "FD 1", "END"});
  std::string shown;
  dispatch.Bind("FD", [&](PrimitiveCall&) { shown = controls.Label19.Caption; });
  runner.Run1("P");
  EXPECT_EQ(shown, ".P-2");
  EXPECT_EQ(controls.Label19.Caption, ".");
  controlPath.SetCtrlStr(".X- 1");
  EXPECT_EQ(controls.Label19.Caption, ".");
}

}  // namespace
}  // namespace zerimo
