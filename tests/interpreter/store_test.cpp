#include "interpreter/store.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "base/failure.h"

namespace zerimo {
namespace {

class StoreTest : public testing::Test {
 protected:
  void Fill(std::initializer_list<const char*> lines, int first = 1) {
    for (const char* line : lines) store.SetLine(first++, line);
  }
  void FillMany(int count) {
    for (int number = 1; number <= count; ++number) store.SetLine(number, "FD 1");
  }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int number = 1; !store.Line(number).empty(); ++number) lines.push_back(store.Line(number));
    return lines;
  }

  ListBox List3{"List3"};
  Store store{List3};
};

using Texts = std::vector<std::string>;

TEST_F(StoreTest, EmptyStoreFindsNothing) {
  EXPECT_EQ(store.WhereProcedure("BOX"), 0);
  EXPECT_EQ(store.ProcedureListInStringForm(), "");
  EXPECT_FALSE(store.IsTempProcedurePresent());
}

TEST_F(StoreTest, LinesBelowOneAndAboveTwoThousandFail) {
  EXPECT_THROW(store.Line(0), Failure);
  EXPECT_THROW(store.Line(2001), Failure);
  EXPECT_THROW(store.SetLine(0, "X"), Failure);
  EXPECT_THROW(store.SetLine(2001, "X"), Failure);
  store.SetLine(2000, "X");
  EXPECT_EQ(store.Line(2000), "X");
}

TEST_F(StoreTest, ProcedureIsFoundByItsWholeNameInEitherOrder) {
  Fill({"TO BOX", "END", "TO BOXES :N", "END"});
  EXPECT_EQ(store.WhereProcedure("BOX"), 1);
  EXPECT_EQ(store.WhereProcedure("BOXES"), 3);
  Fill({"TO BOXES", "END", "TO BOX :S", "END"});
  EXPECT_EQ(store.WhereProcedure("BOX"), 3);
  EXPECT_EQ(store.WhereProcedure("BOXES"), 1);
}

TEST_F(StoreTest, HeaderOfALineIsTheNearestToAtOrAboveIt) {
  Fill({"MAKE A 1", "TO BOX", "FD 1", "END", "TO STAR", "RT 1"});
  EXPECT_EQ(store.HeaderOf(1), 0);
  EXPECT_EQ(store.HeaderOf(2), 2);
  EXPECT_EQ(store.HeaderOf(4), 2);
  EXPECT_EQ(store.HeaderOf(6), 5);
  // Also a line that stands after the program.
  EXPECT_EQ(store.HeaderOf(2000), 5);
  EXPECT_THROW(store.HeaderOf(2001), Failure);
  EXPECT_THROW(store.HeaderOf(0), Failure);
}

TEST_F(StoreTest, ProcedureNamesKeepCaseAndTheLinesStart) {
  Fill({"PRINT \"TO BOX\"", "to BOX", "TO box"});
  EXPECT_EQ(store.WhereProcedure("BOX"), 0);
}

TEST_F(StoreTest, TemporaryNumbersAreNotPrefixes) {
  Fill({"TO #TEMP$12", "END"});
  EXPECT_EQ(store.WhereProcedure("#TEMP$1"), 0);
  EXPECT_EQ(store.WhereProcedure("#TEMP$12"), 1);
}

TEST_F(StoreTest, SearchStopsAtTheFirstEmptyLine) {
  Fill({"TO A", "END", "", "TO B", "END"});
  EXPECT_EQ(store.WhereProcedure("B"), 0);
}

TEST_F(StoreTest, SearchInAFullStoreFails) {
  FillMany(2000);
  EXPECT_THROW(store.WhereProcedure("X"), Failure);
  EXPECT_THROW(store.FirstEmptyLine(), Failure);
}

TEST_F(StoreTest, EmptyingStopsAtAGapAndStaleTextSurvives) {
  Fill({"A", "B", "", "STALE"});
  store.MakeEmptyFileDataArray();
  EXPECT_EQ(store.Line(1), "");
  EXPECT_EQ(store.Line(2), "");
  EXPECT_EQ(store.Line(4), "STALE");
}

