#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/surface_view.h"

namespace zerimo {
namespace {

class SurfaceWidgetTest : public DesktopTest {
 protected:
  SurfaceWidget& Surface() { return WidgetAs<SurfaceWidget>(session->form1.Picture1); }
  QColor PixelAt(int x, int y) { return Surface().grab().toImage().pixelColor(x, y); }
  /// As soon as the window has stopped adjusting its own place.
  void DragWindowAway() {
    int step = 0;
    ASSERT_TRUE(Until([&] {
      Window().move(120 + ++step, 80);
      return FormControls().Form1.Left != 0;
    }));
  }
  const QLabel& Hint() { return *Surface().findChild<QLabel*>(); }
  std::string HintAt(int x, int y) {
    session->form1.Picture1.ToolTipText.clear();
    QTest::mouseMove(&Surface(), {x, y});
    Until([this] { return !session->form1.Picture1.ToolTipText.empty(); });
    return Hint().text().toStdString();
  }
};

TEST_F(SurfaceWidgetTest, TheTitlePictureGreetsTheUser) {
  EXPECT_NE(PixelAt(20, 630), QColor(128, 0, 128));
  Enter("draw");
  EXPECT_EQ(PixelAt(20, 630), QColor(128, 0, 128));
}

TEST_F(SurfaceWidgetTest, TheCaptionsStandAfterDrawAndGoWithCs) {
  Enter("draw");
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(WidgetOf(FormControls().Label20[index]).isVisible());
  Enter("cs");
  for (int index = 0; index < 4; ++index) EXPECT_FALSE(WidgetOf(FormControls().Label20[index]).isVisible());
}

TEST_F(SurfaceWidgetTest, WhatIsDrawnIsShown) {
  Enter("cs");
  Enter("ht fd 40");
  EXPECT_EQ(PixelAt(512, 300), QColor(255, 255, 255));
}

TEST_F(SurfaceWidgetTest, TheFigureLiesAboveThePictureAndFollowsTheTurtle) {
  Enter("cs");
  EXPECT_NE(PixelAt(512, 401), QColor(128, 0, 128));
  Enter("pu");
  Enter("setxy 10 10");
  EXPECT_EQ(PixelAt(512, 401), QColor(128, 0, 128));
  EXPECT_EQ(session->form1.Picture1.Point(7680, 6015), 8388736);
}

TEST_F(SurfaceWidgetTest, TheFigureStaysVisibleOverAFlood) {
  Enter("cs");
  const QRect aroundTheTurtle(480, 350, 64, 64);
  const auto figure = [&] {
    return Surface().grab(aroundTheTurtle).toImage().createMaskFromColor(qRgb(255, 255, 255));
  };
  const QImage before = figure();
  Enter("floodfill 4");
  EXPECT_EQ(PixelAt(512, 600), QColor(128, 0, 0));
  EXPECT_EQ(PixelAt(512, 398), QColor(128, 0, 0));
  EXPECT_EQ(figure(), before);
}

TEST_F(SurfaceWidgetTest, TheAxesAreShown) {
  Enter("cs");
  Enter("show grid");
  EXPECT_EQ(PixelAt(100, 384), QColor(255, 255, 0));
  EXPECT_EQ(PixelAt(512, 100), QColor(255, 255, 0));
}

TEST_F(SurfaceWidgetTest, ATurtleFarAwayDoesNoHarm) {
  Enter("cs");
  Enter("fd 30000000");
  EXPECT_EQ(PixelAt(20, 20), QColor(128, 0, 128));
}

TEST_F(SurfaceWidgetTest, TheHintFollowsTheMouse) {
  Enter("cs");
  EXPECT_EQ(HintAt(522, 371), "MouseX= 3 MouseY= 4   New Dir 38");
  EXPECT_TRUE(Hint().isVisible());
  const QPoint first = Hint().pos();
  EXPECT_EQ(HintAt(512, 384), "MouseX= 0 MouseY= 0   New Dir 90");
  EXPECT_NE(Hint().pos(), first);
}

TEST_F(SurfaceWidgetTest, TheHintStaysInSightAtTheEdges) {
  Enter("cs");
  HintAt(1020, 600);
  EXPECT_TRUE(Surface().rect().contains(Hint().geometry()));
}

TEST_F(SurfaceWidgetTest, TheTitlePictureGivesNoHint) {
  QTest::mouseMove(&Surface(), {300, 300});
  QTest::qWait(20);
  EXPECT_EQ(session->form1.Picture1.ToolTipText, "");
}

TEST_F(SurfaceWidgetTest, AClickGivesTheFocusToTheFirstEmptyRowAndThenToTheFirst) {
  Enter("cs");
  FormControls().Timer2.Interval = 50;
  QTest::mouseClick(&Surface(), Qt::LeftButton, {}, {300, 300});
  EXPECT_EQ(Focused(), &Row(1));
  Settle();
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(SurfaceWidgetTest, OnlyACompletedLeftClickTakesTheFocus) {
  Enter("cs");
  QTest::mouseClick(&Surface(), Qt::RightButton, {}, {300, 300});
  EXPECT_EQ(Focused(), &Row(1));
  QTest::mousePress(&Surface(), Qt::LeftButton, {}, {300, 300});
  EXPECT_EQ(Focused(), &Row(1));
  QTest::mouseRelease(&Surface(), Qt::LeftButton, {}, {300, -50});
  EXPECT_EQ(Focused(), &Row(1));
}

TEST_F(SurfaceWidgetTest, AClickInFullScreenDoesNotEndTheProgram) {
  Enter("cs");
  Enter("fs");
  QTest::mouseClick(&Surface(), Qt::LeftButton, {}, {300, 300});
  Settle();
  EXPECT_FALSE(session->HasEnded());
}

TEST_F(SurfaceWidgetTest, AClickBringsAMovedWindowBackIntoItsCorner) {
  Enter("cs");
  DragWindowAway();
  QTest::mouseClick(&Surface(), Qt::LeftButton, {}, {300, 300});
  EXPECT_EQ(Window().pos(), QPoint(0, 0));
  EXPECT_EQ(FormControls().Form1.Left, 0);
}

TEST_F(SurfaceWidgetTest, AClickOnTheTitlePictureBringsTheWindowBackToo) {
  DragWindowAway();
  QTest::mouseClick(&Surface(), Qt::LeftButton, {}, {300, 300});
  EXPECT_EQ(Window().pos(), QPoint(0, 0));
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(SurfaceWidgetTest, AClickOnACaptionLeavesTheFocusOnTheRow) {
  QTest::mouseClick(&WidgetOf(FormControls().Label20[1]), Qt::LeftButton);
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(SurfaceWidgetTest, AScreenReaderHearsWhereTheTurtleIs) {
  Enter("cs");
  Enter("fd 3 rt 90 fd 2");
  EXPECT_EQ(Surface().accessibleDescription(), "Turtle 2.0 across, 3.0 up, heading 90 degrees.");
}

}  // namespace
}  // namespace zerimo
