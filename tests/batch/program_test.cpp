#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <regex>

#include "support/batch_program.h"

namespace zerimo {
namespace {

class BatchProgramTest : public testing::Test {
 protected:
  void ExpectRefused(const ProgramRun& run, const std::string& message) {
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "zerimo-batch: " + message + "\n");
    EXPECT_EQ(run.Output, "");
  }

  BatchProgram program{ZERIMO_BATCH};
};

TEST_F(BatchProgramTest, TellsItsVersion) {
  const ProgramRun run = program.Run("--version");
  EXPECT_EQ(run.Output, "zerimo-batch " ZERIMO_VERSION "\n");
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Errors, "");
}

TEST_F(BatchProgramTest, TellsItsOptions) {
  const ProgramRun run = program.Run("--help");
  EXPECT_TRUE(run.Output.starts_with("Usage: zerimo-batch [options] [SESSION]\n"));
  EXPECT_EQ(run.Status, 0);
}

TEST_F(BatchProgramTest, ReadsStandardInputWithoutASession) {
  const ProgramRun run = program.Run("", "PRINT 2+3\nFD\n");
  EXPECT_EQ(run.Output,
            "?PRINT 2+3\n? 5\n?FD\n[Zerimo] Required Paramiter Missing After FD (Abort, Retry, Ignore) -> Ignore\n");
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Errors, "");
}

TEST_F(BatchProgramTest, ReadsASessionFile) {
  program.Write("a.session", "PRINT 1\n");
  EXPECT_EQ(program.Run("a.session", "PRINT 2\n").Output, "?PRINT 1\n? 1\n");
  EXPECT_EQ(program.Run("-", "PRINT 2\n").Output, "?PRINT 2\n? 2\n");
}

TEST_F(BatchProgramTest, WritesTheTranscriptBesideThePeoplesLines) {
  const ProgramRun run = program.Run("--transcript t.jsonl", "PD\n");
  EXPECT_EQ(run.Output, "?PD\n");
  EXPECT_EQ(program.Read("t.jsonl"),
            "{\"event\":\"typed\",\"row\":0,\"text\":\"PD\"}\n"
            "{\"event\":\"list\",\"control\":\"List4\",\"op\":\"add\",\"item\":\"?PD\"}\n"
            "{\"event\":\"finished\"}\n");
}

TEST_F(BatchProgramTest, TranscriptOnStandardOutputStandsAlone) {
  EXPECT_EQ(program.Run("--transcript -", "@ nothing\n").Output, "{\"event\":\"finished\"}\n");
}

TEST_F(BatchProgramTest, LeavesByFailureWithStatus2) {
  const ProgramRun run = program.Run("--transcript -", "PD\n@text Text4 40000\nPU\n");
  EXPECT_EQ(run.Status, 2);
  EXPECT_EQ(run.Errors, "zerimo-batch: -:2: ended by a failure: Overflow\n");
  EXPECT_TRUE(run.Output.ends_with("{\"event\":\"ended\",\"by\":\"failure\",\"failure\":\"Overflow\"}\n"));
}

TEST_F(BatchProgramTest, LeavesByALimitWithStatus3) {
  const ProgramRun run = program.Run("--steps 50 --transcript -", "REPEAT 100 [RT 1]\n");
  EXPECT_EQ(run.Status, 3);
  EXPECT_EQ(run.Errors, "zerimo-batch: -:1: stopped by the limit of steps\n");
  EXPECT_TRUE(run.Output.ends_with("{\"event\":\"stopped\",\"by\":\"steps\"}\n"));
}

// Each line alone is within the limit, all of them are not, however fast the machine is.
TEST_F(BatchProgramTest, SecondsCountForTheWholeSession) {
  std::string session;
  for (int i = 0; i < 20; ++i) session += "WAIT 100\n";
  const ProgramRun run = program.Run("--seconds 1 --sleep", session + "PRINT \"REACHED\"\n");
  EXPECT_EQ(run.Status, 3);
  EXPECT_TRUE(std::regex_match(run.Errors, std::regex("zerimo-batch: -:\\d+: stopped by the limit of seconds\n")))
      << run.Errors;
  EXPECT_EQ(run.Output.find("REACHED"), std::string::npos);
}

