#include "classroom/class_folder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

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

TEST_F(ClassFolderTest, AFolderThatCannotBeReadIsListedAndTheOthersAreFound) {
  Temp.Write("class/anna/A.ZRM", "");
  Temp.MakeFolder("class/secret");
  fs::permissions(Temp.Path, fs::perms::all);
  fs::permissions(Temp.Path / "class/secret", fs::perms::none);
  const pid_t child = fork();
  if (child == 0) {
    // The superuser can read anything.
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(2);
    const std::vector<Pupil> pupils = PupilsOf(Temp.Path / "class", false);
    const bool isListed = pupils.size() == 2 && pupils[0].Program.filename() == "A.ZRM" &&
                          pupils[1].Program == Temp.Path / "class/secret";
    _exit(isListed ? 0 : 1);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  fs::permissions(Temp.Path / "class/secret", fs::perms::owner_all);
}

TEST_F(ClassFolderTest, WhateverIsCalledAProgramIsOne) {
  fs::create_directory(Temp.Path / "FOLDER.ZRM");
  fs::create_symlink("nowhere", Temp.Path / "LINK.ZRM");
  EXPECT_EQ(Found(), (Words{"FOLDER.ZRM", "LINK.ZRM"}));
}

TEST_F(ClassFolderTest, ALinkToAFolderOutsideIsFollowedOnlyWhereItIsAskedFor) {
  Temp.Write("outside/A.ZRM", "");
  Temp.Write("class/inside/B.ZRM", "");
  fs::create_directory_symlink("../outside", Temp.Path / "class/LINK");
  fs::create_directory_symlink("inside", Temp.Path / "class/TWICE");
  const auto programs = [this](bool followsLinks) {
    std::vector<fs::path> found;
    for (const Pupil& pupil : PupilsOf(Temp.Path / "class", followsLinks))
      found.push_back(pupil.Program.lexically_relative(Temp.Path / "class"));
    return found;
  };
  EXPECT_EQ(programs(false), (std::vector<fs::path>{"inside/B.ZRM", "LINK"}));
  EXPECT_EQ(programs(true), (std::vector<fs::path>{"inside/B.ZRM", "LINK/A.ZRM"}));
}

TEST_F(ClassFolderTest, AFolderBelowBelongsToThePupilOfItsName) {
  Make({"ZOE.ZRM"});
  Temp.Write("Anna Berg/STAR.ZRM", "");
  Temp.Write("Ben Cole/A.ZRM", "");
  Temp.Write("Ben Cole/B.ZRM", "");
  Temp.Write(".hidden/C.ZRM", "");
  QStringList names;
  std::vector<fs::path> places;
  for (const Pupil& pupil : PupilsOf(Temp.Path)) {
    names.append(pupil.Name);
    places.push_back(PlaceOf(pupil));
  }
  EXPECT_EQ(names, (QStringList{"", "Anna Berg", "Ben Cole/A.ZRM", "Ben Cole/B.ZRM"}));
  EXPECT_EQ(places, (std::vector<fs::path>{"ZOE.ZRM", "Anna Berg/STAR.ZRM", "Ben Cole/A.ZRM", "Ben Cole/B.ZRM"}));
}

TEST_F(ClassFolderTest, AFolderWithoutAProgramIsAPupilToo) {
  Temp.Write("class/anna/A.ZRM", "");
  Temp.Write("class/Ben/haus.txt", "");
  Temp.Write("class/carla/work/deep/C.ZRM", "");
  Temp.Write("class/.hidden/x.txt", "");
  fs::create_directories(Temp.Path / "class/dora");
  Temp.Write("class/task/GOAL.ZRM", "");
  Temp.Write("class/report.pictures/1.png", "");
  Temp.Write("class/__MACOSX/anna/._A.ZRM", "");
  const auto pupils = [this] {
    QStringList all;
    for (const Pupil& pupil : PupilsOf(Temp.Path / "class", false, {fs::canonical(Temp.Path / "class/task")}))
      all.append(pupil.Name + (HasNoProgram(pupil) ? " -" : ""));
    return all;
  };
  EXPECT_EQ(pupils(), (QStringList{"anna", "Ben -", "carla/work/deep", "dora -"}));
  // Where the programs of all are in one folder, others are for something else.
  Temp.Write("class/ELLA.ZRM", "");
  EXPECT_EQ(pupils(), (QStringList{"", "anna", "carla/work/deep"}));
}

TEST_F(ClassFolderTest, FoldersAloneAreNoClass) {
  fs::create_directories(Temp.Path / "anna");
  EXPECT_EQ(Found(), Words{});
}

TEST_F(ClassFolderTest, TheModelIsNoPupil) {
  Make({"ANNA.ZRM", "GOAL.ZRM"});
  EXPECT_EQ(PupilsOf(Temp.Path, false, {fs::canonical(Temp.Path / "GOAL.ZRM")}).size(), 1U);
}

TEST_F(ClassFolderTest, ATableMayBeInTheCodePageOfTheWest) {
  std::vector<Pupil> pupils = {{"ANNA.ZRM", {}}, {"BEN.ZRM", {}}};
  TakeNames(pupils, "anna;J\xFCrgen \x80\r\nben;Ren\xE9\r\n");
  EXPECT_EQ(pupils[0].Name, QString::fromUtf8("J\xC3\xBCrgen \xE2\x82\xAC"));
  EXPECT_EQ(pupils[1].Name, QString::fromUtf8("Ren\xC3\xA9"));
  TakeNames(pupils,
            "\xEF\xBB\xBF"
            "anna;J\xC3\xBCrgen\r\n");
  EXPECT_EQ(pupils[0].Name, QString::fromUtf8("J\xC3\xBCrgen"));
}

TEST_F(ClassFolderTest, ATableMayBeInUtf16WithTabs) {
  std::vector<Pupil> pupils = {{"5a/ANNA.ZRM", {}}};
  const std::u16string text = u"\uFEFFanna\tJ\u00FCrgen\r\n";
  const std::string bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
  EXPECT_EQ(TakeNames(pupils, bytes), 1U);
  EXPECT_EQ(pupils[0].Name, QString::fromUtf8("J\xC3\xBCrgen"));
}

TEST_F(ClassFolderTest, NamesComeFromATable) {
  std::vector<Pupil> pupils = {{"5a/ANNA.ZRM", {}},
                               {"5a/1234/STAR.ZRM", {}},
                               {"5a/BEN.ZRM", {}},
                               {"5a/77/A.ZRM", {}, {}, "77/A.ZRM"},
                               {"5a/77/B.ZRM", {}, {}, "77/B.ZRM"}};
  TakeNames(pupils,
            "anna,Anna Berg\r\n1234;\"Zoe \"\"Z\"\" Cole\"\nnobody,Nobody\n77/a.zrm,Ina Dorn\n77/b.zrm,Jan Eck\n");
  EXPECT_EQ(pupils[0].Name, "Anna Berg");
  EXPECT_EQ(pupils[1].Name, "Zoe \"Z\" Cole");
  EXPECT_EQ(pupils[2].Name, "");
  EXPECT_EQ(pupils[3].Name, "Ina Dorn");
  EXPECT_EQ(pupils[4].Name, "Jan Eck");
}

TEST_F(ClassFolderTest, ATableMayNameAnyFolderOfTheClass) {
  const auto in = [](const char* place) { return Pupil{fs::path("/anna/class") / place, {}, {}, place}; };
  std::vector<Pupil> pupils = {in("5a/Berg, Anna/work/STAR.ZRM"),
                               in("5a/22/A.ZRM"),
                               in("5b/22/A.ZRM"),
                               in("5b/33/A.ZRM"),
                               in("5b/33/B.ZRM"),
                               in("LONE.ZRM")};
  TakeNames(pupils, "\"berg, anna\",Anna\n5a/22,Ben\n5b/22,Carla\n33,Dan\nanna,Nobody\n");
  QStringList names;
  for (const Pupil& pupil : pupils) names.append(pupil.Name);
  EXPECT_EQ(names, (QStringList{"Anna", "Ben", "Carla", "Dan/A.ZRM", "Dan/B.ZRM", ""}));
}

TEST_F(ClassFolderTest, AListNamesPrograms) {
  Make({"ANNA.ZRM", "BEN.ZRM", "BEN.session"});
  const std::string ben = Temp.Path.string() + "/./BEN.ZRM";
  Temp.Write("list", Temp.Path.string() + "/ANNA.ZRM\r\n\n  " + ben + "  \r\n   \n");
  const std::vector<Pupil> pupils = PupilsListedIn(Temp.Path / "list");
  ASSERT_EQ(pupils.size(), 2U);
  EXPECT_EQ(pupils[0].Program, Temp.Path / "ANNA.ZRM");
  EXPECT_EQ(pupils[0].Session, fs::path());
  EXPECT_EQ(pupils[1].Session, Temp.Path / "./BEN.session");
  EXPECT_EQ(PlaceOf(pupils[1]), fs::path(ben));
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
  EXPECT_EQ(Found(), (Words{"in\xFE.ZRM by in\xFE.session", "in\xFF.ZRM"}));
}

TEST_F(ClassFolderTest, AFolderThatIsNotThereFails) {
  EXPECT_THROW(PupilsOf(Temp.Path / "missing"), fs::filesystem_error);
}

}  // namespace
}  // namespace zerimo::classroom
