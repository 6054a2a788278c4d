#include <sys/stat.h>

#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class ClassProgramTest : public ClassTest {
 protected:
  void ExpectBadUsage(const std::string& arguments, const std::string& message) {
    const ProgramRun run = Program.Run(arguments);
    EXPECT_EQ(run.Status, 2) << arguments;
    EXPECT_EQ(run.Errors, "zerimo-batch: " + message + "\n");
    EXPECT_EQ(run.Output, "");
  }
};

TEST_F(ClassProgramTest, TellsWhatAProgramDrewPrintedAndSaid) {
  Write("STAR.ZRM", "TO STAR|CS|FD 50|PRINT \"HELLO\"|MESSAGE \"DONE\"|END|");
  const ProgramRun run = Run();
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Output, "");
  EXPECT_TRUE(run.Errors.starts_with("1/1 STAR.ZRM ended\nzerimo-batch: 1 of 1 programs ended by themselves; "));
  EXPECT_EQ(ResultOf("STAR.ZRM"), "ended");
  EXPECT_EQ(PrintedBy("STAR.ZRM"), (Lines{"?LOAD STAR", "?STAR", "?HELLO"}));
  EXPECT_EQ(Pupil("STAR.ZRM").value("boxes").toArray().at(0).toObject().value("text").toString(), "DONE");
  EXPECT_NE(Page.find("<img width=\"1024\" height=\""), std::string::npos);
  EXPECT_NE(Page.find("src=\"data:image/png;base64,iVBORw0KGgo"), std::string::npos);
  EXPECT_TRUE(fs::is_empty(TemporaryFolder()));
}

TEST_F(ClassProgramTest, ASessionBesideTheProgramRunsIt) {
  Write("BOX.ZRM", "TO BOX :S|PRINT :S|END|");
  Write("box.session", "LOAD BOX\nBOX 60\n@answer box Yes\nBYE\n");
  Run();
  EXPECT_EQ(PrintedBy("BOX.ZRM"), (Lines{"?LOAD BOX", "?BOX 60", "? 60", "?BYE"}));
  EXPECT_EQ(Pupil("BOX.ZRM").value("by").toString(), "BYE");
  EXPECT_EQ(Pupil("BOX.ZRM").value("session").toString(), "box.session");
}

TEST_F(ClassProgramTest, WhatIsWrongInASessionIsToldWithItsLine) {
  Write("BOX.ZRM", "");
  Write("BOX.session", "PD\n@frobnicate\n");
  Write("A.ZRM", "");
  Write("A.session", "PD\n@text Text4 40000\n");
  Run();
  EXPECT_EQ(ResultOf("BOX.ZRM"), "refused");
  EXPECT_EQ(Pupil("BOX.ZRM").value("message").toString(), "there is no directive @frobnicate");
  EXPECT_EQ(Pupil("BOX.ZRM").value("place").toObject().value("line").toInt(), 2);
  EXPECT_EQ(ResultOf("A.ZRM"), "failed");
  EXPECT_EQ(Pupil("A.ZRM").value("message").toString(), "ended by a failure: Overflow");
  EXPECT_EQ(Pupil("A.ZRM").value("place").toObject().value("text").toString(), "@text Text4 40000");
}

TEST_F(ClassProgramTest, LimitsStopAProgramAndTellWhere) {
  Write("SPIN.ZRM", Endless);
  Write("LOOP.ZRM", "TO LOOP|REPEAT 30000 [PD]|END|");
  EXPECT_EQ(Run("--steps 1000 --jobs 1").Status, 0);
  EXPECT_EQ(ResultOf("SPIN.ZRM"), "stopped steps");
  const QJsonObject place = Pupil("SPIN.ZRM").value("place").toObject();
  EXPECT_EQ(place.value("procedure").toString(), "SPIN");
  EXPECT_EQ(place.value("text").toString(), "SPIN");
  EXPECT_TRUE(Pupil("SPIN.ZRM").value("picture").toBool());
  // Not the lines that stand for a REPEAT.
  const QString statement = Pupil("LOOP.ZRM").value("place").toObject().value("statement").toString();
  EXPECT_TRUE(QStringList({"REPEAT", "PD", "ENDIF"}).contains(statement)) << statement.toStdString();
}