TEST_F(BatchProgramTest, OutputHasALimit) {
  const ProgramRun run = program.Run("--output 1", "REPEAT 5000 [PRINT \"" + std::string(400, 'A') + "\"]\n");
  EXPECT_EQ(run.Status, 3);
  EXPECT_EQ(run.Errors, "zerimo-batch: -:1: stopped by the limit of output\n");
  EXPECT_GT(run.Output.size(), std::size_t{1} << 20);
  EXPECT_LT(run.Output.size(), (std::size_t{1} << 20) + 1000);
}

TEST_F(BatchProgramTest, LeavesByByeQuitAndCloseWithStatus0) {
  EXPECT_EQ(program.Run("", "@answer box Yes\nBYE\n").Status, 0);
  EXPECT_EQ(program.Run("", "QUIT\n").Status, 0);
  EXPECT_EQ(program.Run("", "@end\n").Status, 0);
}

TEST_F(BatchProgramTest, RefusesBadUsageInOneLine) {
  ExpectRefused(program.Run("--frobnicate"), "--frobnicate: there is no such option");
  ExpectRefused(program.Run("--screen 0x0"), "--screen 0x0: WIDTHxHEIGHT in pixels is wanted, from 1x130 to 8192x8192");
}

TEST_F(BatchProgramTest, RefusesASessionThatCanNotBeRead) {
  ExpectRefused(program.Run("no.session"), "no.session: the session can't be read");
  ExpectRefused(program.Run("."), ".: the session can't be read");
}

TEST_F(BatchProgramTest, RefusesABadDirectiveBeforeAnythingRuns) {
  program.Write("a.session", "PRINT 1\n\n@frobnicate\n");
  ExpectRefused(program.Run("a.session"), "a.session:3: there is no directive @frobnicate");
}

TEST_F(BatchProgramTest, RefusesWhatIsNoSingleByteText) {
  ExpectRefused(program.Run("", "PD\nPRINT \"\xE2\x82\xAC\"\n"), "-:2: the character U+20AC is above U+00FF");
  ExpectRefused(program.Run("", "\xFF\n"), "-:1: the text is not UTF-8");
}

TEST_F(BatchProgramTest, RefusesAnAnswerThatTheBoxHasNoButtonFor) {
  const ProgramRun run = program.Run("", "PD\n@answer box Yes\nFD\n");
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Errors, "zerimo-batch: -:2: the box has no button Yes, only Abort, Retry, Ignore\n");
}

TEST_F(BatchProgramTest, RefusesPlacesThatCanNotBeWritten) {
  ExpectRefused(program.Run("--transcript no/folder/t.jsonl", "PD\n"),
                "no/folder/t.jsonl: the transcript can't be written");
  const ProgramRun run = program.Run("--picture no/folder/p.png", "PD\n");
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Errors, "zerimo-batch: no/folder/p.png: the picture can't be written\n");
}

TEST_F(BatchProgramTest, ATranscriptTakesThePlaceOfAFileAlone) {
  for (const char* device : {"/dev/null", "/dev/full"}) {
    ExpectRefused(program.Run(std::string("--transcript ") + device, "PD\n"),
                  std::string(device) + ": the transcript can't be written");
  }
  ASSERT_EQ(mkfifo((program.Folder() / "pipe").c_str(), 0600), 0);
  ExpectRefused(program.Run("--transcript pipe", "PD\n"), "pipe: the transcript can't be written");
}

