#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/whole_system.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

constexpr float Full = 11520;
constexpr float Split = 11520 - 1935;

class ScreenModesTest : public testing::Test, protected WholeSystem {
 protected:
  void Execute(const char* line) { System.interpreter.dispatch.Execute(line); }
};

/// What a learner sees: which of the four big controls are visible, and how high the surface is.
struct Seen {
  bool Rows;
  bool History;
  bool Editor;
  float Surface;
  bool operator==(const Seen&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Seen& seen) {
  return out << (seen.Rows ? "rows " : "") << (seen.History ? "history " : "") << (seen.Editor ? "editor " : "")
             << seen.Surface;
}

struct ModeSequence {
  const char* Lines[3];
  Seen After;
};

void PrintTo(const ModeSequence& one, std::ostream* out) {
  for (const char* line : one.Lines) *out << (line == nullptr ? "" : line) << ", ";
}

class ModesInOrder : public ScreenModesTest, public testing::WithParamInterface<ModeSequence> {};

TEST_P(ModesInOrder, ShowWhatTheyMust) {
  for (const char* line : GetParam().Lines) {
    if (line != nullptr) Execute(line);
  }
  const Seen seen{controls.Picture3.Visible(), controls.List4.Visible(), controls.Text2.Visible(),
                  System.Picture1.Height()};
  EXPECT_EQ(seen, GetParam().After);
}

INSTANTIATE_TEST_SUITE_P(Sequences, ModesInOrder,
                         testing::Values(ModeSequence{{"FS"}, {false, false, false, Full}},
                                         ModeSequence{{"SS"}, {true, false, false, Split}},
                                         ModeSequence{{"TS"}, {true, true, false, Split}},
                                         ModeSequence{{"EDIT"}, {false, false, true, Split}},
                                         ModeSequence{{"FULLSCREEN"}, {false, false, false, Full}},
                                         ModeSequence{{"FS", "SPLITSCREEN"}, {true, false, false, Split}},
                                         ModeSequence{{"TEXTSCREEN"}, {true, true, false, Split}},
                                         ModeSequence{{"FS", "SS"}, {true, false, false, Split}},
                                         ModeSequence{{"FS", "TS"}, {false, true, false, Split}},
                                         ModeSequence{{"FS", "EDIT"}, {false, false, true, Full}},
                                         ModeSequence{{"TS", "FS"}, {false, false, false, Full}},
                                         ModeSequence{{"TS", "SS"}, {true, false, false, Split}},
                                         ModeSequence{{"TS", "EDIT"}, {false, false, true, Split}},
                                         ModeSequence{{"EDIT", "FS"}, {false, false, false, Full}},
                                         ModeSequence{{"EDIT", "SS"}, {true, false, false, Split}},
                                         ModeSequence{{"EDIT", "TS"}, {false, true, false, Split}},
                                         ModeSequence{{"EDIT", "EDIT"}, {false, false, true, Split}},
                                         ModeSequence{{"TS", "HIDE"}, {true, true, false, Split}},
                                         ModeSequence{{"EDIT", "HIDE"}, {false, false, true, Split}},
                                         ModeSequence{{"TS", "CT"}, {true, true, false, Split}},
                                         ModeSequence{{"FS", "TS", "SS"}, {true, false, false, Split}},
                                         ModeSequence{{"FS", "EDIT", "TS"}, {false, true, false, Split}},
                                         ModeSequence{{"TS", "FS", "TS"}, {false, true, false, Split}},
                                         ModeSequence{{"EDIT", "TS", "FS"}, {false, false, false, Full}},
                                         ModeSequence{{"EDIT", "FS", "SS"}, {true, false, false, Split}},
                                         ModeSequence{{"TS", "EDIT", "SS"}, {true, false, false, Split}}));

/// What is seen after a primitive or a key; what is not given stays.
struct ModeStep {
  const char* Line;
  int KeyOnForm;
  int KeyOnSurface;
  std::optional<bool> Rows;
  std::optional<bool> History;
  std::optional<bool> Editor;
  std::optional<float> Surface;
};

constexpr ModeStep ModeSteps[] = {
    {"FS", 0, 0, false, false, false, Full},
    {"SS", 0, 0, true, false, false, Split},
    {"TS", 0, 0, {}, true, false, Split},
    {"EDIT", 0, 0, false, false, true, {}},
    {"CT", 0, 0, {}, {}, {}, {}},
    {"HIDE", 0, 0, {}, {}, {}, {}},
    {nullptr, key::F2, 0, true, {}, false, Split},
    {nullptr, 0, key::F2, true, {}, false, Split},
    {nullptr, 0, key::F4, {}, {}, {}, {}},
};

TEST_F(ScreenModesTest, EveryThreeStepsShowWhatTheLastOfEachLeft) {
  Seen expected{true, false, false, Split};
  const auto take = [&](const ModeStep& step) {
    if (step.Line != nullptr) Execute(step.Line);
    if (step.KeyOnForm != 0) Press(controls.Form1, step.KeyOnForm);
    if (step.KeyOnSurface != 0) Press(System.Picture1, step.KeyOnSurface);
    expected.Rows = step.Rows.value_or(expected.Rows);
    expected.History = step.History.value_or(expected.History);
    expected.Editor = step.Editor.value_or(expected.Editor);
    expected.Surface = step.Surface.value_or(expected.Surface);
    const Seen seen{controls.Picture3.Visible(), controls.List4.Visible(), controls.Text2.Visible(),
                    System.Picture1.Height()};
    EXPECT_EQ(seen, expected);
  };
  // All in one system, so that longer paths are tested too.
  for (const ModeStep& first : ModeSteps) {
    for (const ModeStep& second : ModeSteps) {
      for (const ModeStep& third : ModeSteps) {
        for (const ModeStep* step : {&first, &second, &third}) take(*step);
      }
    }
  }
}

TEST_F(ScreenModesTest, SplitScreenMeasuresTheWindowAndTextScreenTheScreen) {
  controls.Form1.SetHeight(9000);
  Execute("FS");
  EXPECT_EQ(System.Picture1.Height(), 9000);
  Execute("SS");
  EXPECT_EQ(System.Picture1.Height(), 9000 - 1935);
  Execute("TS");
  EXPECT_EQ(System.Picture1.Height(), Split);
}

TEST_F(ScreenModesTest, FullScreenStretchesTheTitlePictureAndSplitScreenLeavesIt) {
  Execute("FS");
  EXPECT_EQ(controls.Image1.Height(), Full);
  Execute("SS");
  EXPECT_EQ(controls.Image1.Height(), Full);
}

TEST_F(ScreenModesTest, FullScreenTakesTheFocusFromTheRows) {
  Execute("FS");
  EXPECT_EQ(Focus(), "");
}

TEST_F(ScreenModesTest, SplitScreenGivesTheFocusToTheTopmostEmptyRow) {
  for (int row = 0; row < 5; ++row) controls.Text1[row].Text = "X";
  controls.Text1[1].Text = " ";
  controls.Text1[3].Text = "";
  Execute("SS");
  EXPECT_EQ(Focus(), "Text1(1)");
}

TEST_F(ScreenModesTest, SplitScreenWithAllRowsFilledLeavesTheFocus) {
  for (int row = 0; row < 5; ++row) controls.Text1[row].Text = "X";
  controls.Focus.SetFocus(controls.Text1[3]);
  Execute("SS");
  EXPECT_EQ(Focus(), "Text1(3)");
}

TEST_F(ScreenModesTest, TextScreenTellsTheProceduresAnewEachTime) {
  Fill({"TO BOX :S", "END", "TO STAR", "END"});
  System.interpreter.store.ProcedureList();
  Execute("TS");
  Execute("TS");
  EXPECT_EQ(controls.List4.Items(), (Texts{"BOX is Defined", "STAR is Defined", "BOX is Defined", "STAR is Defined"}));
  EXPECT_TRUE(controls.List3.Items().empty());
}

TEST_F(ScreenModesTest, TheNextTypedLineListsTheProceduresAgain) {
  Fill({"TO BOX :S", "END"});
  Execute("TS");
  Execute("SHOW DIA");
  EXPECT_TRUE(controls.List3.Items().empty());
  Type("RT 0");
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO BOX :S"}));
}

TEST_F(ScreenModesTest, AFoldListsTheProceduresAgain) {
  controls.Text2.Text = "TO BOX :S\r\nEND";
  Press(controls.Text2, key::F2);
  Press(controls.Text1[0], key::F3);
  EXPECT_TRUE(controls.List3.Items().empty());
  Press(controls.Text2, key::F2);
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO BOX :S"}));
}

TEST_F(ScreenModesTest, ALoadListsTheProceduresAgain) {
  folder.Write("STAR.ZRM", "TO STAR\r\nEND\r\n");
  Fill({"TO BOX", "END"});
  Execute("TS");
  EXPECT_TRUE(controls.List3.Items().empty());
  Execute("LOAD STAR");
  EXPECT_EQ(controls.List3.Items(), (Texts{"TO BOX", "TO STAR"}));
}

TEST_F(ScreenModesTest, TextScreenTypedInALineListsNoTemporaryProcedure) {
  Fill({"TO BOX", "END"});
  Type("TS");
  EXPECT_EQ(controls.List4.Items(), (Texts{"?TS", "BOX is Defined"}));
}

TEST_F(ScreenModesTest, ClearTextEmptiesHistoryAndRowsAndCallsTheOneShot) {
  Type("FD 1", 0);
  controls.Text1[3].Text = "X";
  Execute("CT");
  EXPECT_TRUE(controls.List4.Items().empty());
  for (int row = 0; row < 5; ++row) EXPECT_EQ(controls.Text1[row].Text, "");
  EXPECT_TRUE(controls.Timer2.Enabled);
}

TEST_F(ScreenModesTest, GridGivenTwiceChangesNothing) {
  for (int time = 0; time < 2; ++time) {
    Execute("SHOW GRID");
    EXPECT_TRUE(controls.Line5.Visible());
    EXPECT_TRUE(controls.Line6.Visible());
    EXPECT_FALSE(System.graphics.palette.CoordinatesOn);
  }
}

TEST_F(ScreenModesTest, HideEndsPanelsClockDetailsAndAxes) {
  Execute("SHOW DIA");
  Execute("SHOW PAL");
  Execute("SHOW GRID");
  Execute("SHOW DETAILS");
  Execute("SHOW TIME");
  controls.Check1.Value = true;
  controls.RichTextBox1.Show();
  Execute("HIDE");
  EXPECT_FALSE(controls.Frame1.Visible());
  EXPECT_FALSE(controls.Picture2.Visible());
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_FALSE(controls.Line6.Visible());
  EXPECT_FALSE(controls.Timer4.Enabled);
  EXPECT_FALSE(System.interpreter.dispatch.DetailsOn);
  EXPECT_EQ(controls.Form1.Caption(), "Zerimo");
  EXPECT_TRUE(controls.Picture3.Visible());
  EXPECT_TRUE(controls.RichTextBox1.Visible());
  EXPECT_TRUE(controls.Image1.Visible());
  EXPECT_TRUE(controls.Check1.Value);
}

TEST_F(ScreenModesTest, HideLeavesARunningSlideShow) {
  controls.Timer3.Enabled = true;
  Execute("HIDE");
  EXPECT_TRUE(controls.Timer3.Enabled);
}

TEST_F(ScreenModesTest, ShowOpensThePanels) {
  for (const char* line : {"SHOW DIA", "SHOW DIAGNOSIS"}) {
    controls.Frame1.Hide();
    Execute(line);
    EXPECT_TRUE(controls.Frame1.Visible()) << line;
  }
  for (const char* line : {"SHOW PAL", "SHOW PALLETE"}) {
    controls.Picture2.Hide();
    Execute(line);
    EXPECT_TRUE(controls.Picture2.Visible()) << line;
  }
}

TEST_F(ScreenModesTest, ShowTakesItsWordInSmallLetters) {
  Execute("SHOW grid");
  EXPECT_TRUE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Line6.Visible());
  Execute("SHOW grid");
  EXPECT_TRUE(controls.Line5.Visible());
  Execute("show PAL");
  EXPECT_FALSE(controls.Picture2.Visible());
}

