#include "batch/batch_watch.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace zerimo::batch {
namespace {

std::string StoppedBy(const std::function<void()>& run) {
  try {
    run();
  } catch (const Stopped& stopped) {
    return stopped.By;
  }
  return "";
}

TEST(BatchWatch, AllowsExactlyTheStepsOfTheLimit) {
  BatchWatch watch(3, 0);
  watch.BeginEvent();
  for (int step = 0; step < 3; ++step) watch.Step();
  EXPECT_EQ(StoppedBy([&] { watch.Step(); }), "steps");
}

TEST(BatchWatch, CountsStepsAfreshInEachEvent) {
  BatchWatch watch(3, 0);
  for (int event = 0; event < 5; ++event) {
    watch.BeginEvent();
    for (int step = 0; step < 3; ++step) EXPECT_NO_THROW(watch.Step());
  }
}

TEST(BatchWatch, NoLimitNeverStops) {
  BatchWatch watch(0, 0);
  watch.StartClock();
  watch.BeginEvent();
  EXPECT_EQ(StoppedBy([&] {
              for (int step = 0; step < 100000; ++step) watch.Step();
            }),
            "");
}

TEST(BatchWatch, TicksOfAllEventsAreCountedTogether) {
  BatchWatch watch(0, 0, 3);
  watch.BeginEvent();
  for (int tick = 0; tick < 3; ++tick) watch.Tick();
  watch.BeginEvent();
  EXPECT_EQ(StoppedBy([&] { watch.Tick(); }), "ticks");
}

TEST(BatchWatch, SecondsStopARunOfSteps) {
  BatchWatch watch(0, 0.01);
  watch.StartClock();
  EXPECT_EQ(StoppedBy([&] {
              for (;;) watch.Step();
            }),
            "seconds");
}

TEST(BatchWatch, SecondsStopALoopWithoutSteps) {
  BatchWatch watch(1, 0.01);
  watch.StartClock();
  EXPECT_EQ(StoppedBy([&] {
              for (;;) watch.Tick();
            }),
            "seconds");
}

TEST(BatchWatch, SecondsEndASleep) {
  BatchWatch watch(0, 0.02);
  watch.StartClock();
  EXPECT_EQ(StoppedBy([&] { watch.Sleep(std::chrono::hours(1)); }), "seconds");
}

TEST(BatchWatch, SleepsAsLongAsAsked) {
  BatchWatch watch(0, 0);
  const auto begin = std::chrono::steady_clock::now();
  watch.Sleep(std::chrono::milliseconds(20));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(20));
}

TEST(BatchWatch, NegativeSleepIsNone) {
  BatchWatch watch(0, 0);
  EXPECT_NO_THROW(watch.Sleep(std::chrono::milliseconds(-5)));
}

}  // namespace
}  // namespace zerimo::batch
