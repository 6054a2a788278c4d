#include "batch/journal.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/failure.h"

namespace zerimo::batch {
namespace {

class JournalTest : public testing::Test {
 protected:
  std::ostringstream transcript;
  std::ostringstream people;
  Journal journal{&transcript, &people};
};

TEST_F(JournalTest, ListLinesAreForPeopleAsTheyStand) {
  journal.ListAdd("List4", "?FD \xE4");
  EXPECT_EQ(people.str(), "?FD \xC3\xA4\n");
  EXPECT_EQ(transcript.str(), "{\"event\":\"list\",\"control\":\"List4\",\"op\":\"add\",\"item\":\"?FD \xC3\xA4\"}\n");
}

TEST_F(JournalTest, ListLineKeepsACarriageReturn) {
  journal.ListAdd("List4", "?A\rB");
  EXPECT_EQ(people.str(), "?A\rB\n");
}

TEST_F(JournalTest, ClearedListIsForProgramsAlone) {
  journal.ListClear("List4");
  EXPECT_EQ(people.str(), "");
  EXPECT_EQ(transcript.str(), "{\"event\":\"list\",\"control\":\"List4\",\"op\":\"clear\"}\n");
}

TEST_F(JournalTest, BoxShowsTitleTextButtonsAndAnswer) {
  journal.Box("Missing", box::AbortRetryIgnore, "Zerimo", Answer::Ignore);
  EXPECT_EQ(people.str(), "[Zerimo] Missing (Abort, Retry, Ignore) -> Ignore\n");
}

TEST_F(JournalTest, BoxWithoutTitleHasEmptyBrackets) {
  journal.Box(" 5", box::Plain, "", Answer::OK);
  EXPECT_EQ(people.str(), "[]  5 (OK) -> OK\n");
}

TEST_F(JournalTest, QuestionHasYesAndNo) {
  journal.Box("Sure ?", box::YesNo, "", Answer::Yes);
  EXPECT_EQ(people.str(), "[] Sure ? (Yes, No) -> Yes\n");
}

TEST_F(JournalTest, CarriageReturnsInABoxAreLinesForPeople) {
  journal.Box("A\rB", box::Information, "T", Answer::OK);
  EXPECT_EQ(people.str(), "[T] A\nB (OK) -> OK\n");
  EXPECT_EQ(transcript.str(), R"({"event":"box","text":"A\rB","style":64,"title":"T","answer":"OK"})"
                              "\n");
}

TEST_F(JournalTest, EndsAreTheirEvents) {
  journal.Ended("BYE");
  journal.EndedByFailure("Overflow");
  journal.Stopped("steps");
  journal.Finished();
  EXPECT_EQ(transcript.str(),
            "{\"event\":\"ended\",\"by\":\"BYE\"}\n"
            "{\"event\":\"ended\",\"by\":\"failure\",\"failure\":\"Overflow\"}\n"
            "{\"event\":\"stopped\",\"by\":\"steps\"}\n"
            "{\"event\":\"finished\"}\n");
}

TEST(Journal, WorksWithoutStreams) {
  Journal journal(nullptr, nullptr);
  EXPECT_NO_THROW(journal.Box("A", box::Plain, "", Answer::OK));
  EXPECT_FALSE(journal.HasTranscript());
}

TEST_F(JournalTest, WhatPassesTheLimitIsTheLastAndTheEndIsStillTold) {
  journal.Limit(40);
  journal.Beep();
  EXPECT_THROW(journal.Sleep(1000), Stopped);
  journal.Stopped("output");
  EXPECT_EQ(transcript.str(),
            "{\"event\":\"beep\"}\n{\"event\":\"sleep\",\"ms\":1000}\n{\"event\":\"stopped\",\"by\":\"output\"}\n");
}

TEST_F(JournalTest, BothKindsOfReadersShareTheLimit) {
  journal.Limit(100);
  EXPECT_THROW(journal.ListAdd("List4", std::string(40, 'A')), Stopped);
}

}  // namespace
}  // namespace zerimo::batch