TEST_F(ScreenModesTest, ShowOfAnUnknownWordOrOfNoneDoesNothing) {
  const auto before = EveryProperty();
  for (const char* line : {"SHOW XYZ", "SHOW", "SHOW DI", "SHOW DIA NOW", "SHOW PALETTE", "SHOW \"DIA\""})
    Execute(line);
  EXPECT_EQ(EveryProperty(), before);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_TRUE(services.Dialogs.empty());
  EXPECT_FALSE(System.interpreter.dispatch.DetailsOn);
}

TEST_F(ScreenModesTest, HideEndsTheClockThatShowTimeStarted) {
  Type("SHOW TIME");
  EXPECT_TRUE(controls.Timer4.Enabled);
  System.Tick(controls.Timer4);
  ASSERT_EQ(controls.Form1.Caption(), "Zerimo [ Time:12:34 ]");
  Type("HIDE");
  EXPECT_FALSE(controls.Timer4.Enabled);
  EXPECT_EQ(controls.Form1.Caption(), "Zerimo");
}

TEST_F(ScreenModesTest, ShowGridLeavesTheCheckMark) {
  Execute("SHOW GRID");
  EXPECT_TRUE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Line6.Visible());
  EXPECT_FALSE(controls.Check1.Value);
  EXPECT_FALSE(System.graphics.palette.CoordinatesOn);
}

