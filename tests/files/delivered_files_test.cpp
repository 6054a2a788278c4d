#include "files/delivered_files.h"

#include <gtest/gtest.h>

#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// An installed folder "share", and a folder of the user that is not there yet.
class DeliveredFilesTest : public ::testing::Test {
 protected:
  DeliveredFilesTest() {
    Disk.Write("share/FLOWER.ZRM", "TO FLOWER\r\nEND\r\n");
    Disk.Write("share/BOAT1.JPG", "picture 1");
    Disk.Write("share/ZMHELP/FD", "page of FD");
    Disk.Write("share/ZMHELP/HELP", "page of HELP");
  }

  Delivery Start() const { return DeliverFiles(Disk.Path / "share", Disk.Path / "user"); }

  TempFolder Disk;
};

TEST_F(DeliveredFilesTest, TheFirstStartBringsSamplesSlidesAndHelpPages) {
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 4);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(Disk.Read("user/FLOWER.ZRM"), "TO FLOWER\r\nEND\r\n");
  EXPECT_EQ(Disk.Read("user/BOAT1.JPG"), "picture 1");
  EXPECT_EQ(Disk.Read("user/ZMHELP/FD"), "page of FD");
  EXPECT_EQ(Disk.Count("user/ZMHELP"), 2);
}

TEST_F(DeliveredFilesTest, ProgramsAndOtherFilesAreNotDelivered) {
  Disk.Write("share/zerimo", "program");
  Disk.Write("share/README.txt", "words");
  Disk.Write("share/ZMHELP/.hidden", "of the file manager");
  EXPECT_EQ(Start().Written, 4);
  EXPECT_FALSE(Disk.Has("user/zerimo"));
  EXPECT_FALSE(Disk.Has("user/README.txt"));
  EXPECT_FALSE(Disk.Has("user/ZMHELP/.hidden"));
}

TEST_F(DeliveredFilesTest, TheSecondStartWritesNothing) {
  Start();
  const auto before = fs::last_write_time(DeliveryListIn(Disk.Path / "user"));
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(fs::last_write_time(DeliveryListIn(Disk.Path / "user")), before);
}

TEST_F(DeliveredFilesTest, ADeliveredFileCanBeWrittenAlsoIfItsSourceCanNot) {
  fs::permissions(Disk.Path / "share/FLOWER.ZRM", fs::perms::owner_read);
  Start();
  const fs::perms rights = fs::status(Disk.Path / "user/FLOWER.ZRM").permissions();
  EXPECT_NE(rights & fs::perms::owner_write, fs::perms::none);
}

TEST_F(DeliveredFilesTest, AFileTheUserChangedStays) {
  Start();
  Disk.Write("user/FLOWER.ZRM", "mine");
  Disk.Write("user/ZMHELP/FD", "my page");
  Start();
  EXPECT_EQ(Disk.Read("user/FLOWER.ZRM"), "mine");
  EXPECT_EQ(Disk.Read("user/ZMHELP/FD"), "my page");
}

TEST_F(DeliveredFilesTest, AFileTheUserChangedStaysAlsoWhenANewVersionComes) {
  Start();
  Disk.Write("user/FLOWER.ZRM", "mine");
  Disk.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_EQ(Start().Written, 0);
  EXPECT_EQ(Disk.Read("user/FLOWER.ZRM"), "mine");
}

TEST_F(DeliveredFilesTest, AnUnchangedFileFollowsANewVersion) {
  Start();
  Disk.Write("share/FLOWER.ZRM", "new version");
  Disk.Write("share/ZMHELP/FD", "new page");
  EXPECT_EQ(Start().Written, 2);
  EXPECT_EQ(Disk.Read("user/FLOWER.ZRM"), "new version");
  EXPECT_EQ(Disk.Read("user/ZMHELP/FD"), "new page");
  EXPECT_EQ(Start().Written, 0);
}

TEST_F(DeliveredFilesTest, AFileThatIsNewInANewVersionComes) {
  Start();
  Disk.Write("share/TREE.ZRM", "tree");
  EXPECT_EQ(Start().Written, 1);
  EXPECT_EQ(Disk.Read("user/TREE.ZRM"), "tree");
}

