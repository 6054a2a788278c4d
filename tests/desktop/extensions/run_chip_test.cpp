#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

using RunChipTest = ExtensionsTest;

TEST_F(RunChipTest, ALongRunShowsTheChipAndItsEndHidesIt) {
  QElapsedTimer clock;
  qint64 shownAfter = 0;
  QString text;
  QWidget* focused = nullptr;
  During(0, [&clock] { clock.start(); });
  When([this] { return Chip().isVisible(); },
       [&] {
         shownAfter = clock.elapsed();
         text = Chip().text();
         focused = Focused();
         QTest::keyClick(&Row(0), Qt::Key_Pause, Qt::ControlModifier);
       });
  Enter("wait 3600000");
  // The clock starts a moment after the run.
  EXPECT_GE(shownAfter, 1500);
  EXPECT_TRUE(QRegularExpression("^Running for \\d+ s\\. Ctrl\\+Break stops\\.$").match(text).hasMatch())
      << text.toStdString();
  EXPECT_EQ(focused, &Row(0));
  EXPECT_FALSE(Chip().isVisible());
}

TEST_F(RunChipTest, ItStandsInTheCornerAndTakesNoClicks) {
  EXPECT_TRUE(Chip().testAttribute(Qt::WA_TransparentForMouseEvents));
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_TRUE(Chip().isVisible());
  EXPECT_EQ(Chip().geometry().right(), Window().width() - 9);
}

TEST_F(RunChipTest, ItLeavesTheCornerWhereThePanelIsClosed) {
  Enter("show dia");
  QWidget& panel = WidgetOf(FormControls().Frame1);
  panel.move(Window().width() - panel.width(), 0);
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_FALSE(Chip().geometry().intersects(panel.geometry()));
  EXPECT_EQ(Chip().x(), 8);
}

TEST_F(RunChipTest, NothingOfItIsAControlOrInThePicture) {
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Chip().parentWidget(), &Window());
  EXPECT_EQ(session->form1.FindControl("RunChip"), nullptr);
}

}  // namespace
}  // namespace zerimo
