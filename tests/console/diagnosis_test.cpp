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
  EXPECT_EQ(Controls.Frame1.Caption, "Diagnosis");
  const char* const captions[] = {"Intermediate Contents", "Variables", "Procedures", "Resolution", "Line Width"};
  for (int index = 0; index < 5; ++index) EXPECT_EQ(Controls.Label12[index].Caption, captions[index]);
  EXPECT_EQ(Controls.Label10.Caption, "Back Color");
  EXPECT_EQ(Controls.Label11.Caption, "Pen Color");
  EXPECT_EQ(Controls.Command2.Caption, "Refresh");
  EXPECT_EQ(Controls.Check1.Caption, "Co-ordinates");
}

TEST_F(DiagnosisTest, CloseButtonHidesThePanel) {
  Type("SHOW DIA");
  System.Click(Controls.Command1);
  EXPECT_FALSE(Controls.Frame1.Visible());
}

TEST_F(DiagnosisTest, RefreshForgetsVariablesAndNamesButNotTheProgram) {
  Fill({"TO A", "FD 1", "END"});
  Type("MAKE \"N 5");
  Type("REPEAT 2 [RT 1]");
  System.Path.SetCtrlStr(".X- 3");
  const Texts store = Controls.List1.Items();
  System.Click(Controls.Command2);
  EXPECT_EQ(System.Path.CtrlStr(), ".");
  EXPECT_EQ(Controls.List2.Items(), Texts(500, " "));
  EXPECT_EQ(System.Names.Slot(1), " ");
  EXPECT_EQ(System.Names.Slot(500), " ");
  EXPECT_EQ(System.Repeats.RepeatCounterName, "");
  EXPECT_EQ(System.Repeats.RepeatLabelName, "");
  EXPECT_EQ(Controls.Label17.Caption, "#- 0");
  EXPECT_EQ(Controls.Label18.Caption, "#- 0");
  EXPECT_EQ(Controls.List1.Items(), store);
  EXPECT_EQ(Controls.List3.Items(), (Texts{"TO A"}));
  EXPECT_EQ(System.Store.Line(1), "TO A");
}

TEST_F(DiagnosisTest, TagsShowTheirLengthsAfterALowering) {
  Type("REPEAT 2 [RT 1]");
  EXPECT_EQ(Controls.Label17.Caption, "#- 1");
  EXPECT_EQ(Controls.Label18.Caption, "$- 1");
}

TEST_F(DiagnosisTest, TagsAreOneCharacterLongerForEachLoopAndBeginAnewAfterARefresh) {
  Fill({"TO A", "REPEAT 2[REPEAT 2[RT 1]]", "END"});
  System.Repeats.RemoveAllRepeats();
  EXPECT_EQ(Controls.Label17.Caption, "#- 2");
  EXPECT_EQ(Controls.Label18.Caption, "$- 2");
  System.Click(Controls.Command2);
  // Without a free slot the count of the next loop would be looked up for ever.
  System.Names.SetSlot(1, "");
  Fill({"TO A", "REPEAT 2[RT 1]", "END"});
  System.Repeats.RemoveAllRepeats();
  EXPECT_EQ(Controls.Label17.Caption, "#- 1");
  EXPECT_EQ(Controls.Label18.Caption, "$- 1");
}

TEST_F(DiagnosisTest, RefreshLeavesTheShownControlString) {
  Type("GOTO X");
  System.Click(Controls.Command2);
  EXPECT_EQ(System.Path.CtrlStr(), ".");
  EXPECT_EQ(Controls.Label19.Caption, ".#TEMP$1-2");
}

TEST_F(DiagnosisTest, ListsFollowTheProgramWhileThePanelIsHidden) {
  Fill({"TO A :N", "FD :N", "END"});
  Type("MAKE \"N 5");
  EXPECT_EQ(Controls.List1.Items(), (Texts{" 1  TO A :N", " 2  FD :N", " 3  END"}));
  EXPECT_EQ(Controls.List2.Items(), (Texts{":N=5"}));
  EXPECT_EQ(Controls.List3.Items(), (Texts{"TO A :N"}));
  Type("A 1");
  EXPECT_EQ(Controls.List2.Items(), (Texts{":N=5", " "}));
}

TEST_F(DiagnosisTest, VariablesShowWhatTheyHeldWhenTheListWasMade) {
  Fill({"TO A :X", "MAKE \"N 5", "END"});
  Type("A 1");
  // Made at the END: the local is deleted.
  EXPECT_EQ(Controls.List2.Items(), (Texts{" ", ":N=5"}));
}

