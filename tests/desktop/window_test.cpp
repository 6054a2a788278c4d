#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <ostream>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

struct ScreenCase {
  int Width;
  int Height;
  /// The height that a title bar takes.
  int TitleBar;
};

void PrintTo(const ScreenCase& one, std::ostream* out) {
  *out << one.Width << "x" << one.Height << " less " << one.TitleBar;
}

class Screens : public DesktopTest, public testing::WithParamInterface<ScreenCase> {
 protected:
  Screens() : DesktopTest({0, 0, GetParam().Width, GetParam().Height}) {
    Window().setFixedSize(GetParam().Width, GetParam().Height - GetParam().TitleBar);
  }
  QRect InWindow(const QWidget& widget) { return {widget.mapTo(&Window(), QPoint(0, 0)), widget.size()}; }
};

TEST_P(Screens, ShowAllRowsWholeAndUsable) {
  for (int row = 0; row < 5; ++row) {
    EXPECT_TRUE(Window().rect().contains(InWindow(Row(row)))) << row;
    EXPECT_EQ(Row(row).height(), 25);
    QTest::mouseClick(&Row(row), Qt::LeftButton);
    QTest::keyClicks(&Row(row), "rt 1");
    EXPECT_EQ(FormControls().Focus.Focus(), &FormControls().Text1[row]);
    EXPECT_EQ(Row(row).text(), "rt 1");
  }
}

TEST_P(Screens, TakeTheirSizeIntoTheData) {
  EXPECT_EQ(FormControls().Screen.Width, static_cast<float>(15 * GetParam().Width));
  EXPECT_EQ(FormControls().Screen.Height, static_cast<float>(15 * GetParam().Height));
}

TEST_P(Screens, KeepTheEditorInsideTheWindow) {
  Press(Qt::Key_F1);
  EXPECT_TRUE(Window().rect().contains(Editor().geometry()));
}

TEST_P(Screens, KeepThePanelsWithinReach) {
  Enter("show dia");
  Enter("show pal");
  for (const Control* panel :
       {static_cast<Control*>(&FormControls().Frame1), static_cast<Control*>(&FormControls().Picture2)}) {
    const QRect place = WidgetOf(*panel).geometry();
    EXPECT_GE(place.y(), 0);
    // A panel that is too wide is closed in its right upper corner.
    if (place.width() <= Window().width()) {
      EXPECT_GE(place.x(), 0);
    } else {
      EXPECT_EQ(place.right(), Window().rect().right());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(SizesAndTitleBars, Screens,
                         testing::Values(ScreenCase{1024, 768, 0}, ScreenCase{1024, 768, 20}, ScreenCase{1024, 768, 37},
                                         ScreenCase{1366, 768, 30}, ScreenCase{1920, 1080, 0},
                                         ScreenCase{1920, 1080, 40}, ScreenCase{3840, 2160, 0},
                                         ScreenCase{3840, 2160, 50}, ScreenCase{683, 512, 30},
                                         ScreenCase{512, 384, 30}));

using WindowTest = DesktopTest;

TEST_F(WindowTest, TheCaptionIsTheStatusLine) {
  EXPECT_EQ(Window().windowTitle(), "Zerimo");
  Enter("show details");
  EXPECT_TRUE(Window().windowTitle().contains("[Pen State:Pen Down]"));
  Enter("hide");
  EXPECT_EQ(Window().windowTitle(), "Zerimo");
}

TEST_F(WindowTest, TheClockTellsTheTimeInTheDesktopsForm) {
  FormControls().Timer4.Interval = 5;
  Enter("show time");
  EXPECT_TRUE(Until([this] { return Window().windowTitle().startsWith("Zerimo [ Time:"); }));
  EXPECT_TRUE(Window().windowTitle().endsWith(" ]"));
}

TEST_F(WindowTest, TheRowsLieAtTheirPlaces) {
  EXPECT_EQ(WidgetOf(FormControls().Picture3).geometry(), QRect(0, 612, 1024, 129));
  EXPECT_EQ(Row(4).geometry(), QRect(16, 96, 1008, 25));
  EXPECT_EQ(WidgetOf(FormControls().Prompt).geometry(), QRect(0, 0, 17, 121));
}

TEST_F(WindowTest, ATitleBarMovesTheRowsUp) {
  Window().setFixedSize(1024, 728);
  EXPECT_EQ(WidgetOf(FormControls().Picture3).geometry(), QRect(0, 599, 1024, 129));
}

TEST_F(WindowTest, EveryControlThatCanBeReachedHasAName) {
  int named = 0;
  FormControls().ForEach([&](Control& control) {
    ControlView* view = Window().FindView(control);
    if (view == nullptr) return;
    const QWidget& widget = view->Widget();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool saysItself = button != nullptr && button->text().size() > 1;
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool isText = label != nullptr && !label->text().isEmpty();
    EXPECT_TRUE(!widget.accessibleName().isEmpty() || saysItself || isText) << control.Name();
    ++named;
  });
  EXPECT_GT(named, 60);
}

TEST_F(WindowTest, TheSmallButtonsHaveToolTips) {
  for (const Button* button :
       {&FormControls().Command1, &FormControls().Command3, &FormControls().Command4, &FormControls().Command5}) {
    EXPECT_FALSE(WidgetOf(*button).toolTip().isEmpty()) << button->Name();
  }
}

TEST_F(WindowTest, TheTabKeyGoesThroughTheRowsInOrder) {
  for (int row = 1; row < 5; ++row) {
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), &Row(row));
  }
}

TEST_F(WindowTest, TheTabKeyReachesThePanelAfterTheRows) {
  Enter("show dia");
  Row(4).setFocus();
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focused()->parentWidget(), &WidgetOf(FormControls().Frame1));
}

