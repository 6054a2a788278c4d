#include "files/delivered_files.h"

#include <gtest/gtest.h>

#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// An installed folder "share", and a folder of the user that does not exist yet.
class DeliveredFilesTest : public ::testing::Test {
 protected:
  DeliveredFilesTest() {
    Temp.Write("share/FLOWER.ZRM", "TO FLOWER\r\nEND\r\n");
    Temp.Write("share/BOAT1.JPG", "picture 1");
    Temp.Write("share/ZMHELP/FD", "page of FD");
    Temp.Write("share/ZMHELP/HELP", "page of HELP");
  }

  Delivery Start() const { return DeliverFiles(Temp.Path / "share", Temp.Path / "user"); }

  TempFolder Temp;
};

TEST_F(DeliveredFilesTest, TheFirstStartBringsSamplesSlidesAndHelpPages) {
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 4);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(Temp.Read("user/FLOWER.ZRM"), "TO FLOWER\r\nEND\r\n");
  EXPECT_EQ(Temp.Read("user/BOAT1.JPG"), "picture 1");
  EXPECT_EQ(Temp.Read("user/ZMHELP/FD"), "page of FD");
  EXPECT_EQ(Temp.Count("user/ZMHELP"), 2);
}

TEST_F(DeliveredFilesTest, ProgramsAndOtherFilesAreNotDelivered) {
  Temp.Write("share/zerimo", "program");
  Temp.Write("share/README.txt", "words");
  Temp.Write("share/ZMHELP/.hidden", "of the file manager");
  EXPECT_EQ(Start().Written, 4);
  EXPECT_FALSE(Temp.Has("user/zerimo"));
  EXPECT_FALSE(Temp.Has("user/README.txt"));
  EXPECT_FALSE(Temp.Has("user/ZMHELP/.hidden"));
}

TEST_F(DeliveredFilesTest, TheSecondStartWritesNothing) {
  Start();
  const auto before = fs::last_write_time(Temp.Path / "user/.zerimo-files");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(fs::last_write_time(Temp.Path / "user/.zerimo-files"), before);
}

TEST_F(DeliveredFilesTest, ADeliveredFileCanBeWrittenAlsoIfItsSourceCanNot) {
  fs::permissions(Temp.Path / "share/FLOWER.ZRM", fs::perms::owner_read);
  Start();
  const fs::perms rights = fs::status(Temp.Path / "user/FLOWER.ZRM").permissions();
  EXPECT_NE(rights & fs::perms::owner_write, fs::perms::none);
}

TEST_F(DeliveredFilesTest, AFileTheUserChangedStays) {
  Start();
  Temp.Write("user/FLOWER.ZRM", "mine");
  Temp.Write("user/ZMHELP/FD", "my page");
  Start();
  EXPECT_EQ(Temp.Read("user/FLOWER.ZRM"), "mine");
  EXPECT_EQ(Temp.Read("user/ZMHELP/FD"), "my page");
}

TEST_F(DeliveredFilesTest, AFileTheUserChangedStaysAlsoWhenANewVersionComes) {
  Start();
  Temp.Write("user/FLOWER.ZRM", "mine");
  Temp.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_EQ(Start().Written, 0);
  EXPECT_EQ(Temp.Read("user/FLOWER.ZRM"), "mine");
}

TEST_F(DeliveredFilesTest, AnUnchangedFileFollowsANewVersion) {
  Start();
  Temp.Write("share/FLOWER.ZRM", "new version");
  Temp.Write("share/ZMHELP/FD", "new page");
  EXPECT_EQ(Start().Written, 2);
  EXPECT_EQ(Temp.Read("user/FLOWER.ZRM"), "new version");
  EXPECT_EQ(Temp.Read("user/ZMHELP/FD"), "new page");
  EXPECT_EQ(Start().Written, 0);
}

TEST_F(DeliveredFilesTest, AFileThatIsNewInANewVersionComes) {
  Start();
  Temp.Write("share/TREE.ZRM", "tree");
  EXPECT_EQ(Start().Written, 1);
  EXPECT_EQ(Temp.Read("user/TREE.ZRM"), "tree");
}

