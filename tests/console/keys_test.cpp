#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

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
  EXPECT_EQ(controls.List4.Items(), (Texts{"?FD 10"}));
  EXPECT_EQ(System.interpreter.typedLines.LastTypedLine, "FD 10");
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 500);
  EXPECT_EQ(Focus(), "Text1(1)");
  EXPECT_EQ(controls.Text1[0].Text, "fd   10");
}

TEST_F(KeysTest, UpFromRow0GoesToRow4) {
  Press(controls.Text1[0], key::Up);
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, DownFromRow4GoesToRow0) {
  controls.Focus.SetFocus(controls.Text1[4]);
  Press(controls.Text1[4], key::Down);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, AnEmptyLineStillGoesThroughTheExecutor) {
  Fill({"TO A", "END"});
  Press(controls.Text1[0], key::F3);
  ASSERT_TRUE(controls.List3.Items().empty());
  const Texts history = controls.List4.Items();
  Type("", 2);
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO A"}));
  EXPECT_EQ(controls.List4.Items(), history);
  EXPECT_EQ(System.interpreter.typedLines.LastTypedLine, "");
}

TEST_F(KeysTest, TheNextRowKeepsItsTextAndCanBeSteppedThrough) {
  controls.Text1[0].Text = "FD 1";
  controls.Text1[1].Text = "FD 2";
  Press(controls.Text1[0], key::Enter);
  ASSERT_EQ(Focus(), "Text1(1)");
  Press(controls.Text1[1], key::Enter);
  EXPECT_EQ(controls.Text1[0].Text, "FD 1");
  EXPECT_EQ(controls.Text1[1].Text, "FD 2");
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 150);
}

TEST_F(KeysTest, AnOverflowInARunningLineLosesNothingButTheLine) {
  Type("SETPC 70000", 0);
  EXPECT_EQ(Focus(), "Text1(1)");
  Type("FD 1", 1);
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 50);
}

TEST_F(KeysTest, TheNameForF9IsTakenAsItIsTyped) {
  folder.Write("Small Box.ZRM", "TO BOX\r\nEND\r\n");
  services.InputAnswers.push_back("Small Box");
  Press(controls.Text1[0], key::F9);
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "Small Box");
  EXPECT_EQ(System.interpreter.store.Line(1), "TO BOX");
  EXPECT_TRUE(controls.List4.Items().empty());
}

TEST_F(KeysTest, AClickOnTheSurfaceWithFullRowsGoesToRow4AndThenToRow0) {
  for (int row = 0; row < 5; ++row) controls.Text1[row].Text = "X";
  System.Click(System.Picture1);
  EXPECT_EQ(Focus(), "Text1(4)");
  System.Tick(controls.Timer2);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, F2OnTheSurfaceFoldsNoText) {
  controls.Text2.Text = "to a\r\nend";
  controls.Text2.Show();
  Press(System.Picture1, key::F2);
  EXPECT_EQ(controls.Text2.Text, "to a\r\nend");
  EXPECT_EQ(System.interpreter.store.Line(1), "");
}

struct EnteredLine {
  const char* Typed;
  const char* Shown;
};

void PrintTo(const EnteredLine& one, std::ostream* out) { *out << Quoted(one.Typed); }

class EnteredLineOf : public KeysTest, public testing::WithParamInterface<EnteredLine> {};

TEST_P(EnteredLineOf, StandsInTheHistory) {
  Type(GetParam().Typed);
  EXPECT_EQ(controls.List4.Items(), (Texts{GetParam().Shown}));
}

INSTANTIATE_TEST_SUITE_P(Lines, EnteredLineOf,
                         testing::Values(EnteredLine{"REPEAT 4 [FD 10 RT 90]", "?REPEAT 4[FD 10 RT 90]"},
                                         EnteredLine{"FD -10", "?FD-10"}, EnteredLine{"SETXY 10 -20", "?SETXY 10-20"},
                                         EnteredLine{"A = 5", "?A =5"},
                                         EnteredLine{"make \"\xE4 1", "?MAKE \"\xC4 1"}));

TEST_F(KeysTest, TheHistoryHasTheLineAndTheRowsHaveScrolledBeforeItRuns) {
  Texts rows;
  Texts history;
  System.interpreter.dispatch.Bind("SOUND", [&](PrimitiveCall&) {
    for (int row = 0; row < 5; ++row) rows.push_back(controls.Text1[row].Text);
    history = controls.List4.Items();
  });
  Type("sound", 4);
  EXPECT_EQ(rows, (Texts{"", "", "", "sound", ""}));
  EXPECT_EQ(history, (Texts{"?SOUND"}));
}

