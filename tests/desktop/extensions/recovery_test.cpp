#include <QTest>
#include <fstream>
#include <sstream>

#include "desktop/extensions/extensions_fixture.h"
#include "desktop/extensions/rescue_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class RecoveryTest : public ExtensionsTest {
 protected:
  explicit RecoveryTest(std::chrono::milliseconds keepAfter = std::chrono::milliseconds(20))
      : ExtensionsTest(keepAfter) {}

  fs::path Rescued() const { return State() / "rescued"; }

  /// The texts in the folder of rescued texts.
  Texts Kept() const {
    Texts texts;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(Rescued(), none)) {
      if (entry.path().extension() != ".ZRM") continue;
      std::ostringstream text;
      text << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      texts.push_back(text.str());
    }
    std::sort(texts.begin(), texts.end());
    return texts;
  }

  /// Types a text and waits until all of it is kept.
  void TypeUntilKept(const char* text) {
    TypeInEditor(text);
    const Texts whole = {QString(text).replace("\n", "\r\n").toStdString()};
    ASSERT_TRUE(Until([&] { return Kept() == whole; }));
  }

  /// Waits as long as a text takes that will be kept, several times over.
  void WaitForKeeping() const { QTest::qWait(static_cast<int>(10 * KeepAfter.count())); }

  /// Leaves a text as a window that is gone does.
  void Leave(const char* name, const char* text) const {
    fs::create_directories(Rescued());
    std::ofstream(Rescued() / name) << text;
  }

  /// Ends the session as if its window had been killed, and starts another one in the same folder.
  void StartAnew() {
    session.reset();
    session = std::make_unique<Session>(QRect(0, 0, 1024, 768), OwnFolders());
    session->Start();
    Window().setFixedSize(1024, 768);
    AddExtensions(*session, State(), KeepAfter);
    Settle();
  }
};

/// What must not wait for the delay.
class RecoveryAtOnceTest : public RecoveryTest {
 protected:
  RecoveryAtOnceTest() : RecoveryTest(std::chrono::hours(1)) {}
};

TEST_F(RecoveryTest, TypedTextIsKept) { TypeUntilKept("to a\nfd 1"); }

TEST_F(RecoveryTest, TheEmptiedEditorKeepsNothing) {
  TypeUntilKept("to");
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  EXPECT_TRUE(Until([this] { return Kept().empty(); }));
}

TEST_F(RecoveryTest, ATextTakenOverIsKeptNoLonger) {
  TypeUntilKept("to a\nend");
  Press(Qt::Key_F2);
  EXPECT_EQ(Kept(), Texts{});
}

TEST_F(RecoveryTest, ASavedTextIsKeptNoLonger) {
  TypeUntilKept("to a\nend");
  AnswerNextBox({Qt::Key_Return}, "a");
  Press(Qt::Key_F10);
  EXPECT_EQ(ReadFile("a.ZRM"), "to a\r\nend\r\n");
  EXPECT_EQ(Kept(), Texts{});
}

TEST_F(RecoveryTest, ATextSavedInTheFileWindowIsKeptNoLonger) {
  TypeUntilKept("to a\nend");
  LeaveEditor();
  AnswerNextBox({Qt::Key_Return}, "b");
  Enter("show saveas");
  EXPECT_EQ(ReadFile("b.ZRM"), "to a\r\nend\r\n");
  EXPECT_EQ(Kept(), Texts{});
}

TEST_F(RecoveryTest, ASaveThatFailsKeepsTheText) {
  TypeUntilKept("to a\nend");
  LeaveEditor();
  WriteFile("taken", "");
  AnswerNextBox({Qt::Key_Return, Qt::Key_Escape}, "taken/b");
  Enter("show saveas");
  EXPECT_EQ(Kept(), Texts{"to a\r\nend"});
}

TEST_F(RecoveryTest, ALoadedProgramIsNotKept) {
  WriteFile("A.ZRM", "TO A\r\nEND\r\n");
  Enter("load a");
  WaitForKeeping();
  EXPECT_EQ(Kept(), Texts{});
}

TEST_F(RecoveryTest, ByeGivesTheTextUp) {
  TypeUntilKept("to a");
  LeaveEditor();
  Enter("quit");
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(Kept(), Texts{});
}

TEST_F(RecoveryAtOnceTest, ClosingTheWindowKeepsTheText) {
  TypeInEditor("to a");
  Window().close();
  EXPECT_EQ(Kept(), Texts{"to a"});
}

TEST_F(RecoveryAtOnceTest, AFailureKeepsTheTextAndTheBoxSaysSo) {
  TypeInEditor("to a");
  LeaveEditor();
  Enter("show dia");
  auto& field = WidgetAs<QLineEdit>(FormControls().Text4);
  AnswerNextBox({Qt::Key_Return});
  field.selectAll();
  QTest::keyClicks(&field, "32768");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_TRUE(Boxes[0].Text.ends_with(
      "Zerimo has to end.\n\nThe text of the editor is safe. Zerimo offers it at the next start."));
  EXPECT_EQ(Kept(), Texts{"to a"});
  EXPECT_FALSE(HasFile("Rescued.ZRM"));
}

TEST_F(RecoveryTest, ATextWhoseTakingOverFailsIsKept) {
  const char* text = "to mm\nrepeat 100000 [fd 3 rt 5]\nend";
  TypeUntilKept(text);
  AnswerNextBox({Qt::Key_Return});
  Press(Qt::Key_F2);
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_TRUE(Boxes[0].Text.ends_with("Zerimo offers it at the next start.")) << Boxes[0].Text;
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(Kept().size(), 1u);
}

