#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "claims.h"
#include "document_examples.h"
#include "document_links.h"
#include "document_quotations.h"

namespace zerimo::help {

namespace {

const std::filesystem::path sourceFolder = ZERIMO_SOURCE_DIR;

constexpr std::array documents = {"README.md", "docs/interpreter.md", "docs/language.md", "docs/quirks.md",
                                  "docs/user-guide.md"};

std::string NameOf(const testing::TestParamInfo<const char*>& document) {
  std::string name = std::filesystem::path(document.param).stem().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

class Document : public testing::TestWithParam<const char*> {
 protected:
  const std::vector<Example> examples = ExamplesInDocument(sourceFolder / GetParam());
};

}  // namespace

TEST_P(Document, HasExamplesWithClaims) {
  EXPECT_FALSE(examples.empty());
  for (const Example& example : examples) EXPECT_FALSE(example.Claims.empty()) << JoinedLines(example.Typed);
}

TEST_P(Document, ExamplesDoWhatTheDocumentClaims) {
  for (const Example& example : examples) EXPECT_EQ(ProblemsOf(example, "documents"), "");
}

TEST(DocumentLinks, LeadToFilesAndHeadingsThatAreThere) {
  for (const std::filesystem::path& document : AllDocuments(sourceFolder)) {
    for (const std::string& link : LinksIn(document))
      EXPECT_TRUE(LeadsSomewhere(document, link)) << link << " in " << document.filename();
  }
}

TEST(AddingAWord, IsShownWithLinesThatAreThere) {
  const std::vector<Quotation> quotations = QuotationsIn(sourceFolder / "CONTRIBUTING.md", "## Add a word");
  EXPECT_EQ(quotations.size(), 7U);
  for (const Quotation& quotation : quotations) {
    EXPECT_TRUE(HasLine(sourceFolder / quotation.File, quotation.Line)) << quotation.Line << " in " << quotation.File;
  }
}

INSTANTIATE_TEST_SUITE_P(Documents, Document, testing::ValuesIn(documents), NameOf);

}  // namespace zerimo::help
