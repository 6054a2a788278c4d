#include <gtest/gtest.h>

#include <string>

#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class ReplacerTest : public SlotsFixture {
 protected:
  std::string Locally(std::string expression) { return variables.VarValReplacer(expression); }
  std::string Globally(std::string expression) { return variables.GlobalVariableReplacer(expression); }
  std::string WithPosition(std::string expression) { return variables.ReplaceXcorAndYcor(expression); }
  double Value(std::string expression) { return arithmetic.ArithmeticEvaluator(expression); }
};

using VarValReplacerTest = ReplacerTest;
using GlobalVariableReplacerTest = ReplacerTest;
using ReplaceXcorAndYcorTest = ReplacerTest;

TEST_F(VarValReplacerTest, PutsTheValueInAsText) {
  controlPath.SetCtrlStr(".#TEMP$1- 9.BOX- 3");
  Slots({"BOX.:N=2+3"});
  EXPECT_EQ(Locally("3*:N"), "3*2+3");
}

TEST_F(VarValReplacerTest, SeesTheRunningProceduresEntriesOnly) {
  controlPath.SetCtrlStr(".OUT- 9.BOX- 3");
  Slots({"OUT.:A=1", ":B=2", "BOXES.:C=3", "BOX.:D=4", "ABOX.:E=5"});
  EXPECT_EQ(Locally(":A+:B+:C+:D+:E"), ":A+:B+:C+4+:E");
}

TEST_F(VarValReplacerTest, AHashInASlotCountsAsItsStart) {
  controlPath.SetCtrlStr(".BOX- 3");
  Slots({"X.:A=#BOX.5"});
  EXPECT_EQ(Locally(":A"), "#BOX.5");
}

TEST_F(VarValReplacerTest, TheNameGoesToTheFirstEqualsSign) {
  controlPath.SetCtrlStr(".BOX- 3");
  Slots({"BOX.:N=1=2"});
  EXPECT_EQ(Locally(":N"), "1=2");
}

TEST_F(VarValReplacerTest, AnEmptyValueTakesTheNameAway) {
  controlPath.SetCtrlStr(".BOX- 3");
  Slots({"BOX.:N="});
  EXPECT_EQ(Locally("5+:N"), "5+");
}

TEST_F(VarValReplacerTest, SkipsDeletedSlotsAndStopsAtAFreeOne) {
  controlPath.SetCtrlStr(".BOX- 3");
  Slots({" ", "BOX.:A=1", "", "BOX.:B=2"});
  EXPECT_EQ(Locally(":A+:B"), "1+:B");
}

TEST_F(VarValReplacerTest, TrimsTheCallersText) {
  controlPath.SetCtrlStr(".BOX- 3");
  Slots({"BOX.:A=1"});
  std::string expression = "  :A + 2 ";
  EXPECT_EQ(variables.VarValReplacer(expression), "1 + 2");
  EXPECT_EQ(expression, "1 + 2");
}

TEST_F(VarValReplacerTest, AnEntryWithNoNameTakesTheNameBeforeIt) {
  controlPath.SetCtrlStr(".BOX- 3");
  // The first "=" comes before the first ".": no name can be cut out, and that statement is skipped.
  Slots({"BOX.:A=1", "Q=#BOX.:C"});
  EXPECT_EQ(Locally(":A+:A"), "1+#BOX.:C");
}

TEST_F(GlobalVariableReplacerTest, PutsTheValueIn) {
  Slots({"A=5", ":SIZE=2.5", "#=3"});
  EXPECT_EQ(Globally("A"), "5");
  EXPECT_EQ(Globally("2*:SIZE+A"), "2*2.5+5");
  EXPECT_EQ(Globally("#+1"), "3+1");
  EXPECT_EQ(Globally(":SIZE+:SIZE"), "2.5+2.5");
}

TEST_F(GlobalVariableReplacerTest, ZeroDisappears) {
  Slots({"X=0"});
  EXPECT_EQ(Globally("X"), "");
  EXPECT_EQ(Globally("5*X"), "5*");
  EXPECT_EQ(Value(Globally("5*X")), 0);
  EXPECT_EQ(Globally("5/X"), "5/");
  EXPECT_EQ(FailureOf([&] { Value(Globally("5/X")); }), FailureKind::DivisionByZero);
}

TEST_F(GlobalVariableReplacerTest, RoundsToTwoDecimalsWithATieToTheEvenDigit) {
  Slots({"X=.125", "Y=.375", "Z=1.2345", "W=.004"});
  EXPECT_EQ(Globally("X"), ".12");
  EXPECT_EQ(Globally("Y"), ".38");
  EXPECT_EQ(Globally("Z"), "1.23");
  EXPECT_EQ(Globally("W"), "");
  EXPECT_EQ(variables.Slot(3), "Z=1.2345");
}

TEST_F(GlobalVariableReplacerTest, MatchesTheWholeNameAtTheSlotsStart) {
  Slots({"BA=1", "AB=2", "BOX.A=3", "A=4"});
  EXPECT_EQ(Globally("A"), "4");
  EXPECT_EQ(Globally("a"), "");
}

