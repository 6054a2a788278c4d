#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "claims.h"
#include "document_examples.h"

namespace zerimo::help {

namespace {

constexpr std::array documents = {"language", "quirks", "user-guide"};

std::string NameOf(const testing::TestParamInfo<const char*>& document) {
  std::string name = document.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

class Document : public testing::TestWithParam<const char*> {
 protected:
  const std::vector<Example> examples =
      ExamplesInDocument(std::filesystem::path(ZERIMO_SOURCE_DIR) / "docs" / (std::string(GetParam()) + ".md"));
};

}  // namespace

TEST_P(Document, HasExamplesWithClaims) {
  EXPECT_FALSE(examples.empty());
  for (const Example& example : examples) EXPECT_FALSE(example.Claims.empty()) << JoinedLines(example.Typed);
}

TEST_P(Document, ExamplesDoWhatTheDocumentClaims) {
  for (const Example& example : examples) EXPECT_EQ(ProblemsOf(example, "documents"), "");
}

INSTANTIATE_TEST_SUITE_P(Documents, Document, testing::ValuesIn(documents), NameOf);

}  // namespace zerimo::help
