#include "batch/session_reader.h"

#include <gtest/gtest.h>

#include <ostream>

#include "batch/batch_session.h"
#include "batch/errors.h"
#include "in_memory_session.h"
#include "support/quoted.h"

namespace zerimo::batch {
namespace {

class SessionReaderTest : public testing::Test {
 protected:
  Script Read(const std::string& text) { return ReadSession(text, world.Session.form1); }

  /// The only action of a session.
  template <typename Kind>
  Kind Only(const std::string& text) {
    const Script script = Read(text);
    EXPECT_EQ(script.size(), 1U);
    return std::get<Kind>(script.at(0).Act);
  }

  Controls& FormControls() { return world.Session.form1.controls; }

  InMemorySession world;
};

TEST_F(SessionReaderTest, LineWithoutAtIsTypedAsItStands) {
  EXPECT_EQ(Only<action::TypeLine>("  fd   10 ").Text, "  fd   10 ");
}

TEST_F(SessionReaderTest, AtSignAfterABlankIsTyped) { EXPECT_EQ(Only<action::TypeLine>(" @end").Text, " @end"); }

TEST_F(SessionReaderTest, BlankLinesAreSkippedButCounted) {
  const Script script = Read("\n   \nFD 10\n\nRT 90");
  ASSERT_EQ(script.size(), 2U);
  EXPECT_EQ(script[0].Line, 3);
  EXPECT_EQ(script[1].Line, 5);
}

TEST_F(SessionReaderTest, LineEndsMayBeCrLf) {
  const Script script = Read("FD 10\r\n\r\nRT 90\r\n");
  ASSERT_EQ(script.size(), 2U);
  EXPECT_EQ(std::get<action::TypeLine>(script[0].Act).Text, "FD 10");
  EXPECT_EQ(std::get<action::TypeLine>(script[1].Act).Text, "RT 90");
}

TEST_F(SessionReaderTest, ByteOrderMarkIsNoText) {
  EXPECT_EQ(Only<action::TypeLine>("\xEF\xBB\xBF"
                                   "FD 10")
                .Text,
            "FD 10");
}

TEST_F(SessionReaderTest, LettersBecomeSingleBytes) { EXPECT_EQ(Only<action::TypeLine>("\xC3\xA4").Text, "\xE4"); }

TEST_F(SessionReaderTest, CommentsAreNoActions) { EXPECT_TRUE(Read("@\n@ end\n@  a comment\n").empty()); }

TEST_F(SessionReaderTest, EnterTakesARowOrNone) {
  EXPECT_EQ(Only<action::EnterRow>("@enter").Row, action::EnterRow::RowWithFocus);
  EXPECT_EQ(Only<action::EnterRow>("@enter 4").Row, 4);
}

TEST_F(SessionReaderTest, TextBeginsAfterOneBlankAndKeepsTheOthers) {
  EXPECT_EQ(Only<action::SetRow>("@type 2 FD 10").Text, "FD 10");
  EXPECT_EQ(Only<action::SetRow>("@type 2  FD 10 ").Text, " FD 10 ");
  EXPECT_EQ(Only<action::SetRow>("@type 2").Text, "");
}

TEST_F(SessionReaderTest, EscapesInATypedOverTextStandForTheirCharacters) {
  EXPECT_EQ(Only<action::TypeOver>(R"(@text Text2 A\r\nB\tC\\D)").Text, "A\r\nB\tC\\D");
}

TEST_F(SessionReaderTest, OtherBackslashesStandForThemselves) {
  EXPECT_EQ(Only<action::TypeOver>(R"(@text Text2 C:\X\)").Text, "C:\\X\\");
}

TEST_F(SessionReaderTest, EscapesBelongToTypedOverTextsAlone) {
  EXPECT_EQ(Only<action::AnswerDialog>(R"(@answer open C:\new.ZRM)").FileName, R"(C:\new.ZRM)");
}

TEST_F(SessionReaderTest, EveryBoxThatCanBeTypedOver) {
  EXPECT_EQ(Only<action::TypeOver>("@text Text2 A").Box, &FormControls().Text2);
  EXPECT_EQ(Only<action::TypeOver>("@text Text3 A").Box, &FormControls().Text3);
  EXPECT_EQ(Only<action::TypeOver>("@text Text4").Box, &FormControls().Text4);
}

struct KeyCase {
  const char* Name;
  int Code;
};

void PrintTo(const KeyCase& one, std::ostream* out) { *out << one.Name; }

class SessionKeys : public SessionReaderTest, public testing::WithParamInterface<KeyCase> {};

TEST_P(SessionKeys, HaveTheirCodes) {
  const auto press = Only<action::PressKey>(std::string("@key Text1(3) ") + GetParam().Name);
  EXPECT_EQ(press.Target, &FormControls().Text1[3]);
  EXPECT_EQ(press.KeyCode, GetParam().Code);
}

INSTANTIATE_TEST_SUITE_P(All, SessionKeys,
                         testing::Values(KeyCase{"Esc", 27}, KeyCase{"Enter", 13}, KeyCase{"F1", 112},
                                         KeyCase{"F2", 113}, KeyCase{"F3", 114}, KeyCase{"F4", 115}, KeyCase{"F5", 116},
                                         KeyCase{"F6", 117}, KeyCase{"F7", 118}, KeyCase{"F8", 119}, KeyCase{"F9", 120},
                                         KeyCase{"F10", 121}, KeyCase{"F11", 122}, KeyCase{"F12", 123},
                                         KeyCase{"Up", 38}, KeyCase{"Down", 40}));

TEST_F(SessionReaderTest, MouseMoveHasAPlace) {
  const auto move = Only<action::MoveMouse>("@mouse move Picture1 7830 -5560.5");
  EXPECT_EQ(move.Target, &world.Session.form1.Picture1);
  EXPECT_EQ(move.X, 7830);
  EXPECT_EQ(move.Y, -5560.5F);
}

struct PressCase {
  const char* Words;
  MouseButton Button;
  bool Shift;
};

void PrintTo(const PressCase& one, std::ostream* out) { *out << Quoted(one.Words); }

class SessionPresses : public SessionReaderTest, public testing::WithParamInterface<PressCase> {};

TEST_P(SessionPresses, HaveButtonAndShift) {
  const auto press = Only<action::PressMouse>(std::string("@mouse down Label13(3) 10 20") + GetParam().Words);
  EXPECT_EQ(press.Target, &FormControls().Label13[3]);
  EXPECT_EQ(press.X, 10);
  EXPECT_EQ(press.Y, 20);
  EXPECT_EQ(press.Button, GetParam().Button);
  EXPECT_EQ(press.Shift, GetParam().Shift);
}

INSTANTIATE_TEST_SUITE_P(
    All, SessionPresses,
    testing::Values(PressCase{"", MouseButton::Left, false}, PressCase{" left", MouseButton::Left, false},
                    PressCase{" right", MouseButton::Right, false}, PressCase{" middle", MouseButton::Middle, false},
                    PressCase{" shift", MouseButton::Left, true}, PressCase{" right shift", MouseButton::Right, true}));

TEST_F(SessionReaderTest, DropHasASourceAndAPlace) {
  const auto drop = Only<action::Drop>("@drop Picture2 3000 2000");
  EXPECT_EQ(drop.Source, &FormControls().Picture2);
  EXPECT_EQ(drop.X, 3000);
  EXPECT_EQ(drop.Y, 2000);
}

TEST_F(SessionReaderTest, ScrollHasABarAndAValue) {
  const auto scroll = Only<action::Scroll>("@scroll HScroll2(1) 255");
  EXPECT_EQ(scroll.Bar, &FormControls().HScroll2[1]);
  EXPECT_EQ(scroll.Value, 255);
}

TEST_F(SessionReaderTest, SelectTakesTheWholeEntry) {
  EXPECT_EQ(Only<action::SelectEntry>("@select List4 ?FD 10 ").Entry, "?FD 10 ");
  EXPECT_EQ(Only<action::SelectEntry>("@select File1 FD").List, &FormControls().File1);
}

TEST_F(SessionReaderTest, TickIsOnceIfNoNumberIsGiven) {
  EXPECT_EQ(Only<action::Tick>("@tick Timer3").Times, 1);
  EXPECT_EQ(Only<action::Tick>("@tick Timer4 7").Times, 7);
  EXPECT_EQ(Only<action::Tick>("@tick Timer3").Ticking, &FormControls().Timer3);
}

TEST_F(SessionReaderTest, TimeIsAText) { EXPECT_EQ(Only<action::SetTime>("@time 9:05 AM").Text, "9:05 AM"); }

TEST_F(SessionReaderTest, AnswersGoToTheirQueues) {
  EXPECT_EQ(Only<action::AnswerBox>("@answer box Retry").Button, Answer::Retry);
  EXPECT_EQ(Only<action::AnswerInput>("@answer input A B").Text, "A B");
  EXPECT_EQ(Only<action::AnswerInput>("@answer input").Text, "");
  EXPECT_FALSE(Only<action::AnswerDialog>("@answer open A.ZRM").ToSave);
  EXPECT_TRUE(Only<action::AnswerDialog>("@answer save A B").ToSave);
}

TEST_F(SessionReaderTest, TraceIsOnOrOff) {
  EXPECT_TRUE(Only<action::Trace>("@trace surface").On);
  EXPECT_FALSE(Only<action::Trace>("@trace off").On);
}

TEST_F(SessionReaderTest, DumpsAreKnownByName) {
  EXPECT_EQ(Only<action::Dump>("@dump store").What, action::DumpKind::Store);
  EXPECT_EQ(Only<action::Dump>("@dump storeall").What, action::DumpKind::StoreAll);
  EXPECT_EQ(Only<action::Dump>("@dump variables").What, action::DumpKind::Variables);
  EXPECT_EQ(Only<action::Dump>("@dump state").What, action::DumpKind::State);
  EXPECT_EQ(Only<action::DumpControl>("@dump control Label20(3)").Shown, &FormControls().Label20[3]);
  EXPECT_EQ(Only<action::DumpControl>("@dump control Timer4").Ticking, &FormControls().Timer4);
}

TEST_F(SessionReaderTest, PictureTakesTheWholeName) {
  EXPECT_EQ(Only<action::WritePicture>("@picture my picture.png").File, "my picture.png");
}

TEST_F(SessionReaderTest, EndClosesTheWindow) { EXPECT_NO_THROW(Only<action::CloseWindow>("@end")); }

struct BadLine {
  const char* Line;
  const char* Message;
};

void PrintTo(const BadLine& one, std::ostream* out) { *out << Quoted(one.Line); }

class BadSession : public SessionReaderTest, public testing::WithParamInterface<BadLine> {};

TEST_P(BadSession, IsReportedWithItsLine) {
  try {
    Read(std::string("FD 10\n\n") + GetParam().Line + "\nRT 90\n");
    FAIL() << "taken";
  } catch (const SessionError& error) {
    EXPECT_EQ(error.Line, 3);
    EXPECT_STREQ(error.what(), GetParam().Message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadSession,
    testing::Values(
        BadLine{"@frobnicate", "there is no directive @frobnicate"}, BadLine{"@End", "there is no directive @End"},
        BadLine{"@@", "there is no directive @@"}, BadLine{"\xE2\x82\xAC", "the character U+20AC is above U+00FF"},
        BadLine{"\xC3(", "the text is not UTF-8"}, BadLine{"@enter 5", "5 is no row from 0 to 4"},
        BadLine{"@enter -1", "-1 is no row from 0 to 4"}, BadLine{"@enter A", "A is no row from 0 to 4"},
        BadLine{"@enter 0 1", "there is too much on the line: 1"}, BadLine{"@type", "row is missing"},
        BadLine{"@text Text1(0) A", "Text1(0) can't be typed over; Text2, Text3 and Text4 can"},
        BadLine{"@text Text9 A", "there is no control Text9"}, BadLine{"@key Text1 F1", "there is no control Text1"},
        BadLine{"@key Text1(5) F1", "there is no control Text1(5)"},
        BadLine{"@key Text1(0) F13", "there is no key F13"}, BadLine{"@key Text1(0) enter", "there is no key enter"},
        BadLine{"@key Text1(0)", "the key is missing"},
        BadLine{"@key Text1(0) F1 F2", "there is too much on the line: F2"},
        BadLine{"@click", "the control is missing"}, BadLine{"@click picture1", "there is no control picture1"},
        BadLine{"@mouse up Picture1 0 0", "the mouse can move and down, not up"},
        BadLine{"@mouse", "move or down is missing"}, BadLine{"@mouse move Picture1 0", "Y is missing"},
        BadLine{"@mouse move Picture1 x 0", "x is no number for X"},
        BadLine{"@mouse move Picture1 0 1e99", "1e99 is no number for Y"},
        BadLine{"@mouse move Picture1 0 inf", "inf is no number for Y"},
        BadLine{"@mouse move Picture1 0 0 left", "there is too much on the line: left"},
        BadLine{"@mouse down Picture1 0 0 both", "left, right, middle or shift is wanted, not both"},
        BadLine{"@mouse down Picture1 0 0 shift left", "there is too much on the line: left"},
        BadLine{"@drop Picture2 0", "Y is missing"}, BadLine{"@scroll Text3 5", "Text3 is no scroll bar"},
        BadLine{"@scroll HScroll1(0) 256", "256 is no value from 0 to 255"},
        BadLine{"@scroll HScroll1(0) 1.5", "1.5 is no value from 0 to 255"},
        BadLine{"@select List3 TO A", "List3 has no entries to select; File1 and List4 have"},
        BadLine{"@tick Timer5", "there is no timer Timer5"}, BadLine{"@tick Text3", "there is no timer Text3"},
        BadLine{"@tick Timer3 0", "0 is no number of ticks from 1 to 2147483647"},
        BadLine{"@answer", "box, input, open or save is missing"},
        BadLine{"@answer help A", "box, input, open and save can be answered, not help"},
        BadLine{"@answer box Cancel", "no box has a button Cancel"}, BadLine{"@answer box", "the button is missing"},
        BadLine{"@trace", "surface or off is missing"}, BadLine{"@trace on", "the trace is surface or off, not on"},
        BadLine{"@dump", "what to dump is missing"},
        BadLine{"@dump everything", "there is nothing to dump called everything"},
        BadLine{"@dump control", "the control is missing"}, BadLine{"@dump control Line4", "there is no control Line4"},
        BadLine{"@dump state Text1(0)", "there is too much on the line: Text1(0)"},
        BadLine{"@picture", "a file name ending in .png, .bmp, .jpg or .svg is wanted"},
        BadLine{"@picture a.gif", "a file name ending in .png, .bmp, .jpg or .svg is wanted"},
        BadLine{"@end now", "there is too much on the line: now"}));

}  // namespace
}  // namespace zerimo::batch
