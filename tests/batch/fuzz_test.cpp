#include <gtest/gtest.h>

#include <array>
#include <random>

#include "batch/latin1.h"
#include "in_memory_session.h"

namespace zerimo::batch {
namespace {

constexpr auto Words = std::to_array<const char*>({"FD",
                                                   "BK",
                                                   "LT",
                                                   "RT",
                                                   "PU",
                                                   "PD",
                                                   "PE",
                                                   "PX",
                                                   "ST",
                                                   "HT",
                                                   "CS",
                                                   "CLEAN",
                                                   "HOME",
                                                   "HOMEX",
                                                   "HOMEY",
                                                   "HOMEXY",
                                                   "BYE",
                                                   "SETX",
                                                   "SETY",
                                                   "GETX",
                                                   "SETXY",
                                                   "GETXY",
                                                   "PEN",
                                                   "SETPC",
                                                   "SETBG",
                                                   "RESOLUTION",
                                                   "REPEAT",
                                                   "DRAW",
                                                   "EDIT",
                                                   "STAMPOVAL",
                                                   "SS",
                                                   "STAMPRECT",
                                                   "FS",
                                                   "TS",
                                                   "CT",
                                                   "FENCE",
                                                   "WINDOW",
                                                   "SUM",
                                                   "PRODUCT",
                                                   "QUOTIENT",
                                                   "REMAINDER",
                                                   "XCOR",
                                                   "YCOR",
                                                   "MESSAGE",
                                                   "DRAWMODE",
                                                   "TEXTCOLOR",
                                                   "FILL",
                                                   "FILLSTYLE",
                                                   "POINT",
                                                   "SHOW",
                                                   "HIDE",
                                                   "SOUND",
                                                   "PRINT",
                                                   "WRITE",
                                                   "(SUM",
                                                   "(PRODUCT",
                                                   "WRITERGB",
                                                   "LW",
                                                   "LINE",
                                                   "ELLIPSE",
                                                   "ELLIPSERGB",
                                                   "DOT",
                                                   "CIRCLE",
                                                   "STAMPCIRCLE",
                                                   "FLOODFILL",
                                                   "SLIDESHOW",
                                                   "TEXTSIZE",
                                                   "STAMPRECTRGB",
                                                   "STAMPOVALRGB",
                                                   "FLOODFILLRGB",
                                                   "LINERGB",
                                                   "TEXTBACKGROUND",
                                                   "MAKE",
                                                   "IF",
                                                   "ELSE",
                                                   "ENDIF",
                                                   "GOTO",
                                                   "LABEL",
                                                   "TO",
                                                   "END",
                                                   "A",
                                                   "B",
                                                   ":N",
                                                   "\"N",
                                                   "X",
                                                   "#",
                                                   "$",
                                                   "WAIT"});

constexpr auto Pieces = std::to_array<const char*>(
    {"0",    "1",   "2",    "3.5", "-4", "10",      "90",     "1000", "32768",  "1E+20", "&HFF",      ":N",
     "X",    "+",   "-",    "*",   "/",  "%",       "(",      ")",    "[",      "]",     "<",         "<=",
     "=",    "!",   "\"",   " ",   "  ", "A",       "XCOR",   "YCOR", "\"HI\"", ",",     "5 6 7",     "99999999999",
     "GRID", "DIA", "TIME", "PAL", "\\", "DETAILS", "[FD 1]", "[]",   ".5",     "1/3",   "PROCEDURE", "\xE4"});

/// Random sessions, the same for the same seed.
class Writer {
 public:
  explicit Writer(unsigned seed) : random(seed) {}

  std::string Session() {
    std::string script;
    if (Below(2) == 0) script = "@text Text2 " + Program() + "\n@key Text2 F2\n";
    for (int count = Below(12); count >= 0; --count) script += Action() + "\n";
    return ToUtf8(script);
  }

 private:
  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

  template <typename Table>
  const char* OneOf(const Table& table) {
    return table[static_cast<std::size_t>(Below(static_cast<int>(table.size())))];
  }

  std::string Statement() {
    std::string text = OneOf(Words);
    if (Below(4) != 0) text += ' ';
    for (int count = Below(5); count > 0; --count) {
      text += OneOf(Pieces);
      if (Below(3) == 0) text += ' ';
    }
    return text;
  }

  std::string Line() {
    std::string text = Statement();
    for (int count = Below(3); count > 0; --count) text += " " + Statement();
    if (Below(4) == 0) text = "REPEAT " + std::to_string(Below(4)) + " [" + text + "]";
    return text;
  }

  /// For the editor: procedures, also with a learner's slips.
  std::string Program() {
    std::string text;
    for (const char* header : {"TO A", "TO B :N"}) {
      if (Below(5) == 0) continue;
      text += std::string(header) + "\\r\\n";
      for (int count = Below(6); count > 0; --count) text += WithoutBackslash(Line()) + "\\r\\n";
      if (Below(6) != 0) text += "END\\r\\n";
    }
    return text;
  }

  static std::string WithoutBackslash(std::string text) {
    std::erase(text, '\\');
    return text;
  }

  std::string Action() {
    static constexpr auto events = std::to_array<const char*>({"@click Picture1",
                                                               "@click Check1",
                                                               "@click Command2",
                                                               "@click Label14",
                                                               "@key Text1(0) F3",
                                                               "@key Text1(4) Enter",
                                                               "@key Text1(0) Esc",
                                                               "@key Picture1 F2",
                                                               "@text Text3 7",
                                                               "@text Text4 3",
                                                               "@enter 4",
                                                               "@tick Timer3 3",
                                                               "@tick Timer4",
                                                               "@mouse down Label13(4) 1 1 right",
                                                               "@scroll HScroll1(1) 7",
                                                               "@scroll HScroll2(0) 9",
                                                               "@mouse move Picture1 100 200",
                                                               "@dump state",
                                                               "@dump storeall",
                                                               "@dump variables",
                                                               "@trace surface"});
    return Below(4) == 0 ? std::string(OneOf(events)) : Line();
  }

  std::mt19937 random;
};

class RandomSessions : public testing::TestWithParam<unsigned> {};

TEST_P(RandomSessions, EndAsSessionsEnd) {
  constexpr unsigned sessions = 150;
  for (unsigned number = 0; number < sessions; ++number) {
    const std::string script = Writer(GetParam() * sessions + number).Session();
    SCOPED_TRACE(script);
    Settings settings;
    settings.Steps = 300;
    settings.Seconds = 0.03;
    settings.AppFolder = "/no/such/folder";
    InMemorySession world(settings);
    const std::string last = world.LastOf(script);
    EXPECT_NE(world.Result.How, Ending::Refused) << world.Result.Message;
    const bool told = last.starts_with(R"({"event":"finished")") || last.starts_with(R"({"event":"ended")") ||
                      last.starts_with(R"({"event":"stopped")");
    EXPECT_TRUE(told) << last;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessions, testing::Range(0U, 8U));

}  // namespace
}  // namespace zerimo::batch
