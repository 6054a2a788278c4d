#include "files/disk_files.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "files/temp_folder.h"
#include "support/failure_of.h"

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

}  // namespace
}  // namespace zerimo
