#include "files/folders.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>

#include "base/failure.h"
#include "files/files_fixture.h"
#include "files/temp_folder.h"
#include "support/full_disk.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class FoldersTest : public ::testing::Test {
 protected:
  TempFolder Temp;
  const Folders folders{".", Disk(Temp.Path)};
};

TEST_F(FoldersTest, ABackslashDividesFolders) {
  Temp.Write("a/b/C.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("a\\b\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ASlashDividesFoldersToo) {
  Temp.Write("a/b/C.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("a/b\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ADriveLetterIsNoFolder) {
  Temp.Write("a/C.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("C:a\\C.ZRM"), "text");
  EXPECT_EQ(folders.ReadFile("d:" + Temp.Path.string() + "\\a\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ADriveLetterInsideAPathIsAName) {
  Temp.Write("a/X.ZRM", "text");
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("a\\C:\\X.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(FoldersTest, TheExactNameComesFirst) {
  Temp.Write("BOX.ZRM", "capitals");
  Temp.Write("box.ZRM", "small");
  EXPECT_EQ(folders.ReadFile("BOX.ZRM"), "capitals");
  EXPECT_EQ(folders.ReadFile("box.ZRM"), "small");
}

TEST_F(FoldersTest, CaseDoesNotMatterInAnyPart) {
  Temp.Write("Class Five/box.zrm", "text");
  EXPECT_EQ(folders.ReadFile("CLASS FIVE\\BOX.ZRM"), "text");
}

TEST_F(FoldersTest, OfSeveralCasesTheFirstInOrderIsTaken) {
  Temp.Write("Box.ZRM", "second");
  Temp.Write("BOx.ZRM", "first");
  EXPECT_EQ(folders.ReadFile("BOX.ZRM"), "first");
}

TEST_F(FoldersTest, ANeighbourFolderInAnotherCaseDoesNotHideTheFile) {
  Temp.MakeFolder("Kim");
  Temp.Write("kim/TRIP1.JPG", "picture");
  EXPECT_EQ(folders.ReadFile("KIM\\TRIP1.JPG"), "picture");
}

TEST_F(FoldersTest, NamesWithDotsAndBlanks) {
  Temp.Write("V1.0/my first.box.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("v1.0\\MY FIRST.BOX.ZRM"), "text");
}

TEST_F(FoldersTest, UmlautsAreUtf8OnTheDisk) {
  Temp.Write("gr\xC3\xBC\xC3\x9F.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("gr\xFC\xDF.ZRM"), "text");
  EXPECT_EQ(folders.ReadFile("GR\xDC\xDF.ZRM"), "text");
}

TEST_F(FoldersTest, ACharacterThatTheSystemLacksIsAQuestionMark) {
  Temp.Write("\xD0\x90\xD0\xBD\xD1\x8F.ZRM", "text");
  EXPECT_EQ(folders.ReadFile("???.ZRM"), "text");
}

TEST_F(FoldersTest, NamesThatLookAlikeAreNotMistaken) {
  Temp.Write("\xD0\x90.ZRM", "one");
  Temp.Write("\xD0\x91.ZRM", "other");
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("?.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(FoldersTest, RelativePathsBeginAtTheFolderOfTheDisk) {
  Temp.Write("a/C.ZRM", "text");
  const Folders inA(".", Disk(Temp.Path / "a"));
  EXPECT_EQ(inA.ReadFile("C.ZRM"), "text");
  EXPECT_EQ(inA.ReadFile("..\\A\\c.zrm"), "text");
}

TEST_F(FoldersTest, WhatIsNotThereStaysAsItStands) {
  EXPECT_EQ(folders.ToRead("No\\Such.ZRM"), Temp.Path / "No/Such.ZRM");
  EXPECT_EQ(folders.ToWrite("No\\Such.ZRM"), Temp.Path / "No/Such.ZRM");
  EXPECT_EQ(Folders(".").ToRead("No\\Such.ZRM"), fs::path("No/Such.ZRM"));
}

TEST_F(FoldersTest, ReadingKeepsEveryByte) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  Temp.Write("ALL", all);
  EXPECT_EQ(folders.ReadFile("ALL"), all);
}

TEST_F(FoldersTest, AnEmptyFileIsEmpty) {
  Temp.Write("EMPTY", "");
  EXPECT_EQ(folders.ReadFile("EMPTY"), "");
}

TEST_F(FoldersTest, WhatCanNotBeReadFails) {
  Temp.MakeFolder("folder");
  Temp.Write("file", "text");
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("missing"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile(""); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("folder"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("folder\\"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("file\\inside"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("file\\"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile(std::string("file\0cut", 8)); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile(std::string(5000, 'A')); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("\\dev\\zero"); }), FailureKind::FileAccess);
}

TEST_F(FoldersTest, AHugeFileFails) {
  Temp.Write("HUGE", "");
  fs::resize_file(Temp.Path / "HUGE", Folders::LargestFile + 1);
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("HUGE"); }), FailureKind::FileAccess);
}

TEST_F(FoldersTest, WritingTakesTheNameAsItStands) {
  folders.WriteFile("New.ZRM", "text");
  EXPECT_EQ(Temp.Read("New.ZRM"), "text");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(FoldersTest, WritingUsesAFileInAnotherCase) {
  Temp.Write("box.zrm", "old");
  folders.WriteFile("BOX.ZRM", "new");
  EXPECT_EQ(Temp.Read("box.zrm"), "new");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(FoldersTest, WritingFindsTheFolderInAnotherCase) {
  Temp.MakeFolder("class");
  folders.WriteFile("CLASS\\Box.ZRM", "text");
  EXPECT_EQ(Temp.Read("class/Box.ZRM"), "text");
}

TEST_F(FoldersTest, WritingUmlauts) {
  folders.WriteFile(
      "\xDC"
      "bung.ZRM",
      "text");
  EXPECT_EQ(Temp.Read("\xC3\x9C"
                      "bung.ZRM"),
            "text");
}

TEST_F(FoldersTest, WritingKeepsThePermissions) {
  Temp.Write("BOX.ZRM", "old");
  fs::permissions(Temp.Path / "BOX.ZRM", fs::perms(0640));
  folders.WriteFile("BOX.ZRM", "new");
  EXPECT_EQ(fs::status(Temp.Path / "BOX.ZRM").permissions(), fs::perms(0640));
}

TEST_F(FoldersTest, WritingGoesThroughALink) {
  Temp.Write("real.ZRM", "old");
  fs::create_symlink("real.ZRM", Temp.Path / "link.ZRM");
  folders.WriteFile("link.ZRM", "new");
  EXPECT_EQ(Temp.Read("real.ZRM"), "new");
  EXPECT_TRUE(fs::is_symlink(Temp.Path / "link.ZRM"));
}

TEST_F(FoldersTest, WritingGoesThroughALinkWhoseTargetIsMissing) {
  fs::create_symlink("real.ZRM", Temp.Path / "link.ZRM");
  folders.WriteFile("link.ZRM", "new");
  EXPECT_EQ(Temp.Read("real.ZRM"), "new");
  EXPECT_TRUE(fs::is_symlink(Temp.Path / "link.ZRM"));
}

TEST_F(FoldersTest, WhatCanNotBeWrittenFailsAndLeavesNothing) {
  Temp.MakeFolder("folder");
  Temp.Write("file", "text");
  for (const char* name : {"", "folder", "folder\\", "missing\\file", "file\\inside"}) {
    EXPECT_EQ(FailureOf([&] { folders.WriteFile(name, "new"); }), FailureKind::FileAccess) << name;
  }
  const std::string longName(300, 'A');
  EXPECT_EQ(FailureOf([&] { folders.WriteFile(longName, "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { folders.WriteFile(std::string("file\0cut", 8), "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(Temp.Read("file"), "text");
  EXPECT_EQ(Temp.Count(), 2);
}

TEST_F(FoldersTest, ADiskThatIsFullHalfWayLeavesTheFormerFile) {
  Temp.Write("BOX.ZRM", "FORMER");
  EXPECT_EQ(FailureOnFullDisk(10000, [&] { folders.WriteFile("BOX.ZRM", std::string(100000, 'A')); }),
            FailureKind::FileAccess);
  EXPECT_EQ(Temp.Read("BOX.ZRM"), "FORMER");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(FoldersTest, ADeviceIsNotWritten) {
  EXPECT_EQ(FailureOf([&] { folders.WriteFile("\\dev\\null", "text"); }), FailureKind::FileAccess);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(FoldersTest, APipeIsNotWritten) {
  ASSERT_EQ(mkfifo((Temp.Path / "PIPE.ZRM").c_str(), 0600), 0);
  EXPECT_EQ(FailureOf([&] { folders.WriteFile("PIPE.ZRM", "text"); }), FailureKind::FileAccess);
  EXPECT_TRUE(fs::is_fifo(Temp.Path / "PIPE.ZRM"));
}

TEST_F(FoldersTest, NothingThatAProgramInTheFolderNeedsIsWritten) {
  Temp.Write("zerimo", "program");
  for (const char* name : {"qt.conf", "QT.CONF", "platforms", "Plugins", "zmhelp", "zerimo", "ZERIMO-BATCH",
                           "libQt6Core.so.6", "qt6core.dll", ".\\qt.conf"}) {
    EXPECT_EQ(FailureOf([&] { folders.WriteFile(name, "new"); }), FailureKind::FileAccess) << name;
  }
  EXPECT_EQ(Temp.Read("zerimo"), "program");
  EXPECT_EQ(Temp.Count(), 1);
  folders.WriteFile("QT.ZRM", "text");
  Temp.MakeFolder("elsewhere");
  folders.WriteFile("elsewhere\\qt.conf", "text");
  EXPECT_TRUE(Temp.Has("QT.ZRM") && Temp.Has("elsewhere/qt.conf"));
}

TEST_F(FoldersTest, NoLibraryOfAProgramInAFolderAboveIsWritten) {
  Temp.Write("program/zerimo.exe", "program");
  Temp.Write("program/plugins/platforms/qwindows.dll", "library");
  Temp.MakeFolder("elsewhere");
  for (const char* name : {"program\\plugins\\platforms\\qwindows.dll", "program\\plugins\\libqxcb.SO"})
    EXPECT_EQ(FailureOf([&] { folders.WriteFile(name, "new"); }), FailureKind::FileAccess) << name;
  EXPECT_EQ(Temp.Read("program/plugins/platforms/qwindows.dll"), "library");
  folders.WriteFile("elsewhere\\qwindows.dll", "text");
  EXPECT_TRUE(Temp.Has("elsewhere/qwindows.dll"));
}

TEST_F(FoldersTest, ListsFilesSortedWithoutFoldersAndHiddenOnes) {
  for (const char* name : {"pages/RT", "pages/fd", "pages/BK", "pages/.hidden", "pages/sub/X"}) Temp.Write(name, "");
  EXPECT_EQ(folders.FilesIn("PAGES\\"), (Texts{"BK", "fd", "RT"}));
}

TEST_F(FoldersTest, ListingAMissingFolderFails) {
  Temp.Write("file", "");
  EXPECT_EQ(FailureOf([&] { folders.FilesIn("missing\\"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { folders.FilesIn("file"); }), FailureKind::FileNotFound);
}

TEST(Folders, HasFolderLooksForABackslash) {
  EXPECT_TRUE(Folders::HasFolder("C:\\X\\A"));
  EXPECT_FALSE(Folders::HasFolder("X/A"));
}

TEST(Folders, ToSystemDividesWithBackslashes) {
  EXPECT_EQ(Folders::ToSystem(fs::path(u8"/home/m\u00FCller/\u20AC.zrm")), "\\home\\m\xFCller\\?.zrm");
}

}  // namespace
}  // namespace zerimo
