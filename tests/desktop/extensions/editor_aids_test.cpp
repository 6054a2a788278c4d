#include "desktop/extensions/editor_aids.h"

#include <QAbstractButton>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class EditorAidsTest : public ExtensionsTest {
 protected:
  QWidget& Bar() { return *Editor().findChild<QWidget*>("FindBar"); }
  QLineEdit& Wanted() { return *Bar().findChildren<QLineEdit*>().at(0); }
  QLineEdit& Replacement() { return *Bar().findChildren<QLineEdit*>().at(1); }
  void Find(const char* text) {
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(text);
    Press(Qt::Key_Return);
  }
  std::string Selected() { return Editor().textCursor().selectedText().toStdString(); }
  int CaretLine() { return Editor().textCursor().blockNumber(); }

  /// The colour of a character, as a name like "#ffff00"; empty where the text has its own.
  std::string ColourAt(int line, int column) {
    for (const QTextLayout::FormatRange& range : Editor().document()->findBlockByNumber(line).layout()->formats()) {
      if (column < range.start || column >= range.start + range.length) continue;
      const QBrush brush = range.format.foreground();
      return brush.style() == Qt::NoBrush ? "" : brush.color().name().toStdString();
    }
    return {};
  }
  /// The columns of the marked brackets of the caret's line.
  std::vector<int> MarkedColumns() {
    std::vector<int> columns;
    for (const QTextEdit::ExtraSelection& mark : Editor().extraSelections())
      columns.push_back(mark.cursor.selectionStart() - mark.cursor.block().position());
    return columns;
  }
  std::vector<int> MarkedLines() {
    std::vector<int> lines;
    for (const QTextEdit::ExtraSelection& mark : Editor().extraSelections()) {
      if (mark.format.property(QTextFormat::FullWidthSelection).toBool()) lines.push_back(mark.cursor.blockNumber());
    }
    return lines;
  }
};

TEST_F(EditorAidsTest, EnterPressesTheButtonOfTheBarThatHasTheFocus) {
  TypeInEditor("fd 10\nfd 20");
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("fd");
  Press(Qt::Key_Tab);
  Type("bk");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(Editor().toPlainText(), "bk 10\nbk 20");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(EditorAidsTest, FindSelectsTheNextPlaceWithoutRegardToCase) {
  TypeInEditor("to a\nfd 10\nFD 20\nend");
  Find("fd");
  EXPECT_EQ(CaretLine(), 1);
  EXPECT_EQ(Selected(), "fd");
  Press(Qt::Key_Return);
  EXPECT_EQ(Selected(), "FD");
  Press(Qt::Key_Return);
  EXPECT_EQ(CaretLine(), 1);
  Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(CaretLine(), 2);
}

TEST_F(EditorAidsTest, WhatIsNotThereIsSaid) {
  TypeInEditor("to a");
  Find("zebra");
  const auto labels = Bar().findChildren<QLabel*>();
  EXPECT_EQ(labels.last()->text(), "Not found");
  EXPECT_EQ(Selected(), "");
}

TEST_F(EditorAidsTest, ReplaceAllIsOneStepToUndo) {
  TypeInEditor("fd 10\nfd 20");
  Find("fd");
  Replacement().setText("bk");
  Bar().findChildren<QAbstractButton*>().at(1)->click();
  EXPECT_EQ(Editor().toPlainText(), "bk 10\nbk 20");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(Focused(), &Editor());
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Editor().toPlainText(), "fd 10\nfd 20");
}

TEST_F(EditorAidsTest, TabGoesRoundTheBar) {
  TypeInEditor("fd 10");
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("fd");
  Press(Qt::Key_Tab);
  Type("bk");
  EXPECT_EQ(Replacement().text(), "bk");
  for (int stop = 0; stop < 4; ++stop) Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), &Wanted());
  Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(static_cast<QAbstractButton*>(Focused())->text(), "&Close");
}