TEST_F(KeysTest, AnEmptyLineIsRunButNotKept) {
  Type("  ", 2);
  EXPECT_TRUE(controls.List4.Items().empty());
  EXPECT_EQ(System.interpreter.typedLines.TempProcNo, 1);
  EXPECT_EQ(System.interpreter.typedLines.LastTypedLine, "");
  EXPECT_EQ(Focus(), "Text1(3)");
}

TEST_F(KeysTest, AnEmptyLineOnTheLastRowNeitherScrollsNorMovesTheFocus) {
  controls.Text1[3].Text = "KEEP";
  controls.Focus.SetFocus(controls.Text1[4]);
  Type("", 4);
  EXPECT_EQ(controls.Text1[3].Text, "KEEP");
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, TheLastRowScrollsAndKeepsTheFocus) {
  for (int row = 0; row < 4; ++row) controls.Text1[row].Text = std::string(1, static_cast<char>('A' + row));
  controls.Focus.SetFocus(controls.Text1[4]);
  Type("fd 1", 4);
  const char* const rows[] = {"B", "C", "D", "fd 1", ""};
  for (int row = 0; row < 5; ++row) EXPECT_EQ(controls.Text1[row].Text, rows[row]) << row;
  EXPECT_EQ(Focus(), "Text1(4)");
}

TEST_F(KeysTest, TheLastRowGivesTheFocusToTheLineWidthWhileThePanelIsOpen) {
  controls.Frame1.Show();
  controls.Focus.SetFocus(controls.Text1[4]);
  Type("fd 1", 4);
  EXPECT_EQ(Focus(), "Text4");
}

TEST_F(KeysTest, ARowCanBeEnteredAgain) {
  Type("FD 1", 0);
  Press(controls.Text1[0], key::Enter);
  EXPECT_EQ(controls.List4.Items(), (Texts{"?FD 1", "?FD 1"}));
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 100);
}

TEST_F(KeysTest, ArrowsGoAroundTheRows) {
  Press(controls.Text1[0], key::Up);
  EXPECT_EQ(Focus(), "Text1(4)");
  Press(controls.Text1[4], key::Down);
  EXPECT_EQ(Focus(), "Text1(0)");
  Press(controls.Text1[0], key::Down);
  EXPECT_EQ(Focus(), "Text1(1)");
  Press(controls.Text1[1], key::Up);
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, AFailureInALineStillMovesTheFocus) {
  Type("REPEAT 40000 [FD 1]", 1);
  EXPECT_EQ(Focus(), "Text1(2)");
}

TEST_F(KeysTest, EscOnARowClosesThePanelsAndNothingElse) {
  controls.Frame1.Show();
  controls.Picture2.Show();
  controls.RichTextBox1.Show();
  controls.File1.Show();
  controls.List4.Show();
  controls.Line5.Show();
  Press(controls.Text1[0], key::Esc);
  EXPECT_FALSE(controls.Frame1.Visible());
  EXPECT_FALSE(controls.Picture2.Visible());
  EXPECT_FALSE(controls.RichTextBox1.Visible());
  EXPECT_FALSE(controls.File1.Visible());
  EXPECT_TRUE(controls.List4.Visible());
  EXPECT_TRUE(controls.Line5.Visible());
}

TEST_F(KeysTest, EscClosesTheHelpViewFromThePageAndTheList) {
  for (Control* control : {static_cast<Control*>(&controls.RichTextBox1), static_cast<Control*>(&controls.File1)}) {
    controls.RichTextBox1.Show();
    controls.File1.Show();
    Press(*control, key::Esc);
    EXPECT_FALSE(controls.RichTextBox1.Visible());
    EXPECT_FALSE(controls.File1.Visible());
  }
}

TEST_F(KeysTest, F1OpensTheEditor) {
  for (Control* control : {static_cast<Control*>(&controls.Text1[2]), static_cast<Control*>(&controls.List4),
                           static_cast<Control*>(&System.Picture1)}) {
    controls.Text2.Hide();
    Press(*control, key::F1);
    EXPECT_TRUE(controls.Text2.Visible()) << control->Name();
    EXPECT_EQ(Focus(), "Text2");
  }
}

TEST_F(KeysTest, F1IsNotForTheEditorThePagesAndTheForm) {
  for (Control* control : {static_cast<Control*>(&controls.Text2), static_cast<Control*>(&controls.RichTextBox1),
                           static_cast<Control*>(&controls.File1), static_cast<Control*>(&controls.Form1)}) {
    Press(*control, key::F1);
    EXPECT_FALSE(controls.Text2.Visible()) << control->Name();
  }
}

