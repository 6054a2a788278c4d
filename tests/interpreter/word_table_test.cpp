#include "interpreter/word_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zerimo {
namespace {

TEST(WordTableTest, CommandListHas96NamesWithPenreverseTwice) {
  const auto names = CommandListNames();
  ASSERT_EQ(names.size(), 96U);
  EXPECT_EQ(names[90], "PENREVERSE");
  EXPECT_EQ(names[93], "PENREVERSE");
  EXPECT_EQ(std::count(names.begin(), names.end(), "PENREVERSE"), 2);
  EXPECT_EQ(std::set<std::string_view>(names.begin(), names.end()).size(), 95U);
}

TEST(WordTableTest, CommandListKeepsItsOrder) {
  const std::vector<std::string_view> expected = {"FD",           "TEXTSIZE",
                                                  "BK",           "LT",
                                                  "RT",           "PU",
                                                  "PD",           "PE",
                                                  "PX",           "ST",
                                                  "HT",           "CS",
                                                  "CLEAN",        "HOME",
                                                  "HOMEX",        "HOMEY",
                                                  "HOMEXY",       "BYE",
                                                  "SETX",         "SETY",
                                                  "GETX",         "GETY",
                                                  "SETXY",        "GETXY",
                                                  "PEN",          "SETPC",
                                                  "SETBG",        "RESOLUTION",
                                                  "LOAD",         "REPEAT",
                                                  "DRAW",         "EDIT",
                                                  "WAIT",         "STAMPOVAL",
                                                  "STAMPOVALRGB", "FLOODFILLRGB",
                                                  "FLOODFILL",    "STAMPRECT",
                                                  "STAMPRECTRGB", "FS",
                                                  "SS",           "TS",
                                                  "CT",           "FENCE",
                                                  "WINDOW",       "SUM",
                                                  "PRODUCT",      "QUOTIENT",
                                                  "REMAINDER",    "XCOR",
                                                  "YCOR",         "QUIT",
                                                  "LOADPICTURE",  "SLIDESHOW",
                                                  "MESSAGE",      "DRAWMODE",
                                                  "TEXTCOLOR",    "TEXTBACKGROUND",
                                                  "FILL",         "FILLSTYLE",
                                                  "POINT",        "SHOW",
                                                  "HIDE",         "REFRESH",
                                                  "SOUND",        "PRINT",
                                                  "WRITE",        "(SUM",
                                                  "(PRODUCT",     "WRITERGB",
                                                  "LW",           "LINE",
                                                  "LINERGB",      "ELLIPSE",
                                                  "ELLIPSERGB",   "DOT",
                                                  "CIRCLE",       "SAYDEVELOPER",
                                                  "STAMPCIRCLE",  "SAVE",
                                                  "SAVEPICTURE",  "HELP",
                                                  "FORWARD",      "BACK",
                                                  "LEFT",         "RIGHT",
                                                  "CLEARSCREEN",  "PENUP",
                                                  "PENDOWN",      "PENERASE",
                                                  "PENREVERSE",   "SHOWTURTLE",
                                                  "HIDETURTLE",   "PENREVERSE",
                                                  "LINEWIDTH",    "COMMANDLIST"};
  const auto names = CommandListNames();
  EXPECT_EQ(std::vector<std::string_view>(names.begin(), names.end()), expected);
}

/// The names of the actions in the order of their tests, the other name of an action after its first.
std::vector<std::string_view> NamesInOrder() {
  std::vector<std::string_view> names;
  for (const ActionFacts& facts : Actions()) {
    names.push_back(facts.Name);
    if (!facts.OtherName.empty()) names.push_back(facts.OtherName);
  }
  return names;
}

TEST(WordTableTest, NamesAreTestedInTheirOrder) {
  const std::vector<std::string_view> expected = {"SAYDEVELOPER", "SAYDEVELOPERS",
                                                  "COMMANDLIST",  "FENCE",
                                                  "XCOR",         "YCOR",
                                                  "WINDOW",       "DRAW",
                                                  "GETXY",        "PEN",
                                                  "FS",           "FULLSCREEN",
                                                  "SS",           "SPLITSCREEN",
                                                  "EDIT",         "TS",
                                                  "TEXTSCREEN",   "CT",
                                                  "CLEARTEXT",    "BYE",
                                                  "QUIT",         "CLEAN",
                                                  "HT",           "HIDETURTLE",
                                                  "ST",           "SHOWTURTLE",
                                                  "SOUND",        "STAMPCIRCLE",
                                                  "DRAWMODE",     "LW",
                                                  "LINEWIDTH",    "TEXTSIZE",
                                                  "WAIT",         "FD",
                                                  "FORWARD",      "BK",
                                                  "BACK",         "RESOLUTION",
                                                  "RT",           "RIGHT",
                                                  "LT",           "LEFT",
                                                  "PX",           "PENREVERSE",
                                                  "PU",           "PENUP",
                                                  "PD",           "PENDOWN",
                                                  "PE",           "PENERASE",
                                                  "STAMPOVAL",    "STAMPRECT",
                                                  "SETPC",        "SETBG",
                                                  "TEXTCOLOR",    "TEXTBACKGROUND",
                                                  "CS",           "CLEARSCREEN",
                                                  "HOME",         "HOMEX",
                                                  "HOMEY",        "HOMEXY",
                                                  "LOAD",         "SAVEPICTURE",
                                                  "LOADPICTURE",  "HELP",
                                                  "SLIDESHOW",    "SHOW",
                                                  "HIDE",         "SETX",
                                                  "SETY",         "SETXY",
                                                  "REFRESH",      "MESSAGE",
                                                  "WRITE",        "(SUM",
                                                  "(PRODUCT",     "PRINT",
                                                  "FILL",         "FILLSTYLE",
                                                  "POINT",        "DOT",
                                                  "CIRCLE",       "LINE",
                                                  "ELLIPSE",      "WRITERGB",
                                                  "LINERGB",      "ELLIPSERGB",
                                                  "STAMPOVALRGB", "STAMPRECTRGB",
                                                  "FLOODFILLRGB", "FLOODFILL",
                                                  "AEXP",         "REXP",
                                                  "SUM",          "PRODUCT",
                                                  "QUOTIENT",     "REMAINDER"};
  EXPECT_EQ(NamesInOrder(), expected);
}

TEST(WordTableTest, ActionsStandInTheOrderOfTheirNumbers) {
  int number = 0;
  for (const ActionFacts& facts : Actions()) EXPECT_EQ(static_cast<int>(facts.Does), number++) << facts.Name;
}

TEST(WordTableTest, NamesWithoutAnActionAreFour) {
  std::set<std::string> without;
  for (const std::string_view name : CommandListNames()) {
    const auto names = [&](const ActionFacts& facts) { return facts.Name == name || facts.OtherName == name; };
    if (std::none_of(Actions().begin(), Actions().end(), names)) without.insert(std::string(name));
  }
  EXPECT_EQ(without, (std::set<std::string>{"GETX", "GETY", "SAVE", "REPEAT"}));
}

TEST(WordTableTest, LongNamesOutsideCommandListAreReachedOnlyDirectly) {
  const auto names = CommandListNames();
  for (const char* word : {"FULLSCREEN", "SPLITSCREEN", "TEXTSCREEN", "CLEARTEXT", "SAYDEVELOPERS", "AEXP", "REXP"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), word), 0) << word;
  }
}

}  // namespace
}  // namespace zerimo