TEST_F(ClassProgramTest, AMissingEndIsToldBesideWhatCameOfIt) {
  Write("SPIN.ZRM", "TO SPIN|REPEAT 2 [FD 1]|");
  Write("SPIN.session", "LOAD SPIN\nSPIN\n");
  Run("--steps 500");
  EXPECT_EQ(ResultOf("SPIN.ZRM"), "stopped steps");
  EXPECT_EQ(Pupil("SPIN.ZRM").value("notes").toArray(), QJsonArray{"Procedures without END: SPIN."});
}

TEST_F(ClassProgramTest, OfAProgramInOneLineOnlyThatIsTold) {
  Write("LINES.ZRM", "TO LINES\nFD 10\nEND\n");
  Run();
  EXPECT_EQ(PrintedBy("LINES.ZRM"), Lines{"?LOAD LINES"});
  EXPECT_EQ(Pupil("LINES.ZRM").value("notes").toArray(),
            QJsonArray{"The lines of the file end in LF alone: Zerimo reads it as one line."});
}

TEST_F(ClassProgramTest, AnEndlessOutputIsCut) {
  Write("PRINTS.ZRM", "TO PRINTS|LABEL L|PRINT \"AAAAAAAAAAAAAAAAAAAA\"|MESSAGE \"BBBBBBBBBBBB\"|GOTO L|END|");
  Run("--steps 4000");
  EXPECT_EQ(ResultOf("PRINTS.ZRM"), "stopped steps");
  EXPECT_TRUE(Pupil("PRINTS.ZRM").value("printedCut").toBool());
  EXPECT_TRUE(Pupil("PRINTS.ZRM").value("boxesCut").toBool());
  EXPECT_NE(Page.find("More was printed; it is left out here."), std::string::npos);
  EXPECT_LT(Page.size(), 150'000U);
}

TEST_F(ClassProgramTest, WhatCanNotBeRunStopsNobody) {
  fs::create_directory(ClassFolder() / "FOLDER.ZRM");
  fs::create_symlink("nowhere", ClassFolder() / "DANGLING.ZRM");
  fs::create_symlink("ROUND.ZRM", ClassFolder() / "ROUND.ZRM");
  ASSERT_EQ(mkfifo((ClassFolder() / "PIPE.ZRM").c_str(), 0600), 0);
  Write("HUGE.ZRM", "");
  fs::resize_file(ClassFolder() / "HUGE.ZRM", 100 << 20);
  Write("EMPTY.ZRM", "");
  Write("LAST.ZRM", "TO LAST|PRINT 1|END|");
  EXPECT_EQ(Run().Status, 0);
  for (const auto& [file, message] : {std::pair("FOLDER.ZRM", "the program is a folder"),
                                      std::pair("DANGLING.ZRM", "the program is a link that leads nowhere"),
                                      std::pair("ROUND.ZRM", "the program can not be read"),
                                      std::pair("PIPE.ZRM", "the program is no file but a pipe or a device"),
                                      std::pair("HUGE.ZRM", "the program is too large: the most is 4 megabytes")}) {
    EXPECT_EQ(ResultOf(file), "not run");
    EXPECT_EQ(Pupil(file).value("message").toString(), message);
  }
  EXPECT_EQ(ResultOf("EMPTY.ZRM"), "ended");
  EXPECT_EQ(Pupil("EMPTY.ZRM").value("notes").toArray().at(0).toString(), "The program is empty.");
  EXPECT_EQ(PrintedBy("LAST.ZRM"), (Lines{"?LOAD LAST", "?LAST", "? 1"}));
}

TEST_F(ClassProgramTest, BytesWithoutSenseAreAProgramToo) {
  std::string bytes;
  for (unsigned i = 0; i < 50'000; ++i) bytes += static_cast<char>(i * i * 31 % 251);
  Write("BYTES.ZRM", bytes);
  Run("--seconds 2");
  EXPECT_NE(ResultOf("BYTES.ZRM"), "crashed");
}

TEST_F(ClassProgramTest, HostileNamesDoNoHarm) {
  const std::vector<std::string> names = {"<script>alert(1)<", "a\"b'&c",     "new\nline",
                                          "\x1b[31mred",       "in\xFFvalid", "right\xE2\x80\xAEleft",
                                          "$(touch x)`;",      "--help"};
  for (const std::string& name : names) Write(name + ".ZRM", "TO X|PRINT 7|END|");
  const ProgramRun run = Run();
  EXPECT_EQ(run.Status, 0);
  const QJsonArray pupils = Summary.value("pupils").toArray();
  ASSERT_EQ(static_cast<std::size_t>(pupils.size()), names.size());
  for (const QJsonValue& pupil : pupils) {
    EXPECT_EQ(pupil.toObject().value("printed").toArray().last().toString(), "? 7");
  }
  EXPECT_EQ(Page.find("<script>"), std::string::npos);
  EXPECT_NE(Page.find("&lt;script&gt;alert(1)&lt;.ZRM"), std::string::npos);
  EXPECT_NE(Page.find("right[U+202E]left.ZRM"), std::string::npos);
  EXPECT_EQ(run.Errors.find('\x1b'), std::string::npos);
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(run.Errors, '\n')), names.size() + 1);
  EXPECT_FALSE(fs::exists(Program.Folder() / "x"));
}

