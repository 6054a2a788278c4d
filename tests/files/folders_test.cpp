#include "files/folders.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <optional>

#include "base/failure.h"
#include "files/files_fixture.h"
#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class FoldersTest : public ::testing::Test {
 protected:
  TempFolder Disk;
};

TEST_F(FoldersTest, ABackslashDividesFolders) {
  Disk.Write("a/b/C.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("a\\b\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ASlashDividesFoldersToo) {
  Disk.Write("a/b/C.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("a/b\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ADriveLetterIsNoFolder) {
  Disk.Write("a/C.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("C:a\\C.ZRM"), "text");
  EXPECT_EQ(Folders::ReadFile("d:" + Disk.Path.string() + "\\a\\C.ZRM"), "text");
}

TEST_F(FoldersTest, ADriveLetterInsideAPathIsAName) {
  Disk.Write("a/X.ZRM", "text");
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("a\\C:\\X.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(FoldersTest, TheExactNameComesFirst) {
  Disk.Write("BOX.ZRM", "capitals");
  Disk.Write("box.ZRM", "small");
  EXPECT_EQ(Folders::ReadFile("BOX.ZRM"), "capitals");
  EXPECT_EQ(Folders::ReadFile("box.ZRM"), "small");
}

TEST_F(FoldersTest, CaseDoesNotMatterInAnyPart) {
  Disk.Write("Class Five/box.zrm", "text");
  EXPECT_EQ(Folders::ReadFile("CLASS FIVE\\BOX.ZRM"), "text");
}

TEST_F(FoldersTest, OfSeveralCasesTheFirstInOrderIsTaken) {
  Disk.Write("Box.ZRM", "second");
  Disk.Write("BOx.ZRM", "first");
  EXPECT_EQ(Folders::ReadFile("BOX.ZRM"), "first");
}

TEST_F(FoldersTest, ANeighbourFolderInAnotherCaseDoesNotHideTheFile) {
  Disk.MakeFolder("Kim");
  Disk.Write("kim/TRIP1.JPG", "picture");
  EXPECT_EQ(Folders::ReadFile("KIM\\TRIP1.JPG"), "picture");
}

TEST_F(FoldersTest, NamesWithDotsAndBlanks) {
  Disk.Write("V1.0/my first.box.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("v1.0\\MY FIRST.BOX.ZRM"), "text");
}

TEST_F(FoldersTest, UmlautsAreUtf8OnTheDisk) {
  Disk.Write("gr\xC3\xBC\xC3\x9F.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("gr\xFC\xDF.ZRM"), "text");
  EXPECT_EQ(Folders::ReadFile("GR\xDC\xDF.ZRM"), "text");
}

TEST_F(FoldersTest, ACharacterThatTheSystemLacksIsAQuestionMark) {
  Disk.Write("\xD0\x90\xD0\xBD\xD1\x8F.ZRM", "text");
  EXPECT_EQ(Folders::ReadFile("???.ZRM"), "text");
}

TEST_F(FoldersTest, NamesThatLookAlikeAreNotMistaken) {
  Disk.Write("\xD0\x90.ZRM", "one");
  Disk.Write("\xD0\x91.ZRM", "other");
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("?.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(FoldersTest, RelativePathsBeginAtTheCurrentFolder) {
  Disk.Write("a/C.ZRM", "text");
  fs::current_path(Disk.Path / "a");
  EXPECT_EQ(Folders::ReadFile("C.ZRM"), "text");
  EXPECT_EQ(Folders::ReadFile("..\\A\\c.zrm"), "text");
}

TEST_F(FoldersTest, WhatIsNotThereStaysAsItStands) {
  EXPECT_EQ(Folders::ToRead("No\\Such.ZRM"), fs::path("No/Such.ZRM"));
  EXPECT_EQ(Folders::ToWrite("No\\Such.ZRM"), fs::path("No/Such.ZRM"));
}

TEST_F(FoldersTest, ReadingKeepsEveryByte) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  Disk.Write("ALL", all);
  EXPECT_EQ(Folders::ReadFile("ALL"), all);
}

TEST_F(FoldersTest, AnEmptyFileIsEmpty) {
  Disk.Write("EMPTY", "");
  EXPECT_EQ(Folders::ReadFile("EMPTY"), "");
}

TEST_F(FoldersTest, WhatCanNotBeReadFails) {
  Disk.MakeFolder("folder");
  Disk.Write("file", "text");
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("missing"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile(""); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("folder"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("folder\\"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("file\\inside"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("file\\"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile(std::string("file\0cut", 8)); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile(std::string(5000, 'A')); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("\\dev\\zero"); }), FailureKind::FileAccess);
}

TEST_F(FoldersTest, AHugeFileFails) {
  Disk.Write("HUGE", "");
  fs::resize_file("HUGE", Folders::LargestFile + 1);
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("HUGE"); }), FailureKind::FileAccess);
}

TEST_F(FoldersTest, WritingTakesTheNameAsItStands) {
  Folders::WriteFile("New.ZRM", "text");
  EXPECT_EQ(Disk.Read("New.ZRM"), "text");
  EXPECT_EQ(Disk.Count(), 1);
}

TEST_F(FoldersTest, WritingUsesAFileInAnotherCase) {
  Disk.Write("box.zrm", "old");
  Folders::WriteFile("BOX.ZRM", "new");
  EXPECT_EQ(Disk.Read("box.zrm"), "new");
  EXPECT_EQ(Disk.Count(), 1);
}

TEST_F(FoldersTest, WritingFindsTheFolderInAnotherCase) {
  Disk.MakeFolder("class");
  Folders::WriteFile("CLASS\\Box.ZRM", "text");
  EXPECT_EQ(Disk.Read("class/Box.ZRM"), "text");
}

TEST_F(FoldersTest, WritingUmlauts) {
  Folders::WriteFile(
      "\xDC"
      "bung.ZRM",
      "text");
  EXPECT_EQ(Disk.Read("\xC3\x9C"
                      "bung.ZRM"),
            "text");
}

TEST_F(FoldersTest, WritingKeepsThePermissions) {
  Disk.Write("BOX.ZRM", "old");
  fs::permissions("BOX.ZRM", fs::perms(0640));
  Folders::WriteFile("BOX.ZRM", "new");
  EXPECT_EQ(fs::status("BOX.ZRM").permissions(), fs::perms(0640));
}

TEST_F(FoldersTest, WritingGoesThroughALink) {
  Disk.Write("real.ZRM", "old");
  fs::create_symlink("real.ZRM", "link.ZRM");
  Folders::WriteFile("link.ZRM", "new");
  EXPECT_EQ(Disk.Read("real.ZRM"), "new");
  EXPECT_TRUE(fs::is_symlink("link.ZRM"));
}

TEST_F(FoldersTest, WritingGoesThroughALinkWhoseTargetIsMissing) {
  fs::create_symlink("real.ZRM", "link.ZRM");
  Folders::WriteFile("link.ZRM", "new");
  EXPECT_EQ(Disk.Read("real.ZRM"), "new");
  EXPECT_TRUE(fs::is_symlink("link.ZRM"));
}

TEST_F(FoldersTest, WhatCanNotBeWrittenFailsAndLeavesNothing) {
  Disk.MakeFolder("folder");
  Disk.Write("file", "text");
  for (const char* name : {"", "folder", "folder\\", "missing\\file", "file\\inside"}) {
    EXPECT_EQ(FailureOf([&] { Folders::WriteFile(name, "new"); }), FailureKind::FileAccess) << name;
  }
  const std::string longName(300, 'A');
  EXPECT_EQ(FailureOf([&] { Folders::WriteFile(longName, "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([] { Folders::WriteFile(std::string("file\0cut", 8), "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(Disk.Read("file"), "text");
  EXPECT_EQ(Disk.Count(), 2);
}

TEST_F(FoldersTest, AFullDiskFails) {
  EXPECT_EQ(FailureOf([] { Folders::WriteFile("\\dev\\full", "text"); }), FailureKind::FileAccess);
}

/// Lets no file grow beyond a size, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) : handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit limit{size, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit former{};
  void (*handler)(int);
};

TEST_F(FoldersTest, ADiskThatIsFullHalfWayLeavesTheFormerFile) {
  Disk.Write("BOX.ZRM", "FORMER");
  std::optional<FailureKind> failure;
  {
    const FullDisk full(10000);
    failure = FailureOf([] { Folders::WriteFile("BOX.ZRM", std::string(100000, 'A')); });
  }
  EXPECT_EQ(failure, FailureKind::FileAccess);
  EXPECT_EQ(Disk.Read("BOX.ZRM"), "FORMER");
  EXPECT_EQ(Disk.Count(), 1);
}

TEST_F(FoldersTest, ADeviceIsWrittenThrough) {
  Folders::WriteFile("\\dev\\null", "text");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(FoldersTest, ListsFilesSortedWithoutFoldersAndHiddenOnes) {
  for (const char* name : {"pages/RT", "pages/fd", "pages/BK", "pages/.hidden", "pages/sub/X"}) Disk.Write(name, "");
  EXPECT_EQ(Folders::FilesIn("PAGES\\"), (Texts{"BK", "fd", "RT"}));
}

TEST_F(FoldersTest, ListingAMissingFolderFails) {
  Disk.Write("file", "");
  EXPECT_EQ(FailureOf([] { Folders::FilesIn("missing\\"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { Folders::FilesIn("file"); }), FailureKind::FileNotFound);
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
