#include "desktop/extensions/panel_drag.h"

#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class PanelDragTest : public ExtensionsTest {
 protected:
  PanelDragTest() { Enter("show dia"); }
  QWidget& Panel() { return WidgetOf(FormControls().Frame1); }
  void Drag(QPoint from, QPoint by) {
    QTest::mousePress(&Panel(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&Panel(), from + by);
    QTest::mouseRelease(&Panel(), Qt::LeftButton, {}, from);
  }
};

constexpr QPoint OnTheBar(100, 8);

TEST_F(PanelDragTest, TheBarDragsThePanelAndItStaysThere) {
  const QPoint before = Panel().pos();
  const float left = FormControls().Frame1.Left;
  Drag(OnTheBar, {60, 30});
  EXPECT_EQ(Panel().pos(), before + QPoint(60, 30));
  Enter("fd 10");
  EXPECT_EQ(Panel().pos(), before + QPoint(60, 30));
  EXPECT_EQ(FormControls().Frame1.Left, left);
}

TEST_F(PanelDragTest, ItStaysInTheWindowAndComesBackAtOnce) {
  Drag(OnTheBar, {5000, 5000});
  const QPoint corner = Panel().pos();
  EXPECT_TRUE(Window().rect().contains(Panel().geometry()));
  Drag(OnTheBar, {-10, -10});
  EXPECT_EQ(Panel().pos(), corner - QPoint(10, 10));
}

TEST_F(PanelDragTest, BelowTheBarNothingDrags) {
  const QPoint before = Panel().pos();
  Drag({100, 26}, {60, 30});
  EXPECT_EQ(Panel().pos(), before);
}

TEST_F(PanelDragTest, ItDoesNotCoverTheRows) {
  Drag(OnTheBar, {0, 5000});
  EXPECT_LT(Panel().geometry().bottom(), WidgetOf(FormControls().Picture3).y());
}

}  // namespace
}  // namespace zerimo