TEST_F(StoreTest, EmptyingAFullStoreFailsPastItsLastLine) {
  FillMany(2000);
  EXPECT_THROW(store.MakeEmptyFileDataArray(), Failure);
  EXPECT_EQ(store.Line(1), "");
  EXPECT_EQ(store.Line(2000), "");
}

TEST_F(StoreTest, AMarkAnywhereInALineCountsAsATemporaryProcedure) {
  Fill({"PRINT \"TO #\""});
  EXPECT_TRUE(store.IsTempProcedurePresent());
}

TEST_F(StoreTest, SweepTakesTheFirstTemporaryProcedure) {
  Fill({"TO A", "END", "TO #TEMP$1", "FD 10", "END", "TO B", "END"});
  store.TempFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"TO A", "END", "TO B", "END"}));
}

TEST_F(StoreTest, SweepEmptiesOnlyOneLineAfterIt) {
  Fill({"TO A", "END", "TO #TEMP$1", "FD 10", "END"});
  store.TempFileDataArray();
  EXPECT_EQ(store.Line(3), "");
  EXPECT_EQ(store.Line(4), "FD 10");
  EXPECT_EQ(store.Line(5), "END");
}

TEST_F(StoreTest, SweepStopsAfterAnEndif) {
  Fill({"TO #TEMP$1", "IF 1", "ENDIF", "FD 1", "END"});
  store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1", "END"}));
}

TEST_F(StoreTest, SweepStartsAtAPrintedMark) {
  Fill({"FD 1", "PRINT \"TO #\"", "FD 2", "END", "FD 3"});
  store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1", "FD 3"}));
}

TEST_F(StoreTest, SweepOfSeveralProcedures) {
  Fill({"TO #TEMP$1", "END", "TO A", "END", "TO #TEMP$2", "FD 1"});
  store.RefreshFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"TO A", "END"}));
}

TEST_F(StoreTest, SweepWithMoreThanAHundredLinesIsAbandoned) {
  FillMany(101);
  Fill({"TO #TEMP$1", "END"}, 102);
  EXPECT_THROW(store.RefreshFileDataArray(), Failure);
  EXPECT_EQ(Lines().size(), 103U);
  EXPECT_EQ(store.Line(102), "TO #TEMP$1");
}

TEST_F(StoreTest, SweepWithNinetyNineLinesWorks) {
  FillMany(99);
  Fill({"TO #TEMP$1", "END"}, 100);
  store.RefreshFileDataArray();
  EXPECT_EQ(Lines().size(), 99U);
}

TEST_F(StoreTest, SweepWithExactlyAHundredLinesFailsAfterTheCopy) {
  FillMany(100);
  Fill({"TO #TEMP$1", "END"}, 101);
  EXPECT_THROW(store.RefreshFileDataArray(), Failure);
  EXPECT_EQ(store.Line(101), "TO #TEMP$1");
}

TEST_F(StoreTest, SweepThatFindsNothingDoesNothing) {
  FillMany(150);
  store.TempFileDataArray();
  EXPECT_EQ(Lines().size(), 150U);
}

TEST_F(StoreTest, SweepWithoutAnEndTakesAllUpToTheFirstEmptyLine) {
  Fill({"FD 1", "TO #TEMP$1", "FD 2", "", "FD 3"});
  store.TempFileDataArray();
  EXPECT_EQ(Lines(), (Texts{"FD 1"}));
  EXPECT_EQ(store.Line(5), "FD 3");
}

TEST_F(StoreTest, SweepDoesNotSeeStaleLines) {
  Fill({"FD 1", "", "TO #TEMP$1", "END"});
  EXPECT_FALSE(store.IsTempProcedurePresent());
  store.RefreshFileDataArray();
  EXPECT_EQ(store.Line(3), "TO #TEMP$1");
}

TEST_F(StoreTest, ProcedureListShowsTheHeadersWhole) {
  List3.Add("OLD");
  Fill({"MAKE \"A 1", "TO BOX :S", "FD :S", "END", "TO #TEMP$3", "END"});
  store.ProcedureList();
  EXPECT_EQ(List3.Items(), (Texts{"TO BOX :S", "TO #TEMP$3"}));
}

