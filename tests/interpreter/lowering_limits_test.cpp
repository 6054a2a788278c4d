#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "interpreter/lowering.h"
#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

std::string Body(int statements) {
  std::string body;
  for (int statement = 0; statement < statements; ++statement) body += "PU ";
  return body;
}

class LoweringLimitsTest : public SlotsFixture {
 protected:
  /// The lines between header and `END` after the lowering of one line.
  Texts Lowered(const std::string& line) {
    store.MakeEmptyFileDataArray();
    Fill({"TO P", line.c_str(), "END"});
    lowering.RemoveAllRepeats();
    const Texts program = Program();
    return Texts(program.begin() + 1, program.end() - 1);
  }
  std::optional<FailureKind> FailureOfLowering() {
    return FailureOf([&] { lowering.RemoveAllRepeats(); });
  }
  std::optional<FailureKind> FailureOfLowering(const std::string& line) {
    return FailureOf([&] { Lowered(line); });
  }
  /// What a typed line draws.
  Texts Typed(const char* line) {
    Type(line);
    return Calls;
  }
};

TEST_F(LoweringLimitsTest, ARepeatLineStartsInTheFirstColumn) {
  for (const char* line : {" REPEAT 4 [FD 1]", "REPEAT[FD 1]", "REPEAT", "repeat 4 [FD 1]", "XREPEAT 4 [FD 1]"}) {
    Fill({"TO P", line, "END"});
    EXPECT_EQ(lowering.IsRepeatPresent(), 0) << line;
    EXPECT_EQ(lowering.SearchRepeatPos(), 0) << line;
    EXPECT_EQ(FailureOfLowering(), std::nullopt);
    EXPECT_EQ(store.Line(2), line);
  }
}

TEST_F(LoweringLimitsTest, AHashInALineCountsAsItsStart) {
  Fill({"TO P", "PRINT \"#REPEAT 2\"", "END"});
  EXPECT_EQ(lowering.SearchRepeatPos(), 2);
}

TEST_F(LoweringLimitsTest, TheFirstRepeatLineIsFound) {
  Fill({"TO P", "FD 1", "REPEAT 2 [FD 1]", "REPEAT 3 [FD 1]", "END"});
  EXPECT_EQ(lowering.IsRepeatPresent(), 1);
  EXPECT_EQ(lowering.SearchRepeatPos(), 3);
}

TEST_F(LoweringLimitsTest, ALineAfterTheFirstEmptyOneIsNotFound) {
  Fill({"TO P", "END", "", "REPEAT 2 [FD 1]"});
  EXPECT_EQ(lowering.IsRepeatPresent(), 0);
  EXPECT_EQ(lowering.SearchRepeatPos(), 0);
}

