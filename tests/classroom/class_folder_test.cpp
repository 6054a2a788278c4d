#include "classroom/class_folder.h"

#include <gtest/gtest.h>

#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

namespace fs = std::filesystem;

class ClassFolderTest : public testing::Test {
 protected:
  /// "ANNA.ZRM" or "ANNA.ZRM by ANNA.session" for each program.
  std::vector<std::string> Found() const {
    std::vector<std::string> found;
    for (const Pupil& pupil : PupilsOf(Temp.Path)) {
      std::string words = pupil.Program.filename().string();
      if (!pupil.Session.empty()) words += " by " + pupil.Session.filename().string();
      found.push_back(words);
    }
    return found;
  }

  void Make(std::initializer_list<const char*> names) const {
    for (const char* name : names) Temp.Write(name, "");
  }

  using Words = std::vector<std::string>;
  TempFolder Temp;
};

TEST_F(ClassFolderTest, ProgramsComeInTheOrderOfTheirNamesInAnyCase) {
  Make({"ben.ZRM", "Carla.zrm", "ANNA.Zrm", "\xC3\x84NNE.ZRM", "anna.zrm"});
  EXPECT_EQ(Found(), (Words{"ANNA.Zrm", "anna.zrm", "ben.ZRM", "Carla.zrm", "\xC3\x84NNE.ZRM"}));
}

TEST_F(ClassFolderTest, OtherFilesAndHiddenOnesAreNone) {
  Make({"BOAT.JPG", "notes.txt", "ANNA.session", ".hidden.ZRM", "._ANNA.ZRM", ".ZRM", "ZRM", "ANNA.ZRM.bak"});
  EXPECT_EQ(Found(), Words{});
}

TEST_F(ClassFolderTest, WhateverIsCalledAProgramIsOne) {
  fs::create_directory(Temp.Path / "FOLDER.ZRM");
  fs::create_symlink("nowhere", Temp.Path / "LINK.ZRM");
  EXPECT_EQ(Found(), (Words{"FOLDER.ZRM", "LINK.ZRM"}));
}

TEST_F(ClassFolderTest, FoldersBelowAreNotLookedInto) {
  Temp.Write("sub/ANNA.ZRM", "");
  EXPECT_EQ(Found(), Words{});
}

TEST_F(ClassFolderTest, ASessionHasTheNameOfItsProgram) {
  Make({"ANNA.ZRM", "anna.SESSION", "BEN.ZRM", "ANNA.txt"});
  EXPECT_EQ(Found(), (Words{"ANNA.ZRM by anna.SESSION", "BEN.ZRM"}));
}

TEST_F(ClassFolderTest, OfSeveralSessionsTheExactNameCounts) {
  Make({"anna.ZRM", "ANNA.session", "Anna.session", "anna.session", "BEN.ZRM", "Ben.session", "ben.session"});
  EXPECT_EQ(Found(), (Words{"anna.ZRM by anna.session", "BEN.ZRM by Ben.session"}));
}

TEST_F(ClassFolderTest, NamesNeedNotBeText) {
  Make({"in\xFF.ZRM", "in\xFE.ZRM", "in\xFE.session"});
  EXPECT_EQ(Found(), (Words{"in\xFE.ZRM by in\xFE.session", "in\xFF.ZRM by in\xFE.session"}));
}

TEST_F(ClassFolderTest, AFolderThatIsNotThereFails) {
  EXPECT_THROW(PupilsOf(Temp.Path / "missing"), fs::filesystem_error);
}

}  // namespace
}  // namespace zerimo::classroom