TEST_F(RecoveryTest, ATextOfAnotherMachineIsOfferedOnceItsWindowIsSilent) {
  Leave("1.ZRM", "one");
  const fs::path lock = Rescued() / "1.ZRM.lock";
  std::ofstream(lock) << "1\nzerimo\nanother machine\nwith another number\nand another start\n";
  EXPECT_TRUE(RescueFolder(Rescued()).Left().empty());
  fs::last_write_time(lock, fs::file_time_type::clock::now() - 2 * RescueFolder::LongestSilence);
  ASSERT_EQ(RescueFolder(Rescued()).Left().size(), 1u);
}

TEST_F(RecoveryTest, AWindowRenewsItsLock) {
  RescueFolder own(Rescued());
  ASSERT_TRUE(own.Write("mine"));
  fs::path lock;
  for (const auto& entry : fs::directory_iterator(Rescued()))
    if (entry.path().extension() == ".lock") lock = entry.path();
  const auto before = fs::file_time_type::clock::now() - 2 * RescueFolder::LongestSilence;
  fs::last_write_time(lock, before);
  own.RenewLock();
  EXPECT_GT(fs::last_write_time(lock), before + RescueFolder::LongestSilence);
}

TEST_F(RecoveryTest, ALockWithoutATextIsRemoved) {
  Leave("1.ZRM.lock", "999999999\nzerimo\n\n");
  Leave("2.ZRM", "two");
  EXPECT_EQ(RescueFolder(Rescued()).Left().size(), 1u);
  EXPECT_FALSE(fs::exists(Rescued() / "1.ZRM.lock"));
}

TEST_F(RecoveryTest, TheNextStartOpensTheTextInTheEditor) {
  TypeUntilKept("to a\nend");
  AnswerNextBox({Qt::Key_O});
  StartAnew();
  ASSERT_TRUE(Until([this] { return Boxes.size() == 1 && !session->stage.IsRunning(); }));
  EXPECT_TRUE(Boxes[0].Text.starts_with("A text in the editor was not saved.")) << Boxes[0].Text;
  EXPECT_TRUE(Boxes[0].Text.find("\nProcedures: A\n") != std::string::npos) << Boxes[0].Text;
  EXPECT_TRUE(Boxes[0].Text.ends_with("Lines: 2\nFirst line: to a")) << Boxes[0].Text;
  EXPECT_EQ(Boxes[0].Buttons, (Texts{"Open it in the editor", "Keep it as Rescued.ZRM", "Drop it", "Ask later"}));
  EXPECT_EQ(FormControls().Text2.Text, "to a\r\nend");
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_EQ(Kept(), Texts{"to a\r\nend"});
}

TEST_F(RecoveryTest, ARescueNeverWritesOverAFormerOne) {
  WriteFile("Rescued.ZRM", "first");
  Leave("1.ZRM", "second");
  AnswerNextBox({Qt::Key_K});
  StartAnew();
  ASSERT_TRUE(Until([this] { return Kept().empty() && Boxes.size() == 1; }));
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "first");
  EXPECT_EQ(ReadFile("Rescued2.ZRM"), "second");
}

TEST_F(RecoveryTest, ADroppedTextIsGone) {
  Leave("1.ZRM", "one");
  AnswerNextBox({Qt::Key_D});
  StartAnew();
  EXPECT_TRUE(Until([this] { return Kept().empty() && Boxes.size() == 1; }));
  EXPECT_EQ(FormControls().Text2.Text, "");
}

TEST_F(RecoveryTest, ATextThatNobodyDecidedAboutIsOfferedAgain) {
  Leave("1.ZRM", "one");
  for (std::size_t start = 1; start <= 2; ++start) {
    AnswerNextBox({Qt::Key_Escape});
    StartAnew();
    ASSERT_TRUE(Until([&] { return Boxes.size() == start && !session->stage.IsRunning(); }));
  }
  EXPECT_EQ(Kept(), Texts{"one"});
}

TEST_F(RecoveryTest, EveryTextIsOffered) {
  Leave("1.ZRM", "one");
  Leave("2.ZRM", "two");
  AnswerNextBox({Qt::Key_Return});
  AnswerNextBox({Qt::Key_Return});
  StartAnew();
  ASSERT_TRUE(Until([this] { return Boxes.size() == 2 && !session->stage.IsRunning(); }));
  EXPECT_EQ(FormControls().Text2.Text, "one\r\ntwo");
  // No program runs that could be stopped.
  EXPECT_EQ(Boxes[1].Buttons, Boxes[0].Buttons);
  EXPECT_EQ(Kept(), Texts{"one\r\ntwo"});
}

TEST_F(RecoveryTest, AWindowThatLivesKeepsItsText) {
  TypeUntilKept("to a");
  EXPECT_TRUE(RescueFolder(Rescued()).Left().empty());
}

TEST_F(RecoveryTest, ATextThatCannotBeKeptIsSavedBesideTheProgramsWhenTheWindowCloses) {
  std::ofstream(State()) << "in the way";
  TypeInEditor("to a");
  Window().close();
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(ReadFile("Rescued.ZRM"), "to a");
}

TEST_F(RecoveryTest, ATextThatNothingKeepsIsNotGivenUpWithoutAQuestion) {
  std::ofstream(State()) << "in the way";
  WriteFile("Rescued.ZRM/in the way", "");
  TypeInEditor("to a");
  AnswerNextBox({Qt::Key_Escape});
  Window().close();
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_TRUE(Boxes[0].Text.starts_with("The text of the editor could not be kept")) << Boxes[0].Text;
  EXPECT_TRUE(session->HasEnded());
}

TEST_F(RecoveryTest, AFolderThatCannotBeWrittenStopsNothing) {
  std::ofstream(State()) << "in the way";
  TypeInEditor("to a");
  WaitForKeeping();
  EXPECT_EQ(Editor().toPlainText(), "to a");
}

}  // namespace
}  // namespace zerimo
