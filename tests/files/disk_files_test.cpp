#include "files/disk_files.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "files/temp_folder.h"
#include "support/failure_of.h"

namespace zerimo {
namespace {

class DiskFilesTest : public ::testing::Test {
 protected:
  TempFolder Disk;
};

TEST_F(DiskFilesTest, AFolderThatTakesFilesCanBeWrittenAndKeepsNoneOfThem) {
  EXPECT_TRUE(CanWriteInto(Disk.Path));
  EXPECT_EQ(Disk.Count(), 0);
}

TEST_F(DiskFilesTest, WhatIsNoFolderCanNotBeWritten) {
  Disk.Write("file", "text");
  EXPECT_FALSE(CanWriteInto(Disk.Path / "file"));
  EXPECT_FALSE(CanWriteInto(Disk.Path / "missing"));
}

TEST_F(DiskFilesTest, BytesAreReadFromFilesAlone) {
  Disk.Write("file", std::string("a\r\n\0b", 5));
  EXPECT_EQ(BytesOf(Disk.Path / "file"), std::string("a\r\n\0b", 5));
  EXPECT_EQ(BytesOf(Disk.Path), std::nullopt);
  EXPECT_EQ(BytesOf(Disk.Path / "missing"), std::nullopt);
}

TEST_F(DiskFilesTest, AFailureLeavesTheFormerFileAndNothingBesideIt) {
  Disk.Write("place/inside", "text");
  EXPECT_EQ(FailureOf([&] { WriteBeside(Disk.Path / "place", "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(Disk.Read("place/inside"), "text");
  EXPECT_EQ(Disk.Count(), 1);
}

}  // namespace
}  // namespace zerimo
