#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

using RunChipTest = ExtensionsTest;

TEST_F(RunChipTest, ALongRunShowsTheChipAndItsEndHidesIt) {
  bool early = true;
  QString late;
  QWidget* focused = nullptr;
  During(1500, [&] { early = Chip().isVisible(); });
  During(2600, [&] {
    late = Chip().isVisible() ? Chip().text() : QString();
    focused = Focused();
  });
  Enter("wait 2800");
  EXPECT_FALSE(early);
  EXPECT_EQ(late, "Running for 2 s. Ctrl+Break stops.");
  EXPECT_EQ(focused, &Row(0));
  EXPECT_FALSE(Chip().isVisible());
}

TEST_F(RunChipTest, ItStandsInTheCornerAndTakesNoClicks) {
  EXPECT_TRUE(Chip().testAttribute(Qt::WA_TransparentForMouseEvents));
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_TRUE(Chip().isVisible());
  EXPECT_EQ(Chip().geometry().right(), Window().width() - 9);
}

TEST_F(RunChipTest, NothingOfItIsAControlOrInThePicture) {
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Chip().parentWidget(), &Window());
  EXPECT_EQ(session->form1.FindControl("RunChip"), nullptr);
}

}  // namespace
}  // namespace zerimo