TEST_F(DiagnosisTest, ControlStringShowsWhatTheRunLeft) {
  EXPECT_EQ(Controls.Label19.Caption, "Control String");
  Type("FD 1");
  EXPECT_EQ(Controls.Label19.Caption, ".");
  Type("GOTO X");
  EXPECT_EQ(Controls.Label19.Caption, ".#TEMP$2-2");
}

TEST_F(DiagnosisTest, ResolutionBoxTakesTheLeadingNumber) {
  Change(Controls.Text3, "25.5 steps");
  EXPECT_EQ(System.Turtle.Resolution, 25.5);
  Change(Controls.Text3, "abc");
  EXPECT_EQ(System.Turtle.Resolution, 0);
  Change(Controls.Text3, "");
  EXPECT_EQ(System.Turtle.Resolution, 0);
}

TEST_F(DiagnosisTest, ResolutionBoxFailsBeyondTheRangeOfNumbers) {
  EXPECT_THROW(Change(Controls.Text3, "1E999"), Failure);
  EXPECT_EQ(System.Turtle.Resolution, 50);
}

TEST_F(DiagnosisTest, ResolutionPrimitiveLeavesTheBox) {
  Type("RESOLUTION 20");
  EXPECT_EQ(System.Turtle.Resolution, 20);
  EXPECT_EQ(Controls.Text3.Text, "50");
}

TEST_F(DiagnosisTest, LineWidthBoxTakesOnlyNumbersAboveZero) {
  Change(Controls.Text4, "3");
  EXPECT_EQ(System.Picture1.DrawWidth(), 3);
  for (const char* text : {"0", "-1", "", "abc"}) Change(Controls.Text4, text);
  EXPECT_EQ(System.Picture1.DrawWidth(), 3);
  Change(Controls.Text4, "2.5");
  EXPECT_EQ(System.Picture1.DrawWidth(), 2);
}

TEST_F(DiagnosisTest, LineWidthBoxFailsBeyondItsRange) {
  EXPECT_THROW(Change(Controls.Text4, "32768"), Failure);
  EXPECT_THROW(Change(Controls.Text4, ".4"), Failure);
}

TEST_F(DiagnosisTest, RefreshLeavesTheProgramAndItsLists) {
  Fill({"TO A", "FD 1", "END"});
  Type("MAKE \"N 5");
  const Texts lines = Controls.List1.Items();
  const Texts procedures = Controls.List3.Items();
  ASSERT_EQ(lines.size(), 3U);
  System.Click(Controls.Command2);
  EXPECT_EQ(Controls.List1.Items(), lines);
  EXPECT_EQ(Controls.List3.Items(), procedures);
  EXPECT_EQ(System.Store.Line(3), "END");
  EXPECT_EQ(System.Names.Slot(1), " ");
}

TEST_F(DiagnosisTest, RefreshOfANewSystemGivesFiveHundredBlanks) {
  ASSERT_TRUE(Controls.List2.Items().empty());
  System.Click(Controls.Command2);
  EXPECT_EQ(Controls.List2.Items(), Texts(500, " "));
}

TEST_F(DiagnosisTest, PanelClosesByHideAndByEscToo) {
  Type("SHOW DIAGNOSIS");
  Type("HIDE");
  EXPECT_FALSE(Controls.Frame1.Visible());
  Type("SHOW DIA");
  ASSERT_TRUE(Controls.Frame1.Visible());
  Press(Controls.Text1[0], key::Esc);
  EXPECT_FALSE(Controls.Frame1.Visible());
}

TEST_F(DiagnosisTest, TwoClicksOnTheCheckBoxLeaveTheAxesHidden) {
  System.Click(Controls.Check1);
  EXPECT_TRUE(Controls.Line5.Visible());
  EXPECT_TRUE(Controls.Line6.Visible());
  EXPECT_EQ(Controls.Check1.Value, 1);
  System.Click(Controls.Check1);
  EXPECT_FALSE(Controls.Line5.Visible());
  EXPECT_FALSE(Controls.Line6.Visible());
  EXPECT_EQ(Controls.Check1.Value, 0);
}

TEST_F(DiagnosisTest, AfterShowGridTheFirstClickLeavesTheAxesAndTheSecondTakesThem) {
  Type("SHOW GRID");
  System.Click(Controls.Check1);
  EXPECT_TRUE(System.Mouse.CoordinatesOn);
  EXPECT_TRUE(Controls.Line5.Visible());
  EXPECT_TRUE(Controls.Line6.Visible());
  System.Click(Controls.Check1);
  EXPECT_FALSE(System.Mouse.CoordinatesOn);
  EXPECT_FALSE(Controls.Line5.Visible());
  EXPECT_FALSE(Controls.Line6.Visible());
}

}  // namespace
}  // namespace zerimo
