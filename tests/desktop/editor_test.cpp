#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class EditorTest : public DesktopTest {
 protected:
  EditorTest() { Press(Qt::Key_F1); }

  void TypeLines(std::initializer_list<const char*> lines) {
    const char* between = "";
    for (const char* line : lines) {
      if (*between != '\0') Press(Qt::Key_Return);
      Type(line);
      between = "\n";
    }
  }
  void Reopen() {
    LeaveEditor();
    ASSERT_FALSE(Editor().isVisible());
    Press(Qt::Key_F1);
    ASSERT_EQ(Focused(), &Editor());
  }
  void Undo() { Press(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  std::string ShownText() { return Editor().toPlainText().toStdString(); }
};

TEST_F(EditorTest, ItCoversTheWindowButForAStrip) {
  EXPECT_EQ(Editor().geometry(), QRect(0, 0, 1024, 741));
  EXPECT_EQ(Editor().palette().color(QPalette::Base), QColor(0, 0, 255));
  EXPECT_EQ(Editor().palette().color(QPalette::Text), QColor(255, 255, 255));
  EXPECT_EQ(Editor().font().pixelSize(), 19);
}

TEST_F(EditorTest, TheSystemsLinesEndWithCarriageReturnAndLineFeed) {
  TypeLines({"to a", "fd 10", "end"});
  Press(Qt::Key_F3);
  EXPECT_EQ(FormControls().Text2.Text, "to a\r\nfd 10\r\nend");
}

TEST_F(EditorTest, TheArrowsAndEnterKeepTheirOwnWork) {
  TypeLines({"ab", "cd"});
  Press(Qt::Key_Up);
  Type("x");
  EXPECT_EQ(ShownText(), "abx\ncd");
}

TEST_F(EditorTest, TheFoldShowsTheTextInCapitalsAndTidied) {
  TypeLines({"to square", "  fd 10", "end"});
  Press(Qt::Key_F2);
  EXPECT_EQ(ShownText(), "TO SQUARE\n FD 10\nEND");
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO SQUARE"});
}

TEST_F(EditorTest, TheFoldIsOneStepThatCanBeUndone) {
  TypeLines({"to a", "fd 10", "end"});
  Press(Qt::Key_F2);
  Press(Qt::Key_F1);
  Undo();
  EXPECT_EQ(ShownText(), "to a\nfd 10\nend");
  Redo();
  EXPECT_EQ(ShownText(), "TO A\nFD 10\nEND");
}

TEST_F(EditorTest, TheCaretStaysWhereItWasWhenTheLearnerComesBack) {
  TypeLines({"to a", "fd 10", "end"});
  Press(Qt::Key_Up);
  Press(Qt::Key_Home);
  Press(Qt::Key_F2);
  Press(Qt::Key_F1);
  EXPECT_EQ(Editor().textCursor().blockNumber(), 1);
  EXPECT_EQ(Editor().textCursor().positionInBlock(), 0);
}

TEST_F(EditorTest, UndoSurvivesLeavingAndComingBack) {
  Type("ab");
  Reopen();
  Undo();
  EXPECT_EQ(ShownText(), "");
  Redo();
  EXPECT_EQ(ShownText(), "ab");
}

TEST_F(EditorTest, AnUndoneTextReachesTheSystem) {
  Type("ab");
  Reopen();
  Undo();
  Press(Qt::Key_F3);
  EXPECT_EQ(FormControls().Text2.Text, "");
}

TEST_F(EditorTest, ALoadedFileIsOneStepThatCanBeUndone) {
  WriteFile("A.ZRM", "TO A\r\nEND\r\n");
  Type("REM ");
  AnswerNextBox({Qt::Key_Return}, "A");
  Press(Qt::Key_F9);
  ASSERT_EQ(ShownText(), "REM TO A\nEND\n");
  Undo();
  EXPECT_EQ(ShownText(), "REM ");
}

TEST_F(EditorTest, ALoadedFileKeepsItsBytesAsLongAsNobodyTypes) {
  const std::string bytes = "TO A\nFD 10\r\rEND\r\n\t\xA0\xFF";
  WriteFile("A.ZRM", bytes);
  AnswerNextBox({Qt::Key_Return}, "A");
  Press(Qt::Key_F9);
  Reopen();
  EXPECT_EQ(FormControls().Text2.Text, bytes);
}

TEST_F(EditorTest, AHardBlankStaysOneWhenTheTextIsEdited) {
  FormControls().Text2.Text = "A\xA0";
  LeaveEditor();
  Press(Qt::Key_F1);
  Type("B");
  Press(Qt::Key_F3);
  EXPECT_EQ(FormControls().Text2.Text, "BA\xA0");
}

TEST_F(EditorTest, TheTabKeyPutsBlanksIn) {
  Press(Qt::Key_Tab);
  Type("FD");
  EXPECT_EQ(ShownText(), "  FD");
}

TEST_F(EditorTest, ACharacterThatTheSystemDoesNotHaveBecomesAQuestionMark) {
  QApplication::clipboard()->setText(QString::fromUtf8("\xE2\x82\xAC\xC3\xA4"));
  Editor().paste();
  Press(Qt::Key_F3);
  EXPECT_EQ(FormControls().Text2.Text, "?\xE4");
}

TEST_F(EditorTest, PastedLinesKeepTheirEnds) {
  QApplication::clipboard()->setText("TO A\nEND");
  Editor().paste();
  Press(Qt::Key_F3);
  EXPECT_EQ(FormControls().Text2.Text, "TO A\r\nEND");
}

TEST_F(EditorTest, LinesOfEveryEndCanBePasted) {
  QApplication::clipboard()->setText("TO A\r\nFD 1\rRT 2\nEND");
  Editor().paste();
  EXPECT_EQ(ShownText(), "TO A\nFD 1\nRT 2\nEND");
}

TEST_F(EditorTest, APastedTabBecomesBlanks) {
  QApplication::clipboard()->setText("TO A\n\tFD\t10\nEND");
  Editor().paste();
  EXPECT_EQ(ShownText(), "TO A\n  FD  10\nEND");
}

TEST_F(EditorTest, F10SavesUnderTheNameTyped) {
  TypeLines({"to a", "end"});
  AnswerNextBox({Qt::Key_Return}, "Mine");
  Press(Qt::Key_F10);
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Save As");
  EXPECT_EQ(ReadFile("Mine.ZRM"), "to a\r\nend\r\n");
  EXPECT_EQ(Focused(), &Editor());
}

TEST_F(EditorTest, TheSaveBoxOffersTheNameLoadedLast) {
  WriteFile("A.ZRM", "TO A\r\n");
  LeaveEditor();
  Enter("load a");
  Press(Qt::Key_F1);
  AnswerNextBox({Qt::Key_Return});
  Press(Qt::Key_F10);
  EXPECT_EQ(ReadFile("A.ZRM"), "TO A\r\n\r\n");
}

TEST_F(EditorTest, ThousandsOfLinesAreShownAndFoldedPromptly) {
  std::string text;
  for (int line = 0; line < 1900; ++line) text += "FD 10\r\n";
  FormControls().Text2.Text = text;
  Press(Qt::Key_F3);
  EXPECT_EQ(Editor().document()->blockCount(), 1901);
}

TEST_F(EditorTest, EscapeAndF1DoNothing) {
  Press(Qt::Key_Escape);
  Press(Qt::Key_F1);
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_EQ(Focused(), &Editor());
}

}  // namespace
}  // namespace zerimo
