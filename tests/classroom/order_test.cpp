#include "classroom/order.h"

#include <gtest/gtest.h>

#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

TEST(Order, ComesBackAsItWasWritten) {
  const TempFolder disk;
  Order order;
  order.Who = {"/a \"b\"\n/in\xFF.ZRM", "/s.session"};
  order.Limits = {2.5, 18'446'744'073'709'551'615U, 64};
  order.Screen = {12000, 9000};
  WriteOrder(disk.Path / "order", order);
  const std::optional<Order> back = ReadOrder(disk.Path / "order");
  ASSERT_TRUE(back);
  EXPECT_EQ(back->Who.Program, order.Who.Program);
  EXPECT_EQ(back->Who.Session, order.Who.Session);
  EXPECT_EQ(back->Limits.Seconds, 2.5);
  EXPECT_EQ(back->Limits.Steps, 18'446'744'073'709'551'615U);
  EXPECT_EQ(back->Limits.Memory, 64);
  EXPECT_EQ(back->Screen.Width, 12000);
  EXPECT_EQ(back->Screen.Height, 9000);
}

TEST(Order, OutcomeComesBackAsItWasWritten) {
  const TempFolder disk;
  RunOutcome outcome;
  outcome.How = Result::NotRun;
  outcome.By = "by";
  outcome.Message = "<m>";
  outcome.Where = {3, "LINE", "PROC", "FD 1"};
  outcome.Typed = {"A", "B"};
  outcome.Notes = {"N"};
  WriteOutcome(disk.Path / "outcome", outcome);
  const std::optional<RunOutcome> back = ReadOutcome(disk.Path / "outcome");
  ASSERT_TRUE(back);
  EXPECT_EQ(back->How, Result::NotRun);
  EXPECT_EQ(back->By, "by");
  EXPECT_EQ(back->Message, "<m>");
  EXPECT_EQ(back->Where.Line, 3);
  EXPECT_EQ(back->Where.LineText, "LINE");
  EXPECT_EQ(back->Where.Procedure, "PROC");
  EXPECT_EQ(back->Where.Statement, "FD 1");
  EXPECT_EQ(back->Typed, (QStringList{"A", "B"}));
  EXPECT_EQ(back->Notes, QStringList{"N"});
}

TEST(Order, WhatIsNotWholeIsNothing) {
  const TempFolder disk;
  disk.Write("half", "{\"result\":\"ended\"");
  disk.Write("list", "[]");
  for (const char* name : {"half", "list", "missing", "."}) {
    EXPECT_FALSE(ReadOutcome(disk.Path / name)) << name;
    EXPECT_FALSE(ReadOrder(disk.Path / name)) << name;
  }
}

}  // namespace
}  // namespace zerimo::classroom
