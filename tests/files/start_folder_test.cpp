#include <gtest/gtest.h>

#include "files/folders.h"
#include "files/temp_folder.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// A program in "bin", perhaps with the folder "share" of an installed one, and the user's "documents".
class StartFolderTest : public ::testing::Test {
 protected:
  StartFolderTest() {
    Temp.MakeFolder("bin");
    surroundings.ProgramFolder = Temp.Path / "bin";
    surroundings.CanWriteIntoProgramFolder = true;
    surroundings.ShareFolder = Temp.Path / "share";
    surroundings.DocumentsFolder = Temp.Path / "documents";
  }

  void GiveFilesTo(const std::string& folder) const {
    Temp.Write(folder + "/FLOWER.ZRM", "flower");
    Temp.Write(folder + "/ZMHELP/FD", "page");
  }

  TempFolder Temp;
  Surroundings surroundings;
};

TEST_F(StartFolderTest, APortableProgramWorksInItsOwnFolder) {
  GiveFilesTo("bin");
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "bin");
  EXPECT_FALSE(start.IsCurrentFolder);
  EXPECT_TRUE(start.Unusable.empty());
  EXPECT_FALSE(Temp.Has("documents"));
}

TEST_F(StartFolderTest, APortableProgramTakesNoNoticeOfAnInstalledOne) {
  GiveFilesTo("bin");
  GiveFilesTo("share");
  EXPECT_EQ(PrepareStartFolder(surroundings).Folder, Temp.Path / "bin");
}

TEST_F(StartFolderTest, AProgramWithNothingAroundItWorksInItsOwnFolder) {
  EXPECT_EQ(PrepareStartFolder(surroundings).Folder, Temp.Path / "bin");
}

TEST_F(StartFolderTest, AnInstalledProgramWorksInTheDocuments) {
  GiveFilesTo("share");
  surroundings.CanWriteIntoProgramFolder = false;
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "documents/Zerimo");
  EXPECT_TRUE(start.IsCurrentFolder);
  EXPECT_TRUE(start.Unusable.empty());
  EXPECT_EQ(Temp.Read("documents/Zerimo/FLOWER.ZRM"), "flower");
  EXPECT_EQ(Temp.Read("documents/Zerimo/ZMHELP/FD"), "page");
}

TEST_F(StartFolderTest, AnInstalledProgramWorksInTheDocumentsAlsoForOneWhoMayWriteEverywhere) {
  GiveFilesTo("share");
  EXPECT_EQ(PrepareStartFolder(surroundings).Folder, Temp.Path / "documents/Zerimo");
}

TEST_F(StartFolderTest, APortableProgramThatCanNotBeWrittenWorksInTheDocuments) {
  GiveFilesTo("bin");
  surroundings.CanWriteIntoProgramFolder = false;
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "documents/Zerimo");
  EXPECT_EQ(Temp.Read("documents/Zerimo/FLOWER.ZRM"), "flower");
}

TEST_F(StartFolderTest, NothingToFillTheFolderFromLeavesItEmpty) {
  surroundings.CanWriteIntoProgramFolder = false;
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "documents/Zerimo");
  EXPECT_TRUE(start.Unusable.empty());
  EXPECT_EQ(Temp.Count("documents/Zerimo"), 0);
}

TEST_F(StartFolderTest, ADocumentsFolderMayHaveBlanksAndUmlautsInItsName) {
  GiveFilesTo("share");
  surroundings.DocumentsFolder = Temp.Path / u8"Jörg Müller" / u8"Eigene Öfen";
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / u8"Jörg Müller" / u8"Eigene Öfen" / "Zerimo");
  EXPECT_TRUE(fs::exists(start.Folder / "ZMHELP" / "FD"));
}

TEST_F(StartFolderTest, DocumentsThatCanNotBeWrittenLeaveTheInstalledFiles) {
  GiveFilesTo("share");
  Temp.Write("documents", "a file in its place");
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "share");
  EXPECT_TRUE(start.IsCurrentFolder);
  EXPECT_EQ(start.Unusable, Temp.Path / "documents/Zerimo");
}

TEST_F(StartFolderTest, AFolderWithTheHelpPagesIsUsedAlsoIfNotAllCanBeWritten) {
  GiveFilesTo("share");
  PrepareStartFolder(surroundings);
  Temp.Write("share/ZMHELP/NEW", "new page");
  Temp.Write("share/TREE.ZRM", "tree");
  fs::remove(Temp.Path / "documents/Zerimo/.zerimo-files");
  // A folder in the place of the list can't be replaced by it.
  Temp.Write("documents/Zerimo/.zerimo-files/x", "");
  const StartFolder start = PrepareStartFolder(surroundings);
  EXPECT_EQ(start.Folder, Temp.Path / "documents/Zerimo");
  EXPECT_EQ(start.Unusable, Temp.Path / "documents/Zerimo");
  EXPECT_TRUE(Temp.Has("documents/Zerimo/ZMHELP/NEW"));
}

TEST(AppFolderNameTest, IsThatOfTheSystem) {
  const TempFolder disk;
  disk.MakeFolder("b");
  EXPECT_EQ(AppFolderName(disk.Path / "b"), Folders::ToSystem(disk.Path) + "\\b");
}

TEST(AppFolderNameTest, MayHaveQuestionMarksForCharactersThatTheSystemDoesNotHave) {
  const TempFolder disk;
  fs::create_directories(disk.Path / u8"Документы");
  EXPECT_EQ(AppFolderName(disk.Path / u8"Документы"), Folders::ToSystem(disk.Path) + "\\?????????");
}

TEST(AppFolderNameTest, IsAFullStopIfItsNameIsNotFound) {
  const TempFolder disk;
  const fs::path folder = disk.Path / u8"Документы";
  fs::create_directories(folder);
  fs::create_directories(disk.Path / u8"Программы");
  EXPECT_EQ(AppFolderName(folder, Disk(folder)), ".");
}

}  // namespace
}  // namespace zerimo
