#include "interpreter/lowering.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "base/failure.h"
#include "support/failure_of.h"
#include "support/interpreter.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class LoweringTest : public testing::Test, protected BareInterpreter {
 protected:
  Texts Lowered(std::initializer_list<const char*> lines) {
    Fill(lines);
    lowering.RemoveAllRepeats();
    return Program();
  }
  Texts Split(std::string body) {
    const BodyArray statements = lowering.CreateBodyArray(body);
    if (FailureOf([&] { statements.At(1); }) == FailureKind::TypeMismatch) return {"."};
    Texts texts;
    for (int index = 1; index <= BodyArray::LastIndex && !statements.At(index).empty(); ++index) {
      texts.push_back(statements.At(index));
    }
    return texts;
  }
};

TEST_F(LoweringTest, NestedRepeatsAreTakenApartFromTheOutside) {
  EXPECT_EQ(Lowered({"TO BOX :N", "REPEAT 4 [FD :N REPEAT 2 [RT 45] BK :N]", "END"}),
            (Texts{"TO BOX :N", "MAKE # 1", "LABEL $", "FD :N", "MAKE ## 1", "LABEL $$", "RT 45", "MAKE ## ##+1",
                   "IF ##<=2", "GOTO $$", "ENDIF", "BK :N", "MAKE # #+1", "IF #<=4", "GOTO $", "ENDIF", "END"}));
  EXPECT_EQ(controls.Label17.Caption, "#- 2");
  EXPECT_EQ(controls.Label18.Caption, "$- 2");
}

TEST_F(LoweringTest, OneRoundLowersTheTopmostLine) {
  Fill({"TO BOX :N", "REPEAT 4 [FD :N REPEAT 2 [RT 45] BK :N]", "END"});
  lowering.RemoveSingleRepeat();
  EXPECT_EQ(Program(), (Texts{"TO BOX :N", "MAKE # 1", "LABEL $", "FD :N", "REPEAT 2 [RT 45]", "BK :N", "MAKE # #+1",
                              "IF #<=4", "GOTO $", "ENDIF", "END"}));
}

TEST_F(LoweringTest, TheCountIsCopiedAsItIs) {
  EXPECT_EQ(Lowered({"REPEAT :N*2 [FD 10]"})[4], "IF #<=:N*2");
  EXPECT_EQ(lowering.RepeatNum("REPEAT 2 + 1 [FD 10]"), "2 + 1");
  store.MakeEmptyFileDataArray();
  EXPECT_EQ(Lowered({"REPEAT 2 + 1 [FD 10]"})[4], "IF ##<=2 + 1");
}

TEST_F(LoweringTest, RepeatsInARowGetTheNextNames) {
  const Texts lines = Lowered({"REPEAT 2 [FD 1]", "REPEAT 2 [FD 2]"});
  EXPECT_EQ(lines[0], "MAKE # 1");
  EXPECT_EQ(lines[7], "MAKE ## 1");
  EXPECT_EQ(lines[8], "LABEL $$");
  store.MakeEmptyFileDataArray();
  EXPECT_EQ(Lowered({"REPEAT 2 [FD 1]"})[0], "MAKE ### 1");
}

struct Rounds {
  const char* Line;
  std::size_t Count;
};

void PrintTo(const Rounds& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << one.Count; }

class RoundsOf : public LoweringTest, public testing::WithParamInterface<Rounds> {};

TEST_P(RoundsOf, RunTheBody) {
  Type(GetParam().Line);
  EXPECT_EQ(Calls.size(), GetParam().Count);
}

INSTANTIATE_TEST_SUITE_P(Repeat, RoundsOf,
                         testing::Values(Rounds{"REPEAT 0[FD 10]", 1}, Rounds{"REPEAT -1[FD 10]", 1},
                                         Rounds{"REPEAT 2.5[FD 10]", 2}, Rounds{"REPEAT 3[FD 10]", 3},
                                         Rounds{"REPEAT 3[FD 10 RT 1]", 6}, Rounds{"REPEAT 2[REPEAT 3[FD 1] RT 1]", 8},
                                         Rounds{"REPEAT 2+1[FD 10]", 3}));

TEST_F(LoweringTest, TheCountIsEvaluatedInEveryRound) {
  Fill({"MAKE :N 5", "TO A", "REPEAT :N [MAKE \"N :N-1 FD 1]", "END"});
  lowering.RemoveAllRepeats();
  variables.CreateGlobalVariable();
  Type("A");
  // 5 rounds shrink to 3: the counter meets the falling count halfway.
  EXPECT_EQ(Calls.size(), 3U);
}

