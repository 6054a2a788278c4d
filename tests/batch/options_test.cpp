#include "batch/options.h"

#include <gtest/gtest.h>

#include <ostream>

#include "batch/errors.h"

namespace zerimo::batch {
namespace {

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  CommandLine(options).Parse(arguments);
  return options;
}

TEST(Options, HaveTheirDefaultsWithoutArguments) {
  const Options options = ParseOptions({});
  EXPECT_EQ(options.What, Options::Wish::Run);
  EXPECT_EQ(options.SessionFile, "-");
  EXPECT_EQ(options.settings.Screen.Width, 15360);
  EXPECT_EQ(options.settings.Screen.Height, 11520);
  EXPECT_EQ(options.settings.Steps, 10'000'000U);
  EXPECT_EQ(options.settings.Seconds, 60);
  EXPECT_EQ(options.settings.Memory, 1024);
  EXPECT_EQ(options.settings.Output, 256);
  EXPECT_FALSE(options.settings.Sleep);
  EXPECT_EQ(options.TranscriptFile, "");
  EXPECT_EQ(options.PictureFile, "");
}

TEST(Options, ScreenIsGivenInPixels) {
  const Options options = ParseOptions({"--screen", "800x600"});
  EXPECT_EQ(options.settings.Screen.Width, 12000);
  EXPECT_EQ(options.settings.Screen.Height, 9000);
}

TEST(Options, TakeTheirValues) {
  const Options options = ParseOptions({"--steps", "0", "--seconds", "2.5", "--sleep", "--transcript", "-", "--picture",
                                        "a.PNG", "--app-folder", "/", "b.session"});
  EXPECT_EQ(options.settings.Steps, 0U);
  EXPECT_EQ(options.settings.Seconds, 2.5);
  EXPECT_TRUE(options.settings.Sleep);
  EXPECT_TRUE(options.TranscriptOnStandardOutput());
  EXPECT_EQ(options.PictureFile, "a.PNG");
  EXPECT_EQ(options.settings.AppFolder, "/");
  EXPECT_EQ(options.SessionFile, "b.session");
}

TEST(Options, LimitsOfMemoryAndOutputAreMegabytes) {
  const Options options = ParseOptions({"--memory", "16", "--output", "0"});
  EXPECT_EQ(options.settings.Memory, 16);
  EXPECT_EQ(options.settings.Output, 0);
}

TEST(Options, LastOneCounts) { EXPECT_EQ(ParseOptions({"--steps", "1", "--steps", "2"}).settings.Steps, 2U); }

TEST(Options, DashIsStandardInput) { EXPECT_EQ(ParseOptions({"-"}).SessionFile, "-"); }

TEST(Options, EndAtTwoDashes) { EXPECT_EQ(ParseOptions({"--", "--help"}).SessionFile, "--help"); }

TEST(Options, HelpAndVersionAreWishes) {
  EXPECT_EQ(ParseOptions({"--help"}).What, Options::Wish::Help);
  EXPECT_EQ(ParseOptions({"--version"}).What, Options::Wish::Version);
}

TEST(Options, FolderLosesItsLastDivider) { EXPECT_EQ(ParseOptions({"--app-folder", "./"}).settings.AppFolder, "."); }

struct BadUsage {
  std::vector<std::string> Arguments;
  const char* Message;
};

void PrintTo(const BadUsage& one, std::ostream* out) { *out << testing::PrintToString(one.Arguments); }

class BadOptions : public testing::TestWithParam<BadUsage> {};

TEST_P(BadOptions, AreReportedInOneLine) {
  try {
    ParseOptions(GetParam().Arguments);
    FAIL() << "taken";
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), GetParam().Message);
  }
}

constexpr const char* ScreenWanted = ": WIDTHxHEIGHT in pixels is wanted, from 1x130 to 8192x8192";

std::vector<BadUsage> BadUsages() {
  static std::vector<std::string> messages;
  messages.reserve(32);
  std::vector<BadUsage> all = {
      {{"--frobnicate"}, "--frobnicate: there is no such option"},
      {{"-x"}, "-x: there is no such option"},
      {{"--steps"}, "--steps: a value is missing"},
      {{"--steps", "-1"}, "--steps -1: a whole number from 0 is wanted"},
      {{"--steps", "1.5"}, "--steps 1.5: a whole number from 0 is wanted"},
      {{"--steps", "99999999999999999999"}, "--steps 99999999999999999999: a whole number from 0 is wanted"},
      {{"--seconds", "x"}, "--seconds x: a number from 0 to 1000000000 is wanted"},
      {{"--seconds", "-1"}, "--seconds -1: a number from 0 to 1000000000 is wanted"},
      {{"--seconds", "nan"}, "--seconds nan: a number from 0 to 1000000000 is wanted"},
      {{"--seconds", "inf"}, "--seconds inf: a number from 0 to 1000000000 is wanted"},
      {{"--seconds", ""}, "--seconds : a number from 0 to 1000000000 is wanted"},
      {{"--memory", "15"}, "--memory 15: megabytes are wanted, from 16 to 1048576, or 0"},
      {{"--memory", "1048577"}, "--memory 1048577: megabytes are wanted, from 16 to 1048576, or 0"},
      {{"--output", "-1"}, "--output -1: megabytes are wanted, from 0 to 1048576"},
      {{"--output", "1.5"}, "--output 1.5: megabytes are wanted, from 0 to 1048576"},
      {{"--picture", "a.gif"}, "--picture a.gif: a file name ending in .png, .bmp, .jpg or .svg is wanted"},
      {{"--picture", ".png"}, "--picture .png: a file name ending in .png, .bmp, .jpg or .svg is wanted"},
      {{"--transcript", ""}, "--transcript : a file name is wanted"},
      {{"--app-folder", "/no/such/folder"}, "--app-folder /no/such/folder: there is no such folder"},
      {{"a", "b"}, "b: only one session can be run"},
      {{""}, "the name of the session is empty"},
  };
  for (const char* value : {"800", "800x", "x600", "800x600x2", "0x600", "800x129", "-800x600", "8193x600", "800x8193",
                            "800X600", "8e2x600", ""}) {
    messages.push_back(std::string("--screen ") + value + ScreenWanted);
    all.push_back({{"--screen", value}, messages.back().c_str()});
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(Usages, BadOptions, testing::ValuesIn(BadUsages()));

}  // namespace
}  // namespace zerimo::batch