TEST_F(KeysTest, F2OnRowsAndHistoryIsTheSplitScreen) {
  for (Control* control : {static_cast<Control*>(&controls.Text1[0]), static_cast<Control*>(&controls.List4)}) {
    System.Picture1.SetHeight(Full);
    controls.List4.Show();
    Press(*control, key::F2);
    EXPECT_EQ(System.Picture1.Height(), Split);
    EXPECT_FALSE(controls.List4.Visible());
  }
}

TEST_F(KeysTest, F2OnTheSurfaceBringsTheRowsBackAndLeavesTheHistory) {
  Press(controls.Text1[0], key::F4);
  EXPECT_EQ(Focus(), "");
  controls.List4.Show();
  Press(System.Picture1, key::F2);
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(controls.Picture3.Visible());
  EXPECT_FALSE(controls.Text2.Visible());
  EXPECT_TRUE(controls.List4.Visible());
  EXPECT_EQ(Focus(), "Text1(0)");
}

TEST_F(KeysTest, F2OnTheFormBringsTheRowsBackWithoutTheFocus) {
  Press(controls.Text1[0], key::F4);
  Press(controls.Form1, key::F2);
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(controls.Picture3.Visible());
  EXPECT_EQ(Focus(), "");
}

TEST_F(KeysTest, F3IsTheTextScreen) {
  for (Control* control : {static_cast<Control*>(&controls.Text1[0]), static_cast<Control*>(&controls.List4),
                           static_cast<Control*>(&System.Picture1), static_cast<Control*>(&controls.Text2)}) {
    controls.List4.Hide();
    Press(*control, key::F3);
    EXPECT_TRUE(controls.List4.Visible()) << control->Name();
  }
}

TEST_F(KeysTest, F4IsTheFullScreenButNotOnTheSurface) {
  for (Control* control : {static_cast<Control*>(&controls.Text1[0]), static_cast<Control*>(&controls.List4),
                           static_cast<Control*>(&controls.Text2)}) {
    System.Picture1.SetHeight(Split);
    Press(*control, key::F4);
    EXPECT_EQ(System.Picture1.Height(), Full) << control->Name();
  }
  System.Picture1.SetHeight(Split);
  Press(System.Picture1, key::F4);
  EXPECT_EQ(System.Picture1.Height(), Split);
}

TEST_F(KeysTest, F9AsksForAProgramFile) {
  for (Control* control : {static_cast<Control*>(&controls.Text1[0]), static_cast<Control*>(&controls.List4),
                           static_cast<Control*>(&System.Picture1), static_cast<Control*>(&controls.Text2)}) {
    services.Inputs.clear();
    services.Boxes.clear();
    services.InputAnswers.push_back("no such file");
    Press(*control, key::F9);
    ASSERT_EQ(services.Inputs.size(), 1U) << control->Name();
    EXPECT_EQ(services.Inputs[0].Prompt, "Enter the File Name");
    EXPECT_EQ(services.Inputs[0].Title, "Load Zerimo File");
    EXPECT_EQ(services.Inputs[0].Default, "");
    ASSERT_EQ(services.Boxes.size(), 1U);
    EXPECT_EQ(services.Boxes[0].Text, "Unable to Load File .\\no such file.ZRM");
  }
}

TEST_F(KeysTest, F9WithAnEmptyAnswerDoesNothing) {
  Press(controls.Text1[0], key::F9);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "");
}

TEST_F(KeysTest, ATypedFileNameArrivesInCapitalsAndAnAnsweredOneAsItStands) {
  Type("load nosuch");
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "NOSUCH");
  services.InputAnswers = {"no such file"};
  Press(controls.Text1[0], key::F9);
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "no such file");
  services.OpenAnswers = {"C:\\x\\no such file.zrm"};
  Type("SHOW OPEN");
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "C:\\x\\no such file");
}

TEST_F(KeysTest, F3AndF4InTheEditorLeaveTheStoreAndTheText) {
  for (const int leaving : {key::F3, key::F4}) {
    Fill({"FD 10", "BK 10"});
    Press(controls.Text1[0], key::F1);
    controls.Text2.Text = "to new\r\n\r\nend";
    Press(controls.Text2, leaving);
    EXPECT_FALSE(controls.Text2.Visible());
    EXPECT_EQ(System.interpreter.store.Line(1), "FD 10");
    EXPECT_EQ(System.interpreter.store.Line(2), "BK 10");
    EXPECT_EQ(System.interpreter.store.Line(3), "");
    Type("EDIT");
    EXPECT_TRUE(controls.Text2.Visible());
    EXPECT_EQ(controls.Text2.Text, "to new\r\n\r\nend");
  }
}

