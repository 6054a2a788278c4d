#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "files/temp_folder.h"
#include "support/quoted.h"
#include "support/whole_system.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class KeysTest : public testing::Test, protected WholeSystem {
 protected:
  std::vector<float> Heights() const { return {System.Picture1.Height()}; }
};

constexpr float Full = 11520;
constexpr float Split = 11520 - 1935;

TEST_F(KeysTest, ALineIsTidiedKeptAndRun) {
  Type("fd   10", 0);
  EXPECT_EQ(Controls.List4.Items(), (Texts{"?FD 10"}));
  EXPECT_EQ(System.Lines.LastTypedLine, "FD 10");
  EXPECT_EQ(System.Turtle.TurtleY, 5760 - 500);
  EXPECT_EQ(Focus(), "Text1(1)");
  EXPECT_EQ(Controls.Text1[0].Text, "fd   10");
}

TEST_F(KeysTest, UpFromRow0GoesToRow4) {
  Press(Controls.Text1[0], key::Up);
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, DownFromRow4GoesToRow0) {
  Controls.Focus.SetFocus(Controls.Text1[4]);
  Press(Controls.Text1[4], key::Down);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, AnEmptyLineStillGoesThroughTheExecutor) {
  Fill({"TO A", "END"});
  Press(Controls.Text1[0], key::F3);
  ASSERT_TRUE(Controls.List3.Items().empty());
  const Texts history = Controls.List4.Items();
  Type("", 2);
  EXPECT_EQ(Controls.List3.Items(), (Texts{"TO A"}));
  EXPECT_EQ(Controls.List4.Items(), history);
  EXPECT_EQ(System.Lines.LastTypedLine, "");
}

TEST_F(KeysTest, TheNextRowKeepsItsTextAndCanBeSteppedThrough) {
  Controls.Text1[0].Text = "FD 1";
  Controls.Text1[1].Text = "FD 2";
  Press(Controls.Text1[0], key::Enter);
  ASSERT_EQ(Focus(), "Text1(1)");
  Press(Controls.Text1[1], key::Enter);
  EXPECT_EQ(Controls.Text1[0].Text, "FD 1");
  EXPECT_EQ(Controls.Text1[1].Text, "FD 2");
  EXPECT_EQ(System.Turtle.TurtleY, 5760 - 150);
}

TEST_F(KeysTest, AnOverflowInARunningLineLosesNothingButTheLine) {
  Type("SETPC 70000", 0);
  EXPECT_EQ(Focus(), "Text1(1)");
  Type("FD 1", 1);
  EXPECT_EQ(System.Turtle.TurtleY, 5760 - 50);
}

TEST_F(KeysTest, TheNameForF9IsTakenAsItIsTyped) {
  const TempFolder folder;
  folder.Write("Small Box.ZRM", "TO BOX\r\nEND\r\n");
  Desktop.InputAnswers.push_back("Small Box");
  Press(Controls.Text1[0], key::F9);
  EXPECT_EQ(System.Files.CurrentFileName, "Small Box");
  EXPECT_EQ(System.Store.Line(1), "TO BOX");
  EXPECT_TRUE(Controls.List4.Items().empty());
}

TEST_F(KeysTest, AClickOnTheSurfaceWithFullRowsGoesToRow4AndThenToRow0) {
  for (int row = 0; row < 5; ++row) Controls.Text1[row].Text = "X";
  System.Click(System.Picture1);
  EXPECT_EQ(Focus(), "Text1(4)");
  System.Tick(Controls.Timer2);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, F2OnTheSurfaceFoldsNoText) {
  Controls.Text2.Text = "to a\r\nend";
  Controls.Text2.Show();
  Press(System.Picture1, key::F2);
  EXPECT_EQ(Controls.Text2.Text, "to a\r\nend");
  EXPECT_EQ(System.Store.Line(1), "");
}

struct EnteredLine {
  const char* Typed;
  const char* Shown;
};

