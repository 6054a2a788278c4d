#include <gtest/gtest.h>

#include <ostream>

#include "base/failure.h"
#include "files/files_fixture.h"
#include "files/program_files.h"

namespace zerimo {
namespace {

struct Filling {
  const char* Name;
  std::string Text;
  Texts Statements;
  int NumberAfterwards;
};

void PrintTo(const Filling& one, std::ostream* out) { *out << one.Name; }

class FillStoreTable : public ::testing::TestWithParam<Filling> {};

TEST_P(FillStoreTable, GivesStatements) {
  Controls controls{ScreenSize{}};
  Store store{controls.List3};
  std::int16_t number = 1;
  FillStore(store, GetParam().Text, number);
  Texts statements;
  for (int line = 1; !store.Line(line).empty(); ++line) statements.push_back(store.Line(line));
  EXPECT_EQ(statements, GetParam().Statements);
  EXPECT_EQ(number, GetParam().NumberAfterwards);
}

INSTANTIATE_TEST_SUITE_P(
    ProgramText, FillStoreTable,
    ::testing::Values(Filling{"Empty", "", {}, 1},
                      Filling{"BlankLinesVanish", "TO A\r\n\r\nFD 10\r\n\r\n\r\nEND", {"TO A", "FD 10", "END"}, 3},
                      Filling{"TheLastLineEndCounts", "TO A\r\nFD 10\r\nEND\r\n", {"TO A", "FD 10", "END"}, 4},
                      Filling{"ACarriageReturnAtTheBeginningDoesNotCount", "\rFD 10", {"FD 10"}, 1},
                      Filling{"SeveralAtTheBeginningDoNotCount", "\r\n\r\nFD 10", {"FD 10"}, 1},
                      Filling{"CarriageReturnAlone", "FD 10\rBK 10\r", {"FD 10", "BK 10"}, 3},
                      Filling{"LineFeedAloneJoins", "FD 10\nBK 10\n", {"FD 10BK 10"}, 1},
                      Filling{"DroppedCharactersDoNotDivide", "FD 10\r\t\r\x01\rBK 10", {"FD 10", "BK 10"}, 2},
                      Filling{"ATabJoinsItsNeighbours", "FD\t10", {"FD10"}, 1},
                      Filling{"BlanksAtTheEndsStay", "  FD 10  \r", {"  FD 10  "}, 2},
                      Filling{"CaseStays", "fd 10", {"fd 10"}, 1},
                      Filling{"ALineOfBlanksIsALine", "FD 1\r  \rFD 2", {"FD 1", "  ", "FD 2"}, 3},
                      Filling{"AFirstDroppedCharacterLetsTheCarriageReturnCount", "\n\rFD 10", {}, 2}),
    [](const auto& filling) { return std::string(filling.param.Name); });

class FillStoreTest : public FilesTest {};

TEST_F(FillStoreTest, OnlyCodes32To126AreKept) {
  std::string all;
  std::string kept;
  for (int code = 0; code < 256; ++code) {
    if (code == '\r') continue;
    all += static_cast<char>(code);
    if (code >= 32 && code <= 126) kept += static_cast<char>(code);
  }
  std::int16_t number = 1;
  FillStore(store, all, number);
  EXPECT_EQ(store.Line(1), kept);
}

TEST_F(FillStoreTest, ALineMayHaveAnyLength) {
  std::int16_t number = 1;
  FillStore(store, std::string(100000, 'A'), number);
  EXPECT_EQ(store.Line(1).size(), 100000U);
}

TEST_F(FillStoreTest, StaleLinesGetTheTextJoined) {
  Fill({"STALE"}, 2);
  std::int16_t number = 1;
  FillStore(store, "FD 1\rFD 2", number);
  EXPECT_EQ(Program(), (Texts{"FD 1", "STALEFD 2"}));
}

TEST_F(FillStoreTest, Line2000IsTheLast) {
  std::int16_t number = 2000;
  FillStore(store, "FD 1\r\n", number);
  EXPECT_EQ(store.Line(2000), "FD 1");
  EXPECT_EQ(number, 2001);
}

TEST_F(FillStoreTest, Line2001Fails) {
  std::int16_t number = 2000;
  EXPECT_EQ(FailureOf([&] { FillStore(store, "FD 1\r\nFD 2", number); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(store.Line(2000), "FD 1");
}

}  // namespace
}  // namespace zerimo