TEST_F(ScreenModesTest, HideLeavesTheCheckMarkAndItsFlag) {
  System.Click(controls.Check1);
  Execute("HIDE");
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Check1.Value);
  EXPECT_TRUE(System.graphics.palette.CoordinatesOn);
}

TEST_F(ScreenModesTest, HideLeavesTheTextScreenTheEditorAndTheRows) {
  Execute("TS");
  Execute("HIDE");
  EXPECT_TRUE(controls.List4.Visible());
  EXPECT_TRUE(controls.Picture3.Visible());
  Execute("EDIT");
  Execute("HIDE");
  EXPECT_TRUE(controls.Text2.Visible());
}

TEST_F(ScreenModesTest, AModeRepeatedSetsTheSameAgain) {
  for (const char* line : {"FS", "SS", "EDIT", "HIDE"}) {
    Execute(line);
    const auto once = EveryProperty();
    Execute(line);
    EXPECT_EQ(EveryProperty(), once) << line;
  }
}

TEST_F(ScreenModesTest, LongNamesWorkOnlyWhereTheyAreNotTyped) {
  const auto before = System.Picture1.Height();
  Type("FULLSCREEN");
  EXPECT_EQ(System.Picture1.Height(), before);
  Execute("FULLSCREEN");
  EXPECT_EQ(System.Picture1.Height(), Full);
  Type("FD 1");
  Execute("CLEARTEXT");
  EXPECT_TRUE(controls.List4.Items().empty());
}

