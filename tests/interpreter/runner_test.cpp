#include "interpreter/runner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "support/interpreter.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

/// Records the control string at the beginning of each step.
class NotingWatch : public Watch {
 public:
  explicit NotingWatch(const ControlPath& controlPath) : path(controlPath) {}
  void LookAtStep() override { Steps.push_back(path.CtrlStr()); }
  void Tick() override {}
  Texts Steps;

 private:
  const ControlPath& path;
};

class RunnerTest : public testing::Test, protected BareInterpreter {
 protected:
  /// The control string at the beginning of each step of a run, and at its end.
  Texts StepsOf(const char* procedure) {
    NotingWatch noting(controlPath);
    Runner({{services, noting, controls, turtle}, store, controlPath, variables, arithmetic}, dispatch, inputs,
           conditionals)
        .Run1(procedure);
    noting.Steps.push_back(controlPath.CtrlStr());
    return noting.Steps;
  }

  /// Runs a procedure that does not end for a number of steps.
  void RunFor(int steps, const char* procedure) {
    watch.Allow(steps);
    EXPECT_THROW(runner.Run1(procedure), Stopped);
  }
};

TEST_F(RunnerTest, AnUnknownNameLeavesThePath) {
  controlPath.SetCtrlStr(".OLD- 3");
  runner.Run1("NOWHERE");
  EXPECT_EQ(controlPath.CtrlStr(), ".OLD- 3");
  EXPECT_EQ(controls.Label19.Caption, ".OLD- 3");
}

TEST_F(RunnerTest, KnowsTheLineWhereThePathIsOneAhead) {
  Fill({"TO A", "IF 1=1", "ENDIF", "LABEL X", "GOTO X", "END"});
  RunFor(3, "A");
  EXPECT_EQ(runner.LineNow(), 4);
  EXPECT_EQ(controlPath.CtrlStr(), ".A- 5");
}

TEST_F(RunnerTest, KnowsNoLineAfterAWalk) {
  Fill({"TO A", "RT 90", "END"});
  runner.Run1("A");
  EXPECT_EQ(runner.LineNow(), 0);
}

TEST_F(RunnerTest, ThePathFollowsTheWalk) {
  Fill({"TO BOX :S", "FD :S", "END", "TO #TEMP$7", "BOX 10", "RT 90", "END"});
  runner.Run1("#TEMP$7");
  EXPECT_EQ(Calls, (Texts{"FD 10", "RT 90"}));
  EXPECT_EQ(Paths, (Texts{".#TEMP$7- 5.BOX- 2", ".#TEMP$7-6"}));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
  EXPECT_EQ(controls.Label19.Caption, ".");
}

TEST_F(RunnerTest, ThePathAtEachStepOfACall) {
  Fill({"TO BOX :S", "FD :S", "END", "TO #TEMP$7", "BOX 10", "RT 90", "END"});
  EXPECT_EQ(StepsOf("#TEMP$7"), (Texts{".#TEMP$7- 4", ".#TEMP$7-5", ".#TEMP$7- 5.BOX- 2", ".#TEMP$7- 5.BOX- 3",
                                       ".#TEMP$7-6", ".#TEMP$7- 7", "."}));
}

TEST_F(RunnerTest, ThePathAfterEachClassOfLine) {
  Fill({"TO A", "MAKE \"N 1", "IF 1", "ENDIF", "FD 1", "1+2", "1=2", "GOTO X", "LABEL X", "NOWHERE", "END"});
  EXPECT_EQ(StepsOf("A"), (Texts{".A- 1", ".A-2", ".A- 3", ".A- 4", ".A- 6", ".A- 6", ".A- 7", ".A- 8", ".A-9", ".A-10",
                                 ".A-10- 11", "."}));
}

TEST_F(RunnerTest, ThePathAfterAnElse) {
  Fill({"TO A", "IF 1", "ELSE", "FD 1", "ENDIF", "FD 2", "END"});
  EXPECT_EQ(StepsOf("A"), (Texts{".A- 1", ".A-2", ".A- 3", ".A- 6", ".A- 7", "."}));
}

TEST_F(RunnerTest, TheControlStringIsShownAsItChanges) {
  Texts shown;
  dispatch.Bind("FD", [&](PrimitiveCall&) { shown.push_back(controls.Label19.Caption); });
  dispatch.Bind("AEXP", [&](PrimitiveCall&) { shown.push_back(controls.Label19.Caption); });
  Fill({"TO A", "FD 1", "1+2", "END", "TO B", "A", "FD 2", "END"});
  runner.Run1("B");
  EXPECT_EQ(shown, (Texts{".B- 6.A- 2", ".B- 6.A- 3", ".B-7"}));
  EXPECT_EQ(controls.Label19.Caption, ".");
}

