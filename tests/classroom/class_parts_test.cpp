#include <sys/stat.h>

#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class ClassPartsTest : public ClassTest {};

TEST_F(ClassPartsTest, PartsAreRunApartAndMerged) {
  for (const char* name : {"A.ZRM", "B.ZRM", "C.ZRM"}) Write(name, "TO X|CS|FD 9|PRINT 7|END|");
  Program.Write("list", "class/A.ZRM\nclass/B.ZRM\nclass/C.ZRM\n");
  EXPECT_EQ(Program.Run("--list list --shard 1/2 --jobs 1 --jsonl 1.jsonl").Status, 0);
  EXPECT_EQ(Program.Run("--list list --shard 2/2 --jobs 1 --jsonl 2.jsonl").Status, 0);
  EXPECT_EQ(std::ranges::count(Program.Read("1.jsonl"), '\n'), 2);
  EXPECT_EQ(std::ranges::count(Program.Read("2.jsonl"), '\n'), 1);
  const ProgramRun run = Program.Run("--merge 1.jsonl 2.jsonl --out all.html --csv all.csv");
  EXPECT_EQ(run.Errors, "zerimo-batch: 3 programs; the report is all.html\n");
  EXPECT_EQ(run.Status, 0);
  EXPECT_NE(Program.Read("all.html").find("<a href=\"all-1.html\">class/A.ZRM \xE2\x80\x93 class/B.ZRM</a>"),
            std::string::npos);
  EXPECT_EQ(std::ranges::count(Program.Read("all.csv"), '\n'), 4);
  // One picture for each, in all sizes.
  EXPECT_EQ(std::distance(fs::directory_iterator(Program.Folder() / "all-1.pictures"), {}), 3);
  EXPECT_NE(Program.Read("all-1.html").find("<img width=\"160\" "), std::string::npos);
  EXPECT_NE(Program.Read("all-1.html").find("src=\"all-1.pictures/3.png\""), std::string::npos);
  EXPECT_EQ(Program.Read("all-1.html").find("base64,"), std::string::npos);
  EXPECT_NE(Program.Read("all-1.html").find("Limits of each program: 10 seconds, 10000000 steps"), std::string::npos);
  EXPECT_EQ(Program.Read("all.html").find("partial"), std::string::npos);
  ExpectBadUsage("--merge 1.jsonl ./1.jsonl --out all.html", "--merge ./1.jsonl: the part is named twice");
}

TEST_F(ClassPartsTest, AReportOfTornPartsSaysSo) {
  for (const char* name : {"A.ZRM", "B.ZRM", "C.ZRM"}) Write(name, "TO X|CS|FD 9|END|");
  Program.Write("list", "class/A.ZRM\nclass/B.ZRM\nclass/C.ZRM\n");
  Program.Run("--list list --shard 1/2 --jobs 1 --jsonl 1.jsonl");
  Program.Run("--list list --shard 2/2 --jobs 1 --seconds 5 --jsonl 2.jsonl");
  const std::string records = Program.Read("1.jsonl");
  // As a kill leaves it, after a line or in the middle of one.
  const std::size_t first = records.find('\n') + 1;
  for (const std::size_t length : {first, first + 20}) {
    Program.Write("1.jsonl", records.substr(0, length));
    EXPECT_EQ(Program.Run("--merge 1.jsonl 2.jsonl --out all.html").Errors,
              "zerimo-batch: 2 of 3 programs; the partial report is all.html\n");
    EXPECT_NE(Program.Read("all.html").find("1.jsonl has 1 of 2 programs."), std::string::npos);
  }
  // The parts had different limits.
  EXPECT_EQ(Program.Read("all.html").find("Limits"), std::string::npos);
}

TEST_F(ClassPartsTest, RecordsThatAreThereAreKept) {
  Write("A.ZRM", "TO A|END|");
  Program.Write("r.jsonl", "{}\n");
  ExpectBadUsage("--class class --jsonl r.jsonl",
                 "--jsonl r.jsonl: the file is there already; go on with --resume, or give another name");
  EXPECT_EQ(Program.Read("r.jsonl"), "{}\n");
}

