#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/whole_system.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class DiagnosisTest : public testing::Test, protected WholeSystem {
 protected:
  void Change(TextBox& box, const char* text) {
    box.Text = text;
    System.Change(box);
  }
};

TEST_F(DiagnosisTest, CaptionsTellWhatIsShown) {
  EXPECT_EQ(controls.Frame1.Caption, "Diagnosis");
  const char* const captions[] = {"Intermediate Contents", "Variables", "Procedures", "Resolution", "Line Width"};
  for (int index = 0; index < 5; ++index) EXPECT_EQ(controls.Label12[index].Caption, captions[index]);
  EXPECT_EQ(controls.Label10.Caption, "Back Color");
  EXPECT_EQ(controls.Label11.Caption, "Pen Color");
  EXPECT_EQ(controls.Command2.Caption, "Refresh");
  EXPECT_EQ(controls.Check1.Caption, "Co-ordinates");
}

TEST_F(DiagnosisTest, CloseButtonHidesThePanel) {
  Type("SHOW DIA");
  System.Click(controls.Command1);
  EXPECT_FALSE(controls.Frame1.Visible());
}

TEST_F(DiagnosisTest, RefreshForgetsVariablesAndNamesButNotTheProgram) {
  Fill({"TO A", "FD 1", "END"});
  Type("MAKE \"N 5");
  Type("REPEAT 2 [RT 1]");
  System.interpreter.controlPath.SetCtrlStr(".X- 3");
  const Texts store = controls.List1.Items();
  System.Click(controls.Command2);
  EXPECT_EQ(System.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(controls.List2.Items(), Texts(500, " "));
  EXPECT_EQ(System.interpreter.variables.Slot(1), " ");
  EXPECT_EQ(System.interpreter.variables.Slot(500), " ");
  EXPECT_EQ(System.interpreter.lowering.RepeatCounterName, "");
  EXPECT_EQ(System.interpreter.lowering.RepeatLabelName, "");
  EXPECT_EQ(controls.Label17.Caption, "#- 0");
  EXPECT_EQ(controls.Label18.Caption, "#- 0");
  EXPECT_EQ(controls.List1.Items(), store);
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO A"}));
  EXPECT_EQ(System.interpreter.store.Line(1), "TO A");
}

TEST_F(DiagnosisTest, TagsShowTheirLengthsAfterALowering) {
  Type("REPEAT 2 [RT 1]");
  EXPECT_EQ(controls.Label17.Caption, "#- 1");
  EXPECT_EQ(controls.Label18.Caption, "$- 1");
}

TEST_F(DiagnosisTest, TagsAreOneCharacterLongerForEachLoopAndBeginAnewAfterARefresh) {
  Fill({"TO A", "REPEAT 2[REPEAT 2[RT 1]]", "END"});
  System.interpreter.lowering.RemoveAllRepeats();
  EXPECT_EQ(controls.Label17.Caption, "#- 2");
  EXPECT_EQ(controls.Label18.Caption, "$- 2");
  System.Click(controls.Command2);
  // Without a free slot the count of the next loop would be looked up for ever.
  System.interpreter.variables.SetSlot(1, "");
  Fill({"TO A", "REPEAT 2[RT 1]", "END"});
  System.interpreter.lowering.RemoveAllRepeats();
  EXPECT_EQ(controls.Label17.Caption, "#- 1");
  EXPECT_EQ(controls.Label18.Caption, "$- 1");
}

TEST_F(DiagnosisTest, RefreshLeavesTheShownControlString) {
  Type("GOTO X");
  System.Click(controls.Command2);
  EXPECT_EQ(System.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(controls.Label19.Caption, ".#TEMP$1-2");
}

TEST_F(DiagnosisTest, ListsFollowTheProgramWhileThePanelIsHidden) {
  Fill({"TO A :N", "FD :N", "END"});
  Type("MAKE \"N 5");
  EXPECT_EQ(controls.List1.Items(), (Texts{" 1  TO A :N", " 2  FD :N", " 3  END"}));
  EXPECT_EQ(controls.List2.Items(), (Texts{":N=5"}));
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO A :N"}));
  Type("A 1");
  EXPECT_EQ(controls.List2.Items(), (Texts{":N=5", " "}));
}

TEST_F(DiagnosisTest, VariablesShowWhatTheyHeldWhenTheListWasMade) {
  Fill({"TO A :X", "MAKE \"N 5", "END"});
  Type("A 1");
  // The list is filled at the END, when the local is deleted.
  EXPECT_EQ(controls.List2.Items(), (Texts{" ", ":N=5"}));
}

TEST_F(DiagnosisTest, ControlStringShowsWhatTheRunLeft) {
  EXPECT_EQ(controls.Label19.Caption, "Control String");
  Type("FD 1");
  EXPECT_EQ(controls.Label19.Caption, ".");
  Type("GOTO X");
  EXPECT_EQ(controls.Label19.Caption, ".#TEMP$2-2");
}

TEST_F(DiagnosisTest, ResolutionBoxTakesTheLeadingNumber) {
  Change(controls.Text3, "25.5 steps");
  EXPECT_EQ(System.turtle.Resolution, 25.5);
  Change(controls.Text3, "abc");
  EXPECT_EQ(System.turtle.Resolution, 0);
  Change(controls.Text3, "");
  EXPECT_EQ(System.turtle.Resolution, 0);
}

TEST_F(DiagnosisTest, ResolutionBoxFailsBeyondTheRangeOfNumbers) {
  EXPECT_THROW(Change(controls.Text3, "1E999"), Failure);
  EXPECT_EQ(System.turtle.Resolution, 50);
}

TEST_F(DiagnosisTest, ResolutionPrimitiveLeavesTheBox) {
  Type("RESOLUTION 20");
  EXPECT_EQ(System.turtle.Resolution, 20);
  EXPECT_EQ(controls.Text3.Text, "50");
}

TEST_F(DiagnosisTest, LineWidthBoxTakesOnlyNumbersAboveZero) {
  Change(controls.Text4, "3");
  EXPECT_EQ(System.Picture1.DrawWidth(), 3);
  for (const char* text : {"0", "-1", "", "abc"}) Change(controls.Text4, text);
  EXPECT_EQ(System.Picture1.DrawWidth(), 3);
  Change(controls.Text4, "2.5");
  EXPECT_EQ(System.Picture1.DrawWidth(), 2);
}

TEST_F(DiagnosisTest, LineWidthBoxFailsBeyondItsRange) {
  EXPECT_THROW(Change(controls.Text4, "32768"), Failure);
  EXPECT_THROW(Change(controls.Text4, ".4"), Failure);
}

TEST_F(DiagnosisTest, RefreshLeavesTheProgramAndItsLists) {
  Fill({"TO A", "FD 1", "END"});
  Type("MAKE \"N 5");
  const Texts lines = controls.List1.Items();
  const Texts procedures = controls.List3.Items();
  ASSERT_EQ(lines.size(), 3U);
  System.Click(controls.Command2);
  EXPECT_EQ(controls.List1.Items(), lines);
  EXPECT_EQ(controls.List3.Items(), procedures);
  EXPECT_EQ(System.interpreter.store.Line(3), "END");
  EXPECT_EQ(System.interpreter.variables.Slot(1), " ");
}

TEST_F(DiagnosisTest, RefreshOfANewSystemGivesFiveHundredBlanks) {
  ASSERT_TRUE(controls.List2.Items().empty());
  System.Click(controls.Command2);
  EXPECT_EQ(controls.List2.Items(), Texts(500, " "));
}

TEST_F(DiagnosisTest, PanelClosesByHideAndByEscToo) {
  Type("SHOW DIAGNOSIS");
  Type("HIDE");
  EXPECT_FALSE(controls.Frame1.Visible());
  Type("SHOW DIA");
  ASSERT_TRUE(controls.Frame1.Visible());
  Press(controls.Text1[0], key::Esc);
  EXPECT_FALSE(controls.Frame1.Visible());
}

TEST_F(DiagnosisTest, TwoClicksOnTheCheckBoxLeaveTheAxesHidden) {
  System.Click(controls.Check1);
  EXPECT_TRUE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Line6.Visible());
  EXPECT_TRUE(controls.Check1.Value);
  System.Click(controls.Check1);
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_FALSE(controls.Line6.Visible());
  EXPECT_FALSE(controls.Check1.Value);
}

TEST_F(DiagnosisTest, AfterShowGridTheFirstClickLeavesTheAxesAndTheSecondTakesThem) {
  Type("SHOW GRID");
  System.Click(controls.Check1);
  EXPECT_TRUE(System.graphics.palette.CoordinatesOn);
  EXPECT_TRUE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Line6.Visible());
  System.Click(controls.Check1);
  EXPECT_FALSE(System.graphics.palette.CoordinatesOn);
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_FALSE(controls.Line6.Visible());
}

}  // namespace
}  // namespace zerimo
