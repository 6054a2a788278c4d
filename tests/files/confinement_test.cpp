#include "files/confinement.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "files/files_fixture.h"
#include "files/folders.h"
#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// A scratch folder with a shelf beside it, and a file outside of both.
class ConfinementTest : public ::testing::Test {
 protected:
  ConfinementTest() {
    Disk.Write("scratch/MINE.ZRM", "mine");
    Disk.Write("shelf/Theirs.ZRM", "theirs");
    Disk.Write("shelf/sub/DEEP.ZRM", "deep");
    Disk.Write("OUTSIDE.ZRM", "outside");
    fs::current_path(Disk.Path / "scratch");
    Confined.emplace(Disk.Path / "shelf");
  }

  std::string Absolute(const std::string& name) const { return Folders::ToSystem(Disk.Path / name); }

  void ExpectNotFound(const std::string& path) {
    EXPECT_EQ(FailureOf([&] { Folders::ReadFile(path); }), FailureKind::FileNotFound) << path;
  }
  void ExpectNotWritten(const std::string& path) {
    EXPECT_EQ(FailureOf([&] { Folders::WriteFile(path, "new"); }), FailureKind::FileAccess) << path;
  }

  TempFolder Disk;
  std::optional<Confinement> Confined;
};

TEST_F(ConfinementTest, ReadsAndWritesBelowTheCurrentFolder) {
  EXPECT_EQ(Folders::ReadFile(".\\mine.ZRM"), "mine");
  Folders::WriteFile(".\\NEW.ZRM", "new");
  Folders::WriteFile("MINE.ZRM", "other");
  EXPECT_EQ(Disk.Read("scratch/NEW.ZRM"), "new");
  EXPECT_EQ(Disk.Read("scratch/MINE.ZRM"), "other");
}

TEST_F(ConfinementTest, ReadsTheShelfWhereItHasNoFileOfItsOwn) {
  Disk.Write("shelf/MINE.ZRM", "neighbour's");
  EXPECT_EQ(Folders::ReadFile(".\\THEIRS.ZRM"), "theirs");
  EXPECT_EQ(Folders::ReadFile("SUB\\DEEP.ZRM"), "deep");
  EXPECT_EQ(Folders::ReadFile("MINE.ZRM"), "mine");
}

TEST_F(ConfinementTest, NeverWritesTheShelf) {
  Folders::WriteFile("THEIRS.ZRM", "new");
  EXPECT_EQ(Disk.Read("shelf/Theirs.ZRM"), "theirs");
  EXPECT_EQ(Disk.Read("scratch/THEIRS.ZRM"), "new");
}

TEST_F(ConfinementTest, ReadsNothingOutside) {
  for (const std::string path :
       {"..\\OUTSIDE.ZRM", ".\\..\\OUTSIDE.ZRM", "A\\..\\..\\OUTSIDE.ZRM", "..\\scratch\\MINE.ZRM", "..",
        "\\etc\\passwd", "/etc/passwd", "C:\\etc\\passwd", "C:..\\OUTSIDE.ZRM"}) {
    ExpectNotFound(path);
  }
  ExpectNotFound(Absolute("OUTSIDE.ZRM"));
  ExpectNotFound(Absolute("scratch/MINE.ZRM"));
}

TEST_F(ConfinementTest, WritesNothingOutside) {
  for (const std::string path : {"..\\OUTSIDE.ZRM", ".\\..\\OUTSIDE.ZRM", "..\\NEW.ZRM", "..\\shelf\\Theirs.ZRM",
                                 "C:..\\NEW.ZRM", "\\dev\\null"}) {
    ExpectNotWritten(path);
  }
  ExpectNotWritten(Absolute("NEW.ZRM"));
  ExpectNotWritten("D:" + Absolute("NEW.ZRM"));
  EXPECT_EQ(Disk.Read("OUTSIDE.ZRM"), "outside");
  EXPECT_EQ(Disk.Count(), 3);
  EXPECT_EQ(Disk.Count("shelf"), 2);
}

TEST_F(ConfinementTest, ADriveLetterAloneIsPassedOver) { EXPECT_EQ(Folders::ReadFile("C:MINE.ZRM"), "mine"); }

TEST_F(ConfinementTest, NoNameAtAllIsNoFile) {
  EXPECT_TRUE(Confinement::StaysBelow(""));
  EXPECT_EQ(FailureOf([] { Folders::ReadFile("C:"); }), FailureKind::FileNotFound);
  ExpectNotWritten("C:");
}

TEST_F(ConfinementTest, ALinkLeadsNowhereOutside) {
  fs::create_symlink(Disk.Path / "OUTSIDE.ZRM", Disk.Path / "scratch/LINK.ZRM");
  fs::create_symlink(Disk.Path / "OUTSIDE.ZRM", Disk.Path / "shelf/OTHER.ZRM");
  fs::create_symlink(Disk.Path, Disk.Path / "scratch/UP");
  fs::create_symlink(Disk.Path / "NEW.ZRM", Disk.Path / "scratch/DANGLING.ZRM");
  ExpectNotFound("LINK.ZRM");
  ExpectNotFound("OTHER.ZRM");
  ExpectNotFound("UP\\OUTSIDE.ZRM");
  ExpectNotWritten("LINK.ZRM");
  ExpectNotWritten("UP\\NEW.ZRM");
  ExpectNotWritten("DANGLING.ZRM");
  EXPECT_FALSE(Disk.Has("NEW.ZRM"));
}

TEST_F(ConfinementTest, NothingIsListedOutside) {
  EXPECT_EQ(FailureOf([] { Folders::FilesIn(".."); }), FailureKind::FileNotFound);
  EXPECT_EQ(Folders::FilesIn("SUB"), Texts{"DEEP.ZRM"});
}

TEST_F(ConfinementTest, FilesAreCounted) {
  for (int i = 1; i < Confinement::MostFiles; ++i) Folders::WriteFile("F" + std::to_string(i), "");
  ExpectNotWritten("ONE-TOO-MANY");
}

TEST_F(ConfinementTest, BytesAreCounted) {
  Folders::WriteFile("LARGE", "");
  fs::resize_file("LARGE", Confinement::MostBytes);
  ExpectNotWritten("MORE");
}

TEST_F(ConfinementTest, EndsWithItsObject) {
  Confined.reset();
  EXPECT_EQ(Folders::ReadFile("..\\OUTSIDE.ZRM"), "outside");
}

}  // namespace
}  // namespace zerimo