TEST_F(ClassPartsTest, ProgramsOfDifferentPartsMayBeAlike) {
  Write("A.ZRM", "TO A|CS|FD 1|RT 2|FD 3|SETPC 4|STAMPCIRCLE 5|LT 6|BK 7|END|");
  Write("B.ZRM", "TO B|CS|SETPC 1|STAMPCIRCLE 9|FD :A|RT 1|FD 9|LT 7|BK 8|END|");
  Program.Write("list", "class/A.ZRM\nclass/B.ZRM\n");
  Program.Run("--list list --shard 1/2 --jsonl 1.jsonl");
  Program.Run("--list list --shard 2/2 --jsonl 2.jsonl");
  Program.Run("--merge 1.jsonl 2.jsonl --out all.html");
  EXPECT_NE(Program.Read("all.html")
                .find("<a href=\"all-1.html#p1\">class/A.ZRM</a> and "
                      "<a href=\"all-1.html#p2\">class/B.ZRM</a>: 100 per cent"),
            std::string::npos);
  Program.Run("--merge 1.jsonl 2.jsonl --out all.html --template class/A.ZRM");
  EXPECT_EQ(Program.Read("all.html").find("of the lines are alike"), std::string::npos);
}

TEST_F(ClassPartsTest, ATableThatCanNotBeWrittenLeavesTheFormerOne) {
  Write("A.ZRM", "TO A|CS|END|");
  EXPECT_EQ(Program.Run("--class class --jsonl 1.jsonl").Status, 0);
  Program.Write("limited.sh", "#!/bin/sh\nulimit -f 0\nexec '" ZERIMO_BATCH "' \"$@\"\n");
  fs::permissions(Program.Folder() / "limited.sh", fs::perms::owner_all);
  Program.Write("all.csv", "former");
  const std::string command =
      "cd '" + Program.Folder().string() + "' && ./limited.sh --merge 1.jsonl --out all.html --csv all.csv";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(Program.Read("all.csv"), "former");
}

TEST_F(ClassPartsTest, RecordsGoToAFileAlone) {
  Write("A.ZRM", "TO A|CS|END|");
  ASSERT_EQ(mkfifo((Program.Folder() / "pipe").c_str(), 0600), 0);
  ExpectBadUsage("--class class --jsonl pipe", "--jsonl pipe: no file can be written there");
}

TEST_F(ClassPartsTest, ResumingRunsOnlyWhatIsMissing) {
  Write("A.ZRM", "TO A|CS|FD 9|END|");
  Write("B.ZRM", "TO B|CS|FD 9|END|");
  Run("--jsonl r.jsonl");
  std::string records = Program.Read("r.jsonl");
  // As a kill leaves it: a whole line, and half of one.
  Program.Write("r.jsonl", records.substr(0, records.find('\n') + 9));
  const ProgramRun run = Run("--jsonl r.jsonl --resume");
  EXPECT_TRUE(run.Errors.starts_with("1/1 ")) << run.Errors;
  EXPECT_EQ(Summary.value("pupils").toArray().size(), 2);
  EXPECT_EQ(std::ranges::count(Program.Read("r.jsonl"), '\n'), 2);
}

