#include "interpreter/program_store.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "base/failure.h"

namespace zerimo {
namespace {

class ProgramStoreTest : public testing::Test {
 protected:
  void Fill(std::initializer_list<const char*> lines, int first = 1) {
    for (const char* line : lines) Store.SetLine(first++, line);
  }
  void FillMany(int count) {
    for (int number = 1; number <= count; ++number) Store.SetLine(number, "FD 1");
  }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int number = 1; !Store.Line(number).empty(); ++number) lines.push_back(Store.Line(number));
    return lines;
  }

  ListBox List3{"List3"};
  ProgramStore Store{List3};
};

using Texts = std::vector<std::string>;

TEST_F(ProgramStoreTest, EmptyStoreFindsNothing) {
  EXPECT_EQ(Store.WhereProcedure("BOX"), 0);
  EXPECT_EQ(Store.ProcedureListInStringForm(), "");
  EXPECT_FALSE(Store.IsTempProcedurePresent());
}

TEST_F(ProgramStoreTest, LinesBelowOneAndAboveTwoThousandFail) {
  EXPECT_THROW(Store.Line(0), Failure);
  EXPECT_THROW(Store.Line(2001), Failure);
  EXPECT_THROW(Store.SetLine(0, "X"), Failure);
  EXPECT_THROW(Store.SetLine(2001, "X"), Failure);
  Store.SetLine(2000, "X");
  EXPECT_EQ(Store.Line(2000), "X");
}

TEST_F(ProgramStoreTest, ProcedureIsFoundByItsWholeNameInEitherOrder) {
  Fill({"TO BOX", "END", "TO BOXES :N", "END"});
  EXPECT_EQ(Store.WhereProcedure("BOX"), 1);
  EXPECT_EQ(Store.WhereProcedure("BOXES"), 3);
  Fill({"TO BOXES", "END", "TO BOX :S", "END"});
  EXPECT_EQ(Store.WhereProcedure("BOX"), 3);
  EXPECT_EQ(Store.WhereProcedure("BOXES"), 1);
}

TEST_F(ProgramStoreTest, ProcedureNamesKeepCaseAndTheLinesStart) {
  Fill({"PRINT \"TO BOX\"", "to BOX", "TO box"});
  EXPECT_EQ(Store.WhereProcedure("BOX"), 0);
}

TEST_F(ProgramStoreTest, TemporaryNumbersAreNotPrefixes) {
  Fill({"TO #TEMP$12", "END"});
  EXPECT_EQ(Store.WhereProcedure("#TEMP$1"), 0);
  EXPECT_EQ(Store.WhereProcedure("#TEMP$12"), 1);
}

TEST_F(ProgramStoreTest, SearchStopsAtTheFirstEmptyLine) {
  Fill({"TO A", "END", "", "TO B", "END"});
  EXPECT_EQ(Store.WhereProcedure("B"), 0);
}

TEST_F(ProgramStoreTest, SearchInAFullStoreFails) {
  FillMany(2000);
  EXPECT_THROW(Store.WhereProcedure("X"), Failure);
  EXPECT_THROW(Store.FirstEmptyLine(), Failure);
}

TEST_F(ProgramStoreTest, EmptyingStopsAtAGapAndStaleTextSurvives) {
  Fill({"A", "B", "", "STALE"});
  Store.MakeEmptyFileDataArray();
  EXPECT_EQ(Store.Line(1), "");
  EXPECT_EQ(Store.Line(2), "");
  EXPECT_EQ(Store.Line(4), "STALE");
}

TEST_F(ProgramStoreTest, EmptyingAFullStoreFailsBehindItsLastLine) {
  FillMany(2000);
  EXPECT_THROW(Store.MakeEmptyFileDataArray(), Failure);
  EXPECT_EQ(Store.Line(1), "");
  EXPECT_EQ(Store.Line(2000), "");
}

TEST_F(ProgramStoreTest, AMarkAnywhereInALineCountsAsATemporaryProcedure) {
  Fill({"PRINT \"TO #\""});
  EXPECT_TRUE(Store.IsTempProcedurePresent());
}

TEST_F(ProgramStoreTest, SweepTakesTheFirstTemporaryProcedure) {
  Fill({"TO A", "END", "TO #TEMP$1", "FD 10", "END", "TO B", "END"});
  Store.TempFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"TO A", "END", "TO B", "END"}));
}

TEST_F(ProgramStoreTest, SweepEmptiesOnlyOneLineBehind) {
  Fill({"TO A", "END", "TO #TEMP$1", "FD 10", "END"});
  Store.TempFileDataArray();
  EXPECT_EQ(Store.Line(3), "");
  EXPECT_EQ(Store.Line(4), "FD 10");
  EXPECT_EQ(Store.Line(5), "END");
}

TEST_F(ProgramStoreTest, SweepStopsBehindAnEndif) {
  Fill({"TO #TEMP$1", "IF 1", "ENDIF", "FD 1", "END"});
  Store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1", "END"}));
}

TEST_F(ProgramStoreTest, SweepStartsAtAPrintedMark) {
  Fill({"FD 1", "PRINT \"TO #\"", "FD 2", "END", "FD 3"});
  Store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1", "FD 3"}));
}

TEST_F(ProgramStoreTest, SweepOfSeveralProcedures) {
  Fill({"TO #TEMP$1", "END", "TO A", "END", "TO #TEMP$2", "FD 1"});
  Store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"TO A", "END"}));
}

