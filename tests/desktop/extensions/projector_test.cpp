#include "desktop/extensions/projector.h"

#include <QListView>
#include <QTest>

#include "desktop/desktop_text.h"
#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class ProjectorTest : public ExtensionsTest {
 protected:
  void Switch() { Press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); }
  static double ContrastOf(const QWidget& widget) {
    return Contrast(widget.palette().color(QPalette::Base), widget.palette().color(QPalette::Text));
  }
  QFocusFrame* Frame() { return Window().findChild<QFocusFrame*>(); }
};

TEST_F(ProjectorTest, WhatTheClassReadsHasAContrastOfSeven) {
  Enter("show dia");
  const Controls& controls = FormControls();
  std::vector<QWidget*> read;
  for (int row = 0; row < 5; ++row) read.push_back(&Row(row));
  for (const ListBox* list : {&controls.List1, &controls.List2, &controls.List3, &controls.List4})
    read.push_back(&WidgetOf(*list));
  read.push_back(&Editor());
  read.push_back(&WidgetOf(controls.Prompt));
  EXPECT_LT(ContrastOf(Row(0)), 7);
  Switch();
  for (const QWidget* widget : read) EXPECT_GE(ContrastOf(*widget), 7) << widget->objectName().toStdString();
  const QPalette& editor = Editor().palette();
  EXPECT_GE(Contrast(editor.color(QPalette::Base), editor.color(QPalette::PlaceholderText)), 7);
  Switch();
  EXPECT_LT(ContrastOf(Row(0)), 7);
}

TEST_F(ProjectorTest, EveryPairOfColoursBecomesEasyToRead) {
  Switch();
  for (int ground = 0; ground < 16; ++ground) {
    for (int letters = 0; letters < 16; ++letters) {
      FormControls().Text1[0].BackColor = QBColor(ground);
      FormControls().Text1[0].ForeColor = QBColor(letters);
      Window().Sync();
      EXPECT_GE(ContrastOf(Row(0)), 7) << letters << " on " << ground;
    }
  }
}

TEST_F(ProjectorTest, TheControlsKeepTheirColours) {
  const Colour letters = FormControls().Text1[0].ForeColor;
  Switch();
  EXPECT_EQ(FormControls().Text1[0].ForeColor, letters);
  EXPECT_NE(Row(0).palette().color(QPalette::Text), ToQColor(letters));
}

TEST_F(ProjectorTest, AFrameFollowsTheFocusToEmptyListsAndBars) {
  Enter("show dia");
  Switch();
  EXPECT_EQ(Frame()->widget(), &Row(1));
  for (const Control* control :
       {static_cast<const Control*>(&FormControls().List2), static_cast<const Control*>(&FormControls().HScroll2[1])}) {
    WidgetOf(*control).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Frame()->widget(), &WidgetOf(*control));
    EXPECT_TRUE(Frame()->isVisible());
  }
  Switch();
  EXPECT_EQ(Frame(), nullptr);
}

TEST_F(ProjectorTest, TheCaretOfTheEditorIsThick) {
  const int before = Editor().cursorWidth();
  Switch();
  EXPECT_GT(Editor().cursorWidth(), before);
  Switch();
  EXPECT_EQ(Editor().cursorWidth(), before);
}

}  // namespace
}  // namespace zerimo