TEST_F(ScreenModesTest, ModesTakeNoSmallLettersAndNoInputs) {
  const auto before = EveryProperty();
  for (const char* line : {"fs", "Fs", "FS 1", "ts", "CT 1", "SS X"}) Execute(line);
  EXPECT_EQ(EveryProperty(), before);
}

TEST_F(ScreenModesTest, ModesWorkInAProcedure) {
  Fill({"TO A", "FS", "TS", "END"});
  Type("A");
  EXPECT_FALSE(controls.Picture3.Visible());
  EXPECT_TRUE(controls.List4.Visible());
  EXPECT_EQ(System.Picture1.Height(), Split);
}

TEST_F(ScreenModesTest, ShowDetailsStopsTheClock) {
  Execute("SHOW TIME");
  EXPECT_TRUE(controls.Timer4.Enabled);
  Execute("SHOW DETAILS");
  EXPECT_FALSE(controls.Timer4.Enabled);
  EXPECT_TRUE(System.interpreter.dispatch.DetailsOn);
  Execute("SHOW TIME");
  EXPECT_TRUE(System.interpreter.dispatch.DetailsOn);
}

TEST_F(ScreenModesTest, ShowDeveloperTellsTheTeam) {
  for (const char* line : {"SHOW DEVELOPER", "SHOW DEVELOPERS"}) {
    services.Boxes.clear();
    Execute(line);
    ASSERT_EQ(services.Boxes.size(), 1U);
    EXPECT_EQ(
        services.Boxes[0],
        (ShownBox{"This Product is Developed by\r----------------------------------\r*Mr. Dorrin Pask\r*Mr. Hadric "
                  "Moll\r*Mr. Ostrane Velk\r*Mr. Ilmar Tessen",
                  64, "Zerimo Team"}));
  }
}