void PrintTo(const EnteredLine& one, std::ostream* out) { *out << Quoted(one.Typed); }

class EnteredLineOf : public KeysTest, public testing::WithParamInterface<EnteredLine> {};

TEST_P(EnteredLineOf, StandsInTheHistory) {
  Type(GetParam().Typed);
  EXPECT_EQ(Controls.List4.Items(), (Texts{GetParam().Shown}));
}

INSTANTIATE_TEST_SUITE_P(Lines, EnteredLineOf,
                         testing::Values(EnteredLine{"REPEAT 4 [FD 10 RT 90]", "?REPEAT 4[FD 10 RT 90]"},
                                         EnteredLine{"FD -10", "?FD-10"}, EnteredLine{"SETXY 10 -20", "?SETXY 10-20"},
                                         EnteredLine{"A = 5", "?A =5"},
                                         EnteredLine{"make \"\xE4 1", "?MAKE \"\xC4 1"}));

TEST_F(KeysTest, TheHistoryHasTheLineAndTheRowsHaveScrolledBeforeItRuns) {
  Texts rows;
  Texts history;
  System.Primitives.Bind(Action::Sound, [&](PrimitiveCall&) {
    for (int row = 0; row < 5; ++row) rows.push_back(Controls.Text1[row].Text);
    history = Controls.List4.Items();
  });
  Type("sound", 4);
  EXPECT_EQ(rows, (Texts{"", "", "", "sound", ""}));
  EXPECT_EQ(history, (Texts{"?SOUND"}));
}

TEST_F(KeysTest, AnEmptyLineIsRunButNotKept) {
  Type("  ", 2);
  EXPECT_TRUE(Controls.List4.Items().empty());
  EXPECT_EQ(System.Lines.TempProcNo, 1);
  EXPECT_EQ(System.Lines.LastTypedLine, "");
  EXPECT_EQ(Focus(), "Text1(3)");
}

TEST_F(KeysTest, AnEmptyLineOnTheLastRowNeitherScrollsNorMovesTheFocus) {
  Controls.Text1[3].Text = "KEEP";
  Controls.Focus.SetFocus(Controls.Text1[4]);
  Type("", 4);
  EXPECT_EQ(Controls.Text1[3].Text, "KEEP");
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, TheLastRowScrollsAndKeepsTheFocus) {
  for (int row = 0; row < 4; ++row) Controls.Text1[row].Text = std::string(1, static_cast<char>('A' + row));
  Controls.Focus.SetFocus(Controls.Text1[4]);
  Type("fd 1", 4);
  const char* const rows[] = {"B", "C", "D", "fd 1", ""};
  for (int row = 0; row < 5; ++row) EXPECT_EQ(Controls.Text1[row].Text, rows[row]) << row;
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, TheLastRowGivesTheFocusToTheLineWidthWhileThePanelIsOpen) {
  Controls.Frame1.Show();
  Controls.Focus.SetFocus(Controls.Text1[4]);
  Type("fd 1", 4);
  EXPECT_EQ(Focus(), "Text4");
}

TEST_F(KeysTest, ARowCanBeEnteredAgain) {
  Type("FD 1", 0);
  Press(Controls.Text1[0], key::Enter);
  EXPECT_EQ(Controls.List4.Items(), (Texts{"?FD 1", "?FD 1"}));
  EXPECT_EQ(System.Turtle.TurtleY, 5760 - 100);
}

TEST_F(KeysTest, ArrowsGoAroundTheRows) {
  Press(Controls.Text1[0], key::Up);
  EXPECT_EQ(Focus(), "Text1(4)");
  Press(Controls.Text1[4], key::Down);
  EXPECT_EQ(Focus(), "Text1(0)");
  Press(Controls.Text1[0], key::Down);
  EXPECT_EQ(Focus(), "Text1(1)");
  Press(Controls.Text1[1], key::Up);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, AFailureInALineStillMovesTheFocus) {
  Type("REPEAT 40000 [FD 1]", 1);
  EXPECT_EQ(Focus(), "Text1(2)");
}