TEST_F(ClassPartsTest, ResumingRunsAgainWhatHasChanged) {
  Write("A.ZRM", "TO A|PRINT 1|END|");
  Write("B.ZRM", "TO B|PRINT 1|END|");
  Program.Write("goal.ZRM", "TO GOAL\r\nCS\r\nFD 5\r\nEND\r\n");
  Run("--jsonl r.jsonl");
  Write("B.ZRM", "TO B|PRINT 2|END|");
  const auto expect = [this](const std::string& options, const std::string& words, int programs) {
    const ProgramRun run = Run("--jsonl r.jsonl --resume " + options);
    EXPECT_EQ(run.Errors.find("zerimo-batch: " + words + ", or the task, session or limits; "), 0U) << run.Errors;
    EXPECT_EQ(std::ranges::count(run.Errors, '\n'), programs + 2) << run.Errors;
    EXPECT_EQ(Summary.value("pupils").toArray().size(), 2);
    EXPECT_EQ(std::ranges::count(Program.Read("r.jsonl"), '\n'), 2);
  };
  expect("", "1 program has changed", 1);
  EXPECT_EQ(PrintedBy("B.ZRM").back(), "? 2");
  expect("--seconds 9", "2 programs have changed", 2);
  expect("--seconds 9 --task goal.ZRM", "2 programs have changed", 2);
  EXPECT_EQ(Pupil("A.ZRM").value("goals").toArray().size(), 1);
  Program.Write("all.session", "LOAD PROGRAM\n");
  expect("--seconds 9 --task goal.ZRM --session all.session", "2 programs have changed", 2);
  // As an older version wrote them.
  std::string records = Program.Read("r.jsonl");
  for (std::size_t at = 0; (at = records.find("\"fingerprint\"")) != std::string::npos;)
    records.replace(at, 13, "\"former\"");
  Program.Write("r.jsonl", records);
  expect("--seconds 9 --task goal.ZRM --session all.session", "2 programs have changed", 2);
  EXPECT_EQ(Run("--seconds 9 --task goal.ZRM --session all.session --jsonl r.jsonl --resume").Errors.find("changed"),
            std::string::npos);
}

TEST_F(ClassPartsTest, ResumingTakesTheNamesThatTheTableHasNow) {
  Write("A.ZRM", "TO A|CS|FD 9|END|");
  Write("B.ZRM", "TO B|CS|FD 9|END|");
  Program.Write("names.csv", "a,Anna\nb,Anna\n");
  Run("--jsonl r.jsonl --names names.csv");
  Program.Write("names.csv", "a,Berta\nb,Berta\n");
  const ProgramRun resumed = Run("--jsonl r.jsonl --resume --names names.csv");
  EXPECT_EQ(std::ranges::count(resumed.Errors, '\n'), 1) << resumed.Errors;
  EXPECT_EQ(Pupil("B.ZRM").value("name").toString(), "Berta/B.ZRM");
  EXPECT_EQ(Program.Read("r.jsonl").find("Anna"), std::string::npos);
}

TEST_F(ClassPartsTest, AMissingPartIsReported) {
  std::string list;
  for (const char* name : {"A.ZRM", "B.ZRM", "C.ZRM", "D.ZRM", "E.ZRM"}) {
    Write(name, "TO X|CS|FD 9|END|");
    list += std::string("class/") + name + "\n";
  }
  Program.Write("list", list);
  Program.Run("--list list --shard 1/3 --jsonl 1.jsonl");
  Program.Run("--list list --shard 3/3 --jsonl 3.jsonl");
  const ProgramRun two = Program.Run("--merge 1.jsonl 3.jsonl --out all.html");
  EXPECT_EQ(two.Errors, "zerimo-batch: 3 of 5 programs; part 2 of 3 is missing; the partial report is all.html\n");
  EXPECT_EQ(two.Status, 0);
  EXPECT_NE(Program.Read("all.html").find("This report is partial: it has 3 of 5 programs."), std::string::npos);
  EXPECT_NE(Program.Read("all.html").find("Part 2 of 3 is missing."), std::string::npos);
  const ProgramRun one = Program.Run("--merge 3.jsonl --out all.html --lang de");
  EXPECT_EQ(one.Errors, "zerimo-batch: 1 of 5 programs; parts 1, 2 of 3 are missing; the partial report is all.html\n");
  EXPECT_NE(Program.Read("all.html").find("Die Teile 1, 2 von 3 fehlen."), std::string::npos);
}

TEST_F(ClassPartsTest, APartWithoutProgramsIsNotMissing) {
  Write("A.ZRM", "TO X|CS|FD 9|END|");
  Program.Write("list", "class/A.ZRM\n");
  Program.Run("--list list --shard 1/2 --jsonl 1.jsonl");
  EXPECT_EQ(Program.Run("--merge 1.jsonl --out all.html").Errors, "zerimo-batch: 1 programs; the report is all.html\n");
}

}  // namespace
}  // namespace zerimo
