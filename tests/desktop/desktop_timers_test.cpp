#include "desktop/desktop_timers.h"

#include <gtest/gtest.h>

#include <QTest>

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

  FormControls controls{ScreenSize{}};
  int ticks = 0;
  bool busy = false;
  DesktopTimers timers{controls, [this](Timer&) { ++ticks; }, [this] { return busy; }};
};

TEST_F(TimersTest, ATimerThatIsOnTicksAgainAndAgain) {
  controls.Timer2.Enabled = false;
  controls.Timer4.Enabled = true;
  controls.Timer4.Interval = 5;
  EXPECT_GE(TicksAfter(60), 2);
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

}  // namespace
}  // namespace zerimo