TEST_F(RunnerTest, ThePathAfterATo) {
  Fill({"TO A", "FD 1", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Paths, (Texts{".A-2", ".A- 3"}));
}

TEST_F(RunnerTest, AnUnknownWordIsSkippedAndThePathKeepsTheOldNumber) {
  Fill({"TO A", "NOWHERE 5", "FD 1", "FD 2", "END", "TO B", "A", "FD 3", "END"});
  runner.Run1("B");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 2", "FD 3"}));
  EXPECT_EQ(Paths[0], ".B- 7.A- 2- 3");
  EXPECT_EQ(Paths[1], ".B- 7.A- 2- 4");
  EXPECT_EQ(Paths[2], ".B-8");
  EXPECT_EQ(store.Line(2), "NOWHERE 5 ");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(RunnerTest, CurrentProcedureNameHoldsTheNumberAfterAnUnknownWord) {
  std::string name;
  dispatch.Bind("FD", [&](PrimitiveCall&) { name = controlPath.CurrentProcedureName(); });
  Fill({"TO A", "NOWHERE", "FD 1", "END"});
  runner.Run1("A");
  EXPECT_EQ(name, "A-2");
}

TEST_F(RunnerTest, PrimitiveLinesAreTrimmedInTheStore) {
  Fill({"TO A", "FD 1 ", "END"});
  runner.Run1("A");
  EXPECT_EQ(store.Line(2), "FD 1");
}

TEST_F(RunnerTest, RecursionAfterAPrimitiveKeepsThePathsLength) {
  Fill({"TO A", "FD 1", "A", "END"});
  RunFor(3000, "A");
  ASSERT_GT(Calls.size(), 900U);
  EXPECT_EQ(Paths.back(), Paths[Paths.size() - 2]);
  EXPECT_LT(Paths.back().size(), 20U);
}

TEST_F(RunnerTest, RecursionRightAfterTheHeaderKeepsThePathsLength) {
  Fill({"TO A", "A", "END"});
  RunFor(100, "A");
  EXPECT_EQ(controlPath.CtrlStr(), ".A- 2");
}

TEST_F(RunnerTest, RecursionAfterALabelGrowsThePath) {
  // The label's number has no blank, so that the two components differ as texts.
  Fill({"TO A", "LABEL X", "A", "END"});
  RunFor(100, "A");
  EXPECT_GT(std::count(controlPath.CtrlStr().begin(), controlPath.CtrlStr().end(), '.'), 20);
}

/// The line before a recursive call, and how many components the path has after a while.
struct BeforeTheCall {
  const char* Line;
  bool Grows;
};

void PrintTo(const BeforeTheCall& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << one.Grows; }

class RecursionAfter : public RunnerTest, public testing::WithParamInterface<BeforeTheCall> {};

TEST_P(RecursionAfter, KeepsOrGrowsThePath) {
  Fill({"TO A", GetParam().Line, "A", "END", "TO B", "END"});
  RunFor(120, "A");
  const auto components = std::count(controlPath.CtrlStr().begin(), controlPath.CtrlStr().end(), '.');
  if (GetParam().Grows) {
    EXPECT_GT(components, 20);
  } else {
    EXPECT_LE(components, 2);
  }
}

// A bare expression checks for recursion before its act, when the inner component still has the number of its own line;
// an ENDIF writes a number that is too high, and a return from a call one without its blank.
INSTANTIATE_TEST_SUITE_P(typedLines, RecursionAfter,
                         testing::Values(BeforeTheCall{"FD 1", false}, BeforeTheCall{"MAKE X 1", false},
                                         BeforeTheCall{"LABEL X", true}, BeforeTheCall{"1+2", true},
                                         BeforeTheCall{"1=2", true}, BeforeTheCall{"ENDIF", true},
                                         BeforeTheCall{"B", true}));

TEST_F(RunnerTest, APrintAfterARecursiveCallIsNotReachedOnceALevel) {
  // The input read is always that of the outermost call, so the condition is always true.
  Fill({"TO B :N", "IF :N>0", "B :N-1", "ENDIF", "PRINT :N", "END", "TO M", "B 2", "END"});
  RunFor(201, "M");
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(controlPath.CtrlStr(), ".M- 8.B- 3");
}

TEST_F(RunnerTest, TenLevelsReturnOnce) {
  Fill({"TO B", "MAKE N N-1", "IF N>0", "B", "ENDIF", "PRINT 1", "END", "TO M", "MAKE N 10", "B", "PRINT 2", "END"});
  runner.Run1("M");
  // From the innermost level, and from the outermost one after its call.
  EXPECT_EQ(Calls, (Texts{"PRINT 1", "PRINT 1", "PRINT 2"}));
}

TEST_F(RunnerTest, WhatFollowsARecursiveCallRunsOnce) {
  Fill({"TO B :N", "FD :N", "IF :N>0", "B :N-1", "ENDIF", "RT 1", "END", "TO M", "B 0", "END"});
  runner.Run1("M");
  EXPECT_EQ(Calls, (Texts{"FD 0", "RT 1"}));
}

TEST_F(RunnerTest, NestedCallsReturnAfterTheCallWithTheCallersInputs) {
  Fill({"TO IN :X", "FD :X", "END", "TO OUT :Y", "IN 1", "FD :Y", "IN 2", "FD :Y", "END", "TO M", "OUT 7", "END"});
  runner.Run1("M");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 7", "FD 2", "FD 7"}));
}

TEST_F(RunnerTest, GotoWithAnUnknownLabelTellsItAndLeavesThePath) {
  Fill({"TO A", "FD 1", "GOTO X", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"UnDeclared Label: X in Goto Statement", 0, ""}));
  EXPECT_EQ(controlPath.CtrlStr(), ".A- 3");
  EXPECT_EQ(controls.Label19.Caption, ".A- 3");
}

TEST_F(RunnerTest, ARunAfterAnUnknownLabelIsAppendedToTheOldPath) {
  Fill({"TO A", "FD 1", "END"});
  controlPath.SetCtrlStr(".#TEMP$1- 8");
  runner.Run1("A");
  EXPECT_EQ(Paths, (Texts{".#TEMP$1- 8A-2"}));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
}

TEST_F(RunnerTest, ADeepOldPathIsWalkedOnAfterTheNewRun) {
  Fill({"TO A", "FD 1", "END", "TO OLD", "FD 8", "FD 9", "END"});
  controlPath.SetCtrlStr(".OLD- 5.X- 2");
  runner.Run1("A");
  // The END of the new run returns into the old path, to the line after line 5.
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 9"}));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
}

TEST_F(RunnerTest, APathOfASingle1IsTheEndOfTheRun) {
  Fill({"TO A", "FD 1", "END"});
  controlPath.SetCtrlStr("X.");
  runner.Run1("A");
  // The END cuts the path down to "X", which has no number: the line after 0 is the whole path.
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
}

TEST_F(RunnerTest, ATrailingBlankMakesAnotherLabel) {
  Fill({"TO A", "GOTO X", "END", "TO B", "LABEL X ", "END"});
  runner.Run1("A");
  EXPECT_EQ(services.BoxTexts(), (Texts{"UnDeclared Label: X in Goto Statement"}));
}

TEST_F(RunnerTest, GotoGoesToTheLabelLine) {
  Fill({"TO A", "GOTO X", "FD 1", "LABEL X", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 2"}));
  EXPECT_EQ(Paths, (Texts{".A-5"}));
}

TEST_F(RunnerTest, GotoIntoAnotherProcedureGoesOnThereUnderTheOldName) {
  Fill({"TO A", "GOTO X", "END", "TO B", "LABEL X", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 2"}));
  EXPECT_EQ(Paths, (Texts{".A-6"}));
}

TEST_F(RunnerTest, ALabelAfterAnEndifSkipsALine) {
  Fill({"TO A", "IF 1", "ENDIF", "LABEL X", "FD 1", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 2"}));
}

TEST_F(RunnerTest, EndifWritesTheNumberOneAhead) {
  Fill({"TO A", "IF 1", "ENDIF", "FD 1", "END"});
  runner.Run1("A");
  EXPECT_EQ(Paths, (Texts{".A- 5"}));
}

TEST_F(RunnerTest, TrueBranchJumpsAfterTheMatchingEndif) {
  Fill({"TO A", "IF 1", "FD 1", "ELSE", "IF 1", "FD 2", "ENDIF", "FD 3", "ENDIF", "FD 4", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 4"}));
  EXPECT_EQ(Paths[1], ".A- 10");
}

TEST_F(RunnerTest, FalseBranchStartsAfterTheElse) {
  Fill({"TO A", "IF 0", "FD 1", "ELSE", "FD 2", "ENDIF", "FD 3", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 2", "FD 3"}));
}

TEST_F(RunnerTest, ElseStepsOverInnerConditions) {
  Fill({"TO A", "IF 1", "ELSE", "IF 1", "IF 1", "ENDIF", "ENDIF", "FD 1", "ENDIF", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 2"}));
}

TEST_F(RunnerTest, ElseWithoutEndifEndsTheRun) {
  Fill({"TO A", "FD 1", "ELSE", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"Misplaced Else", 0, ""}));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
}

TEST_F(RunnerTest, AConditionThatAlwaysFailsNeverEndsTheRun) {
  Fill({"TO A", "IF 1/0", "FD 1", "ENDIF", "END"});
  RunFor(500, "A");
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(controlPath.CtrlStr(), ".A- 2");
}

TEST_F(RunnerTest, AFalseIfWithoutEndifNeverEndsTheRun) {
  Fill({"TO A", "IF 0", "FD 1", "END"});
  RunFor(500, "A");
  EXPECT_EQ(controlPath.CtrlStr(), ".A- 0");
}

TEST_F(RunnerTest, AWalkWithoutEndGoesOnIntoTheNextLines) {
  Fill({"TO A", "FD 1", "TO B", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 2"}));
}

TEST_F(RunnerTest, AnEmptyLineIsSkippedLikeAnUnknownWord) {
  Fill({"TO A", "FD 1", "", "FD 2", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 2"}));
  // `GiveWord` left this blank when it read the line's first word.
  EXPECT_EQ(store.Line(3), " ");
}

TEST_F(RunnerTest, AFailingPrimitiveLetsTheNextLineRun) {
  dispatch.Bind("RT", [](PrimitiveCall&) { throw Failure(FailureKind::Overflow); });
  Fill({"TO A", "RT 1", "FD 1", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
}

TEST_F(RunnerTest, AFailingMakeLetsTheNextLineRun) {
  Fill({"TO A", "MAKE \"N 1/0", "FD 1", "END"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
}

TEST_F(RunnerTest, ANameWithADashIsCutInThePath) {
  Fill({"TO A-B 1", "FD 1", "END", "TO M", "A-B 1", "FD 2", "END"});
  EXPECT_EQ(StepsOf("M"), (Texts{".M- 4", ".M-5", ".M- 5.A-B- 2", ".M- 5.A-B- 3", ".M-6", ".M- 7", "."}));
}

TEST_F(RunnerTest, AWalkPastLine2000EndsTheRunAndLeavesThePath) {
  Fill({"TO A", "FD 1"});
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
  EXPECT_TRUE(controlPath.CtrlStr().starts_with(".A- 3- 4- 5"));
  EXPECT_TRUE(controlPath.CtrlStr().ends_with("- 2001"));
  EXPECT_EQ(controls.Label19.Caption, controlPath.CtrlStr());
}

TEST_F(RunnerTest, BareExpressionsGoToTheirOwnActions) {
  Texts lines;
  const auto note = [&](PrimitiveCall& call) {
    lines.push_back(std::string(call.Word) + " " + call.Rest());
    Paths.push_back(controlPath.CtrlStr());
  };
  dispatch.Bind("AEXP", note);
  dispatch.Bind("REXP", note);
  Fill({"TO A", "1+2", "A=3", "FD 1", "END"});
  runner.Run1("A");
  EXPECT_EQ(lines, (Texts{"AEXP 1+2", "REXP A=3"}));
  EXPECT_EQ(Paths, (Texts{".A-2", ".A- 3", ".A- 4"}));
}

TEST_F(RunnerTest, ALineOfTooManyWordsCallsTheFormerName) {
  std::string tooManyWords = "X";
  for (int word = 1; word < 60; ++word) tooManyWords += " W";
  Fill({"TO B", "FD 1", "END", "TO A", "B"});
  store.SetLine(6, tooManyWords);
  store.SetLine(7, "END");
  runner.Run1("A");
  EXPECT_EQ(Calls, (Texts{"FD 1", "FD 1"}));
}

TEST_F(RunnerTest, EndDeletesTheInputsOfItsProcedure) {
  Fill({"TO BOX :N", "FD :N", "END", "TO A", "BOX 50", "END"});
  runner.Run1("A");
  EXPECT_EQ(variables.Slot(1), " ");
  EXPECT_EQ(controlPath.CurProcName, "A");
}

}  // namespace
}  // namespace zerimo
