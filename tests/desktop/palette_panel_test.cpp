#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <ostream>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class PalettePanelTest : public DesktopTest {
 protected:
  PalettePanelTest() {
    Enter("cs");
    Enter("show pal");
  }
  QWidget& Square(int code) { return WidgetOf(FormControls().Label13[code]); }
  QWidget& Apply() { return WidgetOf(FormControls().Label14); }
  QWidget& Panel() { return WidgetOf(FormControls().Picture2); }
  const std::string& Command() { return FormControls().Label15.Caption; }
  void Drag(QWidget& from, QPoint grab, QPoint by) {
    QTest::mousePress(&from, Qt::LeftButton, {}, grab);
    // The panel follows the pointer, so that from the second step on the pointer stays at the same place on it.
    SendMove(from, grab + by);
    SendRelease(from, grab);
  }

 private:
  static void SendMove(QWidget& widget, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  }
  static void SendRelease(QWidget& widget, QPoint at) {
    QMouseEvent up(QEvent::MouseButtonRelease, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QApplication::sendEvent(&widget, &up);
  }
};

struct ChoiceCase {
  Qt::MouseButton Button;
  Qt::KeyboardModifiers Modifiers;
  const char* Command;
};

void PrintTo(const ChoiceCase& one, std::ostream* out) { *out << one.Command; }

class Choices : public PalettePanelTest, public testing::WithParamInterface<ChoiceCase> {};

TEST_P(Choices, PrepareTheirCommand) {
  QTest::mouseClick(&Square(3), GetParam().Button, GetParam().Modifiers);
  EXPECT_EQ(Command(), GetParam().Command);
}

INSTANTIATE_TEST_SUITE_P(ButtonsAndShift, Choices,
                         testing::Values(ChoiceCase{Qt::LeftButton, Qt::NoModifier, "Setpc 3"},
                                         ChoiceCase{Qt::RightButton, Qt::NoModifier, "Setbg 3"},
                                         ChoiceCase{Qt::LeftButton, Qt::ShiftModifier, "TEXTCOLOR 3"},
                                         ChoiceCase{Qt::RightButton, Qt::ShiftModifier, "TEXTBACKGROUND 3"},
                                         ChoiceCase{Qt::MiddleButton, Qt::NoModifier, " 3"},
                                         ChoiceCase{Qt::LeftButton, Qt::ControlModifier, " 3"},
                                         ChoiceCase{Qt::RightButton, Qt::AltModifier, " 3"},
                                         ChoiceCase{Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier, " 3"}));

TEST_F(PalettePanelTest, TheSquaresHaveTheColoursOfTheirCodes) {
  EXPECT_EQ(Square(12).grab().toImage().pixelColor(17, 17), QColor(255, 0, 0));
  EXPECT_EQ(Square(9).grab().toImage().pixelColor(17, 17), QColor(0, 0, 255));
}

TEST_F(PalettePanelTest, AChosenSquareIsFramed) {
  QTest::mouseClick(&Square(3), Qt::LeftButton);
  EXPECT_EQ(FormControls().Shape5.Left, FormControls().Label13[3].Left);
  EXPECT_EQ(FormControls().Shape7.Top, FormControls().Label13[3].Top);
  const QPoint corner = Square(3).geometry().topLeft();
  EXPECT_EQ(Panel().grab().toImage().pixelColor(corner), QColor(0, 255, 0));
  EXPECT_EQ(Panel().grab().toImage().pixelColor(corner + QPoint(-1, 10)), QColor(255, 0, 0));
}

TEST_F(PalettePanelTest, TheSquareUnderThePointerIsMarked) {
  QTest::mouseMove(&Square(5), {10, 10});
  EXPECT_TRUE(Until([this] { return FormControls().Label13[5].BorderStyle == Border::None; }));
  EXPECT_EQ(FormControls().Label13[4].BorderStyle, Border::Single);
}

TEST_F(PalettePanelTest, ApplyTurnsRedUnderThePointerAndWhiteOnThePanel) {
  QTest::mouseMove(&Apply(), {10, 5});
  EXPECT_TRUE(Until([this] { return FormControls().Label14.BackColor == 255; }));
  EXPECT_EQ(Apply().grab().toImage().pixelColor(3, 3), QColor(255, 0, 0));
  QTest::mouseMove(&Panel(), {3, 100});
  EXPECT_TRUE(Until([this] { return FormControls().Label14.BackColor == 0xFFFFFF; }));
}