TEST_F(ProgramStoreTest, SweepWithMoreThanAHundredLinesIsAbandoned) {
  FillMany(101);
  Fill({"TO #TEMP$1", "END"}, 102);
  EXPECT_THROW(Store.RefreshFileDataArray(), Failure);
  EXPECT_EQ(Lines().size(), 103U);
  EXPECT_EQ(Store.Line(102), "TO #TEMP$1");
}

TEST_F(ProgramStoreTest, SweepWithNinetyNineLinesWorks) {
  FillMany(99);
  Fill({"TO #TEMP$1", "END"}, 100);
  Store.RefreshFileDataArray();
  EXPECT_EQ(Lines().size(), 99U);
}

TEST_F(ProgramStoreTest, SweepWithExactlyAHundredLinesFailsBehindTheCopy) {
  FillMany(100);
  Fill({"TO #TEMP$1", "END"}, 101);
  EXPECT_THROW(Store.RefreshFileDataArray(), Failure);
  EXPECT_EQ(Store.Line(101), "TO #TEMP$1");
}

TEST_F(ProgramStoreTest, SweepThatFindsNothingDoesNothing) {
  FillMany(150);
  Store.TempFileDataArray();
  EXPECT_EQ(Lines().size(), 150U);
}

TEST_F(ProgramStoreTest, SweepWithoutAnEndTakesAllUpToTheFirstEmptyLine) {
  Fill({"FD 1", "TO #TEMP$1", "FD 2", "", "FD 3"});
  Store.TempFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1"}));
  EXPECT_EQ(Store.Line(5), "FD 3");
}

TEST_F(ProgramStoreTest, SweepDoesNotSeeStaleLines) {
  Fill({"FD 1", "", "TO #TEMP$1", "END"});
  EXPECT_FALSE(Store.IsTempProcedurePresent());
  Store.RefreshFileDataArray();
  EXPECT_EQ(Store.Line(3), "TO #TEMP$1");
}

TEST_F(ProgramStoreTest, ProcedureListShowsTheHeadersWhole) {
  List3.Add("OLD");
  Fill({"MAKE \"A 1", "TO BOX :S", "FD :S", "END", "TO #TEMP$3", "END"});
  Store.ProcedureList();
  EXPECT_EQ(List3.Items(), (Texts{"TO BOX :S", "TO #TEMP$3"}));
}

TEST_F(ProgramStoreTest, ProcedureListAsTextLeavesOutTheSystemsOwn) {
  Fill({"TO BOX :S", "END", "TO STAR", "END", "TO #TEMP$3", "END"});
  EXPECT_EQ(Store.ProcedureListInStringForm(), "[BOX :S]   [STAR]   ");
}

TEST_F(ProgramStoreTest, HowManyCountsExactLinesUpToTheEnd) {
  Fill({"TO A", "FD 1", "FD 1 ", "FD 1", "END", "FD 1"});
  Store.FileDataCount = 6;
  EXPECT_EQ(Store.HowMany("A", "FD 1"), 2);
  Store.FileDataCount = 1001;
  EXPECT_THROW(Store.HowMany("A", "FD 1"), Failure);
}

TEST_F(ProgramStoreTest, HowManyCountsUpToTheLastUsedLine) {
  Fill({"TO A", "FD 1", "FD 1", "FD 1"});
  Store.FileDataCount = 3;
  EXPECT_EQ(Store.HowMany("A", "FD 1"), 2);
}

TEST_F(ProgramStoreTest, HowManyTakesAThousandLinesAndNeedsTheProcedure) {
  FillMany(998);
  Fill({"TO A", "FD 1", "END"}, 999);
  Store.FileDataCount = 1000;
  EXPECT_EQ(Store.HowMany("A", "FD 1"), 1);
  EXPECT_THROW(Store.HowMany("B", "FD 1"), Failure);
}

TEST_F(ProgramStoreTest, ListOfTheStoreTrimsItsLines) {
  ListBox list1{"List1"};
  Fill({"TO A ", " FD 10", "END"});
  ListStore(Store, list1);
  EXPECT_EQ(list1.Items(), (Texts{" 1  TO A", " 2  FD 10", " 3  END"}));
  EXPECT_EQ(Store.Line(2), "FD 10");
}

TEST_F(ProgramStoreTest, ListOfTheStoreListsALineOfBlanksAndGoesOn) {
  ListBox list1{"List1"};
  Fill({"FD 1", "  ", "FD 2"});
  ListStore(Store, list1);
  EXPECT_EQ(list1.Items(), (Texts{" 1  FD 1", " 2  ", " 3  FD 2"}));
  EXPECT_EQ(Store.Line(2), "");
}

TEST_F(ProgramStoreTest, ALentLineIsWrittenBackAlsoAfterAFailure) {
  Fill({"FD 10"});
  PassOver([&] {
    LentLine line(Store, 1);
    line.Text += " ";
    throw Failure(FailureKind::Overflow);
  });
  EXPECT_EQ(Store.Line(1), "FD 10 ");
}

TEST_F(ProgramStoreTest, ClassFollowsTheText) {
  Fill({"FD 10"});
  EXPECT_EQ(Store.ClassOf(1), StmtPrimitive);
  Store.SetLine(1, "END");
  EXPECT_EQ(Store.ClassOf(1), StmtEnd);
  EXPECT_THROW(Store.ClassOf(0), Failure);
}

}  // namespace
}  // namespace zerimo