TEST_F(KeysTest, EscOnARowClosesThePanelsAndNothingElse) {
  Controls.Frame1.Show();
  Controls.Picture2.Show();
  Controls.RichTextBox1.Show();
  Controls.File1.Show();
  Controls.List4.Show();
  Controls.Line5.Show();
  Press(Controls.Text1[0], key::Esc);
  EXPECT_FALSE(Controls.Frame1.Visible());
  EXPECT_FALSE(Controls.Picture2.Visible());
  EXPECT_FALSE(Controls.RichTextBox1.Visible());
  EXPECT_FALSE(Controls.File1.Visible());
  EXPECT_TRUE(Controls.List4.Visible());
  EXPECT_TRUE(Controls.Line5.Visible());
}

TEST_F(KeysTest, EscClosesTheHelpViewFromThePageAndTheList) {
  for (Control* control : {static_cast<Control*>(&Controls.RichTextBox1), static_cast<Control*>(&Controls.File1)}) {
    Controls.RichTextBox1.Show();
    Controls.File1.Show();
    Press(*control, key::Esc);
    EXPECT_FALSE(Controls.RichTextBox1.Visible());
    EXPECT_FALSE(Controls.File1.Visible());
  }
}

TEST_F(KeysTest, F1OpensTheEditor) {
  for (Control* control : {static_cast<Control*>(&Controls.Text1[2]), static_cast<Control*>(&Controls.List4),
                           static_cast<Control*>(&System.Picture1)}) {
    Controls.Text2.Hide();
    Press(*control, key::F1);
    EXPECT_TRUE(Controls.Text2.Visible()) << control->Name();
    EXPECT_EQ(Focus(), "Text2");
  }
}

TEST_F(KeysTest, F1IsNotForTheEditorThePagesAndTheForm) {
  for (Control* control : {static_cast<Control*>(&Controls.Text2), static_cast<Control*>(&Controls.RichTextBox1),
                           static_cast<Control*>(&Controls.File1), static_cast<Control*>(&Controls.Form1)}) {
    Press(*control, key::F1);
    EXPECT_FALSE(Controls.Text2.Visible()) << control->Name();
  }
}

TEST_F(KeysTest, F2OnRowsAndHistoryIsTheSplitScreen) {
  for (Control* control : {static_cast<Control*>(&Controls.Text1[0]), static_cast<Control*>(&Controls.List4)}) {
    System.Picture1.SetHeight(Full);
    Controls.List4.Show();
    Press(*control, key::F2);
    EXPECT_EQ(System.Picture1.Height(), Split);
    EXPECT_FALSE(Controls.List4.Visible());
  }
}

TEST_F(KeysTest, F2OnTheSurfaceBringsTheRowsBackAndLeavesTheHistory) {
  Press(Controls.Text1[0], key::F4);
  EXPECT_EQ(Focus(), "");
  Controls.List4.Show();
  Press(System.Picture1, key::F2);
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(Controls.Picture3.Visible());
  EXPECT_FALSE(Controls.Text2.Visible());
  EXPECT_TRUE(Controls.List4.Visible());
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, F2OnTheFormBringsTheRowsBackWithoutTheFocus) {
  Press(Controls.Text1[0], key::F4);
  Press(Controls.Form1, key::F2);
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(Controls.Picture3.Visible());
  EXPECT_EQ(Focus(), "");
}

TEST_F(KeysTest, F3IsTheTextScreen) {
  for (Control* control : {static_cast<Control*>(&Controls.Text1[0]), static_cast<Control*>(&Controls.List4),
                           static_cast<Control*>(&System.Picture1), static_cast<Control*>(&Controls.Text2)}) {
    Controls.List4.Hide();
    Press(*control, key::F3);
    EXPECT_TRUE(Controls.List4.Visible()) << control->Name();
  }
}

