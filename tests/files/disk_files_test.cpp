#include "files/disk_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <optional>
#include <ostream>

#include "base/failure.h"
#include "files/temp_folder.h"
#include "support/failure_of.h"
#include "support/full_disk.h"

namespace zerimo {
namespace {

class DiskFilesTest : public ::testing::Test {
 protected:
  TempFolder Temp;
};

TEST_F(DiskFilesTest, AFolderThatTakesFilesCanBeWrittenAndKeepsNoneOfThem) {
  EXPECT_TRUE(CanWriteInto(Temp.Path));
  EXPECT_EQ(Temp.Count(), 0);
}

TEST_F(DiskFilesTest, WhatIsNoFolderCanNotBeWritten) {
  Temp.Write("file", "text");
  EXPECT_FALSE(CanWriteInto(Temp.Path / "file"));
  EXPECT_FALSE(CanWriteInto(Temp.Path / "missing"));
}

TEST_F(DiskFilesTest, BytesAreReadFromFilesAlone) {
  Temp.Write("file", std::string("a\r\n\0b", 5));
  EXPECT_EQ(BytesOf(Temp.Path / "file"), std::string("a\r\n\0b", 5));
  EXPECT_EQ(BytesOf(Temp.Path), std::nullopt);
  EXPECT_EQ(BytesOf(Temp.Path / "missing"), std::nullopt);
}

TEST_F(DiskFilesTest, AFailureLeavesTheFormerFileAndNothingBesideIt) {
  Temp.Write("place/inside", "text");
  EXPECT_EQ(FailureOf([&] { WriteBeside(Temp.Path / "place", "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(Temp.Read("place/inside"), "text");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(DiskFilesTest, WhatIsWrittenPieceByPieceTakesItsPlaceWhenItIsSaved) {
  Temp.Write("file", "former");
  const std::string longPiece(200'000, 'A');
  FileToSave file(Temp.Path / "file");
  std::ostream stream(&file);
  stream << "one" << '\n' << longPiece << std::flush << "two";
  EXPECT_EQ(Temp.Read("file"), "former");
  EXPECT_EQ(Temp.Count(), 2);
  file.Save();
  EXPECT_EQ(Temp.Read("file"), "one\n" + longPiece + "two");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(DiskFilesTest, WhatIsNotSavedLeavesNothing) {
  Temp.Write("file", "former");
  std::optional<FileToSave> file(Temp.Path / "file");
  std::ostream(&*file) << "new" << std::flush;
  file.reset();
  EXPECT_EQ(Temp.Read("file"), "former");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(DiskFilesTest, AfterAFailureNothingIsSaved) {
  Temp.Write("file", "former");
  const auto failure = FailureOnFullDisk(100'000, [this] {
    FileToSave file(Temp.Path / "file");
    std::ostream(&file) << std::string(200'000, 'A') << std::flush;
    std::ostream(&file) << "and more";
    file.Save();
  });
  EXPECT_EQ(failure, FailureKind::FileAccess);
  EXPECT_EQ(Temp.Read("file"), "former");
  EXPECT_EQ(Temp.Count(), 1);
}

TEST_F(DiskFilesTest, OwnerAndModeOfTheFormerFileAreKept) {
  Temp.Write("file", "old");
  std::filesystem::permissions(Temp.Path / "file", std::filesystem::perms(0604));
  struct stat before {};
  struct stat after {};
  ASSERT_EQ(stat((Temp.Path / "file").c_str(), &before), 0);
  WriteBeside(Temp.Path / "file", "new");
  ASSERT_EQ(stat((Temp.Path / "file").c_str(), &after), 0);
  EXPECT_EQ(Temp.Read("file"), "new");
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST_F(DiskFilesTest, ALinkThatLeadsRoundIsNotWritten) {
  std::filesystem::create_symlink("two", Temp.Path / "one");
  std::filesystem::create_symlink("one", Temp.Path / "two");
  EXPECT_EQ(FailureOf([&] { WriteBeside(Temp.Path / "one", "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(Temp.Count(), 2);
}

TEST_F(DiskFilesTest, OnlyWhatAKilledSaveLeftIsRemoved) {
  const char* const leftover = ".zerimo-0123456789abcdef.tmp";
  for (const char* name : {leftover, ".zerimo-files", "mine.tmp"}) {
    Temp.Write(name, "text");
    std::filesystem::last_write_time(Temp.Path / name,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  }
  // Another process may be about to rename this one.
  Temp.Write(".zerimo-fedcba9876543210.tmp", "text");
  RemoveLeftovers(Temp.Path);
  EXPECT_FALSE(Temp.Has(leftover));
  EXPECT_EQ(Temp.Count(), 3);
  RemoveLeftovers(Temp.Path / "missing");
}

}  // namespace
}  // namespace zerimo
