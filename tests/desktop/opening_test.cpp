#include <QImage>
#include <filesystem>

#include "desktop/desktop_fixture.h"
#include "desktop/window_options.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

using Items = std::vector<std::string>;

/// A program that is started with a file.
class OpeningTest : public DesktopTest {
 protected:
  fs::path PathOf(const char* name) const { return folder.filePath(QString::fromUtf8(name)).toStdU16String(); }
  std::string SystemNameOf(const char* name) const { return Folders::ToSystem(PathOf(name)); }
};

TEST_F(OpeningTest, AProgramIsLoadedAsShowOpenLoadsIt) {
  WriteFile("Box One.ZRM", "TO BOX\r\nFD 10\r\nEND\r\n");
  session->Greet({}, PathOf("Box One.ZRM"));
  const std::string nameWithoutEnding = SystemNameOf("Box One");
  EXPECT_EQ(FormControls().List4.Items(), Items{"? LOAD " + nameWithoutEnding});
  EXPECT_EQ(FormControls().List3.Items(), Items{"TO BOX"});
  EXPECT_EQ(FormControls().Text2.Text, "TO BOX\r\nFD 10\r\nEND\r\n");
  EXPECT_EQ(session->form1.files.programFiles.CurrentFileName, nameWithoutEnding);
  EXPECT_TRUE(Boxes.empty());
}

TEST_F(OpeningTest, NothingElseDiffersFromShowOpenThanTheTypedLine) {
  WriteFile("box.zrm", "TO BOX\r\nFD 10\r\nEND\r\n");
  session->Greet({}, PathOf("box.zrm"));
  const Items history = FormControls().List4.Items();
  const Items lines = FormControls().List1.Items();
  const std::string name = PathOf("box.zrm").string();
  AnswerNextBox({Qt::Key_Return}, name.c_str());
  Enter("show open");
  EXPECT_EQ(FormControls().List4.Items(), (Items{history[0], "?SHOW OPEN", history[0]}));
  EXPECT_EQ(lines, (Items{" 1  TO BOX", " 2  FD 10", " 3  END"}));
  EXPECT_EQ(FormControls().List1.Items().size(), 2 * lines.size());
}

TEST_F(OpeningTest, ThePathMayHaveUmlauts) {
  QDir(folder.path()).mkpath(QString::fromUtf8("Schöne Bilder"));
  QFile file(folder.filePath(QString::fromUtf8("Schöne Bilder/Bär.zrm")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("TO BEAR\r\nEND\r\n");
  file.close();
  session->Greet({}, fs::path(file.fileName().toStdU16String()));
  EXPECT_EQ(FormControls().List3.Items(), Items{"TO BEAR"});
}

TEST_F(OpeningTest, APictureIsShown) {
  QImage picture(8, 8, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(folder.filePath("red.bmp")));
  session->Greet({}, PathOf("red.bmp"));
  ASSERT_EQ(FormControls().List4.Items().size(), 1u);
  EXPECT_EQ(FormControls().List4.Items()[0].substr(0, 14), "? LOADPICTURE ");
  EXPECT_EQ(session->form1.Picture1.Point(30, 30), RGB(255, 0, 0));
}

TEST_F(OpeningTest, AMissingProgramIsReportedByLoad) {
  AnswerNextBox({Qt::Key_Return});
  session->Greet({}, PathOf("missing.zrm"));
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "Unable to Load File " + SystemNameOf("missing.ZRM"));
  EXPECT_EQ(Boxes[0].Buttons, (Items{"Abort", "Retry", "Ignore"}));
}

TEST_F(OpeningTest, AMissingFileOfAnotherKindIsReported) {
  AnswerNextBox({Qt::Key_Return});
  session->Greet({}, PathOf("missing.jpg"));
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "There is no file " + SystemNameOf("missing.jpg"));
  EXPECT_TRUE(FormControls().List4.Items().empty());
}

TEST_F(OpeningTest, AnotherKindOfFileIsRefused) {
  WriteFile("a.txt", "x");
  AnswerNextBox({Qt::Key_Return});
  session->Greet({}, PathOf("a.txt"));
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "Invalid File Format");
}

