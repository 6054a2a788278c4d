#include "desktop/extensions/look_back.h"

#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class LookBackTest : public ExtensionsTest {
 protected:
  LookBackTest() {
    Enter("cs");
    Enter("ht");
  }

  void Back() { Press(Qt::Key_Left, Qt::AltModifier); }
  void On() { Press(Qt::Key_Right, Qt::AltModifier); }
  QLabel* Words() {
    auto* sheet = Window().findChild<QWidget*>("LookBack");
    return sheet == nullptr ? nullptr : sheet->findChild<QLabel*>();
  }
  std::string Told() { return Words() == nullptr ? "" : Words()->text().toStdString(); }

  /// What the learner sees of the picture.
  QImage Seen() {
    if (Words() != nullptr) Words()->hide();
    return WidgetOf(session->form1.Picture1).grab().toImage();
  }
};

TEST_F(LookBackTest, EachStepIsThePictureAsItWasThen) {
  std::vector<QImage> pictures = {Seen()};
  Enter("fd 60");
  pictures.push_back(Seen());
  Enter("cs");
  Enter("repeat 3 [fd 60 rt 120]");
  const QImage end = Seen();
  Back();
  EXPECT_EQ(Told(), "Looking back: step 2 of 3");
  Back();
  EXPECT_EQ(Told(), "Looking back: step 1 of 3");
  EXPECT_EQ(Seen(), pictures[1]);
  Back();
  Back();
  EXPECT_EQ(Told(), "Looking back: step 0 of 3");
  EXPECT_EQ(Seen(), pictures[0]);
  On();
  On();
  On();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(Seen(), end);
}

TEST_F(LookBackTest, ColoursWidthsFillsAndTextsComeBack) {
  for (const char* line : {"setbg 1", "setpc 14", "lw 5", "fd 30"}) Enter(line);
  const QImage first = Seen();
  Enter("repeat 4 [circle 20 fill print \"x fd 20 rt 90]");
  const QImage second = Seen();
  Enter("repeat 2 [setpc 3 fd 25 lw 3 circle 9 setbg 4 fd 8]");
  const QImage third = Seen();
  for (int i = 0; i < 40; ++i) Back();
  EXPECT_EQ(Seen(), second);
  for (int i = 0; i < 40; ++i) On();
  EXPECT_EQ(Seen(), third);
  EXPECT_NE(first, second);
  EXPECT_NE(second, third);
}

TEST_F(LookBackTest, AnyOtherKeyIsBackAtTheEndAndWorks) {
  Enter("fd 60");
  const QImage end = Seen();
  Back();
  ASSERT_NE(Told(), "");
  Type("r");
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(Seen(), end);
  EXPECT_EQ(Row(3).text(), "r");
}

TEST_F(LookBackTest, ALineThatDrawsNothingKeepsTheLastDrawing) {
  Enter("repeat 3 [fd 60 rt 120]");
  Enter("make \"a 5");
  Back();
  EXPECT_EQ(Told(), "Looking back: step 2 of 3");
}

TEST_F(LookBackTest, WhatOnlySetsSomethingKeepsTheLastDrawing) {
  Enter("repeat 3 [fd 60 rt 120]");
  Enter("setpc 4");
  Enter("lw 9");
  Press(Qt::Key_F3);
  Press(Qt::Key_F2);
  Enter("show dia");
  Back();
  EXPECT_EQ(Told(), "Looking back: step 2 of 3");
}

TEST_F(LookBackTest, TheFirstStepIsDrawnAsWasSetBeforeIt) {
  Enter("fd 60");
  Enter("setpc 4");
  Enter("lw 9");
  Enter("rt 90 fd 60 fd 60");
  const QImage end = Seen();
  Back();
  EXPECT_NE(Seen(), end);
  On();
  Back();
  Back();
  On();
  On();
  EXPECT_EQ(Seen(), end);
}

TEST_F(LookBackTest, OfALongRunTheBeginningIsKept) {
  Enter("repeat 30000 [fd 1]");
  const QImage end = Seen();
  Back();
  EXPECT_TRUE(Told().ends_with("; later steps are not kept")) << Told();
  On();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(Seen(), end);
}

TEST_F(LookBackTest, NothingOfTheSystemChanges) {
  Enter("fd 60");
  const Colour before = session->form1.Picture1.Point(7680, 5000);
  Back();
  Back();
  EXPECT_EQ(session->form1.Picture1.Point(7680, 5000), before);
  EXPECT_EQ(Focused(), &Row(3));
  Enter("bk 60");
  EXPECT_EQ(Told(), "");
}

}  // namespace
}  // namespace zerimo
