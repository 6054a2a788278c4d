#include "classroom/class_options.h"

#include <gtest/gtest.h>

#include <ostream>

#include "batch/errors.h"

namespace zerimo::classroom {
namespace {

TEST(ClassOptions, ASessionIsNoClass) {
  const Command command = ParseCommand({"--seconds", "3", "a.session"});
  EXPECT_FALSE(command.IsClass());
  EXPECT_EQ(command.options.SessionFile, "a.session");
  EXPECT_EQ(command.options.settings.Seconds, 3);
  EXPECT_EQ(ParseCommand({}).options.settings.Seconds, 60);
}

TEST(ClassOptions, AskForAClass) {
  const Command command = ParseCommand({"--class", "5a", "--out", "r.HTML"});
  EXPECT_TRUE(command.IsClass());
  EXPECT_EQ(command.classOptions.Folder, "5a");
  EXPECT_EQ(command.classOptions.Report, "r.HTML");
  EXPECT_EQ(command.options.settings.Memory, 512);
  EXPECT_EQ(command.classOptions.Jobs, 0);
  EXPECT_EQ(command.options.settings.Seconds, 10);
  EXPECT_EQ(command.options.settings.Steps, 10'000'000U);
}

TEST(ClassOptions, LimitsOfAClassMayStandAnywhere) {
  const Command command = ParseCommand({"--seconds", "3", "--memory", "0", "--jobs", "4", "--steps", "9", "--screen",
                                        "800x600", "--out", "r.htm", "--class", "5a"});
  EXPECT_EQ(command.options.settings.Seconds, 3);
  EXPECT_EQ(command.options.settings.Steps, 9U);
  EXPECT_EQ(command.options.settings.Screen.Width, 12000);
  EXPECT_EQ(command.options.settings.Memory, 0);
  EXPECT_EQ(command.classOptions.Jobs, 4);
}

TEST(ClassOptions, AClassIsAskedForEvenWhereTheRestIsWrong) {
  EXPECT_TRUE(AskForClass({"--frobnicate", "--class"}));
  EXPECT_TRUE(AskForClass({"--class=5a"}));
  EXPECT_FALSE(AskForClass({"--transcript", "--class"}));
  EXPECT_FALSE(AskForClass({"--", "--class"}));
  EXPECT_FALSE(AskForClass({"a.session"}));
}

struct BadUsage {
  std::vector<std::string> Arguments;
  const char* Message;
};

void PrintTo(const BadUsage& one, std::ostream* out) { *out << testing::PrintToString(one.Arguments); }

class BadClassOptions : public testing::TestWithParam<BadUsage> {};

TEST_P(BadClassOptions, AreToldInOneLine) {
  try {
    ParseCommand(GetParam().Arguments);
    FAIL() << "taken";
  } catch (const batch::UsageError& error) {
    EXPECT_STREQ(error.what(), GetParam().Message);
  }
}

const BadUsage BadUsages[] = {
    {{"--jobs", "2"}, "--jobs: only with --class"},
    {{"--out", "r.html"}, "--out: only with --class"},
    {{"--class"}, "--class: a value is missing"},
    {{"--class", ""}, "--class : a folder is wanted"},
    {{"--class", "c"}, "--class: the report is missing, give --out"},
    {{"--class", "c", "--out", ".html"}, "--out .html: a file name ending in .html or .htm is wanted"},
    {{"--class", "c", "--out", "r.txt"}, "--out r.txt: a file name ending in .html or .htm is wanted"},
    {{"--class", "c", "--jobs", "0"}, "--jobs 0: a whole number from 1 to 64 is wanted"},
    {{"--class", "c", "--memory", "15"}, "--memory 15: megabytes are wanted, from 16 to 1048576, or 0"},
    {{"--class", "c", "--memory", "1e3"}, "--memory 1e3: megabytes are wanted, from 16 to 1048576, or 0"},
    {{"--class", "c", "--sleep"}, "--sleep: not with --class"},
    {{"--class", "c", "--picture", "p.png"}, "--picture: not with --class"},
    {{"--class", "c", "s"}, "s: no session can be given with --class; put it beside the program"},
};

INSTANTIATE_TEST_SUITE_P(Usages, BadClassOptions, testing::ValuesIn(BadUsages));

TEST(ClassOptions, HelpNamesEveryOption) {
  const std::string help = ParseCommand({"--help"}).HelpText;
  EXPECT_TRUE(help.starts_with("Usage: zerimo-batch [options] [SESSION]\n"));
  for (const char* option : {"--screen", "--app-folder", "--transcript", "--picture", "--steps", "--seconds", "--sleep",
                             "--help", "--version", "--class", "--out", "--memory", "--jobs"}) {
    EXPECT_NE(help.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace zerimo::classroom
