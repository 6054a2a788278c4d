#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <filesystem>

#include "base/failure.h"
#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

using EndOfSessionTest = DesktopTest;

class AfterAFailure : public DesktopTest {
 protected:
  /// A line width beyond 16 bits fails in a handler that is not under the skip rule.
  void Fail() {
    AnswerNextBox({Qt::Key_Return});
    FailInAField();
  }

  void FailInAField() {
    Enter("show dia");
    auto& field = WidgetAs<QLineEdit>(FormControls().Text4);
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

class WithoutAPlaceForTheText : public AfterAFailure {
 protected:
  /// The editor has a text, and a folder stands where it would be rescued.
  WithoutAPlaceForTheText() {
    std::filesystem::create_directory(InTheWay());
    Press(Qt::Key_F1);
    Type("to a");
    LeaveEditor();
  }

  std::filesystem::path InTheWay() const { return folder.filePath("Rescued.ZRM").toStdString(); }
};

TEST_F(WithoutAPlaceForTheText, TheBoxOffersToCopyItAndToTryAgain) {
  AnswerNextBox({Qt::Key_Tab, Qt::Key_Return});
  AnswerNextBox({Qt::Key_Return});
  AnswerNextBox({Qt::Key_Escape});
  FailInAField();
  ASSERT_EQ(Boxes.size(), 3u);
  EXPECT_TRUE(Boxes[0].Text.starts_with("Overflow\n\nZerimo has to end.\n\nThe text of the editor could not be kept"));
  EXPECT_EQ(Boxes[0].Buttons, (std::vector<std::string>{"Try again", "Copy the text", "End Zerimo"}));
  EXPECT_NE(Boxes[1].Text.find("has been copied"), std::string::npos);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "to a");
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(WithoutAPlaceForTheText, TryingAgainSavesItAsSoonAsThereIsOne) {
  WhileABoxStands([this] { std::filesystem::remove(InTheWay()); });
  AnswerNextBox({Qt::Key_Return});
  FailInAField();
  ASSERT_EQ(Boxes.size(), 2u);
  EXPECT_NE(Boxes[1].Text.find("has been saved in"), std::string::npos);
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "to a");
}

TEST_F(AfterAFailure, ATextThatTheFolderDoesNotTakeIsSavedElsewhere) {
  std::filesystem::create_directory(folder.filePath("Rescued.ZRM").toStdString());
  const std::filesystem::path elsewhere = folder.filePath("elsewhere").toStdString();
  session.reset();
  session =
      std::make_unique<Session>(QRect(0, 0, 1024, 768), OwnFolders(), std::vector<std::filesystem::path>{elsewhere});
  session->Start();
  Settle();
  FormControls().Text2.Text = "TO A";
  Fail();
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_TRUE(Boxes[0].Text.ends_with("elsewhere\\Rescued.ZRM")) << Boxes[0].Text;
  EXPECT_EQ(ReadFile("elsewhere/Rescued.ZRM"), "TO A");
}

TEST_F(AfterAFailure, ARunThatTakesTheMemoryEndsWithABoxAndTheRescue) {
  FormControls().Text2.Text = "TO A";
  session->watch.MostMemory = 1;
  AnswerNextBox({Qt::Key_Return});
  Enter("repeat 32000 [rt 1]");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_TRUE(Boxes[0].Text.starts_with("The program needs more memory")) << Boxes[0].Text;
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "TO A");
}

TEST_F(EndOfSessionTest, AMouseMoveAtAResolutionOfNothingEndsTheProgram) {
  Enter("cs");
  Enter("show dia");
  auto& field = WidgetAs<QLineEdit>(FormControls().Text3);
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Delete);
  ASSERT_FALSE(session->HasEnded());
  AnswerNextBox({Qt::Key_Return});
  QTest::mouseMove(&WidgetOf(session->form1.Picture1), {20, 20});
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
  Window().close();
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(EndOfSessionTest, ClosingTheIdleWindowWritesNothing) {
  FormControls().Text2.Text = "TO A";
  Window().close();
  EXPECT_FALSE(HasFile("Rescued.ZRM"));
}

}  // namespace
}  // namespace zerimo
