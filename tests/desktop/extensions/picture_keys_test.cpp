#include "desktop/extensions/picture_keys.h"

#include <QClipboard>
#include <QFileDialog>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class PictureKeysTest : public ExtensionsTest {
 protected:
  PictureKeysTest() {
    Enter("cs");
    Enter("fd 40");
  }
  void SaveAs(const char* name) {
    const std::string file = folder.filePath(QLatin1String(name)).toStdString();
    AnswerNextBox({Qt::Key_Return}, file.c_str());
    Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  }
  QImage Saved(const char* name) { return QImage(folder.filePath(QLatin1String(name))); }
  QSize Picture() { return InPixels(session->form1.Picture1).size(); }
};

/// The middle of the line that the turtle drew.
constexpr QPoint OnTheLine(512, 320);

TEST_F(PictureKeysTest, TheEndingDecidesTheFormat) {
  for (const char* name : {"a.png", "a.bmp"}) {
    SaveAs(name);
    EXPECT_EQ(Saved(name).size(), Picture()) << name;
    EXPECT_EQ(Saved(name).pixelColor(OnTheLine), QColor(Qt::white)) << name;
  }
  SaveAs("a.jpg");
  EXPECT_GT(Saved("a.jpg").pixelColor(OnTheLine).lightness(), 200);
}

TEST_F(PictureKeysTest, WithoutAnEndingItIsAPng) {
  SaveAs("mine");
  EXPECT_TRUE(HasFile("mine.png"));
}

TEST_F(PictureKeysTest, AnSvgHoldsTheLinesThatWereDrawn) {
  SaveAs("a.svg");
  const std::string svg = ReadFile("a.svg");
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_NE(svg.find("<path"), std::string::npos) << svg;
}

TEST_F(PictureKeysTest, AnUnknownEndingIsTold) {
  const std::string file = folder.filePath("a.doc").toStdString();
  AnswerNextBox({Qt::Key_Return}, file.c_str());
  AnswerNextBox({Qt::Key_Return});
  Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_EQ(Boxes.size(), 2u);
  EXPECT_NE(Boxes[1].Text.find("was not saved"), std::string::npos);
  EXPECT_FALSE(HasFile("a.doc"));
}

TEST_F(PictureKeysTest, TheClipboardGetsThePictureWithoutTheTurtle) {
  Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), Picture());
  EXPECT_EQ(copied.pixelColor(OnTheLine), QColor(Qt::white));
  Enter("ht");
  Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image(), copied);
}

TEST_F(PictureKeysTest, NothingOfTheSystemChanges) {
  const std::vector<std::string> history = FormControls().List4.Items();
  SaveAs("a.png");
  EXPECT_EQ(FormControls().List4.Items(), history);
  EXPECT_EQ(session->form1.Picture1.ToolTipText, "");
  EXPECT_EQ(Focused(), &Row(2));
}

}  // namespace
}  // namespace zerimo
