#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

using RowsTest = DesktopTest;
using Texts = std::vector<std::string>;

TEST_F(RowsTest, TheFirstRowHasTheFocusAfterTheStart) { EXPECT_EQ(Focused(), &Row(0)); }

TEST_F(RowsTest, ALineTypedWithKeysRuns) {
  const double start = session->form1.turtle.TurtleY;
  Enter("fd   10");
  EXPECT_EQ(FormControls().List4.Items(), Texts{"?FD 10"});
  EXPECT_EQ(session->form1.turtle.TurtleY, start - 500);
}

TEST_F(RowsTest, EnterGivesTheFocusToTheNextRowAndKeepsTheText) {
  Enter("fd   10");
  EXPECT_EQ(Focused(), &Row(1));
  EXPECT_EQ(Row(0).text(), "fd   10");
}

TEST_F(RowsTest, TheEnterKeyOfTheNumberPadEntersToo) {
  Type("rt 90");
  Press(Qt::Key_Enter);
  EXPECT_EQ(FormControls().List4.Items(), Texts{"?RT 90"});
}

TEST_F(RowsTest, ALineOnTheLastRowScrollsTheRows) {
  for (const char* line : {"rt 1", "rt 2", "rt 3", "rt 4", "rt 5"}) Enter(line);
  EXPECT_EQ(Row(0).text(), "rt 2");
  EXPECT_EQ(Row(3).text(), "rt 5");
  EXPECT_EQ(Row(4).text(), "");
  EXPECT_EQ(Focused(), &Row(4));
}

TEST_F(RowsTest, AnEmptyLineOnTheLastRowNeitherScrollsNorMovesTheFocus) {
  Enter("rt 1");
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);
  ASSERT_EQ(Focused(), &Row(4));
  Press(Qt::Key_Return);
  EXPECT_EQ(Row(0).text(), "rt 1");
  EXPECT_EQ(Focused(), &Row(4));
}

TEST_F(RowsTest, ScrollingWithTheDiagnosisPanelOpenMovesTheFocusToTheLineWidth) {
  Enter("show dia");
  for (int row = 1; row < 4; ++row) Enter("rt 1");
  Enter("rt 5");
  EXPECT_EQ(Focused(), &WidgetOf(FormControls().Text4));
}

TEST_F(RowsTest, TheArrowsMoveAroundTheRows) {
  Press(Qt::Key_Up);
  EXPECT_EQ(Focused(), &Row(4));
  Press(Qt::Key_Down);
  EXPECT_EQ(Focused(), &Row(0));
  Press(Qt::Key_Down);
  EXPECT_EQ(Focused(), &Row(1));
}

TEST_F(RowsTest, AMouseClickOnARowGivesItTheFocusInTheData) {
  QTest::mouseClick(&Row(3), Qt::LeftButton);
  EXPECT_EQ(FormControls().Focus.Focus(), &FormControls().Text1[3]);
}

TEST_F(RowsTest, TheTabKeyMovesTheFocusInTheData) {
  Press(Qt::Key_Tab);
  EXPECT_EQ(FormControls().Focus.Focus(), &FormControls().Text1[1]);
}

TEST_F(RowsTest, AnOldLineRunsAgain) {
  Enter("rt 1");
  Press(Qt::Key_Up);
  Press(Qt::Key_Return);
  EXPECT_EQ(FormControls().List4.Items(), (Texts{"?RT 1", "?RT 1"}));
}

/// Rows 0 and 1 hold "rt 1" and "rt 2", and Enter has moved the focus to row 1.
class OldLines : public DesktopTest {
 protected:
  OldLines() {
    Enter("rt 1");
    Enter("rt 2");
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
  }
};

TEST_F(OldLines, ALineTypedWhereEnterLedTakesThePlaceOfTheOldOne) {
  ASSERT_EQ(Focused(), &Row(1));
  Enter("fd 3");
  EXPECT_EQ(Row(1).text(), "fd 3");
  EXPECT_EQ(FormControls().List4.Items().back(), "?FD 3");
}

TEST_F(OldLines, EnterAloneRunsTheOldOneAgain) {
  Press(Qt::Key_Return);
  EXPECT_EQ(FormControls().List4.Items().back(), "?RT 2");
}

TEST_F(OldLines, AClickOnTheDrawingMakesRoomForANewLineOnTheFirstRow) {
  Enter("cs");
  QTest::mouseClick(&WidgetOf(session->form1.Picture1), Qt::LeftButton, {}, {10, 500});
  Settle();
  ASSERT_EQ(Focused(), &Row(0));
  Type("fd 3");
  EXPECT_EQ(Row(0).text(), "fd 3");
}

TEST_F(OldLines, AfterAnArrowALineIsChangedWhereItsCaretStood) {
  Press(Qt::Key_Up);
  Row(0).setCursorPosition(0);
  Press(Qt::Key_Down);
  Press(Qt::Key_Up);
  Type("fd 9 ");
  EXPECT_EQ(Row(0).text(), "fd 9 rt 1");
}

TEST_F(OldLines, AfterAMouseClickALineIsChanged) {
  QTest::mouseClick(&Row(0), Qt::LeftButton, {}, {400, 10});
  Type("5");
  EXPECT_EQ(Row(0).text(), "rt 15");
}

TEST_F(OldLines, AReplacedLineCanBeBroughtBack) {
  Type("fd");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Row(1).text(), "rt 2");
}

TEST_F(RowsTest, PastedLinesAndTabsBecomeOneLineWithBlanks) {
  QApplication::clipboard()->setText("\tfd\t10\nrt 90");
  Row(0).paste();
  Press(Qt::Key_Return);
  EXPECT_EQ(FormControls().List4.Items(), Texts{"?FD 10 RT 90"});
}