TEST_F(WindowTest, TheTabKeyFindsTheFirstRowWhenNothingHasTheFocus) {
  Enter("show dia");
  WidgetOf(FormControls().Command1).setFocus();
  Press(Qt::Key_Return);
  ASSERT_EQ(FormControls().Focus.Focus(), nullptr);
  ASSERT_EQ(Focused(), &Window());
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(WindowTest, InFullScreenTheTabKeyReachesTheSurface) {
  Press(Qt::Key_F4);
  QTest::keyClick(&Window(), Qt::Key_Tab);
  EXPECT_EQ(Focused(), &WidgetOf(session->form1.Picture1));
  Press(Qt::Key_F1);
  EXPECT_EQ(Focused(), &Editor());
}

TEST_F(WindowTest, TypingGoesOnInTheLastRowWhenNothingHasTheFocus) {
  Enter("show dia");
  Press(Qt::Key_Down);
  ASSERT_EQ(Focused(), &Row(2));
  WidgetOf(FormControls().Command1).setFocus();
  Press(Qt::Key_Return);
  ASSERT_EQ(FormControls().Focus.Focus(), nullptr);
  QTest::keyClicks(&Window(), "f");
  Type("d 10");
  EXPECT_EQ(Focused(), &Row(2));
  EXPECT_EQ(FormControls().Focus.Focus(), &FormControls().Text1[2]);
  EXPECT_EQ(Row(2).text(), "fd 10");
}

TEST_F(WindowTest, KeysThatOnlyChangeOthersGiveNoFocus) {
  Press(Qt::Key_F4);
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_CapsLock}) {
    QTest::keyClick(&Window(), key);
    EXPECT_EQ(FormControls().Focus.Focus(), nullptr) << key;
  }
}

TEST_F(WindowTest, F2FromTheFullScreenLetsTheLearnerTypeOn) {
  Enter("rt 1");
  Press(Qt::Key_F4);
  ASSERT_EQ(FormControls().Focus.Focus(), nullptr);
  QTest::keyClick(&Window(), Qt::Key_F2);
  EXPECT_TRUE(Row(0).isVisible());
  EXPECT_EQ(FormControls().Focus.Focus(), &FormControls().Text1[0]);
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(WindowTest, InFullScreenF1OpensTheEditorAndF3TheTextScreen) {
  Press(Qt::Key_F4);
  QTest::keyClick(&Window(), Qt::Key_F1);
  EXPECT_EQ(Focused(), &Editor());
  Press(Qt::Key_F4);
  QTest::keyClick(&Window(), Qt::Key_F3);
  EXPECT_TRUE(WidgetOf(FormControls().List4).isVisible());
}

TEST_F(WindowTest, F2BringsEverythingBackFromTheTextScreenWithoutRows) {
  Press(Qt::Key_F1);
  Press(Qt::Key_F3);
  ASSERT_EQ(FormControls().Focus.Focus(), nullptr);
  ASSERT_FALSE(Row(0).isVisible());
  QTest::keyClick(&Window(), Qt::Key_F2);
  EXPECT_FALSE(WidgetOf(FormControls().List4).isVisible());
  EXPECT_EQ(Focused(), &Row(0));
}

TEST_F(WindowTest, AfterTheHelpViewTypingGoesOnInTheRow) {
  WriteFile("ZMHELP/FD", "forward");
  Enter("help fd");
  WidgetOf(FormControls().RichTextBox1).setFocus();
  Press(Qt::Key_Escape);
  ASSERT_EQ(FormControls().Focus.Focus(), nullptr);
  QTest::keyClick(&Window(), Qt::Key_R);
  EXPECT_EQ(Focused(), &Row(1));
  EXPECT_EQ(Row(1).text(), "r");
}

TEST_F(WindowTest, TheFullScreenFillsTheWindow) {
  Press(Qt::Key_F4);
  EXPECT_EQ(WidgetOf(session->form1.Picture1).geometry(), QRect(0, 0, 1024, 768));
}

}  // namespace
}  // namespace zerimo