TEST_F(KeysTest, F4IsTheFullScreenButNotOnTheSurface) {
  for (Control* control : {static_cast<Control*>(&Controls.Text1[0]), static_cast<Control*>(&Controls.List4),
                           static_cast<Control*>(&Controls.Text2)}) {
    System.Picture1.SetHeight(Split);
    Press(*control, key::F4);
    EXPECT_EQ(System.Picture1.Height(), Full) << control->Name();
  }
  System.Picture1.SetHeight(Split);
  Press(System.Picture1, key::F4);
  EXPECT_EQ(System.Picture1.Height(), Split);
}

TEST_F(KeysTest, F9AsksForAProgramFile) {
  for (Control* control : {static_cast<Control*>(&Controls.Text1[0]), static_cast<Control*>(&Controls.List4),
                           static_cast<Control*>(&System.Picture1), static_cast<Control*>(&Controls.Text2)}) {
    Desktop.Inputs.clear();
    Desktop.Boxes.clear();
    Desktop.InputAnswers.push_back("no such file");
    Press(*control, key::F9);
    ASSERT_EQ(Desktop.Inputs.size(), 1U) << control->Name();
    EXPECT_EQ(Desktop.Inputs[0].Prompt, "Enter the File Name");
    EXPECT_EQ(Desktop.Inputs[0].Title, "Load Zerimo File");
    EXPECT_EQ(Desktop.Inputs[0].Default, "");
    ASSERT_EQ(Desktop.Boxes.size(), 1U);
    EXPECT_EQ(Desktop.Boxes[0].Text, "Unable to Load File .\\no such file.ZRM");
  }
}

TEST_F(KeysTest, F9WithAnEmptyAnswerDoesNothing) {
  Press(Controls.Text1[0], key::F9);
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(System.Files.CurrentFileName, "");
}

TEST_F(KeysTest, ATypedFileNameArrivesInCapitalsAndAnAnsweredOneAsItStands) {
  Type("load nosuch");
  EXPECT_EQ(System.Files.CurrentFileName, "NOSUCH");
  Desktop.InputAnswers = {"no such file"};
  Press(Controls.Text1[0], key::F9);
  EXPECT_EQ(System.Files.CurrentFileName, "no such file");
  Desktop.OpenAnswers = {"C:\\x\\no such file.zrm"};
  Type("SHOW OPEN");
  EXPECT_EQ(System.Files.CurrentFileName, "C:\\x\\no such file");
}

TEST_F(KeysTest, F3AndF4InTheEditorLeaveTheStoreAndTheText) {
  for (const int leaving : {key::F3, key::F4}) {
    Fill({"FD 10", "BK 10"});
    Press(Controls.Text1[0], key::F1);
    Controls.Text2.Text = "to new\r\n\r\nend";
    Press(Controls.Text2, leaving);
    EXPECT_FALSE(Controls.Text2.Visible());
    EXPECT_EQ(System.Store.Line(1), "FD 10");
    EXPECT_EQ(System.Store.Line(2), "BK 10");
    EXPECT_EQ(System.Store.Line(3), "");
    Type("EDIT");
    EXPECT_TRUE(Controls.Text2.Visible());
    EXPECT_EQ(Controls.Text2.Text, "to new\r\n\r\nend");
  }
}

TEST_F(KeysTest, F2OnTheSurfaceAndOnTheFormLeavesTheEditorWithoutAFold) {
  for (Control* control : {static_cast<Control*>(&System.Picture1), static_cast<Control*>(&Controls.Form1)}) {
    Type("EDIT");
    Controls.Text2.Text = "to a\r\nend";
    Press(*control, key::F2);
    EXPECT_FALSE(Controls.Text2.Visible()) << control->Name();
    EXPECT_EQ(Controls.Text2.Text, "to a\r\nend");
    EXPECT_EQ(System.Store.Line(1), "");
  }
}