TEST_F(BatchProgramTest, AFileBeyondTheUsersLimitIsReportedAndTheFormerOneStays) {
  program.Write("limited.sh", "#!/bin/sh\nulimit -f 1\nexec '" ZERIMO_BATCH "' \"$@\"\n");
  std::filesystem::permissions(program.Folder() / "limited.sh", std::filesystem::perms::owner_all);
  const BatchProgram limited(program.Folder() / "limited.sh");
  limited.Write("a.png", "former picture");
  limited.Write("t.jsonl", "former transcript");
  const ProgramRun drawn = limited.Run("--picture a.png", "CS\n");
  EXPECT_EQ(drawn.Status, 1);
  EXPECT_EQ(drawn.Errors, "zerimo-batch: a.png: the picture can't be written\n");
  EXPECT_EQ(limited.Read("a.png"), "former picture");
  const ProgramRun run = limited.Run("--transcript t.jsonl", "REPEAT 90 [WAIT 1]\n");
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Errors, "zerimo-batch: the transcript can't be written\n");
  EXPECT_EQ(limited.Read("t.jsonl"), "former transcript");
}

TEST_F(BatchProgramTest, WhatAKilledRunHasLeftIsRemovedByTheNextOne) {
  const std::string leftover = ".zerimo-0123456789abcdef.tmp";
  std::filesystem::create_directory(program.Folder() / "there");
  for (const std::string folder : {"", "there/"}) {
    program.Write(folder + leftover, "half a picture");
    std::filesystem::last_write_time(program.Folder() / (folder + leftover),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  }
  program.Run("--picture a.png --transcript there/t.jsonl", "CS\n");
  EXPECT_FALSE(std::filesystem::exists(program.Folder() / leftover));
  EXPECT_FALSE(std::filesystem::exists(program.Folder() / "there" / leftover));
}

TEST_F(BatchProgramTest, WritesAPictureByItsEnding) {
  const std::string scene = "CS\nREPEAT 4 [FD 20 RT 90]\nSTAMPCIRCLE 3\n";
  for (const auto& [file, beginning] : {std::pair("a.png", "\x89PNG"), std::pair("b.bmp", "BM"),
                                        std::pair("c.JPG", "\xFF\xD8\xFF"), std::pair("d.svg", "<")}) {
    EXPECT_EQ(program.Run(std::string("--picture ") + file, scene).Status, 0);
    EXPECT_TRUE(program.Read(file).starts_with(beginning)) << file;
  }
}

TEST_F(BatchProgramTest, PictureOfAMomentDiffersFromTheLastOne) {
  EXPECT_EQ(program.Run("--picture last.png", "CS\n@picture first.png\n@picture again.png\nFD 20\n@picture line.png\n")
                .Status,
            0);
  EXPECT_EQ(program.Read("first.png"), program.Read("again.png"));
  EXPECT_NE(program.Read("first.png"), program.Read("line.png"));
  EXPECT_EQ(program.Read("line.png"), program.Read("last.png"));
}

TEST_F(BatchProgramTest, PictureIsWrittenHoweverTheSessionEnds) {
  EXPECT_EQ(program.Run("--steps 30 --picture a.png", "REPEAT 100 [FD 1]\n").Status, 3);
  EXPECT_EQ(program.Run("--picture b.png", "FD 1\n@text Text4 40000\n").Status, 2);
  EXPECT_TRUE(program.Read("a.png").starts_with("\x89PNG"));
  EXPECT_TRUE(program.Read("b.png").starts_with("\x89PNG"));
}

TEST_F(BatchProgramTest, PictureNamesMayHaveLettersBeyondAscii) {
  EXPECT_EQ(program.Run("", "@picture \xC3\xA4.png\n").Status, 0);
  EXPECT_TRUE(program.Read("\xC3\xA4.png").starts_with("\x89PNG"));
}

TEST_F(BatchProgramTest, SaysNothingMoreInAPlainLocale) {
  EXPECT_EQ(program.Run("", "@ nothing\n").Errors, "");
  program.Environment["LC_ALL"] = "C";
  EXPECT_EQ(program.Run("", "PRINT 1/4\n").Errors, "");
}

}  // namespace
}  // namespace zerimo
