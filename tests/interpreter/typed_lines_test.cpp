#include "interpreter/typed_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/stop_run.h"
#include "support/interpreter.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class TypedLinesTest : public testing::Test, protected BareInterpreter {
 protected:
  /// A store of `lines` lines that ends with a procedure.
  void FillUpTo(int lines) {
    store.SetLine(1, "TO A");
    for (int number = 2; number < lines; ++number) store.SetLine(number, "FD 1");
    store.SetLine(lines, "END");
  }
};

TEST_F(TypedLinesTest, ALineRunsAsATemporaryProcedureAndIsRemoved) {
  EXPECT_FALSE(Type("FD 10 RT 90"));
  EXPECT_EQ(Calls, (Texts{"FD 10", "RT 90"}));
  EXPECT_EQ(Paths, (Texts{".#TEMP$1-2", ".#TEMP$1- 3"}));
  EXPECT_EQ(Program(), Texts{});
  EXPECT_EQ(controlPath.CtrlStr(), ".");
}

TEST_F(TypedLinesTest, LinesAreNumberedAndStandAtLine1OfAnEmptyStore) {
  Type("FD 1");
  Type("FD 2");
  EXPECT_EQ(Paths, (Texts{".#TEMP$1-2", ".#TEMP$2-2"}));
  EXPECT_TRUE(controls.List1.Items().empty());
}

TEST_F(TypedLinesTest, AnEmptyLineCountsAndRunsAnEmptyProcedure) {
  Fill({"TO A", "FD 1", "END"});
  controls.List1.Add("OLD");
  EXPECT_TRUE(Type(""));
  EXPECT_EQ(typedLines.TempProcNo, 1);
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(controls.List1.Items(), (Texts{" 1  TO A", " 2  FD 1", " 3  END"}));
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO A"}));
}

TEST_F(TypedLinesTest, AStoppedLineEndsLikeAFinishedOneAndKeepsTheNames) {
  Fill({"TO BOX :S", "PRINT :S", "FD 1", "END"});
  dispatch.Bind("PRINT", [](PrimitiveCall&) { throw StopRun(); });
  EXPECT_TRUE(Type("MAKE \"N 5 BOX 7 RT 90"));
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(controlPath.CtrlStr(), ".");
  EXPECT_EQ(controls.Label19.Caption, ".");
  EXPECT_EQ(Program(), (Texts{"TO BOX :S", "PRINT :S", "FD 1", "END"}));
  EXPECT_EQ(controls.List2.Items(), (Texts{":N=5"}));
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO BOX :S"}));
}

TEST_F(TypedLinesTest, AfterAStoppedRecursionTheNextLineRuns) {
  Fill({"TO A :S", "PRINT :S", "A :S", "END"});
  int activations = 0;
  dispatch.Bind("PRINT", [&activations](PrimitiveCall&) {
    if (++activations == 3) throw StopRun();
  });
  EXPECT_TRUE(Type("A 1"));
  EXPECT_EQ(controlPath.CtrlStr(), ".");
  EXPECT_TRUE(Type("FD 10"));
  EXPECT_EQ(Calls, (Texts{"FD 10"}));
}

TEST_F(TypedLinesTest, AfterARecursionThatHasFilledAllSlotsTheNextLineRuns) {
  Fill({"TO A :S", "PRINT :S", "A :S+1", "END"});
  EXPECT_TRUE(Type("MAKE \"N 5"));
  int activations = 0;
  dispatch.Bind("PRINT", [&](PrimitiveCall&) {
    if (++activations == 600) throw StopRun();
  });
  EXPECT_TRUE(Type("A 1"));
  EXPECT_EQ(controls.List2.Items(), (Texts{":N=5"}));
  EXPECT_TRUE(Type("FD :N+10"));
  EXPECT_EQ(Calls, (Texts{"FD 15"}));
}

TEST_F(TypedLinesTest, ALineGoesRightAfterTheProgram) {
  FillUpTo(30);
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(Paths, (Texts{".#TEMP$1-32"}));
  EXPECT_EQ(store.Line(30), "END");
  EXPECT_EQ(store.Line(31), "");
}