TEST_F(OpeningTest, TheNextShowOpenAsksAgain) {
  WriteFile("box.zrm", "TO BOX\r\nEND\r\n");
  session->Greet({}, PathOf("box.zrm"));
  AnswerNextBox({Qt::Key_Escape});
  Enter("show open");
  EXPECT_EQ(Boxes.size(), 1u);
}

TEST_F(OpeningTest, WhatIsToTellComesBeforeTheFile) {
  WriteFile("box.zrm", "TO BOX\r\nEND\r\n");
  Items whileBoxStands{"not looked"};
  WhileABoxStands([&] { whileBoxStands = FormControls().List3.Items(); });
  session->Greet("Your folder can't be written.", PathOf("box.zrm"));
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "Your folder can't be written.");
  EXPECT_EQ(Boxes[0].Title, "Zerimo");
  EXPECT_FALSE(Boxes[0].Icon.isNull());
  EXPECT_TRUE(whileBoxStands.empty());
  EXPECT_EQ(FormControls().List3.Items(), Items{"TO BOX"});
}

TEST_F(OpeningTest, TheFileWaitsForTheEndOfTheStart) {
  WriteFile("box.zrm", "TO BOX\r\nEND\r\n");
  session->Deliver([](Form1& form1) { form1.controls.Timer2.Enabled = true; });
  session->Greet({}, PathOf("box.zrm"));
  EXPECT_TRUE(FormControls().List3.Items().empty());
  EXPECT_TRUE(Until([this] { return FormControls().List3.Items() == Items{"TO BOX"}; }));
  EXPECT_EQ(Focused(), &Row(0));
}

std::string RefusalOf(const std::vector<std::string>& arguments) { return ReadWindowOptions(arguments).Refusal; }

TEST(WindowOptions, NoneOrOneFileIsTaken) {
  EXPECT_EQ(RefusalOf({}), "");
  EXPECT_EQ(ReadWindowOptions({}).File, std::nullopt);
  EXPECT_EQ(RefusalOf({"box.zrm"}), "");
  EXPECT_EQ(ReadWindowOptions({"box.zrm"}).File, 0U);
}

TEST(WindowOptions, OptionsMayStandAroundTheFile) {
  const WindowOptions options = ReadWindowOptions({"--classic", "box.zrm", "--scale", "150"});
  EXPECT_EQ(options.Refusal, "");
  EXPECT_TRUE(options.Classic);
  EXPECT_EQ(options.Scale, 150);
  EXPECT_EQ(options.File, 1U);
  EXPECT_EQ(ReadWindowOptions({"--scale", "150", "box.zrm"}).File, 2U);
  EXPECT_FALSE(ReadWindowOptions({"box.zrm"}).Classic);
}

TEST(WindowOptions, OtherOptionsAreRefused) {
  const std::string words = ": there is no such option; --help shows them";
  EXPECT_EQ(RefusalOf({"--frobnicate"}), "--frobnicate" + words);
  EXPECT_EQ(RefusalOf({"-"}), "-" + words);
  EXPECT_EQ(RefusalOf({"box.zrm", "-style"}), "-style" + words);
}

TEST(WindowOptions, HelpAndVersionCanBeAskedFor) {
  EXPECT_TRUE(ReadWindowOptions({"--help"}).Help);
  EXPECT_TRUE(ReadWindowOptions({"--version"}).Version);
  EXPECT_FALSE(ReadWindowOptions({}).Help);
}

TEST(WindowOptions, AScaleIsAWholeNumberFrom50To400) {
  EXPECT_EQ(RefusalOf({"--scale", "50"}), "");
  EXPECT_EQ(RefusalOf({"--scale", "400"}), "");
  for (const char* scale : {"49", "401", "x", "1.5", "150%", ""}) {
    EXPECT_EQ(RefusalOf({"--scale", scale}), "--scale needs a number from 50 to 400, in percent") << scale;
  }
  EXPECT_EQ(RefusalOf({"--scale"}), "--scale needs a number from 50 to 400, in percent");
}

TEST(WindowOptions, MoreThanOneFileAndAnEmptyNameAreRefused) {
  EXPECT_EQ(RefusalOf({"a.zrm", "b.zrm"}), "only one file can be opened");
  EXPECT_EQ(RefusalOf({""}), "the name of the file is empty");
}

}  // namespace
}  // namespace zerimo
