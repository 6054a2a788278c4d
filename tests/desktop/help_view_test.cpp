#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QListWidget>
#include <QTest>
#include <QTextEdit>

#include "desktop/desktop_fixture.h"
#include "files/rich_text.h"

namespace zerimo {
namespace {

class HelpViewTest : public DesktopTest {
 protected:
  HelpViewTest() {
    WriteFile("ZMHELP/HELP", "{\\rtf1\\ansi Welcome to \\b Zerimo\\b0\\par Second line\\par}");
    WriteFile("ZMHELP/FD", "FD moves the turtle.\r\n");
    WriteFile("ZMHELP/RT", "RT turns it.\r\n");
  }
  QTextEdit& Page() { return WidgetAs<QTextEdit>(FormControls().RichTextBox1); }
  QListWidget& List() { return WidgetAs<QListWidget>(FormControls().File1); }
  void PressEntry(int index, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(List().viewport(), button, {}, List().visualItemRect(List().item(index)).center());
  }
};

TEST_F(HelpViewTest, HelpShowsTheListAndTheGeneralPage) {
  Enter("help");
  EXPECT_TRUE(List().isVisible());
  ASSERT_EQ(List().count(), 3);
  EXPECT_EQ(List().item(0)->text(), "FD");
  EXPECT_TRUE(Page().toPlainText().startsWith("Welcome to Zerimo\nSecond line"));
}

TEST_F(HelpViewTest, TheListStandsOnTheLeftAndThePageOnTheRight) {
  Enter("help");
  EXPECT_EQ(List().x(), 0);
  EXPECT_EQ(Page().x(), List().width());
  EXPECT_EQ(Page().geometry().right(), 1023);
}

TEST_F(HelpViewTest, TheRowsStayInSightAndUsable) {
  Enter("help");
  EXPECT_FALSE(Page().geometry().intersects(WidgetOf(FormControls().Picture3).geometry()));
  Enter("help fd");
  EXPECT_EQ(Page().toPlainText().trimmed(), "FD moves the turtle.");
}

TEST_F(HelpViewTest, AMissingPageIsReportedInABox) {
  AnswerNextBox({Qt::Key_Return});
  Enter("help xyz");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "Help is not available for XYZ");
  EXPECT_FALSE(Page().isVisible());
}

TEST_F(HelpViewTest, APressOnANameShowsItsPage) {
  Enter("help");
  PressEntry(2);
  EXPECT_EQ(Page().toPlainText().trimmed(), "RT turns it.");
  PressEntry(0, Qt::RightButton);
  EXPECT_EQ(Page().toPlainText().trimmed(), "FD moves the turtle.");
}

TEST_F(HelpViewTest, APressBelowTheLastNameTakesTheLast) {
  Enter("help");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, {20, 400});
  EXPECT_EQ(Page().toPlainText().trimmed(), "RT turns it.");
}

TEST_F(HelpViewTest, TheKeyboardChoosesAPage) {
  Enter("help");
  List().setFocus();
  Press(Qt::Key_Home);
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  EXPECT_EQ(Page().toPlainText().trimmed(), "RT turns it.");
}

TEST_F(HelpViewTest, EscapeClosesItFromEverywhere) {
  Enter("help");
  List().setFocus();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(List().isVisible());
  Row(1).setFocus();
  Enter("help");
  Page().setFocus();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Page().isVisible());
  Row(2).setFocus();
  Enter("help");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Page().isVisible());
}

TEST_F(HelpViewTest, AVanishedPageEndsTheProgram) {
  Enter("help");
  QFile::remove(folder.filePath("ZMHELP/RT"));
  AnswerNextBox({Qt::Key_Return});
  PressEntry(2);
  EXPECT_EQ(session->ExitStatus(), 2);
}

TEST_F(HelpViewTest, APageEditedInTheViewIsSavedAsItStands) {
  Enter("help");
  Page().setFocus();
  Page().moveCursor(QTextCursor::Start);
  Type("New: ");
  AnswerNextBox({Qt::Key_Return}, "MINE");
  Press(Qt::Key_F11);
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Save for Help");
  EXPECT_EQ(Boxes[0].Text, "Enter the file name");
  const RichText saved = ReadRtf(ReadFile("MINE"));
  ASSERT_GE(saved.Paragraphs.size(), 2u);
  ASSERT_EQ(saved.Paragraphs[0].Runs.size(), 2u);
  EXPECT_EQ(saved.Paragraphs[0].Runs[0].Text, "New: Welcome to ");
  EXPECT_EQ(saved.Paragraphs[0].Runs[1].Text, "Zerimo");
  EXPECT_TRUE(saved.Paragraphs[0].Runs[1].Form.Bold);
}

TEST_F(HelpViewTest, AnEmptyClipboardPastesNothing) {
  QApplication::clipboard()->clear();
  Enter("help fd");
  Page().setFocus();
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Page().toPlainText().trimmed(), "FD moves the turtle.");
}

TEST_F(HelpViewTest, PastedTextStandsWhereTheCaretIs) {
  QApplication::clipboard()->setText("Note: ");
  Enter("help fd");
  Page().setFocus();
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Page().toPlainText().trimmed(), "Note: FD moves the turtle.");
}

TEST_F(HelpViewTest, ASaveWithoutANameEndsTheProgram) {
  Enter("help");
  Page().setFocus();
  AnswerNextBox({Qt::Key_Escape});
  AnswerNextBox({Qt::Key_Return});
  Press(Qt::Key_F11);
  EXPECT_EQ(session->ExitStatus(), 2);
}

}  // namespace
}  // namespace zerimo