TEST_F(DeliveredFilesTest, ASampleTheUserDeletedStaysAway) {
  Start();
  fs::remove(Disk.Path / "user/FLOWER.ZRM");
  EXPECT_EQ(Start().Written, 0);
  Disk.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_FALSE(Disk.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, AHelpPageThatIsMissingComesAgain) {
  Start();
  fs::remove_all(Disk.Path / "user/ZMHELP");
  EXPECT_EQ(Start().Written, 2);
  EXPECT_EQ(Disk.Read("user/ZMHELP/FD"), "page of FD");
}

TEST_F(DeliveredFilesTest, WithoutTheListAllThatIsMissingComesAgainAndNothingIsOverwritten) {
  Start();
  fs::remove(Disk.Path / "user/FLOWER.ZRM");
  Disk.Write("user/BOAT1.JPG", "my picture");
  fs::remove(DeliveryListIn(Disk.Path / "user"));
  Start();
  EXPECT_TRUE(Disk.Has("user/FLOWER.ZRM"));
  EXPECT_EQ(Disk.Read("user/BOAT1.JPG"), "my picture");
}

TEST_F(DeliveredFilesTest, AFileOfTheUsersOwnWithThatNameStaysInAnyCase) {
  Disk.Write("user/flower.zrm", "mine");
  EXPECT_EQ(Start().Written, 3);
  EXPECT_EQ(Disk.Read("user/flower.zrm"), "mine");
  EXPECT_FALSE(Disk.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, AFileThatIsNoLongerInTheSourceStays) {
  Start();
  fs::remove(Disk.Path / "share/FLOWER.ZRM");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_TRUE(Disk.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, ALinkOfTheUserIsNotFollowed) {
  Start();
  fs::rename(Disk.Path / "user/FLOWER.ZRM", Disk.Path / "elsewhere.zrm");
  fs::create_symlink(Disk.Path / "elsewhere.zrm", Disk.Path / "user/FLOWER.ZRM");
  Disk.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_TRUE(fs::is_symlink(Disk.Path / "user/FLOWER.ZRM"));
  EXPECT_EQ(Disk.Read("elsewhere.zrm"), "TO FLOWER\r\nEND\r\n");
}

TEST_F(DeliveredFilesTest, AMissingSourceDeliversNothingAndFailsNothing) {
  fs::remove_all(Disk.Path / "share");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(Disk.Count("user"), 0);
}

TEST_F(DeliveredFilesTest, AFolderThatCanNotBeMadeIsAFailure) {
  Disk.Write("user", "a file in its place");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 1);
  EXPECT_EQ(Disk.Read("user"), "a file in its place");
}

TEST_F(DeliveredFilesTest, OneFolderThatCanNotBeMadeDoesNotHinderTheRest) {
  Disk.Write("user/ZMHELP", "a file in its place");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 2);
  EXPECT_EQ(delivery.Failed, 1);
}

TEST_F(DeliveredFilesTest, NamesWithBlanksAndUmlautsAreDelivered) {
  Disk.Write("share/Die Bl\xC3\xBCte.ZRM", "bl\xC3\xBCte");
  const fs::path target = Disk.Path / u8"Schöne Dokumente" / "Zerimo";
  EXPECT_EQ(DeliverFiles(Disk.Path / "share", target).Written, 5);
  EXPECT_TRUE(fs::exists(target / u8"Die Blüte.ZRM"));
  fs::remove(target / u8"Die Blüte.ZRM");
  EXPECT_EQ(DeliverFiles(Disk.Path / "share", target).Written, 0);
}

TEST_F(DeliveredFilesTest, AListThatIsNoListIsPassedOver) {
  Disk.Write("user/.zerimo-files", std::string("\0\xFF\n\nnonsense\n0123456789abcdef\n", 31));
  EXPECT_EQ(Start().Written, 4);
  EXPECT_EQ(Start().Written, 0);
}

}  // namespace
}  // namespace zerimo