TEST_F(PalettePanelTest, AClickOnApplyRightAfterTheStartRunsSetpc15) {
  Enter("setpc 4");
  FormControls().Label15.Caption = "Setpc 15";
  QTest::mouseClick(&Apply(), Qt::LeftButton);
  EXPECT_EQ(session->form1.turtle.PenColor, 15);
}

TEST_F(PalettePanelTest, ApplyCarriesTheChosenCommandOut) {
  QTest::mouseClick(&Square(3), Qt::LeftButton);
  QTest::mouseClick(&Apply(), Qt::LeftButton);
  EXPECT_EQ(session->form1.turtle.PenColor, 3);
}

TEST_F(PalettePanelTest, TheKeyboardChoosesAndApplies) {
  Square(6).setFocus();
  Press(Qt::Key_Right);
  ASSERT_EQ(Focused(), &Square(7));
  Press(Qt::Key_Space);
  EXPECT_EQ(Command(), "Setpc 7");
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Command(), "Setbg 7");
  Press(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(Command(), "TEXTCOLOR 7");
  Press(Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Command(), "TEXTBACKGROUND 7");
  Press(Qt::Key_Return);
  Apply().setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(session->form1.turtle.PenColor, 7);
}

TEST_F(PalettePanelTest, AScreenReaderNamesTheSquaresByTheirColours) {
  EXPECT_EQ(Square(0).accessibleName(), "0 Black");
  EXPECT_EQ(Square(12).accessibleName(), "12 Light Red");
}

TEST_F(PalettePanelTest, AScreenReaderPressesASquare) {
  WidgetAs<QAbstractButton>(FormControls().Label13[2]).click();
  EXPECT_EQ(Command(), "Setpc 2");
}

TEST_F(PalettePanelTest, AMouseClickLeavesTheFocusOnTheRow) {
  QTest::mouseClick(&Square(3), Qt::LeftButton);
  QTest::mouseClick(&Apply(), Qt::LeftButton);
  EXPECT_EQ(Focused(), &Row(2));
}

TEST_F(PalettePanelTest, ItLandsWithTheOffsetWithWhichItWasTaken) {
  const QPoint before = Panel().pos();
  Drag(Panel(), {4, 200}, {-150, 90});
  EXPECT_EQ(Panel().pos(), before + QPoint(-150, 90));
  EXPECT_EQ(FormControls().Picture2.Left, static_cast<float>(15 * (before.x() - 150)));
  EXPECT_EQ(session->form1.graphics.palette.PaletteGrabX, 60);
  EXPECT_EQ(session->form1.graphics.palette.PaletteGrabY, 3000);
}

TEST_F(PalettePanelTest, ItsTitleDragsItToo) {
  const QPoint before = Panel().pos();
  Drag(Panel(), {20, 10}, {-100, 0});
  EXPECT_EQ(Panel().pos(), before + QPoint(-100, 0));
}

TEST_F(PalettePanelTest, DroppedOnTheRowsItGoesBackToItsPlace) {
  const QPoint before = Panel().pos();
  Drag(Panel(), {4, 200}, {0, 660 - before.y() - 200});
  EXPECT_EQ(Panel().pos(), before);
}

TEST_F(PalettePanelTest, ItRollsUpIntoTheCornerAndUnrolls) {
  QTest::mouseClick(&WidgetOf(FormControls().Command4), Qt::LeftButton);
  EXPECT_EQ(Panel().geometry(), QRect(0, 0, 168, 21));
  QTest::mouseClick(&WidgetOf(FormControls().Command5), Qt::LeftButton);
  EXPECT_EQ(Panel().height(), 241);
}

TEST_F(PalettePanelTest, ItsButtonClosesIt) {
  QTest::mouseClick(&WidgetOf(FormControls().Command3), Qt::LeftButton);
  EXPECT_FALSE(Panel().isVisible());
}

}  // namespace
}  // namespace zerimo
