#include "classroom/bounded_file.h"

#include <gtest/gtest.h>

#include <ostream>

#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

TEST(BoundedFile, KeepsTheBeginning) {
  const TempFolder disk;
  BoundedFile file(disk.Path / "f", 10);
  std::ostream stream(&file);
  stream << "12345\n"
         << "6789012345\n"
         << "more" << std::flush;
  EXPECT_TRUE(stream.good());
  EXPECT_EQ(disk.Read("f").substr(0, 6), "12345\n");
  EXPECT_LE(disk.Read("f").size(), 10U);
}

TEST(BoundedFile, TellsWhetherBytesAreLost) {
  const TempFolder disk;
  BoundedFile file(disk.Path / "f", 10);
  std::ostream(&file) << "more than ten characters\n";
  EXPECT_FALSE(file.HasFailed());
  BoundedFile nowhere("no/such/folder/f", 10);
  EXPECT_TRUE(nowhere.HasFailed());
#ifdef __linux__
  BoundedFile full("/dev/full", 10);
  std::ostream(&full) << "line\n";
  EXPECT_TRUE(full.HasFailed());
#endif
}

TEST(BoundedFile, ALineIsOnTheDiskWhenItEnds) {
  const TempFolder disk;
  BoundedFile file(disk.Path / "f", 100);
  std::ostream stream(&file);
  stream << "line" << '\n';
  EXPECT_EQ(disk.Read("f"), "line\n");
}

}  // namespace
}  // namespace zerimo::classroom
