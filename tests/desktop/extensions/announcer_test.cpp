#include "desktop/extensions/announcer.h"

#include <QAccessible>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class AnnouncerTest : public ExtensionsTest {
 protected:
  QAccessibleInterface& Voice() {
    return *QAccessible::queryAccessibleInterface(Window().findChild<QWidget*>("Announcer"));
  }
  std::string Said() { return Voice().text(QAccessible::Name).toStdString(); }
};

TEST_F(AnnouncerTest, ScreenReadersTakeItForANotification) { EXPECT_EQ(Voice().role(), QAccessible::Notification); }

TEST_F(AnnouncerTest, TheLineAndWhatItPrintedAreTold) {
  Enter("fd 10");
  EXPECT_EQ(Said(), "FD 10");
  Enter("repeat 2 [print 7]");
  EXPECT_EQ(Said(), "REPEAT 2[PRINT 7]\n7\n7");
}

TEST_F(AnnouncerTest, OfManyEntriesTheLastAreTold) {
  Enter("repeat 100 [print 7]");
  EXPECT_EQ(std::ranges::count(Said(), '7'), 20);
}

TEST_F(AnnouncerTest, AfterTheHistoryWasClearedItGoesOn) {
  for (const char* line : {"fd 1", "fd 2", "fd 3"}) Enter(line);
  Enter("ct");
  Enter("fd 4");
  EXPECT_EQ(Said(), "FD 4");
}

}  // namespace
}  // namespace zerimo
