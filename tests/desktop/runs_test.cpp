#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class RunsTest : public DesktopTest {
 protected:
  /// Enters a line that takes too long, looks while it runs, and closes the window once enough has been seen.
  void RunUntil(const char* line, const std::function<bool()>& hasSeenEnough) {
    QElapsedTimer clock;
    clock.start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      if (hasSeenEnough() || clock.hasExpired(20000)) Window().close();
    });
    look.start(20);
    Enter(line);
  }
};

using Texts = std::vector<std::string>;

TEST_F(RunsTest, KeysTypedDuringARunArriveAfterwards) {
  QString seen = "untouched";
  During(0, [&] {
    QTest::keyClicks(&Row(0), "rt");
    seen = Row(0).text();
  });
  Enter("wait 150");
  EXPECT_EQ(seen, "wait 150");
  EXPECT_TRUE(Until([this] { return Row(0).text() == "wait 150rt"; }));
}

TEST_F(RunsTest, ALineEnteredDuringARunRunsAfterwardsOnce) {
  During(0, [this] {
    QTest::keyClicks(&Row(1), "rt 5");
    QTest::keyClick(&Row(1), Qt::Key_Return);
  });
  Enter("wait 100");
  EXPECT_EQ(FormControls().List4.Items(), Texts{"?WAIT 100"});
  EXPECT_TRUE(Until([this] { return FormControls().List4.Items().size() == 2; }));
  EXPECT_EQ(FormControls().List4.Items(), (Texts{"?WAIT 100", "?RT 5"}));
}

TEST_F(RunsTest, ALongTextTypedDuringARunArrivesWhole) {
  const QString text(2000, QLatin1Char('x'));
  During(0, [&] { QTest::keyClicks(&Row(1), text); });
  Enter("wait 20");
  EXPECT_TRUE(Until([&] { return Row(1).text() == text; }));
}

TEST_F(RunsTest, AKeyThatSomethingLiesOnIsKeptForAWhileOnly) {
  During(0, [&] {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x", true);
    for (int i = 0; i < 5000; ++i) QApplication::sendEvent(&Row(1), &press);
    QTest::keyClick(&Row(1), Qt::Key_Y);
  });
  Enter("wait 20");
  EXPECT_TRUE(Until([&] { return Row(1).text().endsWith(QLatin1Char('y')); }));
  EXPECT_EQ(Row(1).text().size(), 1001);
}

TEST_F(RunsTest, AClickDuringARunActsAfterwards) {
  Enter("show dia");
  During(0, [this] { QTest::mouseClick(&WidgetOf(FormControls().Command1), Qt::LeftButton); });
  Enter("wait 100");
  EXPECT_TRUE(WidgetOf(FormControls().Frame1).isVisible());
  EXPECT_TRUE(Until([this] { return !WidgetOf(FormControls().Frame1).isVisible(); }));
}

TEST_F(RunsTest, ATimerThatComesDueDuringARunFiresOnceAfterwards) {
  int captions = 0;
  FormControls().Timer4.Interval = 10;
  Enter("show time");
  FormControls().Form1.OnCaption = [&](const std::string&) { ++captions; };
  During(0, [&] { captions = 0; });
  int whileRunning = -1;
  During(60, [&] { whileRunning = captions; });
  Enter("wait 300");
  EXPECT_EQ(whileRunning, 0);
  FormControls().Timer4.Interval = 10000;
  EXPECT_TRUE(Until([&] { return captions > 0; }));
  QTest::qWait(30);
  EXPECT_EQ(captions, 1);
}

TEST_F(RunsTest, ATimerDoesNotTickWhileABoxStands) {
  int captions = 0;
  FormControls().Timer4.Interval = 5;
  Enter("show time");
  FormControls().Form1.OnCaption = [&](const std::string&) { ++captions; };
  int before = 0;
  int after = -1;
  WhileABoxStands([&] {
    before = captions;
    QTest::qWait(40);
    after = captions;
  });
  Enter("xcor");
  EXPECT_EQ(after, before);
}

TEST_F(RunsTest, WaitHoldsForItsTimeAndShowsTheStateBefore) {
  Enter("show dia");
  QString shown;
  During(0, [&] { shown = WidgetAs<QLabel>(FormControls().Label19).text(); });
  QElapsedTimer clock;
  clock.start();
  Enter("wait 100");
  EXPECT_GE(clock.elapsed(), 100);
  EXPECT_NE(shown, "Control String");
}

TEST_F(RunsTest, ThePictureGrowsWhileALineRuns) {
  Enter("show dia");
  std::set<std::string> seen;
  RunUntil("repeat 30000 [repeat 30000 [rt 1]]", [&] {
    seen.insert(WidgetAs<QLabel>(FormControls().Label19).text().toStdString());
    return seen.size() == 3;
  });
  EXPECT_EQ(seen.size(), 3u);
  EXPECT_FALSE(seen.contains("Control String"));
}

TEST_F(RunsTest, ClosingTheWindowEndsARunThatDoesNotEnd) {
  During(50, [this] { Window().close(); });
  Enter("label a goto a");
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(RunsTest, ClosingTheWindowEndsAnEvaluationThatDoesNotEnd) {
  During(50, [this] { Window().close(); });
  Enter("fd -/3");
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(RunsTest, ClosingTheWindowDuringARunRescuesTheEditorsText) {
  FormControls().Text2.Text = "TO A\r\nEND";
  During(50, [this] { Window().close(); });
  Enter("label a goto a");
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "TO A\r\nEND");
}

TEST_F(RunsTest, ClosingTheWindowLeavesAProgramThatShowsBoxAfterBox) {
  WhileABoxStands([this] { Window().close(); });
  Enter("repeat 1000 [message 1]");
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(Boxes.size(), 1u);
}

TEST_F(RunsTest, ClosingTheWindowEndsAWait) {
  During(50, [this] { Window().close(); });
  Enter("wait 3600000");
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(RunsTest, TheTextScreenFillsWhileALineRuns) {
  Press(Qt::Key_F3);
  auto& list = WidgetAs<QAbstractItemView>(FormControls().List4);
  int rows = 0;
  RunUntil("repeat 30000 [repeat 30000 [print \"x\"]]", [&] {
    rows = list.model()->rowCount();
    return rows > 1;
  });
  EXPECT_GT(rows, 1);
}

}  // namespace
}  // namespace zerimo