TEST_F(TypedLinesTest, GlobalsAreReadAgainFromTheTopOfTheStore) {
  Fill({"MAKE \"A 5", "TO P", "END"});
  EXPECT_TRUE(Type("FD 1"));
  EXPECT_EQ(variables.Slot(1), "\"A=5");
}

TEST_F(TypedLinesTest, WithoutAProgramTheGlobalsFailAndTheListsStay) {
  controls.List1.Add("OLD");
  EXPECT_FALSE(Type("FD 1"));
  EXPECT_EQ(controls.List1.Items(), (Texts{"OLD"}));
}

TEST_F(TypedLinesTest, TheCountOverflowsAt32767AndNothingRuns) {
  typedLines.TempProcNo = 32766;
  Type("FD 1");
  EXPECT_EQ(Calls.size(), 1U);
  EXPECT_EQ(typedLines.TempProcNo, 32767);
  EXPECT_FALSE(Type("FD 2"));
  EXPECT_EQ(Calls.size(), 1U);
  EXPECT_EQ(typedLines.TempProcNo, 32767);
  EXPECT_EQ(Program(), Texts{});
}

TEST_F(TypedLinesTest, AFullStoreOnlyCounts) {
  FillUpTo(2000);
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_EQ(typedLines.TempProcNo, 1);
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(store.Line(2000), "END");
}

TEST_F(TypedLinesTest, AStoreThatFillsUpLeavesAPieceWithoutEnd) {
  FillUpTo(1998);
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_TRUE(Calls.empty());
  EXPECT_EQ(store.Line(1999), "TO #TEMP$1");
  EXPECT_EQ(store.Line(2000), "FD 5");
}

TEST_F(TypedLinesTest, APieceWithoutEndIsSweptByTheNextLine) {
  Fill({"TO A", "END", "TO #TEMP$1", "FD 1"});
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(Program(), (Texts{"TO A", "END"}));
}

TEST_F(TypedLinesTest, AStoreThatEndsAtLine499IsNotRefreshed) {
  FillUpTo(499);
  controls.List1.Add("OLD");
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_EQ(Calls, (Texts{"FD 5"}));
  EXPECT_EQ(store.Line(500), "");
  EXPECT_EQ(controls.List1.Items(), (Texts{"OLD"}));
}

TEST_F(TypedLinesTest, AfterLine499NeitherGlobalsNorProceduresAreReadAgain) {
  FillUpTo(499);
  store.SetLine(1, "MAKE \"G 5");
  store.SetLine(2, "TO A");
  controls.List3.Add("OLD");
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_EQ(variables.Slot(1), "");
  EXPECT_EQ(controls.List3.Items(), (Texts{"OLD"}));
}

TEST_F(TypedLinesTest, TheLastEndThatMovesAnythingStandsAtLine499) {
  FillUpTo(496);
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(store.Line(497), "");
}

TEST_F(TypedLinesTest, AnEndAtLine500MovesToTheEndOfTheStoreAndFails) {
  FillUpTo(497);
  store.SetLine(1500, "STALE");
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_EQ(store.Line(498), "");
  EXPECT_EQ(store.Line(1497), "STALE");
}

TEST_F(TypedLinesTest, AMarkInTheProgramIsSweptWithWhatFollows) {
  FillUpTo(60);
  store.SetLine(50, "PRINT \"TO #\"");
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(Program().size(), 49U);
}

TEST_F(TypedLinesTest, ASweepThatDoesNotFitLeavesProgramAndLists) {
  FillUpTo(150);
  store.SetLine(149, "PRINT \"TO #\"");
  controls.List1.Add("OLD");
  controls.List3.Add("OLD");
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_EQ(Calls, (Texts{"FD 5"}));
  EXPECT_EQ(Program().size(), 150U);
  EXPECT_EQ(controls.List1.Items(), (Texts{"OLD"}));
  EXPECT_EQ(controls.List3.Items(), (Texts{"OLD"}));
}

TEST_F(TypedLinesTest, TheBlanksThatTheRunLeavesAreTrimmedAndListed) {
  Fill({"TO A :N", "NOWHERE :N", "END"});
  EXPECT_TRUE(Type("A 1"));
  EXPECT_EQ(store.Line(2), "NOWHERE :N");
  EXPECT_EQ(controls.List1.Items(), (Texts{" 1  TO A :N", " 2  NOWHERE :N", " 3  END"}));
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO A :N"}));
}