TEST_F(StoreTest, ProcedureListAsTextLeavesOutTheSystemsOwn) {
  Fill({"TO BOX :S", "END", "TO STAR", "END", "TO #TEMP$3", "END"});
  EXPECT_EQ(store.ProcedureListInStringForm(), "[BOX :S]   [STAR]   ");
}

TEST_F(StoreTest, HowManyCountsExactLinesUpToTheEnd) {
  Fill({"TO A", "FD 1", "FD 1 ", "FD 1", "END", "FD 1"});
  store.FileDataCount = 6;
  EXPECT_EQ(store.HowMany("A", "FD 1"), 2);
  store.FileDataCount = 1001;
  EXPECT_THROW(store.HowMany("A", "FD 1"), Failure);
}

TEST_F(StoreTest, HowManyCountsUpToTheLastUsedLine) {
  Fill({"TO A", "FD 1", "FD 1", "FD 1"});
  store.FileDataCount = 3;
  EXPECT_EQ(store.HowMany("A", "FD 1"), 2);
}

TEST_F(StoreTest, HowManyTakesAThousandLinesAndNeedsTheProcedure) {
  FillMany(998);
  Fill({"TO A", "FD 1", "END"}, 999);
  store.FileDataCount = 1000;
  EXPECT_EQ(store.HowMany("A", "FD 1"), 1);
  EXPECT_THROW(store.HowMany("B", "FD 1"), Failure);
}

TEST_F(StoreTest, ListOfTheStoreTrimsItsLines) {
  ListBox list1{"List1"};
  Fill({"TO A ", " FD 10", "END"});
  ListStore(store, list1);
  EXPECT_EQ(list1.Items(), (Texts{" 1  TO A", " 2  FD 10", " 3  END"}));
  EXPECT_EQ(store.Line(2), "FD 10");
}

TEST_F(StoreTest, ListOfTheStoreListsALineOfBlanksAndGoesOn) {
  ListBox list1{"List1"};
  Fill({"FD 1", "  ", "FD 2"});
  ListStore(store, list1);
  EXPECT_EQ(list1.Items(), (Texts{" 1  FD 1", " 2  ", " 3  FD 2"}));
  EXPECT_EQ(store.Line(2), "");
}

TEST_F(StoreTest, ALentLineIsWrittenBackAlsoAfterAFailure) {
  Fill({"FD 10"});
  SkipOnFailure([&] {
    LentLine line(store, 1);
    line.Text += " ";
    throw Failure(FailureKind::Overflow);
  });
  EXPECT_EQ(store.Line(1), "FD 10 ");
}

TEST_F(StoreTest, ClassFollowsTheText) {
  Fill({"FD 10"});
  EXPECT_EQ(store.ClassOf(1), StmtPrimitive);
  store.SetLine(1, "END");
  EXPECT_EQ(store.ClassOf(1), StmtEnd);
  EXPECT_THROW(store.ClassOf(0), Failure);
}

TEST_F(StoreTest, TheFirstWordIsTakenFromWhateverALineHolds) {
  Fill({"BOX 30", "BOX 30 ", "BOX 30  ", " BOX", "B", " "});
  int number = 0;
  for (const char* const word : {"BOX", "BOX", "BOX", "BOX", "B", ""}) {
    EXPECT_EQ(store.TakeFirstWord(++number), word) << number;
  }
  EXPECT_EQ(store.Line(3), "BOX 30 ");
}

TEST_F(StoreTest, OfAnEmptyLineNothingIsDerivedButItsClass) {
  EXPECT_EQ(store.ClassOf(1), store.ClassOf(2000));
  Fill({"FD 10"});
  EXPECT_EQ(store.FormOf(1).Input.Text(), "10");
  store.SetLine(1, "");
  EXPECT_EQ(store.FormOf(1).Input.Text(), "");
}

}  // namespace
}  // namespace zerimo