TEST_F(RowsTest, F1OpensTheEditorAndTypingGoesThere) {
  Press(Qt::Key_F1);
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_FALSE(WidgetOf(FormControls().Picture3).isVisible());
  EXPECT_EQ(Focused(), &Editor());
}

TEST_F(RowsTest, LettersTypedOnTheTextScreenGoToTheRow) {
  Enter("fd 1");
  Press(Qt::Key_F3);
  WidgetOf(FormControls().List4).setFocus(Qt::MouseFocusReason);
  Press(Qt::Key_Down);
  EXPECT_EQ(Focused(), &WidgetOf(FormControls().List4));
  Type("rt 2");
  EXPECT_EQ(Focused(), &Row(1));
  EXPECT_EQ(Row(1).text(), "rt 2");
}

TEST_F(RowsTest, F3ShowsTheTextScreenAndF2TheDrawing) {
  Press(Qt::Key_F3);
  EXPECT_TRUE(WidgetOf(FormControls().List4).isVisible());
  EXPECT_TRUE(Row(0).isVisible());
  Press(Qt::Key_F2);
  EXPECT_FALSE(WidgetOf(FormControls().List4).isVisible());
}

TEST_F(RowsTest, F4HidesTheRowsAndThenNothingHasTheFocus) {
  Press(Qt::Key_F4);
  EXPECT_FALSE(Row(0).isVisible());
  EXPECT_EQ(FormControls().Focus.Focus(), nullptr);
  EXPECT_EQ(WidgetOf(session->form1.Picture1).height(), 768);
}

TEST_F(RowsTest, F2BringsTheRowsBackFromTheFullScreen) {
  Press(Qt::Key_F4);
  QTest::keyClick(&Window(), Qt::Key_F2);
  EXPECT_TRUE(Row(0).isVisible());
  EXPECT_EQ(WidgetOf(session->form1.Picture1).height(), 768 - 129);
}

TEST_F(RowsTest, F2OnTheSurfaceGivesTheFocusToTheFirstRow) {
  Enter("cs");
  Press(Qt::Key_F4);
  QTest::mouseClick(&WidgetOf(session->form1.Picture1), Qt::LeftButton, {}, {10, 500});
  Settle();
  ASSERT_EQ(Focused(), &WidgetOf(session->form1.Picture1));
  Press(Qt::Key_F2);
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(RowsTest, F1ToF4OnTheHistoryActToo) {
  Press(Qt::Key_F3);
  QTest::mouseClick(WidgetAs<QAbstractScrollArea>(FormControls().List4).viewport(), Qt::LeftButton);
  ASSERT_EQ(Focused(), &WidgetOf(FormControls().List4));
  Press(Qt::Key_F2);
  EXPECT_FALSE(WidgetOf(FormControls().List4).isVisible());
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(RowsTest, EscapeClosesThePanels) {
  Enter("show dia");
  Enter("show pal");
  ASSERT_TRUE(WidgetOf(FormControls().Frame1).isVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(WidgetOf(FormControls().Frame1).isVisible());
  EXPECT_FALSE(WidgetOf(FormControls().Picture2).isVisible());
}

TEST_F(RowsTest, F9AsksForAProgramAndLoadsIt) {
  WriteFile("Box.ZRM", "TO BOX\r\nFD 10\r\nEND\r\n");
  AnswerNextBox({Qt::Key_Return}, "Box");
  Press(Qt::Key_F9);
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Load Zerimo File");
  EXPECT_EQ(Boxes[0].Text, "Enter the File Name");
  EXPECT_EQ(FormControls().Text2.Text, "TO BOX\r\nFD 10\r\nEND\r\n");
}

TEST_F(RowsTest, F9WithACancelledBoxLoadsNothing) {
  AnswerNextBox({Qt::Key_Escape}, "Box");
  Press(Qt::Key_F9);
  EXPECT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(FormControls().Text2.Text, "");
}

TEST_F(RowsTest, CtEmptiesTheRowsAndTheOneShotGivesTheFocusToTheFirst) {
  Enter("rt 1");
  Enter("ct");
  Settle();
  EXPECT_EQ(Row(0).text(), "");
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(RowsTest, ACharacterThatTheSystemDoesNotHaveBecomesAQuestionMark) {
  Enter("print \"a\xE2\x82\xAC\xC3\xA4\"");
  EXPECT_EQ(FormControls().Text1[0].Text, "print \"a?\xE4\"");
}

TEST_F(RowsTest, PastedTypographicQuotesBecomePlain) {
  Row(0).insert(QString::fromUtf8("message \xE2\x80\x9Chi\xE2\x80\x9D"));
  EXPECT_EQ(Row(0).text(), "message \"hi\"");
}

TEST_F(RowsTest, TheRowsHaveTheColoursOfTheStart) {
  for (int row = 0; row < 5; ++row) {
    const QPalette& palette = Row(row).palette();
    EXPECT_EQ(palette.color(QPalette::Base), QColor(0, 0, std::min(255, 200 + 15 * row)));
    EXPECT_EQ(palette.color(QPalette::Text), QColor(255, 0, 0));
  }
}

TEST_F(RowsTest, TheLettersOfARowFitItsHeight) {
  EXPECT_EQ(Row(0).font().pixelSize(), 21);
  EXPECT_TRUE(Row(0).font().bold());
  EXPECT_LE(QFontMetrics(Row(0).font()).height(), Row(0).height());
}

TEST_F(RowsTest, ARowEndsWhereTheWindowEnds) {
  EXPECT_LE(Row(0).mapTo(&Window(), Row(0).rect().bottomRight()).x(), Window().rect().right());
}

}  // namespace
}  // namespace zerimo
