#include <QApplication>
#include <QFileDialog>
#include <QTest>

#include "desktop/desktop_fixture.h"

namespace zerimo {
namespace {

class FileDialogsTest : public DesktopTest {
 protected:
  std::string FullName(const char* name) { return folder.filePath(QLatin1String(name)).toStdString(); }
};

TEST_F(FileDialogsTest, AnOpenedProgramIsLoaded) {
  WriteFile("box.zrm", "TO BOX\r\nEND\r\n");
  const std::string name = FullName("box.zrm");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show open");
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO BOX"});
  EXPECT_EQ(session->form1.files.programFiles.CurrentFileName.substr(0, 1), "\\");
}

TEST_F(FileDialogsTest, AProgramIsFoundInAnyCase) {
  WriteFile("Box.Zrm", "TO BOX\r\nEND\r\n");
  const std::string name = FullName("bOX.zRM");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show open");
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO BOX"});
}

TEST_F(FileDialogsTest, AProgramIsFoundWithoutItsEnding) {
  WriteFile("Box.Zrm", "TO BOX\r\nEND\r\n");
  const std::string name = FullName("box");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show open");
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO BOX"});
}

TEST_F(FileDialogsTest, ACancelledDialogDoesNothing) {
  AnswerNextBox({Qt::Key_Escape});
  Enter("show open");
  EXPECT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(FormControls().List4.Items(), std::vector<std::string>{"?SHOW OPEN"});
}

TEST_F(FileDialogsTest, AnotherKindOfFileIsRefusedWithACriticalBox) {
  WriteFile("a.txt", "x");
  const std::string name = FullName("a.txt");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  AnswerNextBox({Qt::Key_Return});
  Enter("show open");
  ASSERT_EQ(Boxes.size(), 2u);
  EXPECT_EQ(Boxes[1].Text, "Invalid File Format");
  EXPECT_FALSE(Boxes[1].Icon.isNull());
}

TEST_F(FileDialogsTest, TheEditorsTextIsSavedUnderTheNameTyped) {
  Press(Qt::Key_F1);
  Type("to a");
  LeaveEditor();
  const std::string name = FullName("mine");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show saveas");
  EXPECT_EQ(ReadFile("mine.ZRM"), "to a\r\n");
}

TEST_F(FileDialogsTest, AnExistingFileIsWrittenOverWithoutAQuestion) {
  WriteFile("mine.ZRM", "old");
  const std::string name = FullName("mine.ZRM");
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show saveas");
  EXPECT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(ReadFile("mine.ZRM"), "\r\n");
}

TEST_F(FileDialogsTest, TheSaveDialogOffersTheSystemsText) {
  QString filters;
  WhileABoxStands(
      [&] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
          auto* dialog = qobject_cast<QFileDialog*>(widget);
          if (dialog != nullptr && dialog->isVisible()) filters = dialog->nameFilters().join(";");
        }
      },
      Qt::Key_Escape);
  Enter("show saveas");
  EXPECT_TRUE(filters.startsWith("Zerimo File(.ZRM)")) << filters.toStdString();
}

}  // namespace
}  // namespace zerimo
