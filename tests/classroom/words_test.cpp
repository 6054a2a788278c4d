#include "classroom/words.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

QString Words(Result how, const char* by, const char* message = "") {
  RunOutcome outcome;
  outcome.How = how;
  outcome.By = by;
  outcome.Message = message;
  return WordsOf(outcome, {2.5, 1000, 64});
}

TEST(Words, TellHowARunWent) {
  EXPECT_EQ(Words(Result::Ended, "finished"), "ended");
  EXPECT_EQ(Words(Result::Ended, "BYE"), "ended by BYE");
  EXPECT_EQ(Words(Result::Stopped, "seconds"), "stopped: more than 2.5 seconds");
  EXPECT_EQ(Words(Result::Stopped, "steps"), "stopped: more than 1000 steps in one line");
  EXPECT_EQ(Words(Result::Stopped, "memory"), "stopped: more than 64 MB of memory");
  EXPECT_EQ(Words(Result::Failed, "", "ended by a failure: Overflow"), "ended by a failure: Overflow");
  EXPECT_EQ(Words(Result::Refused, "", "no"), "the session is wrong: no");
  EXPECT_EQ(Words(Result::NotRun, "", "the program is a folder"), "not run: the program is a folder");
  EXPECT_EQ(Words(Result::Crashed, "", "signal 9"), "crashed: signal 9");
}

TEST(Words, TellWhereARunStood) {
  EXPECT_EQ(WordsOf(StopPlace{}), "");
  EXPECT_EQ(WordsOf(StopPlace{2, "STAR 50", "", ""}), "in line 2 (STAR 50)");
  EXPECT_EQ(WordsOf(StopPlace{2, "STAR", "SPIN", "FD 1 "}), "in line 2 (STAR), in the procedure SPIN at FD 1");
  EXPECT_EQ(WordsOf(StopPlace{1, "%1 \n", "%2", ""}), "in line 1 (%1 [U+000A]), in the procedure %2");
}

TEST(Words, CountSeconds) {
  EXPECT_EQ(WordsOfSecondLimit(1), "1 second");
  EXPECT_EQ(WordsOfSecondLimit(2.5), "2.5 seconds");
}

TEST(Words, RoundSeconds) { EXPECT_EQ(WordsOfSeconds(0.26), "0.3 s"); }

}  // namespace
}  // namespace zerimo::classroom
