#include "desktop/desktop_timers.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class TimersTest : public testing::Test {
 protected:
  /// Lets time pass in the event loop.
  int TicksAfter(int milliseconds) {
    timers.Sync();
    QTest::qWait(milliseconds);
    return ticks;
  }

  Controls controls{ScreenSize{}};
  int ticks = 0;
  bool busy = false;
  DesktopTimers timers{controls, [this](Timer&) { ++ticks; }, [this] { return busy; }};
};

TEST_F(TimersTest, ATimerThatIsOnTicksAgainAndAgain) {
  controls.Timer2.Enabled = false;
  controls.Timer4.Enabled = true;
  controls.Timer4.Interval = 5;
  timers.Sync();
  EXPECT_TRUE(QTest::qWaitFor([this] { return ticks >= 2; }));
}

TEST_F(TimersTest, ATimerThatIsOffDoesNotTick) {
  controls.Timer2.Enabled = false;
  EXPECT_EQ(TicksAfter(30), 0);
}

TEST_F(TimersTest, AnIntervalOfNothingOrLessNeverTicks) {
  controls.Timer2.Enabled = false;
  controls.Timer3.Enabled = true;
  for (const int interval : {0, -1, -32768}) {
    controls.Timer3.Interval = interval;
    EXPECT_EQ(TicksAfter(20), 0);
  }
}

TEST_F(TimersTest, WhatComesDueWhileBusyFiresOnceAfterwards) {
  controls.Timer2.Interval = 5;
  busy = true;
  ASSERT_EQ(TicksAfter(50), 0);
  busy = false;
  controls.Timer2.Interval = 10000;
  timers.Sync();
  timers.FireDue();
  QTest::qWait(30);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimersTest, WhatIsSwitchedOffMeanwhileDoesNotFire) {
  controls.Timer2.Interval = 5;
  busy = true;
  TicksAfter(30);
  controls.Timer2.Enabled = false;
  busy = false;
  timers.Sync();
  timers.FireDue();
  QTest::qWait(20);
  EXPECT_EQ(ticks, 0);
}

TEST_F(TimersTest, ANewIntervalCountsAnew) {
  controls.Timer2.Interval = 10000;
  timers.Sync();
  controls.Timer2.Interval = 5;
  EXPECT_GE(TicksAfter(40), 1);
}

class SlideShowTest : public DesktopTest {
 protected:
  SlideShowTest() { Enter("cs"); }

  void WriteSlide(const char* name, Qt::GlobalColor colour) const {
    QImage slide(64, 64, QImage::Format_RGB32);
    slide.fill(colour);
    ASSERT_TRUE(slide.save(folder.filePath(QLatin1String(name)), "JPG", 100));
  }

  std::int16_t Counter() { return session->form1.files.pictures.SlideCounter; }
  QColor TopLeft() { return WidgetOf(session->form1.Picture1).grab({30, 30, 1, 1}).toImage().pixelColor(0, 0); }
};

TEST_F(SlideShowTest, TheSlidesComeOneAfterTheOtherUntilANumberIsMissing) {
  WriteSlide("TRIP1.JPG", Qt::red);
  WriteSlide("trip2.jpg", Qt::blue);
  Enter("slideshow trip 100");
  ASSERT_TRUE(Until([this] { return Counter() == 1; }));
  EXPECT_GT(TopLeft().red(), 200);
  ASSERT_TRUE(Until([this] { return Counter() == 2; }));
  EXPECT_GT(TopLeft().blue(), 200);
  EXPECT_LT(TopLeft().red(), 50);
  ASSERT_TRUE(Until([this] { return !FormControls().Timer3.Enabled; }));
  EXPECT_EQ(Counter(), 0);
  EXPECT_GT(TopLeft().blue(), 200);
  EXPECT_TRUE(Boxes.empty());
}

TEST_F(SlideShowTest, TheShowStandsStillWhileALineRuns) {
  WriteSlide("TRIP1.JPG", Qt::red);
  Type("wait 150");
  session->form1.interpreter.dispatch.Execute("SLIDESHOW TRIP 40");
  Press(Qt::Key_Return);
  EXPECT_EQ(session->form1.files.pictures.SlideFileName, "");
  EXPECT_TRUE(FormControls().Timer3.Enabled);
  EXPECT_TRUE(Until([this] { return !session->form1.files.pictures.SlideFileName.empty(); }));
}

}  // namespace
}  // namespace zerimo
