#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "interpreter/arithmetic.h"
#include "support/failure_of.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

TokenArray Tokens(std::initializer_list<const char*> texts) {
  TokenArray tokens;
  int index = 1;
  for (const char* text : texts) tokens.Set(index++, text);
  return tokens;
}

/// The tokens up to the end mark.
Texts Listed(const TokenArray& tokens) {
  Texts texts;
  for (int index = 1; !tokens.IsEnd(index); ++index) texts.push_back(tokens.At(index));
  return texts;
}

TEST(TokenArray, HasIndexes0To100) {
  TokenArray tokens;
  tokens.Set(100, "X");
  EXPECT_EQ(tokens.At(100), "X");
  EXPECT_EQ(tokens.At(0), "");
  EXPECT_EQ(FailureOf([&] { tokens.At(101); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { tokens.Set(101, "X"); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { tokens.Append(101, 'X'); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { tokens.At(-1); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { tokens.Set(-1, "X"); }), FailureKind::SubscriptOutOfRange);
}

TEST(TokenArray, EndsAtTheEmptyTextOrACarriageReturn) {
  const TokenArray tokens = Tokens({"3", "\r", "4", "\r5"});
  EXPECT_FALSE(tokens.IsEnd(1));
  EXPECT_TRUE(tokens.IsEnd(2));
  EXPECT_FALSE(tokens.IsEnd(4));
  EXPECT_TRUE(tokens.IsEnd(5));
}

TEST(SpaceRemover, LooksAtNothingAfterACarriageReturn) {
  TokenArray tokens = Tokens({"1", "\r", " ", "2"});
  SpaceRemover(tokens);
  EXPECT_EQ(tokens.At(3), " ");
}

TEST(SpaceRemover, FailsWith100Tokens) {
  TokenArray tokens;
  for (int index = 1; index <= 99; ++index) tokens.Set(index, "1");
  EXPECT_EQ(FailureOf([&] { SpaceRemover(tokens); }), std::nullopt);
  tokens.Set(100, "1");
  EXPECT_EQ(FailureOf([&] { SpaceRemover(tokens); }), FailureKind::SubscriptOutOfRange);
}

TEST(UnaryMinusProcessor, JoinsAMinusAfterAnOperator) {
  for (const char* op : {"*", "/", "%"}) {
    TokenArray tokens = Tokens({"3", op, "-", "4"});
    UnaryMinusProcessor(tokens);
    EXPECT_EQ(Listed(tokens), (Texts{"3", op, "-4"}));
  }
}

TEST(UnaryMinusProcessor, LeavesAMinusAfterASign) {
  for (const char* sign : {"+", "-"}) {
    TokenArray tokens = Tokens({"3", sign, "-", "4"});
    UnaryMinusProcessor(tokens);
    EXPECT_EQ(Listed(tokens), (Texts{"3", sign, "-", "4"}));
  }
}

TEST(Multiplier, ReadsAnOperatorBesideItAs0) {
  TokenArray tokens = Tokens({"2", "*", "+", "3"});
  Multiplier(tokens);
  EXPECT_EQ(Listed(tokens), (Texts{" 0", "3"}));
}

TEST(Multiplier, DoesNotSeeTheFirstToken) {
  TokenArray tokens = Tokens({"*", "3"});
  Multiplier(tokens);
  EXPECT_EQ(Listed(tokens), (Texts{"*", "3"}));
}

TEST(AddandSub, LooksOneTokenBack) {
  TokenArray tokens = Tokens({"3", "-", "-", "4"});
  EXPECT_EQ(AddandSub(tokens), -1);
}

TEST(AddandSub, SubtractsOnlyAfterExactlyAMinus) {
  TokenArray tokens = Tokens({"3", "- ", "4", "-", "1"});
  EXPECT_EQ(AddandSub(tokens), 6);
}

}  // namespace
}  // namespace zerimo
