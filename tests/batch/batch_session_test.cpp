#include "batch/batch_session.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "base/failure.h"
#include "in_memory_session.h"

namespace zerimo::batch {
namespace {

using Lines = std::vector<std::string>;

/// The state of a session after its script.
struct After : InMemorySession {
  explicit After(const std::string& script, const Settings& settings = {}) : InMemorySession(settings) { Run(script); }

  Form1& Form() { return Session.form1; }
  Controls& FormControls() { return Form().controls; }
  std::string Focus() {
    const Control* const focus = FormControls().Focus.Focus();
    return focus == nullptr ? "" : focus->Name();
  }
};

Lines Transcript(const std::string& script) { return InMemorySession().Run(script); }

Lines Events(const std::string& event, const std::string& script) { return InMemorySession().EventsOf(event, script); }

TEST(BatchSession, EmptySessionOnlyFinishes) { EXPECT_EQ(Transcript(""), Lines{R"({"event":"finished"})"}); }

TEST(BatchSession, FocusIsOnRow0AfterStartUp) { EXPECT_EQ(After("").Focus(), "Text1(0)"); }

TEST(BatchSession, TypedLineIsWrittenDownAsItStandsBeforeItsHandler) {
  EXPECT_EQ(Transcript(" print   1"),
            (Lines{R"({"event":"typed","row":0,"text":" print   1"})",
                   R"({"event":"list","control":"List4","op":"add","item":"?PRINT 1"})",
                   R"({"event":"list","control":"List4","op":"add","item":"? 1"})", R"({"event":"finished"})"}));
}

TEST(BatchSession, TypedLinesGoToTheRowThatHasTheFocus) {
  EXPECT_EQ(Events("typed", "PD\nPU\nPD"),
            (Lines{R"({"event":"typed","row":0,"text":"PD"})", R"({"event":"typed","row":1,"text":"PU"})",
                   R"({"event":"typed","row":2,"text":"PD"})"}));
}

TEST(BatchSession, TypedLineGoesToRow0IfNoRowHasTheFocus) {
  After after("PD\nEDIT\nPU");
  EXPECT_EQ(after.FormControls().Text1[0].Text, "PU");
}

TEST(BatchSession, TypedLineReplacesTheTextOfTheRow) {
  EXPECT_EQ(Events("typed", "@type 0 FD 10\nPD"), Lines{R"({"event":"typed","row":0,"text":"PD"})"});
}

TEST(BatchSession, EnterIsPressedOnTheRowThatHasTheFocus) {
  EXPECT_EQ(Events("typed", "PD\n@type 1 PU\n@enter"),
            (Lines{R"({"event":"typed","row":0,"text":"PD"})", R"({"event":"typed","row":1,"text":"PU"})"}));
}

TEST(BatchSession, EnterIsPressedOnRow0IfNoRowHasTheFocus) {
  EXPECT_EQ(Events("typed", "PD\nEDIT\n@type 0 PU\n@enter").back(), R"({"event":"typed","row":0,"text":"PU"})");
}

TEST(BatchSession, EnterOnARowGivesItTheFocusFirst) {
  After after("@enter 4");
  EXPECT_EQ(after.Focus(), "Text1(4)");
}

TEST(BatchSession, HiddenRowIsEnteredAllTheSame) {
  After after("FS\n@type 2 RT 90\n@enter 2");
  EXPECT_GT(after.Form().turtle.TurtleDir, 1);
  EXPECT_EQ(after.Focus(), "");
}

TEST(BatchSession, TypeSetsTheRowWithoutEnter) {
  After after("@type 3 FD 10");
  EXPECT_EQ(after.FormControls().Text1[3].Text, "FD 10");
  EXPECT_EQ(after.Form().interpreter.typedLines.TempProcNo, 0);
}

TEST(BatchSession, TextRunsTheChangeEvent) {
  After after("@text Text3 20");
  EXPECT_EQ(after.FormControls().Text3.Text, "20");
  EXPECT_EQ(after.Form().turtle.Resolution, 20);
}

TEST(BatchSession, EnterKeyOnARowIsTyped) {
  EXPECT_EQ(Events("typed", "@type 2 PD\n@key Text1(2) Enter\n@key Text1(2) F5"),
            Lines{R"({"event":"typed","row":2,"text":"PD"})"});
}

TEST(BatchSession, KeyGoesToItsControl) {
  After after("@key Text1(2) Down");
  EXPECT_EQ(after.Focus(), "Text1(3)");
}

TEST(BatchSession, ClickGoesToItsControl) {
  After after("@click Check1");
  EXPECT_TRUE(after.FormControls().Line5.Visible());
}

TEST(BatchSession, TimerThatAClickSwitchesOnFiresBeforeTheNextAction) {
  After after("@key Text1(0) Down\n@click Picture1");
  EXPECT_EQ(after.Focus(), "Text1(0)");
  EXPECT_FALSE(after.FormControls().Timer2.Enabled);
}

TEST(BatchSession, MouseMoveHasItsPlaceInUnits) {
  After after("@mouse move Picture1 7830 5560");
  EXPECT_EQ(after.Form().Picture1.ToolTipText, "MouseX= 3 MouseY= 4   New Dir 37");
}

TEST(BatchSession, MouseDownHasButtonAndShift) {
  EXPECT_EQ(After("@mouse down Label13(3) 0 0 right").FormControls().Label15.Caption, "Setbg 3");
  EXPECT_EQ(After("@mouse down Label13(15) 0 0 left shift").FormControls().Label15.Caption, "TEXTCOLOR 15");
}

TEST(BatchSession, DropPlacesTheControl) {
  After after("@mouse move Picture2 100 50\n@drop Picture2 3000 2000");
  EXPECT_EQ(after.FormControls().Picture2.Left, 2900);
  EXPECT_EQ(after.FormControls().Picture2.Top, 1950);
}

TEST(BatchSession, ScrollSetsTheBarAndRunsItsEvent) {
  After after("@scroll HScroll1(2) 100");
  EXPECT_EQ(after.FormControls().HScroll1[2].Value, 100);
  EXPECT_EQ(after.Form().Picture1.BackColor(), 100 * 65536);
}

TEST(BatchSession, ClearOfAnEmptyListIsWrittenDownToo) {
  EXPECT_EQ(Events("list", "CT CT"), (Lines{R"({"event":"list","control":"List4","op":"add","item":"?CT CT"})",
                                            R"({"event":"list","control":"List4","op":"clear"})",
                                            R"({"event":"list","control":"List4","op":"clear"})"}));
}

TEST(BatchSession, CaptionIsWrittenDownAlsoWhenItStaysTheSame) {
  EXPECT_EQ(Events("caption", "HIDE\nHIDE"),
            (Lines{R"({"event":"caption","text":"Zerimo"})", R"({"event":"caption","text":"Zerimo"})"}));
}

TEST(BatchSession, SoundIsABeepAndABox) {
  const Lines transcript = Transcript("SOUND");
  ASSERT_EQ(transcript.size(), 5U);
  EXPECT_EQ(transcript[2], R"({"event":"beep"})");
  EXPECT_EQ(transcript[3], R"({"event":"box","text":"Sound","style":0,"title":"","answer":"OK"})");
}

TEST(BatchSession, AnswersReachInputBoxesAndDialogsInTheirOrder) {
  InMemorySession world;
  const Lines transcript = world.Run(
      "@answer input NO SUCH\n@answer input\n@key Text1(0) F9\n@key Text1(0) F9\n"
      "@answer open \n@answer save  \n@key Text1(0) Down\nSHOW OPEN\nSHOW SAVEAS");
  EXPECT_EQ(
      transcript,
      (Lines{R"({"event":"input","prompt":"Enter the File Name","title":"Load Zerimo File","default":"",)"
             R"("answer":"NO SUCH"})",
             R"({"event":"box","text":"Unable to Load File .\\NO SUCH.ZRM","style":2,"title":"Zerimo",)"
             R"("answer":"Ignore"})",
             R"({"event":"input","prompt":"Enter the File Name","title":"Load Zerimo File","default":"",)"
             R"("answer":""})",
             R"({"event":"typed","row":1,"text":"SHOW OPEN"})",
             R"({"event":"list","control":"List4","op":"add","item":"?SHOW OPEN"})",
             R"({"event":"dialog","kind":"open","answer":""})", R"({"event":"typed","row":2,"text":"SHOW SAVEAS"})",
             R"({"event":"list","control":"List4","op":"add","item":"?SHOW SAVEAS"})",
             R"({"event":"dialog","kind":"save","answer":" "})", R"({"event":"finished"})"}));
}

TEST(BatchSession, SelectedEntryOfTheHistoryChangesNothing) {
  EXPECT_EQ(Transcript("PD\n@select List4 ?PD"),
            (Lines{R"({"event":"typed","row":0,"text":"PD"})",
                   R"({"event":"list","control":"List4","op":"add","item":"?PD"})", R"({"event":"finished"})"}));
}

TEST(BatchSession, SelectNeedsAnEntry) {
  InMemorySession world;
  world.Run("PD\n@select List4 ?PD\n@select List4 ?PU\nPU");
  EXPECT_EQ(world.Result.How, Ending::Refused);
  EXPECT_EQ(world.Result.Line, 3);
  EXPECT_EQ(world.Result.Message, "List4 has no entry ?PU");
}

TEST(BatchSession, TicksEndWhenTheTimerIsOff) {
  After after("SLIDESHOW NOSUCH 10\n@tick Timer3 5");
  EXPECT_FALSE(after.FormControls().Timer3.Enabled);
  EXPECT_EQ(after.Form().files.pictures.SlideCounter, 0);
}

TEST(BatchSession, TimerThatIsOffDoesNotTick) { EXPECT_EQ(Events("caption", "@tick Timer4 3"), Lines{}); }

TEST(BatchSession, TicksTellTheTimeOfTheSession) {
  EXPECT_EQ(Events("caption", "SHOW TIME\n@tick Timer4\n@time 9:05\n@tick Timer4 2"),
            (Lines{R"({"event":"caption","text":"Zerimo [ Time:00:00 ]"})",
                   R"({"event":"caption","text":"Zerimo [ Time:9:05 ]"})",
                   R"({"event":"caption","text":"Zerimo [ Time:9:05 ]"})"}));
}

TEST(BatchSession, QueuedAnswersReachTheirBoxes) {
  EXPECT_EQ(
      Transcript("@answer box Yes\nBYE\nPD"),
      (Lines{
          R"({"event":"typed","row":0,"text":"BYE"})", R"({"event":"list","control":"List4","op":"add","item":"?BYE"})",
          R"({"event":"box","text":"Are You Sure That You Want To Leave Zerimo ?","style":4,"title":"","answer":"Yes"})",
          R"({"event":"ended","by":"BYE"})"}));
}

TEST(BatchSession, AnswerWithoutItsButtonStopsTheSession) {
  InMemorySession world;
  world.Run("PD\n@answer box Retry\nBYE\n");
  EXPECT_EQ(world.Result.How, Ending::Refused);
  EXPECT_EQ(world.Result.Line, 2);
  EXPECT_EQ(world.Result.Message, "the box has no button Retry, only Yes, No");
}

TEST(BatchSession, TraceIsOnBetweenItsDirectives) {
  EXPECT_EQ(Events("surface", "CLEAN\n@trace surface\nCLEAN\n@trace off\nCLEAN"),
            Lines{R"({"event":"surface","op":"Cls"})"});
}

TEST(BatchSession, PicturesAreWrittenByName) {
  std::vector<std::string> files;
  InMemorySession world({}, [&](const Surface&, const std::string& file) { files.push_back(file); });
  world.Run("@picture a b.png\n@picture c.SVG");
  EXPECT_EQ(files, (Lines{"a b.png", "c.SVG"}));
}

TEST(BatchSession, PictureThatCanNotBeWrittenStopsTheSession) {
  InMemorySession world({}, [](const Surface&, const std::string&) { throw Failure(FailureKind::FileAccess); });
  world.Run("PD\n@picture a.png\nPU");
  EXPECT_EQ(world.Result.How, Ending::Refused);
  EXPECT_EQ(world.Result.Line, 2);
  EXPECT_EQ(world.Result.Message, "a.png can't be written");
}

TEST(BatchSession, ClosedWindowEndsTheSession) {
  InMemorySession world;
  EXPECT_EQ(world.Run("@end\nPD"), Lines{R"({"event":"ended","by":"close"})"});
  EXPECT_EQ(world.Result.How, Ending::Over);
}

TEST(BatchSession, QuitEndsTheSession) {
  InMemorySession world;
  EXPECT_EQ(world.LastOf("QUIT\nPD"), R"({"event":"ended","by":"QUIT"})");
  EXPECT_EQ(world.Result.How, Ending::Over);
}

TEST(BatchSession, FailureThatNothingCatchesEndsTheSession) {
  InMemorySession world;
  EXPECT_EQ(world.LastOf("PD\n@text Text4 40000\nPU"), R"({"event":"ended","by":"failure","failure":"Overflow"})");
  EXPECT_EQ(world.Result.How, Ending::Failed);
  EXPECT_EQ(world.Result.Line, 2);
  EXPECT_EQ(world.Result.Message, "ended by a failure: Overflow");
}

TEST(BatchSession, EditorTextIsRescuedFromAFailure) {
  const auto folder = std::filesystem::temp_directory_path() / ("zerimo_rescue_" + std::to_string(::getpid()));
  std::filesystem::create_directory(folder);
  Settings settings;
  settings.AppFolder = folder.string();
  After after("@text Text2 TO A\\r\\nEND\n@text Text4 40000", settings);
  std::ifstream rescued(folder / "Rescued.ZRM", std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(rescued), {}), "TO A\r\nEND");
  std::filesystem::remove_all(folder);
}

TEST(BatchSession, StepsStopARunThatDoesNotEnd) {
  Settings settings;
  settings.Steps = 1000;
  InMemorySession world(settings);
  EXPECT_EQ(world.LastOf("@text Text2 TO A\\r\\nRT 1\\r\\nA\\r\\nEND\n@key Text2 F2\nA"),
            R"({"event":"stopped","by":"steps"})");
  EXPECT_EQ(world.Result.How, Ending::Stopped);
  EXPECT_EQ(world.Result.Line, 3);
  EXPECT_EQ(world.Result.Message, "stopped by the limit of steps");
}

TEST(BatchSession, StepsAreCountedLineByLine) {
  Settings settings;
  // TO, PD, END: three passes a line.
  settings.Steps = 3;
  InMemorySession world(settings);
  EXPECT_EQ(world.LastOf("PD\nPU\nPD\nPU\nPD\n"), R"({"event":"finished"})");
}

TEST(BatchSession, OneStepLessThanALineNeedsStopsIt) {
  Settings settings;
  settings.Steps = 2;
  InMemorySession world(settings);
  EXPECT_EQ(world.LastOf("PD"), R"({"event":"stopped","by":"steps"})");
}

TEST(BatchSession, SecondsStopAnEvaluationThatDoesNotReturn) {
  Settings settings;
  settings.Seconds = 0.05;
  InMemorySession world(settings);
  EXPECT_EQ(world.LastOf("FD %"), R"({"event":"stopped","by":"seconds"})");
}

TEST(BatchSession, SecondsStopASleep) {
  Settings settings;
  settings.Seconds = 0.05;
  settings.Sleep = true;
  InMemorySession world(settings);
  EXPECT_EQ(world.LastOf("WAIT 3600000"), R"({"event":"stopped","by":"seconds"})");
}

TEST(BatchSession, SleepIsOnlyWrittenDown) {
  EXPECT_EQ(Events("sleep", "WAIT 3600000"), Lines{R"({"event":"sleep","ms":3600000})"});
}

TEST(BatchSession, BadDirectiveStopsItBeforeAnythingRuns) {
  InMemorySession world;
  EXPECT_EQ(world.Run("PD\n@nothing"), Lines{});
  EXPECT_EQ(world.Result.How, Ending::Refused);
  EXPECT_EQ(world.Result.Line, 2);
}

TEST(BatchSession, PeopleSeeTheListAndTheBoxes) {
  InMemorySession world;
  world.Run("FD\nPRINT \"A\"");
  EXPECT_EQ(world.People.str(),
            "?FD\n"
            "[Zerimo] Required Paramiter Missing After FD (Abort, Retry, Ignore) -> Ignore\n"
            "?PRINT \"A\"\n"
            "?A\n");
}

}  // namespace
}  // namespace zerimo::batch