TEST_F(EditorAidsTest, TheBarGrowsWithTheWindowWhereThereIsRoom) {
  TypeInEditor("fd 10");
  Press(Qt::Key_F, Qt::ControlModifier);
  const int usual = Wanted().font().pixelSize();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(Wanted().font().pixelSize(), usual * 1.25, 1);
  for (int i = 0; i < 10; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_LE(Bar().minimumSizeHint().width(), Editor().width());
}

TEST_F(EditorAidsTest, EnterInTheReplacementReplacesOneAndFindsTheNext) {
  TypeInEditor("fd 10\nfd 20");
  Find("fd");
  Replacement().setFocus();
  Type("bk");
  Press(Qt::Key_Return);
  EXPECT_EQ(Editor().toPlainText(), "bk 10\nfd 20");
  EXPECT_EQ(Selected(), "fd");
}

TEST_F(EditorAidsTest, AReplacementThatHoldsTheWantedTextEnds) {
  TypeInEditor("aa");
  Find("a");
  Replacement().setText("ba");
  Bar().findChildren<QAbstractButton*>().at(1)->click();
  EXPECT_EQ(Editor().toPlainText(), "baba");
}

TEST_F(EditorAidsTest, TheKeysOfTheEditorWorkInTheBar) {
  TypeInEditor("to a\nfd 10\nend");
  Find("fd");
  Press(Qt::Key_F2);
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO A"});
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(EditorAidsTest, ATickLeavesTheBarTheFocus) {
  TypeInEditor("to a");
  Press(Qt::Key_F, Qt::ControlModifier);
  session->Deliver([](Form1&) {});
  EXPECT_EQ(Focused(), &Wanted());
}

TEST_F(EditorAidsTest, OutsideTheEditorTheKeysAreNotTaken) {
  Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(EditorAidsTest, WordsAndNamesAreColoured) {
  TypeInEditor("to fdx :s\nfd :s rt zebra\nend");
  EXPECT_EQ(ColourAt(0, 0), "#ffff00");
  EXPECT_EQ(ColourAt(0, 3), "");
  EXPECT_EQ(ColourAt(0, 7), "#80ffff");
  EXPECT_EQ(ColourAt(1, 0), "#ffff00");
  EXPECT_EQ(ColourAt(1, 3), "#80ffff");
  EXPECT_EQ(ColourAt(1, 6), "#ffff00");
  EXPECT_EQ(ColourAt(1, 9), "");
}

TEST_F(EditorAidsTest, ColouringIsNoChangeOfTheText) {
  WriteFile("MINE.ZRM", "TO A\rFD 10\rEND\r");
  Enter("load mine");
  const std::string loaded = FormControls().Text2.Text;
  EXPECT_NE(loaded, "");
  Enter("edit");
  Settle();
  EXPECT_EQ(FormControls().Text2.Text, loaded);
}

TEST_F(EditorAidsTest, BracketsOnALineAreMatched) {
  TypeInEditor("repeat 3[fd (1+2)]");
  EXPECT_EQ(MarkedColumns(), (std::vector<int>{17, 8}));
  Press(Qt::Key_Left);
  EXPECT_EQ(MarkedColumns(), (std::vector<int>{16, 12}));
  Press(Qt::Key_Left);
  Press(Qt::Key_Left);
  EXPECT_TRUE(MarkedColumns().empty());
  Press(Qt::Key_Home);
  EXPECT_TRUE(MarkedColumns().empty());
}

TEST_F(EditorAidsTest, ABracketWithoutAPartnerIsMarkedAlone) {
  TypeInEditor("repeat 3[fd 1");
  for (int i = 0; i < 4; ++i) Press(Qt::Key_Left);
  EXPECT_EQ(MarkedColumns(), std::vector<int>{8});
}

TEST_F(EditorAidsTest, TheLineThatOpenedABoxIsMarkedUntilTheTextChanges) {
  TypeInEditor("to a\nrt 90\nrepeat 2[fd]\nend\nto b\nfd\nend");
  Press(Qt::Key_F2);
  AnswerNextBox({Qt::Key_I});
  Enter("b");
  Press(Qt::Key_F1);
  EXPECT_EQ(MarkedLines(), std::vector<int>{5});
  Type("x");
  EXPECT_TRUE(MarkedLines().empty());
}

TEST_F(EditorAidsTest, ALoopIsFoundByItsStatement) {
  TypeInEditor("to a\nrt 90\nrepeat 1[fd]\nend");
  Press(Qt::Key_F2);
  AnswerNextBox({Qt::Key_I});
  Enter("a");
  EXPECT_EQ(MarkedLines(), std::vector<int>{2});
}

TEST_F(EditorAidsTest, LineNumbersTakeRoomBesideTheText) {
  TypeInEditor("a\nb");
  const auto& strip = *Editor().findChild<QWidget*>("LineNumbers");
  EXPECT_TRUE(strip.isVisible());
  EXPECT_GT(strip.width(), 20);
  EXPECT_EQ(Editor().viewport()->x(), strip.width());
  const int narrow = strip.width();
  Editor().setPlainText(QString(200, '\n'));
  EXPECT_GT(strip.width(), narrow);
}

TEST_F(EditorAidsTest, AnEmptyEditorTellsTheKeys) {
  Press(Qt::Key_F1);
  EXPECT_TRUE(Editor().placeholderText().contains("F10: save"));
  EXPECT_EQ(FormControls().Text2.Text, "");
}

}  // namespace
}  // namespace zerimo
