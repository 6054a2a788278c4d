#include "interpreter/relations.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "base/failure.h"
#include "support/limited_watch.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

bool Holds(std::string expression) {
  LimitedWatch watch;
  return RelationEvaluator(expression, Arithmetic(watch));
}

struct Condition {
  const char* Text;
  bool Holds;
};

void PrintTo(const Condition& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << one.Holds; }

class ConditionOf : public testing::TestWithParam<Condition> {};

TEST_P(ConditionOf, IsDecided) { EXPECT_EQ(Holds(GetParam().Text), GetParam().Holds) << GetParam().Text; }

INSTANTIATE_TEST_SUITE_P(WithoutComparison, ConditionOf,
                         testing::Values(Condition{"3", true}, Condition{"0", false}, Condition{"", false},
                                         Condition{"ABC", false}, Condition{"1-1", false}, Condition{"-1", true}));

INSTANTIATE_TEST_SUITE_P(Operators, ConditionOf,
                         testing::Values(Condition{"3<5", true}, Condition{"5<3", false}, Condition{"5>3", true},
                                         Condition{"3>5", false}, Condition{"5<=5", true}, Condition{"6<=5", false},
                                         Condition{"5>=6", false}, Condition{"6>=6", true}, Condition{"5!6", true},
                                         Condition{"5!5", false}, Condition{"5!=5", false}, Condition{"5!=6", true},
                                         Condition{"5=5", true}, Condition{"5=6", false}, Condition{"2+3=5", true},
                                         Condition{"(1+1)*2=4", true}, Condition{"5==5", false}));

INSTANTIATE_TEST_SUITE_P(Oddities, ConditionOf,
                         testing::Values(Condition{"=5", false}, Condition{"5=", false}, Condition{"0=", true},
                                         Condition{"1<2<3", true}, Condition{"3<2<9", false}, Condition{"3<>5", false},
                                         Condition{"5=>3", false}, Condition{"0=>3", true}, Condition{"5=<3", false},
                                         Condition{"0\r=0", false}, Condition{"1\r=0", true}));

TEST(Relations, FailuresOfASideLeave) {
  EXPECT_THROW(Holds("1/0=1"), Failure);
  EXPECT_THROW(Holds("1=1/0"), Failure);
  EXPECT_THROW(Holds("1/0"), Failure);
}

TEST(Relations, WithoutAComparisonTheCallersBracketsAreReplaced) {
  LimitedWatch watch;
  std::string expression = "(1+1)*2";
  RelationEvaluator(expression, Arithmetic(watch));
  EXPECT_EQ(expression, "2*2");
}

}  // namespace
}  // namespace zerimo
