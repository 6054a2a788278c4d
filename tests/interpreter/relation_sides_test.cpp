#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "interpreter/relations.h"
#include "support/failure_of.h"
#include "support/limited_watch.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

class RelationSidesTest : public testing::Test {
 protected:
  bool Holds(std::string condition) const { return RelationEvaluator(condition, arithmetic); }

  LimitedWatch watch;
  Arithmetic arithmetic{watch};
};

struct TruthOfText {
  const char* Text;
  bool Holds;
};

void PrintTo(const TruthOfText& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << one.Holds; }

class Relation : public RelationSidesTest, public testing::WithParamInterface<TruthOfText> {};

TEST_P(Relation, IsDecidedByItsFirstComparison) { EXPECT_EQ(Holds(GetParam().Text), GetParam().Holds); }

INSTANTIATE_TEST_SUITE_P(NoComparison, Relation, testing::Values(TruthOfText{".1", true}));

INSTANTIATE_TEST_SUITE_P(Operators, Relation,
                         testing::Values(TruthOfText{"5<5", false}, TruthOfText{"5>5", false},
                                         TruthOfText{"4<=5", true}, TruthOfText{"5>=5", true},
                                         TruthOfText{"6>=5", true}, TruthOfText{"5==6", false}));

INSTANTIATE_TEST_SUITE_P(Sides, Relation,
                         testing::Values(TruthOfText{"5=2+3", true}, TruthOfText{"4=(1+1)*2", true},
                                         TruthOfText{"=", true}, TruthOfText{" 3 < 5 ", true}));

INSTANTIATE_TEST_SUITE_P(FurtherComparisonsCutTheRightSide, Relation,
                         testing::Values(TruthOfText{"-1<>5", true}, TruthOfText{"0=<3", true}));

INSTANTIATE_TEST_SUITE_P(NoTolerance, Relation,
                         testing::Values(TruthOfText{".1+.2=.3", false}, TruthOfText{"1/3=.333333333333333", true}));

TEST_F(RelationSidesTest, ACarriageReturnAheadHidesAComparison) {
  EXPECT_TRUE(Holds("1\r=2"));
  EXPECT_FALSE(Holds("0\r=0"));
}

TEST_F(RelationSidesTest, ACarriageReturnAfterTheFirstComparisonHidesNothing) { EXPECT_TRUE(Holds("1<2\r<0")); }

TEST_F(RelationSidesTest, WithAComparisonTheCallersTextStays) {
  std::string condition = "(1+2)=(3)";
  EXPECT_TRUE(RelationEvaluator(condition, arithmetic));
  EXPECT_EQ(condition, "(1+2)=(3)");
}

TEST_F(RelationSidesTest, ASideThatFailsFails) {
  EXPECT_EQ(FailureOf([&] { Holds("1/0=1"); }), FailureKind::DivisionByZero);
  EXPECT_EQ(FailureOf([&] { Holds("1=1/0"); }), FailureKind::DivisionByZero);
  EXPECT_EQ(FailureOf([&] { Holds("(1=1)"); }), FailureKind::InvalidArgument);
}

}  // namespace
}  // namespace zerimo
