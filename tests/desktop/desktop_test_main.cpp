#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop_style.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  zerimo::SetDesktopStyle();
  return RUN_ALL_TESTS();
}
