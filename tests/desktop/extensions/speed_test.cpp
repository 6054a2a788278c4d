#include <QElapsedTimer>
#include <QListView>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class SpeedTest : public ExtensionsTest {
 protected:
  SpeedTest() {
    TypeInEditor("to box :s\nfd :s\nrt 90\nif 1=1\nlt 90\nendif\nrt 45\nend");
    Press(Qt::Key_F2);
    Enter("show dia");
  }

  void Choose(Qt::Key digit) { QTest::keyClick(&Row(0), digit, Qt::ControlModifier); }
  void Space() { QTest::keyClick(&Row(0), Qt::Key_Space); }
  QListView& Lines() { return WidgetAs<QListView>(FormControls().List1); }

  /// What a typed line takes at a speed.
  qint64 MillisecondsOfALine(Qt::Key speed) {
    Choose(speed);
    QElapsedTimer clock;
    clock.start();
    Enter("rt 1");
    return clock.elapsed();
  }

  /// Enters a line whose steps all differ, and steps through it; returns what the chip says before each step.
  std::vector<std::string> Steps(const char* line) {
    std::vector<std::string> steps;
    Choose(Qt::Key_4);
    QTimer stepper;
    QObject::connect(&stepper, &QTimer::timeout, [&] {
      if (!session->stage.IsRunning()) return;
      const std::string told = Chip().text().section(u'\n', 0, 0).toStdString();
      // The step that the last Space asked for is still on its way.
      if (!steps.empty() && steps.back() == told) return;
      steps.push_back(told);
      marked.push_back(Lines().currentIndex().row());
      Space();
    });
    stepper.start(20);
    Enter(line);
    return steps;
  }

  std::vector<int> marked;
};

TEST_F(SpeedTest, EachSpaceRunsOneLineAndTheChipTellsWhich) {
  const std::vector<std::string> expected = {"Your line: BOX 30",   "BOX, line 2: FD :S", "BOX, line 3: RT 90",
                                             "BOX, line 4: IF 1=1", "BOX, line 5: LT 90", "BOX, line 6: ENDIF",
                                             "BOX, line 7: RT 45",  "BOX, line 8: END"};
  EXPECT_EQ(Steps("box 30"), expected);
  EXPECT_EQ(Row(1).text(), "box 30");
}

TEST_F(SpeedTest, ThePanelMarksTheLineThatRuns) {
  Steps("box 30");
  EXPECT_EQ(marked, (std::vector<int>{-1, 1, 2, 3, 4, 5, 6, 7}));
  EXPECT_FALSE(Lines().currentIndex().isValid());
}

TEST_F(SpeedTest, SlowTakesHalfASecondALine) { EXPECT_GE(MillisecondsOfALine(Qt::Key_3), 500); }

TEST_F(SpeedTest, FastShowsEachLineForAMoment) { EXPECT_GE(MillisecondsOfALine(Qt::Key_2), 60); }

// As on a French keyboard.
TEST_F(SpeedTest, ADigitOnShiftChoosesToo) {
  QTest::keyClick(&Row(0), Qt::Key_3, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Chip().text().startsWith("Slow"));
}

TEST_F(SpeedTest, FullSpeedEndsTheSteppingOfARun) {
  Choose(Qt::Key_4);
  During(50, [this] { Choose(Qt::Key_1); });
  Enter("repeat 100 [rt 1]");
  EXPECT_NEAR(session->form1.turtle.TurtleDir, 100 * 3.14159265 / 180, 1e-5);
  EXPECT_FALSE(Chip().isVisible());
  EXPECT_FALSE(session->watch.OnStep);
}

TEST_F(SpeedTest, ASteppedRunCanBeStopped) {
  Choose(Qt::Key_4);
  During(50, [this] { QTest::keyClick(&Row(0), Qt::Key_Pause, Qt::ControlModifier); });
  Enter("fd 10");
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
  Choose(Qt::Key_1);
  Enter("rt 90");
  EXPECT_NEAR(session->form1.turtle.TurtleDir, 3.14159265 / 2, 1e-6);
}

TEST_F(SpeedTest, WhileNothingRunsTheSpaceBarTypes) {
  Choose(Qt::Key_4);
  Row(1).setFocus();
  Type("a b");
  EXPECT_EQ(Row(1).text(), "a b");
}

TEST_F(SpeedTest, TheChipTellsTheChosenSpeed) {
  Choose(Qt::Key_3);
  EXPECT_EQ(Chip().text(), "Slow, line by line. Ctrl+1: full speed");
  Choose(Qt::Key_1);
  EXPECT_FALSE(Chip().isVisible());
}

}  // namespace
}  // namespace zerimo
