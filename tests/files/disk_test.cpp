#include "files/disk.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "files/files_fixture.h"
#include "files/folders.h"
#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// A scratch folder with a shelf beside it, and a file outside both.
class ConfinedDiskTest : public ::testing::Test {
 protected:
  ConfinedDiskTest() {
    Temp.Write("scratch/MINE.ZRM", "mine");
    Temp.Write("shelf/Theirs.ZRM", "theirs");
    Temp.Write("shelf/sub/DEEP.ZRM", "deep");
    Temp.Write("OUTSIDE.ZRM", "outside");
  }

  std::string Absolute(const std::string& name) const { return Folders::ToSystem(Temp.Path / name); }

  void ExpectNotFound(const std::string& path) {
    EXPECT_EQ(FailureOf([&] { folders.ReadFile(path); }), FailureKind::FileNotFound) << path;
  }
  void ExpectNotWritten(const std::string& path) {
    EXPECT_EQ(FailureOf([&] { folders.WriteFile(path, "new"); }), FailureKind::FileAccess) << path;
  }

  TempFolder Temp;
  const Folders folders{".", Disk::Confined(Temp.Path / "scratch", Temp.Path / "shelf")};
};

TEST_F(ConfinedDiskTest, ReadsAndWritesBelowItsFolder) {
  EXPECT_EQ(folders.ReadFile(".\\mine.ZRM"), "mine");
  folders.WriteFile(".\\NEW.ZRM", "new");
  folders.WriteFile("MINE.ZRM", "other");
  EXPECT_EQ(Temp.Read("scratch/NEW.ZRM"), "new");
  EXPECT_EQ(Temp.Read("scratch/MINE.ZRM"), "other");
}

TEST_F(ConfinedDiskTest, ReadsTheShelfWhereItHasNoFileOfItsOwn) {
  Temp.Write("shelf/MINE.ZRM", "neighbour's");
  EXPECT_EQ(folders.ReadFile(".\\THEIRS.ZRM"), "theirs");
  EXPECT_EQ(folders.ReadFile("SUB\\DEEP.ZRM"), "deep");
  EXPECT_EQ(folders.ReadFile("MINE.ZRM"), "mine");
}

TEST_F(ConfinedDiskTest, NeverWritesTheShelf) {
  folders.WriteFile("THEIRS.ZRM", "new");
  EXPECT_EQ(Temp.Read("shelf/Theirs.ZRM"), "theirs");
  EXPECT_EQ(Temp.Read("scratch/THEIRS.ZRM"), "new");
}

TEST_F(ConfinedDiskTest, ReadsNothingOutside) {
  for (const std::string path :
       {"..\\OUTSIDE.ZRM", ".\\..\\OUTSIDE.ZRM", "A\\..\\..\\OUTSIDE.ZRM", "..\\scratch\\MINE.ZRM", "..",
        "\\etc\\passwd", "/etc/passwd", "C:\\etc\\passwd", "C:..\\OUTSIDE.ZRM"}) {
    ExpectNotFound(path);
  }
  ExpectNotFound(Absolute("OUTSIDE.ZRM"));
  ExpectNotFound(Absolute("scratch/MINE.ZRM"));
}

TEST_F(ConfinedDiskTest, WritesNothingOutside) {
  for (const std::string path : {"..\\OUTSIDE.ZRM", ".\\..\\OUTSIDE.ZRM", "..\\NEW.ZRM", "..\\shelf\\Theirs.ZRM",
                                 "C:..\\NEW.ZRM", "\\dev\\null"}) {
    ExpectNotWritten(path);
  }
  ExpectNotWritten(Absolute("NEW.ZRM"));
  ExpectNotWritten("D:" + Absolute("NEW.ZRM"));
  EXPECT_EQ(Temp.Read("OUTSIDE.ZRM"), "outside");
  EXPECT_EQ(Temp.Count(), 3);
  EXPECT_EQ(Temp.Count("shelf"), 2);
}

TEST_F(ConfinedDiskTest, ADriveLetterAloneIsIgnored) { EXPECT_EQ(folders.ReadFile("C:MINE.ZRM"), "mine"); }

TEST_F(ConfinedDiskTest, NoNameAtAllIsNoFile) {
  EXPECT_TRUE(Disk().MayName(""));
  EXPECT_EQ(FailureOf([&] { folders.ReadFile("C:"); }), FailureKind::FileNotFound);
  ExpectNotWritten("C:");
}

TEST_F(ConfinedDiskTest, ALinkLeadsNowhereOutside) {
  fs::create_symlink(Temp.Path / "OUTSIDE.ZRM", Temp.Path / "scratch/LINK.ZRM");
  fs::create_symlink(Temp.Path / "OUTSIDE.ZRM", Temp.Path / "shelf/OTHER.ZRM");
  fs::create_symlink(Temp.Path, Temp.Path / "scratch/UP");
  fs::create_symlink(Temp.Path / "NEW.ZRM", Temp.Path / "scratch/DANGLING.ZRM");
  ExpectNotFound("LINK.ZRM");
  ExpectNotFound("OTHER.ZRM");
  ExpectNotFound("UP\\OUTSIDE.ZRM");
  ExpectNotWritten("LINK.ZRM");
  ExpectNotWritten("UP\\NEW.ZRM");
  ExpectNotWritten("DANGLING.ZRM");
  EXPECT_FALSE(Temp.Has("NEW.ZRM"));
}

TEST_F(ConfinedDiskTest, NothingIsListedOutside) {
  EXPECT_EQ(FailureOf([&] { folders.FilesIn(".."); }), FailureKind::FileNotFound);
  EXPECT_EQ(folders.FilesIn("SUB"), Texts{"DEEP.ZRM"});
}

TEST_F(ConfinedDiskTest, FilesAreCounted) {
  for (int i = 1; i < Disk::MostFiles; ++i) folders.WriteFile("F" + std::to_string(i), "");
  ExpectNotWritten("ONE-TOO-MANY");
}

TEST_F(ConfinedDiskTest, BytesAreCounted) {
  folders.WriteFile("LARGE", "");
  fs::resize_file(Temp.Path / "scratch/LARGE", Disk::MostBytes);
  ExpectNotWritten("MORE");
}

TEST_F(ConfinedDiskTest, AWholeDiskBesideItIsNotConfined) {
  EXPECT_EQ(Folders(".", Disk(Temp.Path / "scratch")).ReadFile("..\\OUTSIDE.ZRM"), "outside");
}

TEST_F(ConfinedDiskTest, AFolderThatCanNotBeFoundOutHoldsNothing) {
  const Folders nowhere(".", Disk::Confined("", ""));
  EXPECT_EQ(FailureOf([&] { nowhere.ReadFile(Absolute("OUTSIDE.ZRM")); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { nowhere.ReadFile("CMakeCache.txt"); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { nowhere.WriteFile("NEW.ZRM", "new"); }), FailureKind::FileAccess);
}

}  // namespace
}  // namespace zerimo
