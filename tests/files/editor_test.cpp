#include "files/editor.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class EditorTest : public FilesTest {
 protected:
  void Write(const std::string& text) { controls.Text2.Text = text; }
};

TEST_F(EditorTest, EditShowsTheEditor) {
  controls.List4.Show();
  dispatch.Execute("EDIT");
  EXPECT_FALSE(controls.List4.Visible());
  EXPECT_TRUE(controls.Text2.Visible());
  EXPECT_FALSE(controls.Picture3.Visible());
  EXPECT_EQ(controls.Focus.Focus(), &controls.Text2);
}

TEST_F(EditorTest, EditTwiceHasNoFurtherEffect) {
  Write("FD 10");
  dispatch.Execute("EDIT");
  dispatch.Execute("EDIT");
  EXPECT_TRUE(controls.Text2.Visible());
  EXPECT_EQ(controls.Focus.Focus(), &controls.Text2);
  EXPECT_EQ(controls.Text2.Text, "FD 10");
}

TEST_F(EditorTest, EditIsAWholeLineInCapitals) {
  for (const char* line : {"edit", "EDIT BOX"}) {
    dispatch.Execute(line);
    EXPECT_FALSE(controls.Text2.Visible()) << line;
  }
}

TEST_F(EditorTest, TheFoldFillsTheStore) {
  Write("to square\r\n  fd 10\r\nend");
  editor.Fold();
  EXPECT_EQ(Program(), (Texts{"TO SQUARE", "FD 10", "END"}));
}

TEST_F(EditorTest, TheFoldTidiesTheText) {
  Write("to square\r\n  fd 10\r\nend");
  editor.Fold();
  EXPECT_EQ(controls.Text2.Text, "TO SQUARE\r\n FD 10\r\nEND");
}

TEST_F(EditorTest, TheFoldGoesToTheSplitScreenFirst) {
  Write("fd 10");
  editor.Fold();
  EXPECT_EQ(SplitScreens, 1);
  EXPECT_EQ(TextAtSplitScreen, "fd 10");
}

TEST_F(EditorTest, TheFoldTrimsOnlyTheTwoEndsOfTheText) {
  Write("  fd 10  \r\nbk 10  ");
  editor.Fold();
  EXPECT_EQ(controls.Text2.Text, "FD 10 \r\nBK 10");
}

TEST_F(EditorTest, TheFoldReplacesTheStore) {
  Fill({"TO OLD", "END"});
  Write("TO NEW\r\nEND");
  editor.Fold();
  EXPECT_EQ(Program(), (Texts{"TO NEW", "END"}));
}

TEST_F(EditorTest, AnEmptyEditorFoldsToAnEmptyStore) {
  Fill({"TO OLD", "END"});
  controls.List1.Add("FORMER");
  controls.List3.Add("FORMER");
  editor.Fold();
  EXPECT_EQ(Program(), Texts{});
  EXPECT_TRUE(Listed(controls.List1).empty());
  EXPECT_TRUE(Listed(controls.List3).empty());
}

TEST_F(EditorTest, BlankLinesStayInTheEditorAlone) {
  Write("FD 1\r\n\r\n\r\nFD 2");
  editor.Fold();
  EXPECT_EQ(Program(), (Texts{"FD 1", "FD 2"}));
  EXPECT_EQ(controls.Text2.Text, "FD 1\r\n\r\n\r\nFD 2");
}

TEST_F(EditorTest, ALineOfBlanksEndsTheProgram) {
  Write("FD 1\r\n   \r\nFD 3");
  editor.Fold();
  EXPECT_EQ(controls.Text2.Text, "FD 1\r\n \r\nFD 3");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(store.Line(2), "");
  EXPECT_EQ(store.Line(3), "FD 3");
}

TEST_F(EditorTest, TheFoldListsTheStore) {
  Write("TO BOX\r\n FD 1\r\nEND");
  editor.Fold();
  EXPECT_EQ(Listed(controls.List1), (Texts{" 1  TO BOX", " 2  FD 1", " 3  END"}));
  EXPECT_EQ(Listed(controls.List3), (Texts{"TO BOX"}));
}

TEST_F(EditorTest, TheFoldLowersRepeats) {
  Write("repeat 2 [ fd 1 ]");
  editor.Fold();
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(EditorTest, TheFoldMakesNoGlobals) {
  Write("MAKE \"A 5\r\nTO BOX\r\nEND");
  editor.Fold();
  EXPECT_EQ(variables.Slot(1), "");
}

TEST_F(EditorTest, TheFoldLeavesTheCountAlone) {
  store.FileDataCount = 7;
  Write("FD 1\r\nFD 2");
  editor.Fold();
  EXPECT_EQ(store.FileDataCount, 7);
}

TEST_F(EditorTest, AStaleLineGetsTheTextJoined) {
  Fill({"TO OLD"});
  Fill({"STALE"}, 3);
  Write("FD 1\r\nFD 2\r\n; ");
  editor.Fold();
  EXPECT_EQ(store.Line(3), "STALE;");
}

TEST_F(EditorTest, ACarriageReturnAtTheBeginningDoesNotCount) {
  Write("\r\nFD 1");
  editor.FillFiledataArrayFromEdit();
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(EditorTest, A1999LineProgramFolds) {
  std::string text;
  for (int i = 0; i < 1999; ++i) text += "FD 1\r\n";
  Write(text);
  editor.Fold();
  EXPECT_EQ(Program().size(), 1999U);
}

TEST_F(EditorTest, MoreThan2000LinesFail) {
  std::string text;
  for (int i = 0; i < 2001; ++i) text += "FD 1\r\n";
  Write(text);
  controls.List1.Add("FORMER");
  EXPECT_EQ(FailureOf([&] { editor.Fold(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(store.Line(2000), "FD 1");
  EXPECT_EQ(Listed(controls.List1), (Texts{"FORMER"}));
}

TEST_F(EditorTest, ATextOf32766CharactersFolds) {
  Write(std::string(32766, 'a'));
  editor.Fold();
  EXPECT_EQ(store.Line(1), std::string(32766, 'A'));
}

TEST_F(EditorTest, ATextOf32767CharactersFailsAndLeavesTheStore) {
  Fill({"TO OLD", "END"});
  Write(std::string(32767, 'a'));
  EXPECT_EQ(FailureOf([&] { editor.Fold(); }), FailureKind::Overflow);
  EXPECT_EQ(SplitScreens, 1);
  EXPECT_EQ(controls.Text2.Text, std::string(32767, 'A'));
  EXPECT_EQ(Program(), (Texts{"TO OLD", "END"}));
}

}  // namespace
}  // namespace zerimo