TEST_F(LoweringTest, ACountBeyond16BitsFailsAndTheLineStays) {
  Fill({"REPEAT 40000 [FD 10]"});
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
  EXPECT_EQ(Program(), (Texts{"REPEAT 40000 [FD 10]"}));
  EXPECT_EQ(lowering.RepeatCounterName, "#");
  EXPECT_EQ(lowering.RepeatLabelName, "$");
}

TEST_F(LoweringTest, ACountThatDividesByZeroFails) {
  Fill({"REPEAT 1/0 [FD 10]"});
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
}

TEST_F(LoweringTest, BlanksInsideTheBracketsDoNotMatter) {
  EXPECT_EQ(Lowered({"REPEAT 3 [FD 10 ]"})[2], "FD 10");
  store.MakeEmptyFileDataArray();
  EXPECT_EQ(Lowered({"REPEAT 4 [ FD 10 RT 90 ]"}),
            (Texts{"MAKE ## 1", "LABEL $$", "FD 10", "RT 90", "MAKE ## ##+1", "IF ##<=4", "GOTO $$", "ENDIF"}));
}

TEST_F(LoweringTest, AnEmptyBodyGivesTheLoopAlone) {
  EXPECT_EQ(Lowered({"REPEAT 3 []"}), (Texts{"MAKE # 1", "LABEL $", "MAKE # #+1", "IF #<=3", "GOTO $", "ENDIF"}));
}

