#include "classroom/findings/listing.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

QStringList TextsOf(const Listing& listing) {
  QStringList texts;
  for (const Statement& each : listing.Statements) texts.append(each.Text);
  return texts;
}

TEST(Listing, PartsProceduresAndStatements) {
  const Listing listing("MAKE :A 5\r\nTO BOX :S :T\r\nFD  :S\r\nEND\r\n\r\nTO OPEN\r\nPRINT \"RT 90\"\r\n");
  EXPECT_EQ(listing.ProcedureNames(), (QStringList{"BOX", "OPEN"}));
  EXPECT_EQ(listing.Procedures[0].Inputs, (QStringList{":S", ":T"}));
  EXPECT_EQ(listing.Procedures[0].Line, 2);
  EXPECT_TRUE(listing.Procedures[0].HasEnd);
  EXPECT_FALSE(listing.Procedures[1].HasEnd);
  EXPECT_EQ(TextsOf(listing), (QStringList{"MAKE :A 5", "FD :S", listing.Statements[2].Text}));
  EXPECT_EQ(listing.Statements[2].Text.size(), 9);
  EXPECT_EQ(listing.AsWritten(listing.Statements[2].Text), "PRINT \"RT 90\"");
  EXPECT_EQ(listing.Statements[0].Procedure, -1);
  EXPECT_EQ(listing.Statements[1].Procedure, 0);
  EXPECT_EQ(listing.Statements[2].Line, 7);
}

TEST(Listing, PartsTheBodyOfARepeat) {
  const Listing listing("TO A\r\nREPEAT 4[FD 10 REPEAT 2 [RT 45 A] PU]\r\nEND\r\n");
  EXPECT_EQ(TextsOf(listing),
            (QStringList{"REPEAT 4[FD 10 REPEAT 2 [RT 45 A] PU]", "FD 10", "REPEAT 2 [RT 45 A]", "RT 45", "A", "PU"}));
  EXPECT_FALSE(listing.Statements[0].InBody);
  EXPECT_TRUE(listing.Statements[4].InBody);
}

TEST(Listing, LinesEndInManyWays) {
  EXPECT_EQ(LinesOf("A\r\nB\rC\n\nD"), (QStringList{"A", "B", "C", "", "D"}));
  EXPECT_EQ(LinesOf(""), QStringList{});
}

TEST(Listing, ABodyMayLackItsEnd) {
  EXPECT_EQ(PartsOf("REPEAT 2 [A [B] C] D").Count, "2");
  EXPECT_EQ(PartsOf("REPEAT 2 [A [B] C] D").Body, "A [B] C");
  EXPECT_EQ(PartsOf("REPEAT 2 [A [B] C] D").After, "D");
  EXPECT_EQ(PartsOf("REPEAT 2 [FD 10").Body, "FD 10");
  EXPECT_EQ(PartsOf("REPEAT [FD 10]").Count, "");
  EXPECT_EQ(PartsOf("REPEAT 2").Body, "");
}

}  // namespace
}  // namespace zerimo::classroom
