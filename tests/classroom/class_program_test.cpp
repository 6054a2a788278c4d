#include <sys/stat.h>

#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class ClassProgramTest : public ClassTest {
 protected:
  /// "unknown word, for ever": what was found in a program.
  std::string MistakesOf(const char* file) const {
    QStringList mistakes;
    for (const QJsonValue& each : Pupil(file).value("findings").toArray())
      mistakes.append(each.toObject().value("mistake").toString());
    return mistakes.join(", ").toStdString();
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

TEST_F(ClassProgramTest, WhatIsWrongInASessionIsReportedWithItsLine) {
  Write("BOX.ZRM", "");
  Write("BOX.session", "PD\n@frobnicate\n");
  Write("A.ZRM", "");
  Write("A.session", "PD\n@text Text4 40000\n");
  Write("C.ZRM", "TO C|CS|FD 9|END|");
  Write("C.session", "LOAD C\n@enter 9\n");
  Run();
  EXPECT_EQ(ResultOf("BOX.ZRM"), "refused");
  EXPECT_EQ(Pupil("BOX.ZRM").value("message").toString(), "there is no directive @frobnicate");
  EXPECT_EQ(Pupil("BOX.ZRM").value("place").toObject().value("line").toInt(), 2);
  // What has not run has drawn nothing, which is no mistake of its own.
  EXPECT_EQ(MistakesOf("C.ZRM"), "");
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
  // Not the lines that replace a REPEAT.
  const QString statement = Pupil("LOOP.ZRM").value("place").toObject().value("statement").toString();
  EXPECT_TRUE(QStringList({"REPEAT", "PD", "ENDIF"}).contains(statement)) << statement.toStdString();
}

TEST_F(ClassProgramTest, AMissingEndIsReportedBesideWhatCameOfIt) {
  Write("SPIN.ZRM", "TO SPIN|REPEAT 2 [FD 1]|");
  Write("SPIN.session", "LOAD SPIN\nSPIN\n");
  Run("--steps 500");
  EXPECT_EQ(ResultOf("SPIN.ZRM"), "stopped steps");
  EXPECT_EQ(NotesOf("SPIN.ZRM"), QJsonArray{"Procedures without END: SPIN."});
}

TEST_F(ClassProgramTest, OfAProgramInOneLineOnlyThatIsReported) {
  Write("LINES.ZRM", "TO LINES\nFD 10\nEND\n");
  Run();
  EXPECT_EQ(PrintedBy("LINES.ZRM"), Lines{"?LOAD LINES"});
  EXPECT_EQ(NotesOf("LINES.ZRM"), QJsonArray{"The lines of the file end in LF alone: Zerimo reads it as one line."});
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
                                      std::pair("ROUND.ZRM", "the program can't be read"),
                                      std::pair("PIPE.ZRM", "the program is no file but a pipe or a device"),
                                      std::pair("HUGE.ZRM", "the program is too large: the most is 4 megabytes")}) {
    EXPECT_EQ(ResultOf(file), "not run");
    EXPECT_EQ(Pupil(file).value("message").toString(), message);
  }
  EXPECT_EQ(ResultOf("EMPTY.ZRM"), "ended");
  EXPECT_EQ(Pupil("EMPTY.ZRM").value("notes").toArray().at(0).toString(), "The program is empty.");
  EXPECT_EQ(MistakesOf("EMPTY.ZRM"), "empty");
  EXPECT_EQ(PrintedBy("LAST.ZRM"), (Lines{"?LOAD LAST", "?LAST", "? 1"}));
}