TEST_F(DeliveredFilesTest, ASampleTheUserDeletedStaysAway) {
  Start();
  fs::remove(Temp.Path / "user/FLOWER.ZRM");
  EXPECT_EQ(Start().Written, 0);
  Temp.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_FALSE(Temp.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, AHelpPageThatIsMissingComesAgain) {
  Start();
  fs::remove_all(Temp.Path / "user/ZMHELP");
  EXPECT_EQ(Start().Written, 2);
  EXPECT_EQ(Temp.Read("user/ZMHELP/FD"), "page of FD");
}

TEST_F(DeliveredFilesTest, WithoutTheListAllThatIsMissingComesAgainAndNothingIsOverwritten) {
  Start();
  fs::remove(Temp.Path / "user/FLOWER.ZRM");
  Temp.Write("user/BOAT1.JPG", "my picture");
  fs::remove(Temp.Path / "user/.zerimo-files");
  Start();
  EXPECT_TRUE(Temp.Has("user/FLOWER.ZRM"));
  EXPECT_EQ(Temp.Read("user/BOAT1.JPG"), "my picture");
}

TEST_F(DeliveredFilesTest, AFileOfTheUsersOwnWithThatNameStaysInAnyCase) {
  Temp.Write("user/flower.zrm", "mine");
  EXPECT_EQ(Start().Written, 3);
  EXPECT_EQ(Temp.Read("user/flower.zrm"), "mine");
  EXPECT_FALSE(Temp.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, AFileThatIsNoLongerInTheSourceStays) {
  Start();
  fs::remove(Temp.Path / "share/FLOWER.ZRM");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_TRUE(Temp.Has("user/FLOWER.ZRM"));
}

TEST_F(DeliveredFilesTest, ALinkOfTheUserIsNotFollowed) {
  Start();
  fs::rename(Temp.Path / "user/FLOWER.ZRM", Temp.Path / "elsewhere.zrm");
  fs::create_symlink(Temp.Path / "elsewhere.zrm", Temp.Path / "user/FLOWER.ZRM");
  Temp.Write("share/FLOWER.ZRM", "new version");
  EXPECT_EQ(Start().Written, 0);
  EXPECT_TRUE(fs::is_symlink(Temp.Path / "user/FLOWER.ZRM"));
  EXPECT_EQ(Temp.Read("elsewhere.zrm"), "TO FLOWER\r\nEND\r\n");
}

TEST_F(DeliveredFilesTest, AMissingSourceDeliversNothingAndFailsNothing) {
  fs::remove_all(Temp.Path / "share");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 0);
  EXPECT_EQ(Temp.Count("user"), 0);
}

TEST_F(DeliveredFilesTest, AFolderThatCanNotBeMadeIsAFailure) {
  Temp.Write("user", "a file in its place");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 0);
  EXPECT_EQ(delivery.Failed, 1);
  EXPECT_EQ(Temp.Read("user"), "a file in its place");
}

TEST_F(DeliveredFilesTest, OneFolderThatCanNotBeMadeDoesNotHinderTheRest) {
  Temp.Write("user/ZMHELP", "a file in its place");
  const Delivery delivery = Start();
  EXPECT_EQ(delivery.Written, 2);
  EXPECT_EQ(delivery.Failed, 1);
}

TEST_F(DeliveredFilesTest, NamesWithBlanksAndUmlautsAreDelivered) {
  Temp.Write("share/Die Bl\xC3\xBCte.ZRM", "bl\xC3\xBCte");
  const fs::path target = Temp.Path / u8"Schöne Dokumente" / "Zerimo";
  EXPECT_EQ(DeliverFiles(Temp.Path / "share", target).Written, 5);
  EXPECT_TRUE(fs::exists(target / u8"Die Blüte.ZRM"));
  fs::remove(target / u8"Die Blüte.ZRM");
  EXPECT_EQ(DeliverFiles(Temp.Path / "share", target).Written, 0);
}

TEST_F(DeliveredFilesTest, AListThatIsNotAListIsIgnored) {
  Temp.Write("user/.zerimo-files", std::string("\0\xFF\n\nnonsense\n0123456789abcdef\n", 31));
  EXPECT_EQ(Start().Written, 4);
  EXPECT_EQ(Start().Written, 0);
}

}  // namespace
}  // namespace zerimo
