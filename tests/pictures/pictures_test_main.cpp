#include <gtest/gtest.h>

#include <QGuiApplication>

/// Fonts and picture formats need an application; no screen is opened.
int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&count, words);
  const QGuiApplication application(count, words);
  return RUN_ALL_TESTS();
}
