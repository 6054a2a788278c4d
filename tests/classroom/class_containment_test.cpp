#include <map>

#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class ClassContainmentTest : public ClassTest {
 protected:
  /// Every file below the test's folder except the report, with a digest of its bytes.
  std::map<std::string, std::size_t> Everything() const {
    std::map<std::string, std::size_t> all;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Program.Folder())) {
      const bool isReport = entry.path().stem() == "report";
      if (isReport) continue;
      all[entry.path().string()] = entry.is_regular_file() ? std::hash<std::string>()(BytesOf(entry.path())) : 0;
    }
    return all;
  }
};

TEST_F(ClassContainmentTest, AProgramChangesNothingOutsideItsScratchFolder) {
  const std::string outside = Program.Folder().string();
  Write("BEN.ZRM", "TO BEN|END|");
  Write("ANNA.ZRM", "TO ANNA|SAVEPICTURE X|SAVEPICTURE ..\\X|SAVEPICTURE ..\\..\\..\\..\\class\\X|SAVEPICTURE " +
                        outside + "\\X|SAVEPICTURE C:\\X|COMMANDLIST|PRINT \"THROUGH\"|END|");
  Write("ANNA.session",
        "LOAD ANNA\nANNA\n@text Text2 TO EVIL\\r\\nEND\n"
        "@answer save " +
            outside +
            "/class/BEN.ZRM\nSHOW SAVEAS\n@answer save ..\\..\\..\\..\\class\\BEN\nSHOW SAVEAS\n"
            "@answer save BEN\nSHOW SAVEAS\n"
            "@picture " +
            outside + "/class/picture.png\n@picture ../picture.png\nPRINT 8\n");
  const auto before = Everything();
  EXPECT_EQ(Run().Status, 0);
  EXPECT_EQ(Everything(), before);
  const Lines printed = PrintedBy("ANNA.ZRM");
  EXPECT_NE(std::ranges::find(printed, "?THROUGH"), printed.end());
  EXPECT_EQ(printed.back(), "? 8");
}

TEST_F(ClassContainmentTest, SavingFromTheEditorToAnotherPlaceFails) {
  Write("ANNA.ZRM", "");
  Write("ANNA.session", "@text Text2 TO EVIL\\r\\nEND\n@answer input ..\\..\\..\\SAVED\n@key Text2 F10\n");
  const auto before = Everything();
  Run();
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(Pupil("ANNA.ZRM").value("message").toString(), "ended by a failure: File access error");
}

TEST_F(ClassContainmentTest, AProgramReadsTheClassFolderAndNothingElse) {
  Program.Write("SECRET.ZRM", "TO SECRET\r\nPRINT 99\r\nEND\r\n");
  Write("TOOLS.ZRM", "TO TOOL|PRINT 5|END|");
  Write("ANNA.ZRM", "TO GO|LOAD TOOLS|TOOL|LOAD ..\\SECRET|LOAD " + Program.Folder().string() + "\\SECRET|SECRET|END|");
  Run();
  EXPECT_EQ(PrintedBy("ANNA.ZRM"), (Lines{"?LOAD ANNA", "?GO", "? 5"}));
  EXPECT_EQ(Pupil("ANNA.ZRM").value("boxes").toArray().size(), 2);
}

TEST_F(ClassContainmentTest, WhatOneProgramSavesNoOtherSees) {
  Write("A.ZRM", "TO A|FD 50|SAVEPICTURE SHARED|LOADPICTURE SHARED|END|");
  Write("B.ZRM", "TO B|LOADPICTURE SHARED|END|");
  Write("C.ZRM", "TO C|END|");
  Run("--jobs 1");
  const auto pictureOf = [this](const std::string& file) {
    const std::string mark = "alt=\"Picture drawn by " + file + "\" src=\"";
    const std::size_t begin = Page.find(mark) + mark.size();
    return Page.substr(begin, Page.find('"', begin) - begin);
  };
  EXPECT_NE(pictureOf("A.ZRM"), pictureOf("C.ZRM"));
  EXPECT_EQ(pictureOf("B.ZRM"), pictureOf("C.ZRM"));
}

}  // namespace
}  // namespace zerimo
