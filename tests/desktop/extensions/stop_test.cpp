#include <QMessageBox>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class StopTest : public ExtensionsTest {
 protected:
  /// Enters a line that would not end, and stops it.
  void StopLine(const char* line, Qt::Key key = Qt::Key_Pause) {
    During(50, [this, key] { QTest::keyClick(&Row(0), key, Qt::ControlModifier); });
    Enter(line);
  }
};

TEST_F(StopTest, ALineStopsAndDrawingVariablesAndHistoryStay) {
  Enter("cs");
  const double middle = session->form1.turtle.TurtleY;
  When([&] { return session->form1.turtle.TurtleY < middle; },
       [this] { QTest::keyClick(&Row(0), Qt::Key_Pause, Qt::ControlModifier); });
  Enter("make \"n 5 fd 10 label a goto a");
  EXPECT_FALSE(session->HasEnded());
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(FormControls().List4.Items(), (Texts{"?CS", "?MAKE \"N 5 FD 10 LABEL A GOTO A"}));
  EXPECT_EQ(FormControls().List2.Items(), Texts{":N=5"});
  EXPECT_EQ(session->form1.interpreter.store.Line(1), "");
  EXPECT_LT(session->form1.turtle.TurtleY, middle);
  EXPECT_EQ(Focused(), &Row(2));
}

TEST_F(StopTest, TheNextLineRunsAsEver) {
  StopLine("label a goto a");
  Enter("rt 90");
  EXPECT_NEAR(session->form1.turtle.TurtleDir, 3.14159265 / 2, 1e-6);
}

TEST_F(StopTest, AProcedureStopsAndStays) {
  TypeInEditor("to a\nfd 1\na\nend");
  Press(Qt::Key_F2);
  StopLine("a");
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(FormControls().List3.Items(), Texts{"TO A"});
}

TEST_F(StopTest, TheOtherKeyStopsToo) {
  StopLine("label a goto a", Qt::Key_Period);
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
}

TEST_F(StopTest, AnEvaluationThatNeverReturnsStops) {
  StopLine("fd -/3");
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(session->form1.interpreter.store.Line(1), "");
}

TEST_F(StopTest, ASlideShowEndsAndItsSlideStays) {
  QImage slide(64, 64, QImage::Format_RGB32);
  slide.fill(Qt::red);
  for (const char* name : {"TRIP1.JPG", "TRIP2.JPG", "TRIP3.JPG"})
    ASSERT_TRUE(slide.save(folder.filePath(QLatin1String(name)), "JPG", 100));
  Enter("slideshow trip 30");
  ASSERT_TRUE(Until([this] { return session->form1.files.pictures.SlideCounter > 0; }));
  const Colour shown = session->form1.Picture1.Point(300, 300);
  Press(Qt::Key_Pause, Qt::ControlModifier);
  EXPECT_FALSE(FormControls().Timer3.Enabled);
  EXPECT_EQ(session->form1.files.pictures.SlideCounter, 0);
  EXPECT_EQ(session->form1.Picture1.Point(300, 300), shown);
}

TEST_F(StopTest, ASlideShowEndsWithTheLineThatBeganIt) {
  QImage slide(64, 64, QImage::Format_RGB32);
  slide.fill(Qt::red);
  ASSERT_TRUE(slide.save(folder.filePath("TRIP1.JPG"), "JPG", 100));
  StopLine("slideshow trip 30000 wait 3600000");
  EXPECT_TRUE(Until([this] { return !FormControls().Timer3.Enabled; }));
}

TEST_F(StopTest, AWaitStops) {
  StopLine("wait 3600000");
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
}

TEST_F(StopTest, WhileNothingRunsTheKeyDoesNothing) {
  Type("rt");
  Press(Qt::Key_Pause, Qt::ControlModifier);
  Press(Qt::Key_Period, Qt::ControlModifier);
  EXPECT_EQ(Row(0).text(), "rt");
}

TEST_F(StopTest, AKeyStopsBehindABox) {
  WhileABoxStands([this] { QTest::keyClick(&Window(), Qt::Key_Pause, Qt::ControlModifier); });
  Enter("repeat 1000 [message 1]");
  EXPECT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
}

TEST_F(StopTest, ABoxThatComesAgainAtOnceOffersToStop) {
  AnswerNextBox({Qt::Key_Return});
  AnswerNextBox({Qt::Key_S});
  Enter("repeat 1000 [message 1]");
  ASSERT_EQ(Boxes.size(), 2u);
  EXPECT_EQ(Boxes[0].Buttons, Texts{"OK"});
  EXPECT_EQ(Boxes[1].Buttons, (Texts{"OK", "Stop the program"}));
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
}

TEST_F(StopTest, TheFirstBoxOfALineOffersNothing) {
  for (int line = 0; line < 2; ++line) {
    AnswerNextBox({Qt::Key_Return});
    Enter("message 1");
  }
  EXPECT_EQ(Boxes[1].Buttons, Texts{"OK"});
}

class ClosingDuringARun : public StopTest {
 protected:
  void CloseAndAnswer(Qt::Key answer, const char* line) {
    AnswerNextBox({answer});
    During(50, [this] { Window().close(); });
    Enter(line);
  }
};

TEST_F(ClosingDuringARun, StopKeepsTheWindow) {
  CloseAndAnswer(Qt::Key_S, "label a goto a");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Buttons, (Texts{"Stop the program", "Close Zerimo", "Go on"}));
  EXPECT_FALSE(session->HasEnded());
  EXPECT_EQ(session->form1.interpreter.controlPath.CtrlStr(), ".");
}

TEST_F(ClosingDuringARun, CloseEndsTheSession) {
  CloseAndAnswer(Qt::Key_C, "label a goto a");
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(ClosingDuringARun, GoOnGoesOn) {
  CloseAndAnswer(Qt::Key_G, "wait 150 rt 90");
  EXPECT_FALSE(session->HasEnded());
  EXPECT_NEAR(session->form1.turtle.TurtleDir, 3.14159265 / 2, 1e-6);
}

TEST_F(ClosingDuringARun, ClosingTwiceCloses) {
  WhileABoxStands([this] { Window().close(); }, Qt::Key_F5);
  During(50, [this] { Window().close(); });
  Enter("label a goto a");
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(ClosingDuringARun, AQuestionOfTheSystemClosesWithTheWindow) {
  WhileABoxStands([this] { Window().close(); }, Qt::Key_F5);
  Press(Qt::Key_F9);
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(ClosingDuringARun, TheIdleWindowClosesWithoutAQuestion) {
  Window().close();
  EXPECT_TRUE(session->HasEnded());
}

}  // namespace
}  // namespace zerimo
