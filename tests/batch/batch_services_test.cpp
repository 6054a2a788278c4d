#include "batch/batch_services.h"

#include <gtest/gtest.h>

#include <sstream>

#include "batch/errors.h"

namespace zerimo::batch {
namespace {

class BatchServicesTest : public testing::Test {
 protected:
  std::ostringstream transcript;
  Journal journal{&transcript, nullptr};
  BatchWatch watch{0, 0};
  BatchServices services{journal, watch, false};
};

TEST_F(BatchServicesTest, EmptyQueueAnswersEachKindOfBox) {
  EXPECT_EQ(services.MessageBox("A", box::Plain, ""), Answer::OK);
  EXPECT_EQ(services.MessageBox("A", box::Critical, ""), Answer::OK);
  EXPECT_EQ(services.MessageBox("A", box::Information, ""), Answer::OK);
  EXPECT_EQ(services.MessageBox("A", box::AbortRetryIgnore, ""), Answer::Ignore);
  EXPECT_EQ(services.MessageBox("A", box::AbortRetryIgnore + box::Critical, ""), Answer::Ignore);
  EXPECT_EQ(services.MessageBox("A", box::YesNo, ""), Answer::No);
}

TEST_F(BatchServicesTest, QueuedAnswersComeInTheirOrder) {
  services.QueueBoxAnswer(Answer::Yes, 1);
  services.QueueBoxAnswer(Answer::Abort, 2);
  EXPECT_EQ(services.MessageBox("A", box::YesNo, ""), Answer::Yes);
  EXPECT_EQ(services.MessageBox("A", box::AbortRetryIgnore, ""), Answer::Abort);
  EXPECT_EQ(services.MessageBox("A", box::YesNo, ""), Answer::No);
}

TEST_F(BatchServicesTest, AnswerWithoutItsButtonIsAnErrorOfTheLineThatQueuedIt) {
  services.QueueBoxAnswer(Answer::Yes, 7);
  try {
    services.MessageBox("A", box::AbortRetryIgnore, "");
    FAIL();
  } catch (const SessionError& error) {
    EXPECT_EQ(error.Line, 7);
    EXPECT_STREQ(error.what(), "the box has no button Yes, only Abort, Retry, Ignore");
  }
}

TEST_F(BatchServicesTest, BoxIsWrittenDownWithItsAnswer) {
  services.MessageBox("Sure ?", box::YesNo, "Zerimo");
  EXPECT_EQ(transcript.str(), R"({"event":"box","text":"Sure ?","style":4,"title":"Zerimo","answer":"No"})"
                              "\n");
}

TEST_F(BatchServicesTest, InputBoxIsWrittenDownWithItsAnswer) {
  services.QueueInput("BOX");
  EXPECT_EQ(services.InputBox("P", "T", "D"), "BOX");
  EXPECT_EQ(services.InputBox("P", "T", "D"), "");
  EXPECT_EQ(transcript.str(), R"({"event":"input","prompt":"P","title":"T","default":"D","answer":"BOX"})"
                              "\n"
                              R"({"event":"input","prompt":"P","title":"T","default":"D","answer":""})"
                              "\n");
}

TEST_F(BatchServicesTest, DialogsHaveAQueueEach) {
  services.QueueSave("S");
  services.QueueOpen("O");
  EXPECT_EQ(services.ShowOpen(), "O");
  EXPECT_EQ(services.ShowSave("Zerimo File(.ZRM)"), "S");
  EXPECT_EQ(services.ShowSave("Zerimo File(.ZRM)"), "");
  EXPECT_EQ(transcript.str(), R"({"event":"dialog","kind":"open","answer":"O"})"
                              "\n"
                              R"({"event":"dialog","kind":"save","answer":"S"})"
                              "\n"
                              R"({"event":"dialog","kind":"save","answer":""})"
                              "\n");
}

TEST_F(BatchServicesTest, SleepAndBeepAreOnlyWrittenDown) {
  services.Sleep(3'600'000);
  services.Beep();
  EXPECT_EQ(transcript.str(), "{\"event\":\"sleep\",\"ms\":3600000}\n{\"event\":\"beep\"}\n");
}

TEST_F(BatchServicesTest, SleepReallySleepsIfAsked) {
  BatchServices sleeping(journal, watch, true);
  const auto begin = std::chrono::steady_clock::now();
  sleeping.Sleep(20);
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(20));
}

TEST_F(BatchServicesTest, TimeOfDayIsWhatTheSessionSays) {
  EXPECT_EQ(services.TimeOfDay(), "00:00");
  services.SetTimeOfDay("9:05 AM");
  EXPECT_EQ(services.TimeOfDay(), "9:05 AM");
}

}  // namespace
}  // namespace zerimo::batch
