#include "desktop/extensions/line_journal.h"

#include <fstream>
#include <sstream>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class LineJournalTest : public ExtensionsTest {
 protected:
  fs::path JournalFolder() const { return State() / "journal"; }

  /// The contents of all files, in the order of their names.
  Texts Files() const {
    std::vector<fs::path> paths;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(JournalFolder(), none)) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    Texts texts;
    for (const fs::path& path : paths) {
      std::ostringstream text;
      text << std::ifstream(path, std::ios::binary).rdbuf();
      texts.push_back(text.str());
    }
    return texts;
  }
};

TEST_F(LineJournalTest, NothingTypedMakesNoFile) { EXPECT_EQ(Files(), Texts{}); }

TEST_F(LineJournalTest, EnteredLinesAreKeptAndPrintedTextIsNot) {
  Enter("print \"x");
  Enter("ct");
  Enter("rt 90");
  EXPECT_EQ(Files(), Texts{"PRINT \"X\nCT\nRT 90\n"});
}

TEST_F(LineJournalTest, ALineIsKeptBeforeItRuns) {
  Texts during;
  During(0, [&] { during = Files(); });
  Enter("wait 100");
  EXPECT_EQ(during, Texts{"WAIT 100\n"});
}

TEST_F(LineJournalTest, AProgramTakenOverIsKept) {
  TypeInEditor("to a\nend");
  Press(Qt::Key_F2);
  EXPECT_EQ(Files(), Texts{"to a\nend\n"});
}

TEST_F(LineJournalTest, TenFilesAreKept) {
  fs::create_directories(JournalFolder());
  for (int year = 2001; year <= 2012; ++year) {
    std::ofstream(JournalFolder() / (std::to_string(year) + "-01-01 10.00.00 1.txt")) << year;
  }
  Enter("rt 90");
  const Texts files = Files();
  ASSERT_EQ(files.size(), 10u);
  EXPECT_EQ(files.front(), "2004");
  EXPECT_EQ(files.back(), "RT 90\n");
}

TEST_F(LineJournalTest, AFileEndsAtAMegabyte) {
  LineJournal lineJournal(session->form1, JournalFolder());
  const std::string line(1000, 'x');
  for (int i = 0; i < 2000; ++i) lineJournal.Note(line);
  EXPECT_LE(Files().at(0).size(), std::size_t{1} << 20);
  EXPECT_GT(Files().at(0).size(), (std::size_t{1} << 20) - 1002);
}

TEST_F(LineJournalTest, AfterALineThatCannotBeWrittenTheNextOnesAreKept) {
  Enter("fd 1");
  const fs::path file = fs::directory_iterator(JournalFolder())->path();
  fs::rename(file, State() / "away");
  fs::create_directory(file);
  Enter("fd 2");
  fs::remove(file);
  fs::rename(State() / "away", file);
  Enter("fd 3");
  EXPECT_EQ(Files(), Texts{"FD 1\nFD 3\n"});
}

TEST_F(LineJournalTest, AFolderThatCannotBeMadeStopsNothing) {
  std::ofstream(State()) << "in the way";
  Enter("rt 90");
  EXPECT_EQ(FormControls().List4.Items(), Texts{"?RT 90"});
}

}  // namespace
}  // namespace zerimo