TEST_F(GlobalVariableReplacerTest, ADollarInASlotCountsAsItsStart) {
  Slots({"X$A=7"});
  EXPECT_EQ(Globally("A"), "7");
}

TEST_F(GlobalVariableReplacerTest, SkipsDeletedSlotsAndStopsAtAFreeOne) {
  Slots({" ", "A=1", "", "B=2"});
  EXPECT_EQ(Globally("A"), "1");
  EXPECT_EQ(Globally("B"), "");
}

TEST_F(GlobalVariableReplacerTest, BlanksInsideTheTextStay) {
  Slots({"A=5"});
  EXPECT_EQ(Globally(" A + 3 "), "5+ 3");
  EXPECT_EQ(Globally("3 4"), "3 4");
}

TEST_F(GlobalVariableReplacerTest, ChangesTheCallersText) {
  Slots({"A=5"});
  std::string expression = " 2*A ";
  EXPECT_EQ(variables.GlobalVariableReplacer(expression), "2*5");
  EXPECT_EQ(expression, "2*5");
}

TEST_F(GlobalVariableReplacerTest, AValueThatIsNoNumberOf64BitsKeepsTheOneBefore) {
  Slots({"A=5", "B=1E+309"});
  EXPECT_EQ(Globally("A+B"), "5+5");
}

TEST_F(GlobalVariableReplacerTest, TheLargestValuesInExponentFormNeverLeaveEither) {
  Slots({"A=5", "B=1E+308"});
  watch = LimitedWatch(1, 200);
  EXPECT_THROW(Globally("A+B"), Stopped);
}

TEST_F(GlobalVariableReplacerTest, FindsANameAlsoInAFullTable) {
  FillAllSlots("X=1");
  variables.SetSlot(500, "LAST=9");
  EXPECT_EQ(Globally("LAST"), "9");
}

TEST_F(ReplaceXcorAndYcorTest, KeepsThePaddingOfEachReplacement) {
  turtle.TurtleX += 100;
  turtle.TurtleY += 50;
  EXPECT_EQ(WithPosition("XCOR"), " 2 ");
  EXPECT_EQ(WithPosition("YCOR"), " -1 ");
  EXPECT_EQ(WithPosition("5"), " 5 ");
}

TEST_F(ReplaceXcorAndYcorTest, ReplacesAllDelimitedOccurrencesByTextsWithABlank) {
  turtle.TurtleX += 100;
  turtle.TurtleY -= 150;
  EXPECT_EQ(WithPosition("XCOR+XCOR*YCOR-YCOR"), " 2+ 2* 3- 3 ");
}

TEST_F(ReplaceXcorAndYcorTest, RoundsToOneDecimalWithATieToTheEvenDigit) {
  turtle.TurtleX += 12.5;
  EXPECT_EQ(WithPosition("XCOR"), " .2 ");
  turtle.TurtleX += 5;
  EXPECT_EQ(WithPosition("XCOR"), " .4 ");
  turtle.TurtleX += 5;
  EXPECT_EQ(WithPosition("XCOR"), " .4 ");
}

TEST_F(ReplaceXcorAndYcorTest, ALongerWordIsNotReplacedAndBlocks) {
  EXPECT_EQ(WithPosition("XCORE+XCOR"), " XCORE+XCOR ");
  EXPECT_EQ(WithPosition("XCOR+XCORE"), " 0+XCORE ");
}

TEST_F(ReplaceXcorAndYcorTest, OfALongTextLooksAtTheWatchAtEachReplacement) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "XCOR ";
  watch.AllowTicks(500);
  EXPECT_THROW(variables.ReplaceXcorAndYcor(text), Stopped);
}

TEST_F(ReplaceXcorAndYcorTest, EndsWhereNothingIsReplacedAnyMore) {
  std::string text = "XCOR " + std::string(600'000, '1') + " ";
  watch.AllowTicks(2);
  EXPECT_TRUE(variables.ReplaceXcorAndYcor(text).ends_with("1 "));
}

TEST_F(ReplaceXcorAndYcorTest, MeasuresFromTheMiddleOfTheWindow) {
  controls.Form1.Width = 3000;
  controls.Form1.SetHeight(2000);
  turtle.TurtleX = 2000;
  turtle.TurtleY = 500;
  EXPECT_EQ(WithPosition("XCOR"), " 10 ");
  EXPECT_EQ(WithPosition("YCOR"), " 10 ");
}

TEST_F(ReplaceXcorAndYcorTest, FailsWithNoResolution) {
  turtle.Resolution = 0;
  turtle.TurtleX += 1;
  std::string text = "5";
  EXPECT_EQ(FailureOf([&] { variables.ReplaceXcorAndYcor(text); }), FailureKind::DivisionByZero);
  EXPECT_EQ(text, "5");
}

}  // namespace
}  // namespace zerimo