TEST_F(TypedLinesTest, AFailureInTheRunLeavesNothingBehind) {
  Fill({"TO A", "END"});
  dispatch.Bind("SOUND", [](PrimitiveCall&) { throw Failure(FailureKind::FileAccess); });
  EXPECT_TRUE(Type("SOUND"));
  EXPECT_TRUE(Type("GOTO X"));
  EXPECT_EQ(Program(), (Texts{"TO A", "END"}));
  EXPECT_EQ(controlPath.CtrlStr(), ".#TEMP$2-4");
}

TEST_F(TypedLinesTest, AnEndBeforeLine500MovesOnlyUpToThere) {
  FillUpTo(400);
  store.SetLine(600, "STALE");
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(store.Line(401), "");
  EXPECT_EQ(store.Line(600), "STALE");
}

TEST_F(TypedLinesTest, StaleLinesAfterItMoveDown) {
  Fill({"TO A", "END"});
  store.SetLine(8, "STALE");
  EXPECT_TRUE(Type("FD 5"));
  EXPECT_EQ(store.Line(8), "");
  EXPECT_EQ(store.Line(5), "STALE");
}

TEST_F(TypedLinesTest, TwoHundredStatementsStayWithoutEndAndDoNotRun) {
  std::string line;
  for (int statement = 0; statement < 200; ++statement) line += "PU ";
  EXPECT_FALSE(Type(line));
  EXPECT_EQ(Program().size(), 201U);
  EXPECT_EQ(Program().front(), "TO #TEMP$1");
  EXPECT_EQ(Program().back(), "PU");
}

TEST_F(TypedLinesTest, HundredNinetyNineStatementsRun) {
  std::string line;
  for (int statement = 0; statement < 199; ++statement) line += "FD 1 ";
  Type(line);
  EXPECT_EQ(Calls.size(), 199U);
  EXPECT_EQ(Program(), Texts{});
}

TEST_F(TypedLinesTest, MoreThanTwoHundredStatementsLeaveOnlyTheHeader) {
  std::string line;
  for (int statement = 0; statement < 201; ++statement) line += "PU ";
  EXPECT_FALSE(Type(line));
  EXPECT_EQ(Program(), (Texts{"TO #TEMP$1"}));
}

TEST_F(TypedLinesTest, ATypedRepeatIsLoweredAndRun) {
  Type("REPEAT 3[FD 10 RT 120]");
  EXPECT_EQ(Calls, (Texts{"FD 10", "RT 120", "FD 10", "RT 120", "FD 10", "RT 120"}));
  EXPECT_EQ(Program(), Texts{});
}

TEST_F(TypedLinesTest, ATypedNegativeStepIsAnArithmeticLine) {
  Type("FD-5");
  EXPECT_TRUE(Calls.empty());
}

TEST_F(TypedLinesTest, TheCallersTextIsConsumed) {
  Fill({"TO A", "END"});
  std::string line = "  NOWHERE  ";
  typedLines.ComplexExecutor(line);
  EXPECT_EQ(line, "");
}

TEST_F(TypedLinesTest, ACountOutOfRangeLeavesTheLineAndBlocksTheNextOnes) {
  EXPECT_FALSE(Type("REPEAT 40000[FD 10]"));
  EXPECT_EQ(Program(), (Texts{"TO #TEMP$1", "REPEAT 40000[FD 10]", "END"}));
  EXPECT_FALSE(Type("FD 5"));
  EXPECT_TRUE(Calls.empty());
}

TEST_F(TypedLinesTest, ABodyLineThatIsEndIsTakenForTheEnd) {
  Fill({"TO A", "END"});
  EXPECT_TRUE(Type("FD 1 END FD 2"));
  // Lines are moved from the first END on: those before it stay, and the next line sweeps nothing.
  EXPECT_EQ(Calls, (Texts{"FD 1"}));
  EXPECT_EQ(Program(), (Texts{"TO A", "END", "FD 2", "END"}));
}

}  // namespace
}  // namespace zerimo
