#include "files/editor.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class EditorTest : public FilesTest {
 protected:
  void Write(const std::string& text) { Controls.Text2.Text = text; }
};

TEST_F(EditorTest, EditShowsTheEditor) {
  Controls.List4.Show();
  Primitives.Execute("EDIT");
  EXPECT_FALSE(Controls.List4.Visible());
  EXPECT_TRUE(Controls.Text2.Visible());
  EXPECT_FALSE(Controls.Picture3.Visible());
  EXPECT_EQ(Controls.Focus.Focus(), &Controls.Text2);
}

TEST_F(EditorTest, EditTwiceHasNoFurtherEffect) {
  Write("FD 10");
  Primitives.Execute("EDIT");
  Primitives.Execute("EDIT");
  EXPECT_TRUE(Controls.Text2.Visible());
  EXPECT_EQ(Controls.Focus.Focus(), &Controls.Text2);
  EXPECT_EQ(Controls.Text2.Text, "FD 10");
}

TEST_F(EditorTest, EditIsAWholeLineInCapitals) {
  for (const char* line : {"edit", "EDIT BOX"}) {
    Primitives.Execute(line);
    EXPECT_FALSE(Controls.Text2.Visible()) << line;
  }
}

TEST_F(EditorTest, TheFoldFillsTheStore) {
  Write("to square\r\n  fd 10\r\nend");
  Edit.Fold();
  EXPECT_EQ(Program(), (Texts{"TO SQUARE", "FD 10", "END"}));
}

TEST_F(EditorTest, TheFoldTidiesTheText) {
  Write("to square\r\n  fd 10\r\nend");
  Edit.Fold();
  EXPECT_EQ(Controls.Text2.Text, "TO SQUARE\r\n FD 10\r\nEND");
}

TEST_F(EditorTest, TheFoldGoesToTheSplitScreenFirst) {
  Write("fd 10");
  Edit.Fold();
  EXPECT_EQ(SplitScreens, 1);
  EXPECT_EQ(TextAtSplitScreen, "fd 10");
}

TEST_F(EditorTest, TheFoldTrimsOnlyTheTwoEndsOfTheText) {
  Write("  fd 10  \r\nbk 10  ");
  Edit.Fold();
  EXPECT_EQ(Controls.Text2.Text, "FD 10 \r\nBK 10");
}

TEST_F(EditorTest, TheFoldReplacesTheStore) {
  Fill({"TO OLD", "END"});
  Write("TO NEW\r\nEND");
  Edit.Fold();
  EXPECT_EQ(Program(), (Texts{"TO NEW", "END"}));
}

TEST_F(EditorTest, AnEmptyEditorFoldsToAnEmptyStore) {
  Fill({"TO OLD", "END"});
  Controls.List1.Add("FORMER");
  Controls.List3.Add("FORMER");
  Edit.Fold();
  EXPECT_EQ(Program(), Texts{});
  EXPECT_TRUE(Listed(Controls.List1).empty());
  EXPECT_TRUE(Listed(Controls.List3).empty());
}

TEST_F(EditorTest, BlankLinesStayInTheEditorAlone) {
  Write("FD 1\r\n\r\n\r\nFD 2");
  Edit.Fold();
  EXPECT_EQ(Program(), (Texts{"FD 1", "FD 2"}));
  EXPECT_EQ(Controls.Text2.Text, "FD 1\r\n\r\n\r\nFD 2");
}

TEST_F(EditorTest, ALineOfBlanksEndsTheProgram) {
  Write("FD 1\r\n   \r\nFD 3");
  Edit.Fold();
  EXPECT_EQ(Controls.Text2.Text, "FD 1\r\n \r\nFD 3");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Store.Line(2), "");
  EXPECT_EQ(Store.Line(3), "FD 3");
}

TEST_F(EditorTest, TheFoldListsTheStore) {
  Write("TO BOX\r\n FD 1\r\nEND");
  Edit.Fold();
  EXPECT_EQ(Listed(Controls.List1), (Texts{" 1  TO BOX", " 2  FD 1", " 3  END"}));
  EXPECT_EQ(Listed(Controls.List3), (Texts{"TO BOX"}));
}

TEST_F(EditorTest, TheFoldLowersRepeats) {
  Write("repeat 2 [ fd 1 ]");
  Edit.Fold();
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(EditorTest, TheFoldMakesNoGlobals) {
  Write("MAKE \"A 5\r\nTO BOX\r\nEND");
  Edit.Fold();
  EXPECT_EQ(Names.Slot(1), "");
}

TEST_F(EditorTest, TheFoldLeavesTheCountAlone) {
  Store.FileDataCount = 7;
  Write("FD 1\r\nFD 2");
  Edit.Fold();
  EXPECT_EQ(Store.FileDataCount, 7);
}

TEST_F(EditorTest, AStaleLineGetsTheTextJoined) {
  Fill({"TO OLD"});
  Fill({"STALE"}, 3);
  Write("FD 1\r\nFD 2\r\n; ");
  Edit.Fold();
  EXPECT_EQ(Store.Line(3), "STALE;");
}

TEST_F(EditorTest, ACarriageReturnAtTheBeginningDoesNotCount) {
  Write("\r\nFD 1");
  Edit.FillFiledataArrayFromEdit();
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(EditorTest, A1999LineProgramFolds) {
  std::string text;
  for (int i = 0; i < 1999; ++i) text += "FD 1\r\n";
  Write(text);
  Edit.Fold();
  EXPECT_EQ(Program().size(), 1999U);
}

TEST_F(EditorTest, MoreThan2000LinesFail) {
  std::string text;
  for (int i = 0; i < 2001; ++i) text += "FD 1\r\n";
  Write(text);
  Controls.List1.Add("FORMER");
  EXPECT_EQ(FailureOf([&] { Edit.Fold(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Store.Line(2000), "FD 1");
  EXPECT_EQ(Listed(Controls.List1), (Texts{"FORMER"}));
}

TEST_F(EditorTest, ATextOf32766CharactersFolds) {
  Write(std::string(32766, 'a'));
  Edit.Fold();
  EXPECT_EQ(Store.Line(1), std::string(32766, 'A'));
}

TEST_F(EditorTest, ATextOf32767CharactersFailsAndLeavesTheStore) {
  Fill({"TO OLD", "END"});
  Write(std::string(32767, 'a'));
  EXPECT_EQ(FailureOf([&] { Edit.Fold(); }), FailureKind::Overflow);
  EXPECT_EQ(SplitScreens, 1);
  EXPECT_EQ(Controls.Text2.Text, std::string(32767, 'A'));
  EXPECT_EQ(Program(), (Texts{"TO OLD", "END"}));
}

}  // namespace
}  // namespace zerimo
