#include <gtest/gtest.h>

#include "desktop/extensions/zoom.h"

namespace zerimo {
namespace {

TEST(ScreenScale, OnlyVeryWideScreensAreScaled) {
  EXPECT_EQ(ScaleForScreen(1024, 1), 100);
  EXPECT_EQ(ScaleForScreen(2560, 1), 100);
  EXPECT_EQ(ScaleForScreen(2600, 1), 100);
  EXPECT_EQ(ScaleForScreen(2601, 1), 200);
  EXPECT_EQ(ScaleForScreen(3840, 1), 200);
  EXPECT_EQ(ScaleForScreen(5120, 1), 300);
  EXPECT_EQ(ScaleForScreen(7680, 1), 400);
}

TEST(ScreenScale, ADesktopThatScalesIsLeftToIt) { EXPECT_EQ(ScaleForScreen(3840, 1.5), 100); }

TEST(ScreenScale, ItIsNeverMoreThanCanBeAskedFor) { EXPECT_EQ(ScaleForScreen(20000, 1), 400); }

}  // namespace
}  // namespace zerimo
