#include <QTest>

#include "base/failure.h"
#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

using EndOfSessionTest = DesktopTest;

class AfterAFailure : public DesktopTest {
 protected:
  /// A line width beyond 16 bits fails in a handler that is not under the skip rule.
  void Fail() {
    Enter("show dia");
    auto& field = WidgetAs<QLineEdit>(FormControls().Text4);
    AnswerNextBox({Qt::Key_Return});
    field.selectAll();
    QTest::keyClicks(&field, "32768");
  }
};

TEST_F(AfterAFailure, ABoxTellsTheFailuresWordsAndTheProgramEnds) {
  Fail();
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, std::string(Failure(FailureKind::Overflow).what()) + "\n\nZerimo has to end.");
  EXPECT_EQ(Boxes[0].Title, "Zerimo");
  EXPECT_FALSE(Boxes[0].Icon.isNull());
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 2);
}

TEST_F(AfterAFailure, TheEditorsTextIsRescuedAndTheBoxSaysSo) {
  Press(Qt::Key_F1);
  Type("to a");
  LeaveEditor();
  Fail();
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_NE(Boxes[0].Text.find("Rescued.ZRM"), std::string::npos);
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "to a");
}

TEST_F(AfterAFailure, WithAnEmptyEditorNothingIsWritten) {
  Fail();
  EXPECT_FALSE(HasFile("Rescued.ZRM"));
}

TEST_F(AfterAFailure, NothingRunsAnyMore) {
  Fail();
  QTest::keyClicks(&Row(0), "rt 1");
  QTest::keyClick(&Row(0), Qt::Key_Return);
  EXPECT_EQ(FormControls().List4.Items(), std::vector<std::string>{"?SHOW DIA"});
}

TEST_F(EndOfSessionTest, AMouseMoveAtAResolutionOfNothingEndsTheProgram) {
  Enter("cs");
  Enter("show dia");
  auto& field = WidgetAs<QLineEdit>(FormControls().Text3);
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Delete);
  ASSERT_FALSE(session->HasEnded());
  AnswerNextBox({Qt::Key_Return});
  QTest::mouseMove(&WidgetOf(System().Picture1), {20, 20});
  EXPECT_TRUE(Until([this] { return session->HasEnded(); }));
  EXPECT_EQ(session->ExitStatus(), 2);
}

TEST_F(EndOfSessionTest, AFailedSaveFromTheEditorEndsTheProgram) {
  Press(Qt::Key_F1);
  Type("to a");
  AnswerNextBox({Qt::Key_Return}, "no\\such\\folder\\a");
  AnswerNextBox({Qt::Key_Return});
  Press(Qt::Key_F10);
  EXPECT_EQ(Boxes.size(), 2u);
  EXPECT_EQ(session->ExitStatus(), 2);
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "to a");
}

TEST_F(EndOfSessionTest, ClosingTheIdleWindowEndsWithoutAQuestion) {
  Shown().close();
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(EndOfSessionTest, ClosingTheIdleWindowWritesNothing) {
  FormControls().Text2.Text = "TO A";
  Shown().close();
  EXPECT_FALSE(HasFile("Rescued.ZRM"));
}

}  // namespace
}  // namespace zerimo