TEST_F(KeysTest, AFailureOfTheFoldOrTheSaveIsNotCaught) {
  Controls.Text2.Text = std::string(32767, 'a');
  EXPECT_THROW(Press(Controls.Text2, key::F2), Failure);
  Controls.Text2.Text = "fd 10";
  Desktop.InputAnswers = {"no\\such\\folder\\a"};
  EXPECT_THROW(Press(Controls.Text2, key::F10), Failure);
}

TEST_F(KeysTest, F5ToF8AndF12DoNothing) {
  for (int code : {116, 117, 118, 119, 123}) {
    for (Control* control : {static_cast<Control*>(&Controls.Text1[0]), static_cast<Control*>(&Controls.List4),
                             static_cast<Control*>(&System.Picture1), static_cast<Control*>(&Controls.Text2),
                             static_cast<Control*>(&Controls.Form1)}) {
      Press(*control, code);
    }
  }
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(Desktop.Boxes.empty());
}

/// A control's keys that do something.
struct ActingKeys {
  Control* Target;
  std::set<int> Codes;
};

TEST_F(KeysTest, OtherKeysDoNothing) {
  using namespace key;
  const ActingKeys table[] = {
      {&Controls.Text1[2], {Esc, Enter, F1, F2, F3, F4, F9, Up, Down}},
      {&Controls.List4, {F1, F2, F3, F4, F9}},
      {&System.Picture1, {F1, F2, F3, F9}},
      {&Controls.Text2, {F2, F3, F4, F9, F10}},
      {&Controls.RichTextBox1, {Esc, F11}},
      {&Controls.File1, {Esc}},
      {&Controls.Form1, {F2}},
      {&Controls.Text3, {}},
      {&Controls.Text4, {}},
      {&Controls.Prompt, {}},
  };
  for (Control* panel : {static_cast<Control*>(&Controls.Frame1), static_cast<Control*>(&Controls.RichTextBox1),
                         static_cast<Control*>(&Controls.List4)}) {
    panel->Show();
  }
  System.Picture1.SetHeight(1234);
  for (const ActingKeys& row : table) {
    for (int code = 8; code <= F12; ++code) {
      if (!row.Codes.contains(code)) Press(*row.Target, code);
    }
  }
  EXPECT_TRUE(Controls.Frame1.Visible());
  EXPECT_TRUE(Controls.RichTextBox1.Visible());
  EXPECT_TRUE(Controls.List4.Visible());
  EXPECT_FALSE(Controls.Text2.Visible());
  EXPECT_EQ(System.Picture1.Height(), 1234);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_EQ(System.Lines.TempProcNo, 0);
  EXPECT_EQ(System.Primitives.OverflowCount, 0);
  EXPECT_TRUE(Desktop.Inputs.empty());
}

TEST_F(KeysTest, AClickOnTheSurfaceLooksForAnEmptyRowAndThenTheOneShotTakesRow0) {
  Controls.Text1[0].Text = "A";
  System.Click(System.Picture1);
  EXPECT_EQ(Focus(), "Text1(1)");
  EXPECT_TRUE(Controls.Timer2.Enabled);
  System.Tick(Controls.Timer2);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_FALSE(Controls.Timer2.Enabled);
}

TEST_F(KeysTest, AClickInFullScreenDoesNotLoseTheProgram) {
  Type("FS");
  System.Click(System.Picture1);
  System.Tick(Controls.Timer2);
  EXPECT_EQ(Focus(), "");
  EXPECT_FALSE(Controls.Timer2.Enabled);
}

TEST_F(KeysTest, AClickOnTheHistoryHasNoEffect) {
  Type("FD 1");
  System.Click(Controls.List4);
  EXPECT_EQ(Controls.List4.Items(), (Texts{"?FD 1"}));
  EXPECT_EQ(Controls.Text1[1].Text, "");
}

TEST_F(KeysTest, ALineTooLongForTheFilterRunsAsAnEmptyOne) {
  Type(std::string(32767, 'A'));
  EXPECT_TRUE(Controls.List4.Items().empty());
  EXPECT_EQ(System.Lines.TempProcNo, 1);
}

}  // namespace
}  // namespace zerimo