TEST_F(LoweringLimitsTest, NamesKeepGrowing) {
  Fill({"TO P", "REPEAT 2 [FD 1]", "REPEAT 3 [RT 1]", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Program(), (Texts{"TO P", "MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF",
                              "MAKE ## 1", "LABEL $$", "RT 1", "MAKE ## ##+1", "IF ##<=3", "GOTO $$", "ENDIF", "END"}));
  EXPECT_EQ(Lowered("REPEAT 2 [PU]"),
            (Texts{"MAKE ### 1", "LABEL $$$", "PU", "MAKE ### ###+1", "IF ###<=2", "GOTO $$$", "ENDIF"}));
}

TEST_F(LoweringLimitsTest, TheLabelsShowTheLengthsOfTheNames) {
  Lowered("REPEAT 2 [FD 1]");
  EXPECT_EQ(controls.Label17.Caption, "#- 1");
  EXPECT_EQ(controls.Label18.Caption, "$- 1");
  Fill({"TO P", "REPEAT 2 [FD 1]", "REPEAT 2 [FD 1]", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(controls.Label17.Caption, "#- 3");
  EXPECT_EQ(controls.Label18.Caption, "$- 3");
}

TEST_F(LoweringLimitsTest, ForgottenNamesStartAgain) {
  Lowered("REPEAT 2 [FD 1]");
  lowering.ForgetNames();
  EXPECT_EQ(lowering.RepeatCounterName, "");
  EXPECT_EQ(lowering.RepeatLabelName, "");
  EXPECT_EQ(Lowered("REPEAT 2 [PU]").front(), "MAKE # 1");
}

TEST_F(LoweringLimitsTest, TheBodyAlwaysRunsOnce) {
  Fill({"TO P", "REPEAT 0 [FD 10]", "REPEAT -1 [RT 10]", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Typed("P"), (Texts{"FD 10", "RT 10"}));
}

TEST_F(LoweringLimitsTest, ABodyThatChangesItsCountChangesTheRounds) {
  Fill({"TO P", "MAKE \"N 2", "REPEAT :N [FD :N MAKE \"N :N-1]", "END", "TO Q", "MAKE \"N 1",
        "REPEAT :N [RT :N MAKE \"N 3]", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Typed("P Q"), (Texts{"FD 2", "RT 1", "RT 3", "RT 3"}));
}

TEST_F(LoweringLimitsTest, AllActivationsOfAProcedureShareOneCounter) {
  Fill({"TO P", "REPEAT 3 [FD # MAKE \"D :D+1 Q]", "END", "TO Q", "IF :D=1", "RT 1", "P", "ENDIF", "END"});
  lowering.RemoveAllRepeats();
  // The inner loop leaves the counter at 4, so that the outer one is over too.
  EXPECT_EQ(Typed("P"), (Texts{"FD 1", "RT 1", "FD 1", "FD 2", "FD 3"}));
}

TEST_F(LoweringLimitsTest, CountersAreGlobals) {
  Typed("REPEAT 3[FD 1]");
  EXPECT_EQ(variables.Slot(1), "#=4");
}

TEST_F(LoweringLimitsTest, BodyFinderDropsTheLastCharacterWhateverItIs) {
  Fill({"REPEAT 3 [FD 10]", "REPEAT 3 [FD 10", "REPEAT 3 FD 10", "REPEAT 3 [", "REPEAT 3 [A[B]C] X", "REPEAT 3 []"});
  EXPECT_EQ(lowering.BodyFinder(1), "FD 10");
  EXPECT_EQ(lowering.BodyFinder(2), "FD 1");
  EXPECT_EQ(lowering.BodyFinder(3), "");
  EXPECT_EQ(lowering.BodyFinder(4), "");
  EXPECT_EQ(lowering.BodyFinder(5), "A[B]C] ");
  EXPECT_EQ(lowering.BodyFinder(6), "");
  EXPECT_EQ(lowering.BodyFinder(0), "");
  EXPECT_EQ(lowering.BodyFinder(2001), "");
}

TEST_F(LoweringLimitsTest, AnOuterRepeatWithoutABracketIsAnEmptyLoop) {
  EXPECT_EQ(Lowered("REPEAT 3 FD 1"), (Texts{"MAKE # 1", "LABEL $", "MAKE # #+1", "IF #<=3 FD 1", "GOTO $", "ENDIF"}));
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(LoweringLimitsTest, RepeatNumGivesTheTrimmedCountExpression) {
  EXPECT_EQ(lowering.RepeatNum("REPEAT  2 + 1  [FD 10]"), "2 + 1");
  EXPECT_EQ(lowering.RepeatNum("REPEAT :N*2[FD 10]"), ":N*2");
  EXPECT_EQ(lowering.RepeatNum("REPEAT 5"), "5");
}

TEST_F(LoweringLimitsTest, RepeatNumFailsWhereTheCountCantBeEvaluatedTo16Bits) {
  EXPECT_EQ(lowering.RepeatNum("REPEAT 32767 [FD 1]"), "32767");
  EXPECT_EQ(lowering.RepeatNum("REPEAT 32767.4 [FD 1]"), "32767.4");
  EXPECT_EQ(lowering.RepeatNum("REPEAT -32768.5 [FD 1]"), "-32768.5");
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT 32768 [FD 1]"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT 32767.5 [FD 1]"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT -32769 [FD 1]"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT 1/0 [FD 1]"); }), FailureKind::DivisionByZero);
}

TEST_F(LoweringLimitsTest, RepeatNumReadsVariables) {
  Slots({"N=40000", "ZERO=0"});
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT N [FD 1]"); }), FailureKind::Overflow);
  EXPECT_EQ(FailureOf([&] { lowering.RepeatNum("REPEAT 5/ZERO [FD 1]"); }), FailureKind::DivisionByZero);
  EXPECT_EQ(lowering.RepeatNum("REPEAT N/2 [FD 1]"), "N/2");
}

TEST_F(LoweringLimitsTest, ACountThatFailsLeavesTheLineAndUsesUpTheNames) {
  Fill({"TO P", "REPEAT 40000 [FD 10]", "END"});
  EXPECT_EQ(FailureOfLowering(), FailureKind::Overflow);
  EXPECT_EQ(Program(), (Texts{"TO P", "REPEAT 40000 [FD 10]", "END"}));
  EXPECT_EQ(lowering.RepeatCounterName, "#");
  EXPECT_EQ(lowering.RepeatLabelName, "$");
}

TEST_F(LoweringLimitsTest, ABodyThatCantBeSplitLeavesTheLineAndUsesUpTheNames) {
  const std::string line = "REPEAT 2 [" + Body(201) + "]";
  EXPECT_EQ(FailureOfLowering(line), FailureKind::TypeMismatch);
  EXPECT_EQ(Program(), (Texts{"TO P", line, "END"}));
  EXPECT_EQ(lowering.RepeatCounterName, "#");
}

TEST_F(LoweringLimitsTest, ABodyHolds93Statements) {
  EXPECT_EQ(Lowered("REPEAT 2 [" + Body(93) + "]").size(), 99U);
  EXPECT_EQ(FailureOfLowering("REPEAT 2 [" + Body(95) + "]"), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Program().size(), 3U);
}

TEST_F(LoweringLimitsTest, AListOf100LinesFailsWhenItHasBeenWritten) {
  Fill({"TO P", ("REPEAT 2 [" + Body(94) + "]").c_str(), "FD 1", "END"});
  EXPECT_EQ(FailureOfLowering(), FailureKind::SubscriptOutOfRange);
  // All 100 lines are in the store; those after the REPEAT are lost.
  EXPECT_EQ(store.Line(2), "MAKE # 1");
  EXPECT_EQ(store.Line(101), "ENDIF");
  EXPECT_EQ(store.Line(102), "");
}

TEST_F(LoweringLimitsTest, LineListHasIndexes1To100) {
  LineList lines;
  lines.Set(100, "ENDIF");
  EXPECT_EQ(lines.At(100), "ENDIF");
  EXPECT_EQ(FailureOf([&] { lines.At(0); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { lines.At(101); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { lines.Set(101, "END"); }), FailureKind::SubscriptOutOfRange);
}

TEST_F(LoweringLimitsTest, TheLinesAfterItMoveUp) {
  Fill({"TO P", "REPEAT 2 [FD 1]", "RT 1", "END", "TO Q", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Program(), (Texts{"TO P", "MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF", "RT 1",
                              "END", "TO Q", "END"}));
}

TEST_F(LoweringLimitsTest, StaleLinesAfterTheGapAreOverwrittenOrComeUp) {
  Fill({"TO P", "REPEAT 2 [FD 1]", "END", "", "OLD 5", "OLD 6", "OLD 7", "OLD 8", "OLD 9", "OLD 10"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(store.Line(9), "END");
  EXPECT_EQ(store.Line(10), "OLD 10");
}

TEST_F(LoweringLimitsTest, AtMost1000LinesFollowTheRepeat) {
  Fill({"TO P", "REPEAT 2 [FD 1]"});
  for (int number = 3; number <= 1002; ++number) store.SetLine(number, "PU");
  EXPECT_EQ(FailureOfLowering(), std::nullopt);
  EXPECT_EQ(Program().size(), 1008U);
  store.SetLine(8, "REPEAT 2 [FD 1]");
  store.SetLine(1009, "PU");
  EXPECT_EQ(FailureOfLowering(), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(store.Line(8), "REPEAT 2 [FD 1]");
}

TEST_F(LoweringLimitsTest, ALoweringThatOverflowsTheStoreFails) {
  for (int number = 1; number <= 1998; ++number) store.SetLine(number, "PU");
  store.SetLine(1998, "REPEAT 2 [FD 1]");
  EXPECT_EQ(FailureOfLowering(), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(store.Line(1998), "MAKE # 1");
  EXPECT_EQ(store.Line(2000), "FD 1");
}

TEST_F(LoweringLimitsTest, AStoreWithNoEmptyLineFails) {
  for (int number = 1; number <= 2000; ++number) store.SetLine(number, "PU");
  EXPECT_EQ(FailureOf([&] { lowering.IsRepeatPresent(); }), FailureKind::SubscriptOutOfRange);
}

TEST_F(LoweringLimitsTest, AddComponentsFailsWithoutARepeat) {
  Fill({"TO P", "END"});
  EXPECT_EQ(FailureOf([&] { lowering.AddComponents(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(lowering.RepeatCounterName, "");
}

TEST_F(LoweringLimitsTest, ALoopInACalledProcedureHasACounterOfItsOwn) {
  Fill({"TO P", "REPEAT 2 [FD 1]", "END", "TO Q", "REPEAT 3 [P]", "END"});
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Typed("Q"), Texts(6, "FD 1"));
  EXPECT_EQ(FirstSlots(3), (Texts{"##=4", "#=3", ""}));
}

}  // namespace
}  // namespace zerimo