TEST_F(ScreenModesTest, ShowProcedureListsTheUsersProcedures) {
  Fill({"TO SQUARE", "END", "TO STAR :N", "END"});
  Type("SHOW PROCEDURE");
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"[SQUARE]   [STAR :N]   ", 0, ""}));
}

TEST_F(ScreenModesTest, ShowOpenAndSaveAsAskTheDialogs) {
  Execute("SHOW OPEN");
  Execute("SHOW SAVEAS");
  EXPECT_EQ(services.Dialogs, (Texts{"open", "save Zerimo File(.ZRM)"}));
}

TEST_F(ScreenModesTest, ModesLeaveTheTurtle) {
  Execute("FD 10");
  const double y = System.turtle.TurtleY;
  for (const char* line : {"FS", "SS", "TS"}) Execute(line);
  EXPECT_EQ(System.turtle.TurtleY, y);
}

TEST_F(ScreenModesTest, HelpViewKeepsItsPlaceInEveryMode) {
  const float height = controls.RichTextBox1.Height();
  Execute("FS");
  EXPECT_EQ(controls.RichTextBox1.Height(), height);
}

TEST_F(ScreenModesTest, TheTextScreenNamesTheLearnersProceduresAndEmptiesList3) {
  Store& store = System.interpreter.store;
  System.controls.List3.Add("TO OLD");
  store.SetLine(1, "TO BOX :S");
  store.SetLine(2, "END");
  store.SetLine(3, "TO #TEMP$1");
  store.SetLine(4, "TS");
  store.SetLine(5, "END");
  Execute("TS");
  EXPECT_TRUE(System.controls.List3.Items().empty());
  EXPECT_EQ(System.controls.List4.Items(), Texts{"BOX is Defined"});
  EXPECT_EQ(store.Line(1), "TO BOX :S ");
}

TEST_F(ScreenModesTest, TheTextScreenLeavesOutNamesWithADollar) {
  System.interpreter.store.SetLine(1, "TO A$B");
  System.interpreter.store.SetLine(2, "TO A#B");
  System.interpreter.store.SetLine(3, "TO AB :N$");
  Execute("TS");
  EXPECT_EQ(System.controls.List4.Items(), Texts{"AB is Defined"});
}

TEST_F(ScreenModesTest, TheTextScreenNamesAllProceduresOfAFullStore) {
  for (int number = 1; number <= Store::LineCount; ++number) System.interpreter.store.SetLine(number, "TO BOX");
  Execute("TS");
  EXPECT_EQ(System.controls.List4.Items().size(), static_cast<std::size_t>(Store::LineCount));
  EXPECT_TRUE(System.controls.List4.Visible());
}

}  // namespace
}  // namespace zerimo