TEST_F(KeysTest, F2OnTheSurfaceAndOnTheFormLeavesTheEditorWithoutAFold) {
  for (Control* control : {static_cast<Control*>(&System.Picture1), static_cast<Control*>(&controls.Form1)}) {
    Type("EDIT");
    controls.Text2.Text = "to a\r\nend";
    Press(*control, key::F2);
    EXPECT_FALSE(controls.Text2.Visible()) << control->Name();
    EXPECT_EQ(controls.Text2.Text, "to a\r\nend");
    EXPECT_EQ(System.interpreter.store.Line(1), "");
  }
}

TEST_F(KeysTest, AFailureOfTheFoldOrTheSaveIsNotCaught) {
  controls.Text2.Text = std::string(32767, 'a');
  EXPECT_THROW(Press(controls.Text2, key::F2), Failure);
  controls.Text2.Text = "fd 10";
  services.InputAnswers = {"no\\such\\folder\\a"};
  EXPECT_THROW(Press(controls.Text2, key::F10), Failure);
}

TEST_F(KeysTest, F5ToF8AndF12DoNothing) {
  for (int code : {116, 117, 118, 119, 123}) {
    for (Control* control : {static_cast<Control*>(&controls.Text1[0]), static_cast<Control*>(&controls.List4),
                             static_cast<Control*>(&System.Picture1), static_cast<Control*>(&controls.Text2),
                             static_cast<Control*>(&controls.Form1)}) {
      Press(*control, code);
    }
  }
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_EQ(System.Picture1.Height(), Split);
  EXPECT_TRUE(services.Boxes.empty());
}

/// The keys that do something on a control.
struct ActingKeys {
  Control* Target;
  std::set<int> Codes;
};

TEST_F(KeysTest, OtherKeysDoNothing) {
  using namespace key;
  const ActingKeys table[] = {
      {&controls.Text1[2], {Esc, Enter, F1, F2, F3, F4, F9, Up, Down}},
      {&controls.List4, {F1, F2, F3, F4, F9}},
      {&System.Picture1, {F1, F2, F3, F9}},
      {&controls.Text2, {F2, F3, F4, F9, F10}},
      {&controls.RichTextBox1, {Esc, F11}},
      {&controls.File1, {Esc}},
      {&controls.Form1, {F2}},
      {&controls.Text3, {}},
      {&controls.Text4, {}},
      {&controls.Prompt, {}},
  };
  for (Control* panel : {static_cast<Control*>(&controls.Frame1), static_cast<Control*>(&controls.RichTextBox1),
                         static_cast<Control*>(&controls.List4)}) {
    panel->Show();
  }
  System.Picture1.SetHeight(1234);
  for (const ActingKeys& row : table) {
    for (int code = 8; code <= F12; ++code) {
      if (!row.Codes.contains(code)) Press(*row.Target, code);
    }
  }
  EXPECT_TRUE(controls.Frame1.Visible());
  EXPECT_TRUE(controls.RichTextBox1.Visible());
  EXPECT_TRUE(controls.List4.Visible());
  EXPECT_FALSE(controls.Text2.Visible());
  EXPECT_EQ(System.Picture1.Height(), 1234);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_EQ(System.interpreter.typedLines.TempProcNo, 0);
  EXPECT_EQ(System.interpreter.dispatch.OverflowCount, 0);
  EXPECT_TRUE(services.Inputs.empty());
}

TEST_F(KeysTest, AClickOnTheSurfaceLooksForAnEmptyRowAndThenTheOneShotTakesRow0) {
  controls.Text1[0].Text = "A";
  System.Click(System.Picture1);
  EXPECT_EQ(Focus(), "Text1(1)");
  EXPECT_TRUE(controls.Timer2.Enabled);
  System.Tick(controls.Timer2);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_FALSE(controls.Timer2.Enabled);
}

TEST_F(KeysTest, AClickInFullScreenDoesNotLoseTheProgram) {
  Type("FS");
  System.Click(System.Picture1);
  System.Tick(controls.Timer2);
  EXPECT_EQ(Focus(), "");
  EXPECT_FALSE(controls.Timer2.Enabled);
}

TEST_F(KeysTest, AClickOnTheHistoryHasNoEffect) {
  Type("FD 1");
  System.Click(controls.List4);
  EXPECT_EQ(controls.List4.Items(), (Texts{"?FD 1"}));
  EXPECT_EQ(controls.Text1[1].Text, "");
}

TEST_F(KeysTest, ALineTooLongForTheFilterRunsAsAnEmptyOne) {
  Type(std::string(32767, 'A'));
  EXPECT_TRUE(controls.List4.Items().empty());
  EXPECT_EQ(System.interpreter.typedLines.TempProcNo, 1);
}

}  // namespace
}  // namespace zerimo
