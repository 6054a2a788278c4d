#include "interpreter/word_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

namespace zerimo {
namespace {

template <auto Expression>
concept Compiles = requires {
  typename std::bool_constant<(static_cast<void>(Expression()), true)>;
};

TEST(WordTableTest, AnActionIsWrittenAsItsFirstNameAndAsNothingElse) {
  EXPECT_EQ(FactsOf("FD").Name, "FD");
  EXPECT_EQ(FactsOf("FD").OtherName, "FORWARD");
  EXPECT_TRUE(Compiles<[]() consteval { return Action("FD"); }>);
  EXPECT_FALSE(Compiles<[]() consteval { return Action("FORWARD"); }>);
  EXPECT_FALSE(Compiles<[]() consteval { return Action("REPEAT"); }>);
  EXPECT_FALSE(Compiles<[]() consteval { return Action("fd"); }>);
}

TEST(WordTableTest, ActionsStandInTheOrderOfTheirNumbers) {
  int number = 0;
  for (const ActionFacts& facts : Actions()) EXPECT_EQ(facts.Does.Number, number++) << facts.Name;
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