TEST_F(ClassProgramTest, LinksThatLeadOutAreFollowedOnlyWhereItIsAskedFor) {
  Program.Write("OUTSIDE.ZRM", "TO OUTSIDE\r\nPRINT 1\r\nEND\r\n");
  Program.Write("outside.session", "LOAD B\n");
  fs::create_symlink("../OUTSIDE.ZRM", ClassFolder() / "A.ZRM");
  Write("B.ZRM", "TO B|PRINT 1|END|");
  fs::create_symlink("../outside.session", ClassFolder() / "B.session");
  fs::create_symlink("B.ZRM", ClassFolder() / "C.ZRM");
  EXPECT_EQ(Run().Status, 0);
  for (const auto& [file, what] : {std::pair("A.ZRM", "the program"), std::pair("B.ZRM", "the session")}) {
    EXPECT_EQ(ResultOf(file), "not run");
    EXPECT_EQ(Pupil(file).value("message").toString(),
              QString(what) + " is a link that leads out of the class folder; --follow-links follows it");
  }
  EXPECT_EQ(ResultOf("C.ZRM"), "ended");
  EXPECT_EQ(Run("--follow-links").Status, 0);
  EXPECT_EQ(ResultOf("A.ZRM"), "ended");
  EXPECT_EQ(ResultOf("B.ZRM"), "ended");
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
  EXPECT_EQ(Page.find("<script>alert"), std::string::npos);
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

TEST_F(ClassProgramTest, AFolderWithoutProgramsIsBadUsage) {
  ExpectBadUsage("--class class --out r.html", "--class class: there is no program (.ZRM) in it");
}

TEST_F(ClassProgramTest, BadUsageIsOneLine) {
  Write("A.ZRM", "TO A|END|");
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

TEST_F(ClassProgramTest, ShowsTheProgramAndWhatIsSuspiciousInIt) {
  Write("STAR.ZRM", "TO STAR|CS|FORWRD 10|REPEAT 2 [FD 10]|END|");
  Run();
  const QJsonArray findings = Pupil("STAR.ZRM").value("findings").toArray();
  ASSERT_EQ(findings.size(), 1);
  EXPECT_EQ(findings.at(0).toObject().value("mistake").toString(), "unknown word");
  EXPECT_EQ(findings.at(0).toObject().value("line").toInt(), 3);
  EXPECT_NE(Page.find("Unknown word FORWRD, perhaps FORWARD. The line is ignored."), std::string::npos);
  EXPECT_NE(Page.find("<li id=\"p1l3\"><code class=\"mark\">FORWRD 10</code></li>"), std::string::npos);
  EXPECT_NE(Page.find("MAKE # 1 / LABEL $ / FD 10 / MAKE # #+1"), std::string::npos);
}

TEST_F(ClassProgramTest, TellsWhatOnlyARunShows) {
  Write("NOTHING.ZRM", "TO A|RT 90|END|");
  Write("PENUP.ZRM", "TO A|CS|PU|FD 90|END|");
  Write("TITLE.ZRM", "TO A|BK 70|END|");
  Write("CLEAR.ZRM", "TO A|FD 50|END|");
  Write("OUTSIDE.ZRM", "TO A|CS|PU|SETXY 400 400|PD|FD 100|END|");
  Write("LARGE.ZRM", "TO A|CS|REPEAT 4 [FD 300 RT 90]|END|");
  Write("CLEARED.ZRM", "TO A|REPEAT 4 [FD 50 RT 90]|CS|END|");
  Write("ERASED.ZRM", "TO A|CS|REPEAT 4 [FD 50 RT 90]|PE|REPEAT 4 [FD 50 RT 90]|END|");
  Write("WIPED.ZRM", "TO A|CS|SETXY 30 20|SETBG 1|END|");
  Write("FENCED.ZRM", "TO A|CS|FENCE|FD 20|FD 900|END|");
  Write("TWICE.ZRM", "TO A|LOAD CLEAR|LOAD CLEAR|CS|FD 9|END|");
  Write("ROUND.ZRM", "TO ROUND|CS|FD 1|RT 90|ROUND|END|");
  Write("ASKED.ZRM", "TO A|CS|FD 9|FD|END|");
  Write("ALL.ZRM", "TO A :N|FD :N|END|");
  Run("--steps 5000");
  for (const auto& [file, mistakes] :
       {std::pair("NOTHING.ZRM", "nothing drawn"), std::pair("PENUP.ZRM", "nothing with pen up"),
        std::pair("TITLE.ZRM", "under the title"), std::pair("CLEAR.ZRM", ""),
        std::pair("OUTSIDE.ZRM", "outside the picture"), std::pair("WIPED.ZRM", "picture wiped"),
        std::pair("LARGE.ZRM", "outside the picture"), std::pair("CLEARED.ZRM", "nothing left"),
        std::pair("ERASED.ZRM", "nothing left"), std::pair("FENCED.ZRM", "fence hit"),
        std::pair("TWICE.ZRM", "loads another, loads another, loaded twice"), std::pair("ROUND.ZRM", "for ever"),
        // The same thing is reported once.
        std::pair("ASKED.ZRM", "missing inputs"), std::pair("ALL.ZRM", "")}) {
    EXPECT_EQ(MistakesOf(file), mistakes) << file;
  }
}

TEST_F(ClassProgramTest, TellsWhenAProgramLoadsAnotherOfTheClass) {
  fs::create_directory(ClassFolder() / "CARLA");
  Write("ANNA.ZRM", "TO ANNA|CS|FD 50|END|");
  Write("BEN.ZRM", "TO BEN|LOAD ANNA|ANNA|END|");
  Write("CARLA/MAIN.ZRM", "TO MAIN|LOAD SQUARE|SQUARE|END|");
  Write("CARLA/SQUARE.ZRM", "TO SQUARE|CS|FD 50|END|");
  Write("DAN.ZRM", "TO DAN|CS|FD 9|LOAD NOTTHERE|LOADPICTURE NOTTHERE|END|");
  Write("EVA.ZRM", "TO EVA|CS|FD 9|SAVEPICTURE MINE|LOADPICTURE MINE|END|");
  Run();
  EXPECT_EQ(MistakesOf("BEN.ZRM"), "loads another");
  EXPECT_EQ(MistakesOf("CARLA/MAIN.ZRM"), "");
  EXPECT_EQ(MistakesOf("DAN.ZRM"), "dead word, dead word");
  EXPECT_EQ(MistakesOf("EVA.ZRM"), "");
}

TEST_F(ClassProgramTest, MarksTheLineWhereAProgramWasStopped) {
  Write("SPIN.ZRM", Endless);
  Run("--steps 1000");
  const int line = Pupil("SPIN.ZRM").value("place").toObject().value("programLine").toInt();
  EXPECT_GE(line, 2);
  EXPECT_LE(line, 4);
  EXPECT_NE(Page.find("stopped here"), std::string::npos);
  // A line of the store ends in a blank, a sentence does not.
  const QJsonObject finding = Pupil("SPIN.ZRM").value("findings").toArray().last().toObject();
  const QString at = finding.value("details").toArray().at(0).toString();
  EXPECT_NE(at, "");
  EXPECT_EQ(at, at.trimmed());
}

TEST_F(ClassProgramTest, NamesTheLineThatRunsAfterAnEndIf) {
  Write("LOOP.ZRM", "TO LOOP|LABEL X|IF 1=1|REFRESH|ENDIF|WAIT 900|REFRESH|GOTO X|END|");
  Run("--steps 6");
  const QJsonObject place = Pupil("LOOP.ZRM").value("place").toObject();
  EXPECT_EQ(place.value("programLine").toInt(), 6);
  EXPECT_EQ(place.value("statement").toString(), "WAIT 900");
}

TEST_F(ClassProgramTest, OneSessionServesTheWholeClass) {
  Write("ANNA.ZRM", "TO BOX :S|PRINT :S|END|");
  Write("BEN.ZRM", "TO SIDE :N|FD :N|END|TO BEN :N|PRINT 2*:N|SIDE :N|END|");
  Program.Write("all.session", "LOAD PROGRAM\nPROGRAM 60\n");
  Run("--session all.session");
  EXPECT_EQ(PrintedBy("ANNA.ZRM"), (Lines{"?LOAD PROGRAM", "?BOX 60", "? 60"}));
  EXPECT_EQ(PrintedBy("BEN.ZRM"), (Lines{"?LOAD PROGRAM", "?BEN 60", "? 120"}));
}

TEST_F(ClassProgramTest, TheEchoOfATypedLineIsNotPrintedByTheProgram) {
  Write("ANNA.ZRM", "TO BOX :S|CS|RT :S|END|");
  Program.Write("all.session", "load program\nprogram  60\nrepeat 2 [program 3 + 4]\n");
  Run("--session all.session");
  EXPECT_EQ(PrintedBy("ANNA.ZRM"), (Lines{"?LOAD PROGRAM", "?BOX 60", "?REPEAT 2[BOX 3+4]"}));
  EXPECT_EQ(MistakesOf("ANNA.ZRM"), "nothing drawn");
}

TEST_F(ClassProgramTest, ALineThatLeavesThePictureIsFound) {
  Write("STAR.ZRM", "TO STAR|CS|REPEAT 5 [FD 130 RT 144]|END|");
  Write("ROUND.ZRM", "TO ROUND|CS|PU|SETXY 0 80|STAMPCIRCLE 60|END|");
  Run();
  EXPECT_EQ(MistakesOf("STAR.ZRM"), "outside the picture");
  EXPECT_EQ(MistakesOf("ROUND.ZRM"), "outside the picture");
}

TEST_F(ClassProgramTest, ATableOfNamesThatFitsNobodyIsReported) {
  Write("ANNA.ZRM", "TO ANNA|CS|FD 5|END|");
  Program.Write("names.csv", "bert,Bert\n");
  const ProgramRun run = Run("--names names.csv");
  EXPECT_EQ(run.Status, 0);
  EXPECT_NE(run.Errors.find("--names names.csv: no line of it is about a program"), std::string::npos);
}

TEST_F(ClassProgramTest, ProgramWithoutInputsIsAProcedureThatNeedsNone) {
  Write("STAR.ZRM", "TO STAR :N|PRINT :N|END|TO MAIN|STAR 7|END|");
  Program.Write("all.session", "LOAD PROGRAM\nPROGRAM\nPROGRAM 5\n");
  Run("--session all.session");
  EXPECT_EQ(PrintedBy("STAR.ZRM"), (Lines{"?LOAD PROGRAM", "?MAIN", "? 7", "?STAR 5", "? 5"}));
}

TEST_F(ClassProgramTest, WritesMarksAndAPageForEachPupil) {
  Write("ANNA.ZRM", "TO ANNA|CS|FD 5|END|");
  Write("BEN.ZRM", "TO BEN|CS|FD 7|END|");
  Program.Write("names.csv", "anna,=Anna\n");
  Run("--csv marks.csv --pupils pages --names names.csv --lang de");
  EXPECT_NE(Program.Read("marks.csv").find("\r\n\"ANNA.ZRM\",\"'=Anna\",\"ended\""), std::string::npos);
  const std::string page = Program.Read("pages/_Anna.html");
  EXPECT_NE(page.find("<html lang=\"de\">"), std::string::npos);
  EXPECT_NE(page.find("FD 5"), std::string::npos);
  EXPECT_EQ(page.find("BEN"), std::string::npos);
}

TEST_F(ClassProgramTest, WhoeverHasHandedInNothingIsListed) {
  fs::create_directories(ClassFolder() / "anna");
  fs::create_directories(ClassFolder() / "ben");
  Write("anna/haus.txt", "TO ANNA");
  Write("ben/BEN.ZRM", "TO BEN|CS|FD 7|END|");
  Program.Write("goal.ZRM", "TO GOAL\r\nCS\r\nFD 7\r\nEND\r\n");
  EXPECT_EQ(Run("--csv marks.csv --task goal.ZRM --lang de --jsonl r.jsonl").Status, 0);
  EXPECT_EQ(ResultOf("anna/"), "no program");
  EXPECT_NE(Page.find("<span class=\"bad\">kein Prog"), std::string::npos);
  EXPECT_NE(Program.Read("marks.csv").find("\"anna/\",\"anna\",\"no program\",\"0\",\"1\""), std::string::npos);
  Write("anna/ANNA.ZRM", "TO ANNA|CS|FD 7|END|");
  Run("--task goal.ZRM --jsonl r.jsonl --resume");
  EXPECT_EQ(ResultOf("anna/ANNA.ZRM"), "ended");
  EXPECT_EQ(Summary.value("pupils").toArray().size(), 2);
}

TEST_F(ClassProgramTest, AListMayNameWhatIsNotThere) {
  fs::create_symlink("nowhere", ClassFolder() / "LINK.ZRM");
  Program.Write("list", "class/NONE.ZRM\nclass/LINK.ZRM\n");
  Program.Run("--list list --out report.html");
  ReadReport();
  EXPECT_EQ(Pupil("class/NONE.ZRM").value("message").toString(), "there is no such file");
  EXPECT_EQ(Pupil("class/LINK.ZRM").value("message").toString(), "the program is a link that leads nowhere");
}

TEST_F(ClassProgramTest, TellsWhichProgramsAreAlike) {
  const char* const Own = "TO %|CS|FD 1|RT 2|FD 3|SETPC 4|STAMPCIRCLE 5|LT 6|BK 7|END|";
  Write("ANNA.ZRM", Own);
  Write("BEN.ZRM", "TO B|CS|SETPC 1|STAMPCIRCLE 9|FD :A|RT 1|FD 9|LT 7|BK 8|END|");
  Write("CARLA.ZRM", "TO CARLA|CS|HT|CIRCLE 0 0 50|DOT 1 2|SETXY 5 5|END|");
  Run();
  EXPECT_NE(Page.find("100 per cent of the lines are alike"), std::string::npos);
  EXPECT_NE(Page.find("<tr><td class=\"number\">3</td><td><code>FD 1</code></td>"
                      "<td class=\"number\">5</td><td><code>FD :A</code></td></tr>"),
            std::string::npos);
  Program.Write("given.ZRM", "FD 1\r\nRT 2\r\nFD 3\r\nSETPC 4\r\nSTAMPCIRCLE 5\r\nLT 6\r\nBK 7\r\n");
  Run("--template given.ZRM");
  EXPECT_EQ(Page.find("of the lines are alike"), std::string::npos);
}

TEST_F(ClassProgramTest, ANameThatBecomesZeroIsFoundWhereThatChangesASum) {
  const auto found = [this](const char* file) {
    QStringList lines;
    for (const QJsonValue& each : Pupil(file).value("findings").toArray())
      lines.append(QString::number(each.toObject().value("line").toInt()) + u' ' +
                   each.toObject().value("mistake").toString());
    return lines;
  };
  Write("A.ZRM",
        "TO A|CS|MAKE \"K 5|FD :K*2+7|MAKE \"K :K-5|FD :K*2+7|REPEAT 2 [FD 5*:K-2 RT :K]|"
        "IF :K*2+7>3|FD 1|ENDIF|END|");
  Write("B.ZRM", "TO B|CS|FD 9|MAKE \"K 5|MAKE \"K :K-5|BOX :K|END|TO BOX :S|FD :S*2+7|END|");
  Write("HARMLESS.ZRM",
        "TO HARMLESS|CS|MAKE \"K 5|FD :K*2+7|MAKE \"K :K-5|SETX :K*2|FD 4+:K*:K/2|FD (:K*2)+7|PRINT \":K*2+7\"|END|");
  Run();
  EXPECT_EQ(found("A.ZRM"), QStringList({"6 zero vanishes", "7 zero vanishes", "8 zero vanishes"}));
  EXPECT_EQ(found("B.ZRM"), QStringList("9 zero vanishes"));
  EXPECT_EQ(found("HARMLESS.ZRM"), QStringList());
}

TEST_F(ClassProgramTest, TheSamplesAreNotSuspicious) {
  int count = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(ZERIMO_SOURCE_DIR "/samples"))
    fs::copy_file(entry.path(), ClassFolder() / entry.path().filename());
  Run("--steps 0 --seconds 60");
  for (const QJsonValue& pupil : Summary.value("pupils").toArray()) {
    ++count;
    EXPECT_EQ(pupil.toObject().value("findings").toArray(), QJsonArray())
        << pupil.toObject().value("file").toString().toStdString();
  }
  EXPECT_EQ(count, 26);
}

}  // namespace
}  // namespace zerimo
