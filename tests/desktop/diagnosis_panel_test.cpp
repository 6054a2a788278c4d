#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class DiagnosisPanelTest : public DesktopTest {
 protected:
  DiagnosisPanelTest() {
    Enter("cs");
    Enter("show dia");
  }
  QLineEdit& Field(const TextBox& box) { return WidgetAs<QLineEdit>(box); }
  void Retype(QLineEdit& field, const char* text) {
    field.selectAll();
    QTest::keyClicks(&field, QLatin1String(text));
  }
};

TEST_F(DiagnosisPanelTest, TheFieldsShowTheValuesOfTheStart) {
  EXPECT_EQ(Field(FormControls().Text3).text(), "50");
  EXPECT_EQ(Field(FormControls().Text4).text(), "1");
}

TEST_F(DiagnosisPanelTest, AResolutionIsTakenAsItIsTyped) {
  Retype(Field(FormControls().Text3), "100");
  EXPECT_EQ(session->form1.turtle.Resolution, 100);
  Retype(Field(FormControls().Text3), "abc");
  EXPECT_EQ(session->form1.turtle.Resolution, 0);
}

TEST_F(DiagnosisPanelTest, ALineWidthIsTakenAsItIsTyped) {
  Retype(Field(FormControls().Text4), "3");
  EXPECT_EQ(session->form1.Picture1.DrawWidth(), 3);
  Retype(Field(FormControls().Text4), "-1");
  EXPECT_EQ(session->form1.Picture1.DrawWidth(), 3);
}

TEST_F(DiagnosisPanelTest, TheControlStringIsShown) {
  EXPECT_EQ(WidgetAs<QLabel>(FormControls().Label19).text().toStdString(), ".");
}

TEST_F(DiagnosisPanelTest, OfALongControlStringTheEndIsSeen) {
  auto& text = WidgetAs<QLabel>(FormControls().Label19);
  EXPECT_TRUE(text.alignment().testFlag(Qt::AlignLeft));
  FormControls().Label19.Caption = "." + std::string(200, 'X') + "- 12";
  Window().Sync();
  EXPECT_TRUE(text.alignment().testFlag(Qt::AlignRight));
  EXPECT_EQ(text.toolTip(), text.text());
  EXPECT_EQ(text.accessibleName(), "Control String: " + text.text());
}

TEST_F(DiagnosisPanelTest, ItsCloseButtonIsInSightOnASmallScreen) {
  Window().setFixedSize(640, 480);
  const QWidget& panel = WidgetOf(FormControls().Frame1);
  const QWidget& close = WidgetOf(FormControls().Command1);
  EXPECT_TRUE(Window().rect().contains(close.geometry().translated(panel.pos())));
}

TEST_F(DiagnosisPanelTest, TheListsAreShown) {
  Enter("make a 10");
  auto& list = WidgetAs<QAbstractItemView>(FormControls().List2);
  EXPECT_EQ(list.model()->index(0, 0).data().toString(), "A=10");
}

TEST_F(DiagnosisPanelTest, RefreshForgetsTheVariables) {
  Enter("make a 10");
  QTest::mouseClick(&WidgetOf(FormControls().Command2), Qt::LeftButton);
  EXPECT_EQ(WidgetAs<QAbstractItemView>(FormControls().List2).model()->rowCount(), 500);
  EXPECT_EQ(WidgetAs<QLabel>(FormControls().Label18).text(), "#- 0");
}

TEST_F(DiagnosisPanelTest, TheButtonClosesThePanelAndTheRowKeepsTheFocus) {
  QTest::mouseClick(&WidgetOf(FormControls().Command1), Qt::LeftButton);
  EXPECT_FALSE(WidgetOf(FormControls().Frame1).isVisible());
  EXPECT_EQ(Focused(), &Row(2));
}

TEST_F(DiagnosisPanelTest, EnterPressesAButtonThatHasTheFocus) {
  WidgetOf(FormControls().Command1).setFocus();
  Press(Qt::Key_Return);
  EXPECT_FALSE(WidgetOf(FormControls().Frame1).isVisible());
}

TEST_F(DiagnosisPanelTest, TheCheckBoxShowsAndHidesTheAxes) {
  auto& check = WidgetAs<QCheckBox>(FormControls().Check1);
  check.setFocus();
  Press(Qt::Key_Space);
  EXPECT_TRUE(FormControls().Line5.Visible());
  EXPECT_TRUE(check.isChecked());
  EXPECT_TRUE(FormControls().Check1.Value);
  Press(Qt::Key_Space);
  EXPECT_FALSE(FormControls().Line5.Visible());
  EXPECT_FALSE(check.isChecked());
}

TEST_F(DiagnosisPanelTest, GridThenOneMarkLeavesTheAxesOn) {
  Enter("show grid");
  QTest::mouseClick(&WidgetOf(FormControls().Check1), Qt::LeftButton, {}, {8, 12});
  EXPECT_TRUE(FormControls().Line5.Visible());
  QTest::mouseClick(&WidgetOf(FormControls().Check1), Qt::LeftButton, {}, {8, 12});
  EXPECT_FALSE(FormControls().Line5.Visible());
}

TEST_F(DiagnosisPanelTest, AMovedBarColoursTheBackgroundAndItsPreview) {
  auto& red = WidgetAs<QScrollBar>(FormControls().HScroll1[0]);
  red.setFocus();
  Press(Qt::Key_End);
  EXPECT_EQ(FormControls().HScroll1[0].Value, 255);
  EXPECT_EQ(session->form1.Picture1.BackColor(), 255);
  EXPECT_EQ(WidgetOf(FormControls().Label9).grab().toImage().pixelColor(10, 30), QColor(255, 0, 0));
}

TEST_F(DiagnosisPanelTest, AMovedBarColoursThePen) {
  auto& green = WidgetAs<QScrollBar>(FormControls().HScroll2[1]);
  ASSERT_EQ(green.value(), 255);
  green.setFocus();
  Press(Qt::Key_Home);
  EXPECT_EQ(session->form1.Picture1.ForeColor(), 0xFF00FF);
  EXPECT_EQ(FormControls().Line1.BorderColor, 0xFF00FF);
}

TEST_F(DiagnosisPanelTest, ItDoesNotOverlapTheRows) {
  const QRect panel = WidgetOf(FormControls().Frame1).geometry();
  EXPECT_FALSE(panel.intersects(WidgetOf(FormControls().Picture3).geometry()));
  EXPECT_TRUE(Window().rect().contains(panel));
}

TEST_F(DiagnosisPanelTest, ItsControlsDoNotOverlap) {
  const QList<QWidget*> children =
      WidgetOf(FormControls().Frame1).findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (int one = 0; one < children.size(); ++one) {
    EXPECT_TRUE(WidgetOf(FormControls().Frame1).rect().contains(children[one]->geometry()));
    for (int other = one + 1; other < children.size(); ++other) {
      EXPECT_FALSE(children[one]->geometry().intersects(children[other]->geometry()))
          << children[one]->objectName().toStdString() << " " << children[other]->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace zerimo