TEST_F(ClassProgramTest, TheOrderIsThatOfTheNames) {
  Write("A.ZRM", Endless);
  for (const char* name : {"B.ZRM", "C.ZRM", "D.ZRM"}) Write(name, "TO X|END|");
  Run("--jobs 2 --steps 0 --seconds 0.3");
  EXPECT_EQ(ResultOf("A.ZRM"), "stopped seconds");
  std::string order;
  for (const QJsonValue& pupil : Summary.value("pupils").toArray()) {
    order += pupil.toObject().value("file").toString().toStdString() + " ";
  }
  EXPECT_EQ(order, "A.ZRM B.ZRM C.ZRM D.ZRM ");
  EXPECT_LT(Page.find("<h2 id=\"h1\">A.ZRM"), Page.find("<h2 id=\"h2\">B.ZRM"));
}

TEST_F(ClassProgramTest, AFolderWithoutProgramsIsTold) {
  EXPECT_EQ(Run().Status, 0);
  EXPECT_NE(Page.find("There is no program (.ZRM) in the folder."), std::string::npos);
  EXPECT_EQ(Summary.value("pupils").toArray().size(), 0);
}

TEST_F(ClassProgramTest, BadUsageIsOneLine) {
  ExpectBadUsage("--class nowhere --out r.html", "--class nowhere: there is no such folder");
  ExpectBadUsage("--class class --out no/folder/r.html", "--out no/folder/r.html: no file can be written there");
  ExpectBadUsage("--frobnicate --class class", "--frobnicate: there is no such option");
  fs::create_directory(Program.Folder() / "r.html");
  ExpectBadUsage("--class class --out r.html", "--out r.html: no file can be written there");
  fs::create_directory(Program.Folder() / "s.json");
  ExpectBadUsage("--class class --out s.html", "--out s.html: no file can be written there");
  ExpectBadUsage("--class class --out /proc/r.html", "--out /proc/r.html: no file can be written there");
}

TEST_F(ClassProgramTest, AFormerReportIsReplacedAsAWhole) {
  Program.Write("report.html", "former");
  Write("A.ZRM", "TO A|END|");
  Run();
  EXPECT_TRUE(Page.starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(Page.ends_with("</html>\n"));
  EXPECT_EQ(std::distance(fs::directory_iterator(Program.Folder()), {}), 4);
}

}  // namespace
}  // namespace zerimo