TEST_F(LoweringTest, AnOuterRepeatWithoutABracketHasNoBody) {
  EXPECT_EQ(Lowered({"REPEAT 3"}), (Texts{"MAKE # 1", "LABEL $", "MAKE # #+1", "IF #<=3", "GOTO $", "ENDIF"}));
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(LoweringTest, AnOuterRepeatWithoutAClosingBracketLosesItsLastCharacter) {
  EXPECT_EQ(Lowered({"REPEAT 3 [FD 10"})[2], "FD 1");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(LoweringTest, ANestedRepeatWithoutABracketIsReportedTwice) {
  EXPECT_EQ(Lowered({"REPEAT 3 [FD 1 REPEAT 2 RT 1]"}),
            (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=3", "GOTO $", "ENDIF"}));
  EXPECT_EQ(services.BoxTexts(), (Texts{"Missing [", "Missing ["}));
  EXPECT_EQ(services.Boxes[0], (ShownBox{"Missing [", 0, ""}));
}

TEST_F(LoweringTest, ANestedRepeatWithoutAClosingBracketIsReportedTwice) {
  EXPECT_EQ(Lowered({"REPEAT 3 [FD 1 REPEAT 2 [RT 1]"})[2], "FD 1");
  EXPECT_EQ(services.BoxTexts(), (Texts{"] Absent", "] Absent"}));
}

TEST_F(LoweringTest, ANestedEmptyBodyIsNotClosedByItsOwnBracket) {
  EXPECT_EQ(Split("REPEAT 2 [] FD 1"), Texts{});
  EXPECT_EQ(services.BoxTexts(), (Texts{"] Absent"}));
  EXPECT_EQ(Split("REPEAT 2 [ ] FD 1"), (Texts{"REPEAT 2 [ ]", "FD 1"}));
}

TEST_F(LoweringTest, ARepeatWithLeadingBlanksOrInSmallLettersIsNotLowered) {
  EXPECT_EQ(Lowered({" REPEAT 2 [FD 1]", "repeat 2 [FD 1]", "REPEAT[FD 1]"}),
            (Texts{" REPEAT 2 [FD 1]", "repeat 2 [FD 1]", "REPEAT[FD 1]"}));
}

TEST_F(LoweringTest, BodyIsWhatStandsBetweenTheFirstBracketAndTheLastCharacter) {
  Fill({"REPEAT 2 [FD 1]X", "REPEAT 2", "REPEAT 2 [", "REPEAT 2 []"});
  EXPECT_EQ(lowering.BodyFinder(1), "FD 1]");
  EXPECT_EQ(lowering.BodyFinder(2), "");
  EXPECT_EQ(lowering.BodyFinder(3), "");
  EXPECT_EQ(lowering.BodyFinder(4), "");
  EXPECT_EQ(lowering.BodyFinder(0), "");
}

TEST_F(LoweringTest, StatementsAreCutByTheirInputs) {
  EXPECT_EQ(Split("FD 10 PU SETXY 1 2 ELLIPSERGB 1 2 3 4 5 6 RT 90"),
            (Texts{"FD 10", "PU", "SETXY 1 2", "ELLIPSERGB 1 2 3 4 5 6", "RT 90"}));
  EXPECT_EQ(Split("FD"), (Texts{"FD"}));
  EXPECT_EQ(Split("FD 1  RT 2"), (Texts{"FD 1", "RT 2"}));
}

TEST_F(LoweringTest, ProceduresTakeTheInputsOfTheirHeadersAndUnknownWordsNone) {
  Fill({"TO BOX :A :B", "END"});
  EXPECT_EQ(Split("BOX 1 2 NOWHERE 5 FD 1"), (Texts{"BOX 1 2", "NOWHERE", "5", "FD 1"}));
}

TEST_F(LoweringTest, QuotedTextsEndAtTheSecondQuote) {
  EXPECT_EQ(Split("PRINT \"A B\" FD 10"), (Texts{"PRINT \"A B\"", "FD 10"}));
  EXPECT_EQ(Split("WRITE \"A B\" FD 10"), (Texts{"WRITE \"A B\"", "FD 10"}));
  EXPECT_EQ(Split("WRITERGB \"A B,1 2 3 4\" FD 10"), (Texts{"WRITERGB \"A B,1 2 3 4\"", "FD 10"}));
  EXPECT_EQ(Split("MESSAGE \"A B\" FD 10"), (Texts{"MESSAGE \"A B\"", "FD 10"}));
  EXPECT_EQ(Split("PRINT 2+3 FD 10"), (Texts{"PRINT 2+3 FD 10"}));
}

TEST_F(LoweringTest, BracketChainsTakeAllTheRest) {
  EXPECT_EQ(Split("(SUM 1 2) FD 10"), (Texts{"(SUM 1 2) FD 10"}));
  EXPECT_EQ(Split("FD 1 (PRODUCT 1 2)"), (Texts{"FD 1", "(PRODUCT 1 2)"}));
}

TEST_F(LoweringTest, AClosingBracketAloneFillsTheArrayAndBecomesADot) { EXPECT_EQ(Split("FD 10]"), (Texts{"."})); }

TEST_F(LoweringTest, TwoHundredStatementsFitAndOneMoreDoesNot) {
  std::string body;
  for (int statement = 0; statement < 200; ++statement) body += "PU ";
  EXPECT_EQ(Split(body).size(), 200U);
  EXPECT_EQ(Split(body + "PU"), (Texts{"."}));
}

TEST_F(LoweringTest, ADotFailsWhenItIsIndexed) {
  BodyArray statements;
  statements.BecomeDot();
  EXPECT_THROW(statements.At(1), Failure);
  EXPECT_THROW(BodyArray().At(201), Failure);
  EXPECT_THROW(LineList().At(101), Failure);
}

std::string RepeatOf(int statements) {
  std::string line = "REPEAT 2 [PU";
  for (int statement = 1; statement < statements; ++statement) line += " PU";
  return line + "]";
}

TEST_F(LoweringTest, NinetyThreeStatementsAreTheMost) {
  store.SetLine(1, RepeatOf(93));
  lowering.RemoveAllRepeats();
  EXPECT_EQ(Program().size(), 99U);
}

TEST_F(LoweringTest, NinetyFourStatementsFailWhenTheListIsReadBack) {
  store.SetLine(1, RepeatOf(94));
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
}

TEST_F(LoweringTest, NinetyFiveStatementsFailAndTheLineStays) {
  store.SetLine(1, RepeatOf(95));
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
  EXPECT_EQ(Program(), (Texts{RepeatOf(95)}));
}

TEST_F(LoweringTest, AThousandLinesAfterARepeatAreTheMost) {
  Fill({"REPEAT 2 [PU]"});
  for (int number = 2; number <= 1001; ++number) store.SetLine(number, "PU");
  EXPECT_NO_THROW(lowering.RemoveAllRepeats());
  store.SetLine(1, "REPEAT 2 [PU]");
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
}

TEST_F(LoweringTest, AStoreThatOverflowsFails) {
  for (int number = 1; number <= 1997; ++number) store.SetLine(number, "PU");
  store.SetLine(1998, "REPEAT 2 [PU]");
  EXPECT_THROW(lowering.RemoveAllRepeats(), Failure);
}

TEST_F(LoweringTest, FirstpartEndsAtTheFirstBlank) {
  EXPECT_EQ(Firstpart("FD 10"), "FD");
  EXPECT_EQ(Firstpart("FD"), "FD");
  EXPECT_EQ(Firstpart(" FD"), "");
}

}  // namespace
}  // namespace zerimo
